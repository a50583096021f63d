#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "records/BioInHand.h"
#include "records/Notice.h"
#include "records/clsA.h"

namespace vexora {

class ReadTalk;
class clsCrS;
class clsM;
class clsR;
class OpenRecord;
class Record;
class Substance;
class SubstanceSample;
class clsComplex;
class clsComplexSample;
struct DataLines;

/// Numbers of the values or sets of one kind that a mixture or reaction has.
struct SetNumbers {
    std::unordered_set<std::string> taken;
    std::int64_t highest = 0;
};

/// What the reader of a record file remembers from one line to the next. One lives for one read.
struct ReaderState {
    explicit ReaderState(ReadTalk& whoListens) : talk(whoListens) {}

    ReadTalk& talk;
    /// The header stays in force until the next ^A, the factor until ^M says 0, or another sample,
    /// compound or source begins.
    clsA pending; // header and factor that stand for the next data record

    int lineNumber = 0;
    /// A save would lose these lines, so a document that has any is not to be saved over its file.
    int linesNotKept = 0;
    std::vector<LineLost> lost; // what else a save would lose, and lines that nobody knows
    std::vector<LineLost> told; // what records had to say of their lines
    int pendingLines = 0;       // lines of the header since the last data record
    bool hasHeader = false;     // a header is in force
    int headerLine = 0;         // the header, until a record stands under it
    int factorLine = 0;         // the factor, until a value stands in the unit that it makes
    double statedFactor = 0;    // what that line says
    bool lastNotKept = false;   // the last data record is one that this edition does not keep
    /// How lines of data are read in the system that is being read (a compound, a mixture, a
    /// reaction); null behind one that this edition does not keep.
    const DataLines* lines = nullptr;
    /// The record to which ^X lines, rows and ^Y lines belong, null for none.
    std::shared_ptr<OpenRecord> open;
    /// Lines of the statements of the open record, by the place that they took in it.
    std::unordered_map<int, int> statementLines;
    int rowStatementsLine = 0; // that of the row read last, 0 for none
    BioInHand bio;
    std::shared_ptr<clsBR> lastBioReaction; // of those that are in hand no more
    std::shared_ptr<clsCrS> structure;      // the one read last in this system, null for none
    int structureLines = 0;                 // its lines as long as it has not joined its sample

    bool isAbandoned = false;
    bool isStopped = false; // because nobody wants it any more
    /// A registry number that is no number: nothing behind it can be told to a compound.
    bool endsProgram = false;
    std::string fault;

    /// Registry numbers that were mended, by the number that the file names.
    /// Lines further down still name the old number and must find their compound.
    std::unordered_map<std::string, std::string> mendedRN;
    /// What is there already, so that looking for a twin takes no walk through all siblings.
    std::unordered_map<const Substance*, std::unordered_map<int, std::shared_ptr<SubstanceSample>>>
        samples;
    std::unordered_map<const SubstanceSample*, std::unordered_set<std::string>> setKeys;
    std::unordered_map<const Record*, std::unordered_map<std::string, SetNumbers>> setNumbers;
    /// How many authors of a source have one number.
    std::unordered_map<const clsR*, std::unordered_map<std::string, int>> authorKeys;
    /// The highest number of a bio set, by the collection.
    std::unordered_map<const void*, int> highestBioSet;
    /// Mixtures whose components stand in another order than in the one that the source has
    /// already: their sets join it once all their lines are read.
    std::vector<std::shared_ptr<clsM>> reordered;
    std::unordered_map<const clsR*, std::pair<int, std::string>> descriptions; // ^J, by its line
    /// The complex and the sample of one that wait for the line that closes them; null for none.
    std::shared_ptr<clsComplex> openComplex;
    std::shared_ptr<clsComplexSample> openComplexSample;

    /// Makes the lines that follow belong to another data record, null for none.
    void OpenNext(std::shared_ptr<OpenRecord> next = nullptr);
    /// Names a line of which a save would lose something.
    void Lose(int line, const std::string& what);
    /// The factor in front is none of what follows: names it, if no value stands by it.
    void LeaveFactor();
    /// No line that follows belongs to the structure in hand: names one that has not been closed.
    void LeaveStructure();
    /// What lines of data in front left, header aside, is none of the system that begins now.
    void BeginSystem(const DataLines* itsLines);
    /// The number with its check digit set right, told unless the compound's line has told it.
    std::string MendedRN(const std::string& rn);
    /// Names what no record stands behind at the end of the file.
    void Finish();
    /// Counts the line as one that is not kept; the lines of a header that belong to it go along.
    void PassOver();
    /// The number of a value or set that joins its mixture or reaction: its own, or the next free
    /// one of its kind when that is taken, which is told. `place` names the owner, one line each.
    std::string SettledNumber(const Record& owner, const Record& set, const std::string& place);
    /// The samples of a compound or complex by their number.
    std::unordered_map<int, std::shared_ptr<SubstanceSample>>& SamplesOf(const Substance& owner);

    /// Drops the read for a line that lacks a field or has no place.
    void AbandonIncomplete(std::string_view line);
    /// Says what a record has to say.
    void Tell(const Notices& notices);
    /// Says the message and drops the read.
    void Abandon(const std::string& text, const std::string& title = {});
    /// The same for a message that has been said already.
    void AbandonSaid(const std::string& text);
};

/// Reads one line that is not blank into the document.
void ReadRecord(ReaderState& state, std::string_view line);

} // namespace vexora
