#include "shell/Recovery.h"

#include <algorithm>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/RecordReader.h"
#include "records/clsR.h"
#include "reference/Database.h"
#include "reference/SafeFile.h"
#include "reference/Text.h"
#include "shell/Paths.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr std::string_view FirstLine = "vexora recovery 1";
constexpr std::string_view LastLine = "end of copy";

/// A path may hold a line break.
std::string OneLine(const std::string& path) {
    return Replace(Replace(path, "%", "%25"), "\n", "%0A");
}

std::string FromOneLine(std::string_view text) {
    return Replace(Replace(text, "%0A", "\n"), "%25", "%");
}

std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
    return line;
}

/// Hears what was heard already when the document was read or made.
class SilentTalk : public ReadTalk {
public:
    void Say(const Notice&) override {}
    /// A source that the database has with another text is that source.
    bool Confirm(const std::string&) override { return false; }
};

bool StandsInFile(const RecoveryCopy& copy) {
    if (copy.FileName.empty()) return false;
    std::string error;
    const auto present = ui::TheDesktop().Files().Read(copy.FileName, error);
    return present && *present == copy.Records;
}

bool IsWanted(const RecoveryCopy& copy) {
    const std::string name =
        copy.FileName.empty() ? "a new document" : SplitPath(copy.FileName).Title;
    return ui::TheDesktop().Show({"The program ended without saving " + name +
                                      ".\nDo you want to restore the document as it was after the "
                                      "last accepted dialog?",
                                  "Recovery", ui::MessageButtons::YesNo, ui::Answer::Yes,
                                  "&Restore", "&Discard"}) == ui::Answer::Yes;
}

} // namespace

std::string RecoveryTextOf(const std::string& fileName, const KnownFile& known) {
    std::string text = std::string(FirstLine) + "\nfile " + OneLine(fileName) + "\nknown " +
                       OneLine(known.ToText()) + "\n";
    for (const auto& source : Globals().recR)
        text += "registered " + source->RegisteredAs + "\n";
    return text + "records\n" + DocumentInMemory() + std::string(LastLine) + "\n";
}

std::optional<RecoveryCopy> RecoveryCopyOf(std::string_view text) {
    RecoveryCopy copy;
    const std::string end = std::string(LastLine) + "\n";
    if (TakeLine(text) != FirstLine || !text.ends_with(end)) return {};
    text.remove_suffix(end.size());
    while (!text.empty()) {
        const std::string_view line = TakeLine(text);
        const std::string_view value = line.substr(std::min(line.find(' ') + 1, line.size()));
        if (line.starts_with("file "))
            copy.FileName = FromOneLine(value);
        else if (line.starts_with("known "))
            copy.Known = KnownFile::FromText(FromOneLine(value));
        else if (line.starts_with("registered "))
            copy.RegisteredAs.emplace_back(value);
        else if (line == "records")
            break;
    }
    copy.Records = text;
    return copy;
}

std::string ReadRecoveryCopy(const RecoveryCopy& copy) {
    KVOGlobal& globals = Globals();
    SilentTalk talk;
    const ReadResult result = ReadRecords(copy.Records, talk, ReadPurpose::Look);
    if (!result.whole) return result.fault;
    if (globals.recR.IsEmpty()) return "It holds no source record";
    std::size_t n = 0;
    for (const auto& source : globals.recR) {
        source->toRegister = source->toSettle = false; // a save does that
        if (n < copy.RegisteredAs.size()) source->RegisteredAs = copy.RegisteredAs[n++];
    }
    globals.Saved = false;
    globals.DialogAccepted = false;
    return {};
}

void Recovery::Follow(const std::string& fileName, const KnownFile& known) {
    if (!folder_) return;
    if (Globals().recR.IsEmpty() || Globals().Saved) return Discard();
    try {
        const std::string text = RecoveryTextOf(fileName, known);
        if (tried_ == std::hash<std::string>()(text)) return;
        tried_ = std::hash<std::string>()(text);
        trouble_.clear();
        Write(text);
    } catch (const SaveRefused&) { // a save will tell
    } catch (const DatabaseError&) {
    }
}

void Recovery::Write(const std::string& text) {
    std::string fault;
    const std::string path = folder_->Own(fault);
    if (!path.empty()) {
        const SaveOutcome outcome = WriteSafely(ui::TheDesktop().Files(), path, text, false);
        if (outcome.isSaved) {
            path_ = path;
            hasTrouble_ = false;
            return;
        }
        fault = outcome.fault;
    }
    if (!std::exchange(hasTrouble_, true))
        trouble_ = "no recovery copy can be written: " + fault;
}

void Recovery::Discard() {
    tried_ = 0;
    trouble_.clear();
    if (path_.empty()) return;
    ui::TheDesktop().Files().Remove(path_);
    path_.clear();
}

bool Recovery::Offer(const std::function<std::string(const RecoveryCopy&)>& restore) {
    if (!folder_) return false;
    bool isRestored = false;
    for (const std::string& path : folder_->Orphans())
        isRestored = isRestored || OfferOne(path, restore);
    folder_->LeaveOthers();
    return isRestored;
}

bool Recovery::OfferOne(const std::string& path,
                        const std::function<std::string(const RecoveryCopy&)>& restore) {
    ui::FileSystem& files = ui::TheDesktop().Files();
    std::string fault;
    const auto text = files.Read(path, fault);
    const auto copy = text ? RecoveryCopyOf(*text) : std::nullopt;
    if (copy && (StandsInFile(*copy) || !IsWanted(*copy))) {
        files.Remove(path);
        return false;
    }
    if (copy) fault = restore(*copy);
    if (copy && fault.empty()) {
        folder_->Adopt(path);
        path_ = path;
        return true;
    }
    files.Rename(path, path + ".unread");
    ui::Say("A recovery copy cannot be read. It stays as " + path + ".unread" +
            (fault.empty() ? "" : "\n" + fault));
    return false;
}

} // namespace vexora
