#include "shell/Recovery.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/RecordReader.h"
#include "records/clsR.h"
#include "reference/Database.h"
#include "reference/Numbers.h"
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

void GatherNodes(const std::vector<std::unique_ptr<ui::TreeNode>>& nodes,
                 std::vector<ui::TreeNode*>& into) {
    for (const auto& node : nodes) {
        into.push_back(node.get());
        GatherNodes(node->Children(), into);
    }
}

/// The nodes of the records in the order of the file.
std::vector<ui::TreeNode*> NodesOfRecords() {
    std::vector<ui::TreeNode*> nodes;
    WalkDocument([&nodes](const Record& record) { nodes.push_back(record.tNode); });
    return nodes;
}

using Places = std::unordered_map<const ui::TreeNode*, std::size_t>;

Places PlacesOf(const std::vector<ui::TreeNode*>& nodes) {
    Places places;
    for (std::size_t n = 0; n < nodes.size(); ++n)
        places.emplace(nodes[n], n);
    return places;
}

/// What was added by a person stands behind what was there, whatever its kind.
std::string OrderOfNodes() {
    if (Globals().tvwTree == nullptr) return {};
    std::vector<ui::TreeNode*> shown;
    GatherNodes(Globals().tvwTree->Roots(), shown);
    const auto ofRecords = NodesOfRecords();
    if (shown == ofRecords) return {};
    const Places places = PlacesOf(ofRecords);
    std::string order;
    for (const ui::TreeNode* node : shown) {
        const auto place = places.find(node);
        if (place != places.end()) order += " " + std::to_string(place->second);
    }
    return order;
}

/// Brings the nodes below one, and those below them, into the order of their places.
void ArrangeBelow(ui::TreeView& tree, ui::TreeNode& above, const Places& places) {
    const auto placeOf = [&places](const auto& node) {
        const auto place = places.find(&*node);
        return place == places.end() ? places.size() : place->second;
    };
    if (!std::ranges::is_sorted(above.Children(), {}, placeOf)) {
        std::vector<std::unique_ptr<ui::TreeNode>> nodes;
        while (!above.Children().empty()) // from behind, where taking costs nothing
            nodes.push_back(tree.Take(*above.Children().back()));
        std::ranges::reverse(nodes);
        std::ranges::stable_sort(nodes, {}, placeOf);
        for (std::size_t n = 0; n < nodes.size(); ++n)
            tree.Put(std::move(nodes[n]), n);
    }
    for (const auto& node : above.Children())
        ArrangeBelow(tree, *node, places);
}

void ArrangeNodes(const std::vector<std::size_t>& order) {
    ui::TreeView* const tree = Globals().tvwTree;
    if (order.empty() || tree == nullptr) return;
    const auto nodes = NodesOfRecords();
    std::vector<ui::TreeNode*> arranged;
    for (const std::size_t place : order)
        if (place < nodes.size()) arranged.push_back(nodes[place]);
    const Places places = PlacesOf(arranged);
    for (const auto& root : tree->Roots())
        ArrangeBelow(*tree, *root, places);
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

ui::Answer AskAbout(const RecoveryCopy& copy) {
    const std::string name =
        copy.FileName.empty() ? "a new document" : SplitPath(copy.FileName).Title;
    return ui::TheDesktop().Show({"The program ended without saving " + name +
                                      ".\nDo you want to restore the document as it was after the "
                                      "last accepted dialog?",
                                  "Recovery", ui::MessageButtons::YesNoCancel, ui::Answer::Yes,
                                  "&Restore", "&Discard"});
}

} // namespace

std::string RecoveryTextOf(const std::string& fileName, const KnownFile& known) {
    std::string text = std::string(FirstLine) + "\nfile " + OneLine(fileName) + "\nknown " +
                       OneLine(known.ToText()) + "\n";
    for (const auto& source : Globals().recR)
        text += "registered " + source->RegisteredAs + "\n";
    if (const std::string order = OrderOfNodes(); !order.empty()) text += "nodes" + order + "\n";
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
        else if (line.starts_with("nodes "))
            for (const std::string& place : Split(value, ' '))
                copy.Nodes.push_back(static_cast<std::size_t>(ToInteger(Val(place))));
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
    ArrangeNodes(copy.Nodes);
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
    if (!std::exchange(hasTrouble_, true)) trouble_ = "no recovery copy can be written: " + fault;
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
    const ui::Answer answer = !copy                 ? ui::Answer::Yes
                              : StandsInFile(*copy) ? ui::Answer::No
                                                    : AskAbout(*copy);
    if (answer == ui::Answer::No) files.Remove(path);
    if (answer != ui::Answer::Yes) return false;
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
