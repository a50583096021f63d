// What the window tells beside its controls: the document's name, the new node, the page that
// greets who has none open; the panes that the keyboard goes between; why an entry is dead.

#include <algorithm>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/Record.h"
#include "reference/Numbers.h"
#include "shell/NextStep.h"
#include "shell/NodeWords.h"
#include "shell/WelcomePage.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"
#include "ui/Utf8.h"

namespace vexora {

void frmMain::WireDesk() {
    tvwTree.IconOf = [](const ui::TreeNode& node) { return IconOfRecord(node.Tag.lock().get()); };
    tvwTree.TipOf = [](const ui::TreeNode& node) { return TipOfRecord(node.Tag.lock().get()); };
    tvwTree.NodeAdded.Connect([this](ui::TreeNode* node) {
        lastDone_.clear();
        if (!Globals().OpenForms.empty()) added_ = node;
    });
    tvwTree.NodeRemoved.Connect([this](const ui::TreeNode* gone) {
        lastDone_.clear();
        for (const ui::TreeNode* node = added_; node != nullptr; node = node->Parent())
            if (node == gone) return ForgetAdded();
    });
    mnuNextPane.OnClick = [this] { GoToPane(false); };
    mnuLastPane.OnClick = [this] { GoToPane(true); };
}

std::string frmMain::DocumentName() const {
    if (Globals().recR.IsEmpty()) return {};
    if (!FileName.empty()) return FileTitle();
    return copyOf_.empty() ? "New document" : "Copy of " + copyOf_;
}

bool frmMain::IsChanged() const {
    return !Globals().recR.IsEmpty() && !Globals().Saved;
}

const ui::TreeNode* frmMain::NewNode() const {
    return added_ == tvwTree.SelectedNode() || !Globals().OpenForms.empty() ? nullptr : added_;
}

/// What came last, and what it asks for next.
std::string frmMain::NewNodeText() const {
    const ui::TreeNode* node = NewNode();
    if (node == nullptr) return {};
    constexpr std::size_t most = 40;
    const std::string next = NextFor(node->Tag.lock().get());
    std::u32string label = ui::ToPoints(node->Text());
    if (label.size() > most) label.replace(most, label.npos, U"...");
    const std::string text = " - new: " + ui::FromPoints(label);
    return next.empty() ? text : text + ", then " + next;
}

std::string frmMain::WelcomePage(const std::vector<std::string>& recent) const {
    return Globals().recR.IsEmpty() ? WelcomeHtml(recent, InstalledExamples()) : std::string();
}

void frmMain::FollowLink(const std::string& link) {
    if (Globals().ShellLocked || !IsReachable()) return;
    if (link == "start") return AddRef.UserClick();
    if (link == "open") return Open.UserClick();
    const std::size_t colon = link.find(':');
    const auto number = ParseInteger(colon == link.npos ? "" : link.substr(colon + 1));
    if (!number) return;
    if (link.starts_with("help:")) return ui::TheDesktop().ShowHelp(static_cast<int>(*number));
    const auto examples = InstalledExamples();
    const auto place = static_cast<std::size_t>(*number);
    if (link.starts_with("example:") && place < examples.size()) OpenCopy(examples[place].path);
}

/// Opens a document that is to stay as it is: what is done goes under another name.
void frmMain::OpenCopy(const std::string& path) {
    if (!MayDiscard()) return;
    if (TakeFile(path)) {
        known_.Forget();
        FileName.clear();
        copyOf_ = SplitPath(path).Title;
        SelectRoot();
        SelectBy(true);
        tvwTree.SetFocus();
    }
    Activate();
}

/// Toolbar, search, tree and reading pane, round and round.
void frmMain::GoToPane(bool backwards) {
    std::vector<ui::Control*> panes{Toolbar1.Stop(), &txtFind, &tvwTree, &rtfReading};
    std::erase(panes, nullptr);
    if (backwards) std::ranges::reverse(panes);
    const ui::Control* from = ActiveControl();
    if (from == &picReading) from = &rtfReading;
    const auto here = std::ranges::find(panes, from);
    std::ranges::rotate(panes, here == panes.end() ? here : here + 1);
    panes.front()->SetFocus();
}

/// A dead control says why; the tip of a live one says what it does.
void frmMain::TellWhy() {
    const ui::TreeNode* node = tvwTree.SelectedNode();
    const bool reachedByKey = node != nullptr && !node->Hidden() && !MouseSelected;
    for (ui::ToolButton* button : Toolbar1.Buttons())
        button->WhyDisabled(WhyNotOffered(button->Name(), reachedByKey));
    const std::string next(NextButton());
    for (ui::StepButton* step : Steps())
        step->IsNext(step->IsUsable() && step->Name() == next);
    const bool isEmpty = Globals().recR.IsEmpty();
    const std::string document = isEmpty ? "Start a document first, or open one" : "";
    const std::pair<ui::MenuItem*, const char*> reasons[] = {
        {&mnuNewLike, "Select a set of data with rows first"},
        {&mnuUndoDelete, "Nothing has been deleted since the document was opened or saved"},
        {&mnuUndoProcess, "No table has been processed since the document was opened or saved"},
        {&mnuCompare, ""},
        {&mnuCheck, ""},
        {&mnuDetect, "No mixture of the document holds a set of data with rows"},
        {&mnuBio, "The document holds no biothermodynamic sets"}};
    for (const auto& [entry, reason] : reasons)
        entry->WhyDisabled(document.empty() ? reason : document);
    for (ui::MenuItem* menu : {&mnuFile, &mnuEdit, &mnuTools})
        menu->WhyDisabled("A dialog is open: it has to be closed first");
}

} // namespace vexora
