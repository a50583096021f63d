#include "shell/frmMain.h"

#include <utility>

#include "globals/KVOGlobal.h"
#include "globals/Sitting.h"
#include "records/Record.h"
#include "shell/About.h"
#include "shell/Deletion.h"
#include "shell/DocumentAside.h"
#include "shell/ReadingPane.h"
#include "shell/ReadingPlot.h"
#include "shell/Recovery.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* MainCaption = "Vexora - Thermophysical and Thermochemical Data";

} // namespace

frmMain::frmMain() : Form("frmMain", MainCaption), recovery_(std::make_unique<Recovery>()) {
    Arrangement = ui::Column({Toolbar1,
                              ui::Split(ui::Column({ui::Field("Find", txtFind), tvwTree}),
                                        ui::Column({rtfReading, picReading})),
                              lblStatus});
    PreferredColumns = 190;
    PreferredRows = 46;
    HelpContext = 110;
    mnuCompare.BeginsGroup = true;
    mnuExpandNode.BeginsGroup = true;
    mnuFileExit.BeginsGroup = true;
    mnuAbout.BeginsGroup = true;
    WireMenus();
    WireToolbar();
    WireTree();
    WireFind();
    WireDesk();
}

frmMain::~frmMain() = default;

void frmMain::Load() {
    Globals().tvwTree = &tvwTree;
    for (ui::MenuItem* entry : {&mnuMerge, &mnuInvert, &mnuPreLoad})
        entry->Enabled(false);
    const ui::Forms& forms = ui::Forms::Current();
    New.Enabled(forms.Knows("frmDocument"));
    mnuFindRef.Enabled(forms.Knows("frmRef"));
    EmptyDocument();
    ShowOptionalButtons();
    tvwTree.SetFocus();
}

void frmMain::Unload() {
    Globals().tvwTree = nullptr;
    if (Globals().ProgramEnds) ui::TheDesktop().EndProgram();
}

void frmMain::WireMenus() {
    New.OnClick = [this] {
        if (NewProc()) OpenDialog("frmDocument");
    };
    mnuFindRef.OnClick = [this] { FindReference(); };
    Open.OnClick = [this] { OpenDocument(); };
    SaveEntry.OnClick = [this] { Save(); };
    SaveAsEntry.OnClick = [this] { SaveAs(); };
    mnuCompare.OnClick = [this] { mnuCompare_Click(); };
    mnuExportXML.OnClick = [this] { ExportDocument(); };
    mnuExportStrict.OnClick = [this] { ExportDocument(ExportFor::StrictReaders); };
    mnuFileExit.OnClick = [this] { Close(); };
    mnuExpandNode.OnClick = [this] {
        if (HasMouseSelection()) tvwTree.SelectedNode()->Expanded(true);
    };
    mnuEditNode.OnClick = [this] { mnuEditNode_Click(); };
    mnuNewLike.OnClick = [this] { mnuNewLike_Click(); };
    mnuDelete.OnClick = [this] { mnuDelete_Click(); };
    mnuUndoDelete.OnClick = [this] { mnuUndoDelete_Click(); };
    mnuUndoProcess.OnClick = [this] { mnuUndoProcess_Click(); };
    mnuCheck.OnClick = [this] { mnuCheck_Click(); };
    mnuDetect.OnClick = [this] { mnuDetect_Click(); };
    mnuBio.OnClick = [this] { mnuBio_Click(); };
    mnuToolsConfigure.OnClick = [this] { mnuToolsConfigure_Click(); };
    mnuToolsTables.OnClick = [] { ui::Forms::Current().Get("frmTables").ShowModal(); };
    const std::pair<ui::MenuItem*, int> pages[] = {
        {&mnuIntro, 10},        {&mnuScope, 20},        {&mnuList, 30},
        {&mnuWhats, 40},        {&mnuHelpPurpose, 110}, {&mnuHelpSequence, 120},
        {&mnuHelpActions, 130}, {&mnuHelpDisplay, 140}, {&mnuHelpBio, 145}};
    for (const auto& [entry, page] : pages)
        entry->OnClick = [context = page] { ui::TheDesktop().ShowHelp(context); };
    mnuAbout.OnClick = [] { ui::Say(AboutTextWithLicences()); };
}

void frmMain::WireTree() {
    tvwTree.OnMouseDown = [this] { MouseSelected = false; };
    tvwTree.OnNodeClick = [this](ui::TreeNode&) { SelectBy(true); };
    tvwTree.OnNodeReached = [this](ui::TreeNode&) { SelectBy(false); };
    tvwTree.OnNodeDoubleClick = [this](ui::TreeNode&) { EditNode(); };
    tvwTree.Offers = [this] { return OffersOfNode(); };
    tvwTree.OnDrop = [this](const std::string& path) { DropFile(path); };
}

