#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/Notice.h"
#include "records/Walk.h"

namespace vexora {

class Record;
class clsR;

/// What cannot be true or cannot be used, what is doubtful or will be asked about, and what a
/// careful reader would still like to know.
enum class Severity { Error, Warning, Hint };
/// "error", "warning" or "hint".
std::string_view SeverityWord(Severity severity);

/// Something about the open document that a careful reader would question.
struct DocumentFinding {
    int line = 0; // of the file that was read, 0 for a record made since
    Severity severity = Severity::Warning;
    std::string text;
    /// What it is about, as long as the document is open; of a line that was passed over the record
    /// that stands in front of it. Null in an empty document.
    const Record* record = nullptr;
};

/// What the file of the document holds beyond the document, as its reading told.
struct PassedOver {
    int linesNotKept = 0; // of kinds of data that this edition reads over
    std::vector<LineLost> lost;
    std::vector<LineLost> told; // said of lines in passing; empty where they are reported already
};

/// A word on the lines of unknown kinds; empty when there are none.
std::string NotKeptText(const PassedOver& passedOver);

/// The first sample of a complex with a component that its complex has not, null for none. Such a
/// document cannot be saved.
const Record* SampleBesideSystem();
/// What is said of it.
inline constexpr const char* BesideSystemText =
    "Complex sample composition does not correspond to the system definition";

/// What a save leaves out of the file, to be said before it: compounds that came from a file, have
/// no sample and are named by no mixture or reaction; mixtures without data.
std::vector<std::string> LeftOutOfSave(clsR& source);

/// Goes through the open document without asking or changing anything: lines that were passed over,
/// gaps in the citation, what a save would drop or ask about, descriptions that cannot be taken
/// apart, codes that the tables do not hold, numbers that are none, values that are impossible or
/// suspicious, states and uncertainties that nobody stated, points that stand twice, and advice on
/// mixtures. What is said of the rows of a set names the first of them. In the order of the record
/// file, what was passed over first. Tells heard how far it is; throws WorkStopped when that wants
/// no more.
std::vector<DocumentFinding> CheckDocument(const PassedOver& passedOver = {},
                                           const WorkHeard& heard = {});

} // namespace vexora
