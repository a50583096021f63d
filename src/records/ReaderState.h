#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "records/clsA.h"

namespace vexora {

class clsL;
class clsS;
class clsZ;

/// What the reader of a record file remembers from one line to the next. One lives for one read.
struct ReaderState {
    clsA pending; // header and factor that stand for the next data record

    int lineNumber = 0;
    int linesNotKept = 0;
    int pendingLines = 0;        // lines of the header since the last data record
    bool inPure = false;         // data lines belong to a sample, not to a mixture or a reaction
    bool lastNotKept = false;    // the last data record is one that this edition does not keep
    std::shared_ptr<clsZ> value; // the record to which ^X lines belong

    bool isAbandoned = false;
    bool endsProgram = false;
    std::string fault;

    /// Registry numbers that were mended, by the number that the file names.
    std::unordered_map<std::string, std::string> mendedRN;
    /// What is there already, so that looking for a twin takes no walk through all siblings.
    std::unordered_map<const clsL*, std::unordered_map<int, std::shared_ptr<clsS>>> samples;
    std::unordered_map<const clsS*, std::unordered_set<std::string>> setKeys;

    /// Shows the message and drops the read.
    void Abandon(const std::string& text, const std::string& title = {});
    /// The same for a message that has been shown already.
    void AbandonSaid(const std::string& text);
};

/// Reads one line that is not blank into the document.
void ReadRecord(ReaderState& state, std::string_view line);

} // namespace vexora