void frmMain::Activate() {
    KVOGlobal& globals = Globals();
    // A dialog of the chain may have been accepted and another one be open still.
    if (!globals.OpenForms.empty()) return globals.DialogAccepted ? FollowDocument() : void();
    SettleAside();
    const bool isEmpty = globals.recR.IsEmpty();
    if (!isEmpty && globals.CurrentKey.empty() && !HasClickedNode()) SelectRoot();
    if (globals.DialogAccepted) globals.Saved = false;
    if (globals.DialogAccepted) FollowDocument();
    globals.DialogAccepted = false;
    if (!tvwTree.IsEmpty()) MouseSelected = true;
    SelectNode();
    Enable();
    // A button that has opened a dialog may be dead now.
    if (ActiveControl() != nullptr && !ActiveControl()->IsUsable()) tvwTree.SetFocus();
    FocusChanged.Emit();
}

/// A node that counts is selected, though a dialog may have been about something else.
bool frmMain::HasClickedNode() const {
    const ui::TreeNode* node = tvwTree.SelectedNode();
    return node != nullptr && MouseSelected && !node->Hidden();
}

void frmMain::SelectRoot() {
    if (tvwTree.IsEmpty()) return;
    tvwTree.Select(tvwTree.Roots().front().get());
    Globals().CurrentKey = "R";
}

/// Makes the record of the selected node the current one. A node that was reached with the keyboard
/// does not count, nor does one that the filter hides: nothing is current then.
void frmMain::SelectNode() {
    Globals().CurrentKey.clear();
    if (HasClickedNode()) {
        const auto tag = tvwTree.SelectedNode()->Tag.lock();
        if (auto record = std::dynamic_pointer_cast<Record>(tag)) record->SetMe();
    }
    if (!Globals().ShellLocked) Enable();
}

void frmMain::SelectBy(bool mouse) {
    if (Globals().ShellLocked) return;
    MouseSelected = mouse;
    ForgetAdded();
    lastDone_.clear();
    SelectNode();
}

void frmMain::mnuToolsConfigure_Click() {
    KVOGlobal& globals = Globals();
    ui::Forms::Current().Get("frmConfigure").ShowModal();
    ShowOptionalButtons();
    Activate();
    if (globals.ProgramEnds && !Close()) globals.ProgramEnds = false;
}

void frmMain::ShowOptionalButtons() {
    AddBio.Visible(Globals().BioEnabled);
    AddComplex.Visible(Globals().GHEnabled);
}

void frmMain::RefreshTexts() {
    const KVOGlobal& globals = Globals();
    Caption(globals.ReadOnly ? std::string(MainCaption) + " (read only)" : MainCaption);
    const ui::TreeNode* node = tvwTree.SelectedNode();
    const bool isShown = node != nullptr && !node->Hidden();
    const auto record = isShown ? node->Tag.lock() : nullptr;
    rtfReading.Html(ReadingHtml(record.get()));
    ShowReadingPlot(picReading, record.get());
    if (!globals.Saved && lastDone_.starts_with(LastSaved)) lastDone_.clear();
    lblStatus.Caption(StatusText());
    TheSitting().DocumentPath = FileName;
    TellWhy();
    DocumentAltered.Emit();
}

/// Which document is open, whether it is saved, and which toolbar buttons can be pressed now.
std::string frmMain::StatusText() const {
    const KVOGlobal& globals = Globals();
    std::string text = lastDone_ + DocumentName();
    const char* const saved = copyOf_.empty() ? " - saved" : " - not changed";
    text += globals.ReadOnly ? " - read only" : globals.Saved ? saved : " - not saved";
    if (globals.recR.IsEmpty()) text = "No document";
    if (!recovery_->Trouble().empty()) text += " - " + recovery_->Trouble();
    if (globals.ShellLocked) return text + " - a dialog is open";
    if (tvwTree.IsFiltered()) text += " - not all nodes are shown";
    text += NewNodeText();
    std::string before = " - next: ";
    for (const ui::ToolButton* button : Toolbar1.Buttons())
        if (button->IsUsable()) text += std::exchange(before, ", ") + button->Caption();
    return text;
}

bool frmMain::QueryUnload() {
    const KVOGlobal& globals = Globals();
    if (!globals.OpenForms.empty() || globals.ShellLocked) {
        ui::Say("Please close all other windows before exiting the main form");
        return false;
    }
    const bool closes = MayDiscard();
    if (closes) recovery_->Discard();
    return closes;
}

} // namespace vexora
