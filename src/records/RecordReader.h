#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "records/Notice.h"
#include "records/Walk.h"

namespace vexora {

/// What came of reading a record file.
struct ReadResult {
    bool whole = false;   // false: the read was abandoned and the document is empty
    int linesNotKept = 0; // lines of kinds of data that this edition reads over
    /// Lines that the document holds in part or not at all, in their order: of those not kept only
    /// the ones whose tag nobody knows, and what has no record to belong to.
    std::vector<LineLost> lost;
    std::vector<LineLost> told; // what was said of other lines, as of an author whom nobody knows
    bool stopped = false;       // whoever heard how far the read was wanted no more of it
    std::string fault;          // the message that was shown when the read was abandoned
    int faultLine = 0;          // line of the file, from 1
    bool endsProgram = false;   // the read found what this program cannot go on with
};

/// Who hears what comes up while a document is read, and answers. Both come in the order of the
/// lines, as long as the read goes on.
class ReadTalk {
public:
    virtual ~ReadTalk() = default;
    virtual void Say(const Notice& notice) = 0;
    /// The answer to a question of Yes or No.
    virtual bool Confirm(const std::string& question) = 0;
    /// Such a share of the text is read, from 0 to 1. False drops the read without a word.
    virtual bool Heard(double) { return true; }
};

/// Work adds sources that the reference database lacks to it and settles their texts there; Look
/// leaves it as it is.
/// A look (check, tree, export by command) must leave no trace in the database of the workplace.
enum class ReadPurpose { Work, Look };

/// Reads the text of a record file into the globals: sources join recR, their nodes the tree. The
/// text may be UTF-8 or, line by line, Windows-1252, with any line ends. A bad record is told and
/// the whole read is dropped: the document is empty then, never half loaded. What a save would not
/// give back is in the result.
ReadResult ReadRecords(std::string_view text, ReadTalk& talk,
                       ReadPurpose purpose = ReadPurpose::Work);

/// The document as a record file, and what its records have to say to the user about it.
/// All of it stands in memory before a file is touched: a refusal costs nothing.
struct PrintedDocument {
    std::string text;
    std::vector<std::string> notices;
};
/// Throws SaveRefused (LineWriter.h), whose text is for the user, for a record that cannot be
/// written truly. Nothing in memory changes but the letters of compounds and source.
/// Tells heard how far it is; throws WorkStopped when that wants no more.
PrintedDocument PrintDocument(const WorkHeard& heard = {});
/// The same part by part, without the text standing in memory; the answer is the notices. A refusal
/// may come when parts have been handed on.
std::vector<std::string> PrintDocument(const std::function<void(std::string_view)>& taker);

/// The document with all that is in memory, also what a record file leaves out. ReadRecords gives
/// it back. Throws SaveRefused. Nothing in memory changes.
std::string DocumentInMemory();

/// Rewrites the text of every node from its record.
void RefreshLabels();

} // namespace vexora
