#include "shell/frmMain.h"

#include "globals/KVOGlobal.h"
#include "records/Record.h"
#include "shell/ReadingPane.h"
#include "shell/StartUp.h"
#include "shell/StatusLine.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* MainCaption = "Vexora - Thermophysical and Thermochemical Data";

} // namespace

frmMain::frmMain() : Form("frmMain", MainCaption) {
    Arrangement = ui::Column({Toolbar1, ui::Split(tvwTree, rtfReading), lblStatus});
    PreferredColumns = 190;
    PreferredRows = 46;
    HelpContext = 110;
    mnuExportXML.BeginsGroup = true;
    mnuFileExit.BeginsGroup = true;
    mnuAbout.BeginsGroup = true;
    WireMenus();
    WireToolbar();
    WireTree();
}

void frmMain::Load() {
    Globals().tvwTree = &tvwTree;
    for (ui::MenuItem* entry :
         {&mnuDetect, &mnuMerge, &mnuInvert, &mnuBio, &mnuPreLoad, &mnuDelete})
        entry->Enabled(false);
    const ui::Forms& forms = ui::Forms::Current();
    New.Enabled(forms.Knows("frmDocument"));
    mnuFindRef.Enabled(forms.Knows("frmRef"));
    EmptyDocument();
    ShowOptionalButtons();
}

void frmMain::Unload() {
    Globals().tvwTree = nullptr;
    if (Globals().ProgramEnds) ui::TheDesktop().EndProgram();
}

void frmMain::WireMenus() {
    New.OnClick = [this] { NewDocument(); };
    mnuFindRef.OnClick = [this] {
        if (NewProc()) OpenDialog("frmRef");
    };
    Open.OnClick = [this] { OpenDocument(); };
    SaveEntry.OnClick = [this] { Save(); };
    SaveAsEntry.OnClick = [this] { SaveAs(); };
    mnuExportXML.OnClick = [this] { ExportDocument(); };
    mnuFileExit.OnClick = [this] { Close(); };
    mnuExpandNode.OnClick = [this] { mnuExpandNode_Click(); };
    mnuEditNode.OnClick = [this] { mnuEditNode_Click(); };
    mnuNewLike.OnClick = [this] { mnuNewLike_Click(); };
    mnuToolsConfigure.OnClick = [this] { mnuToolsConfigure_Click(); };
    ShowHelpOn(mnuIntro, 10);
    ShowHelpOn(mnuScope, 20);
    ShowHelpOn(mnuList, 30);
    ShowHelpOn(mnuWhats, 40);
    ShowHelpOn(mnuHelpPurpose, 110);
    ShowHelpOn(mnuHelpSequence, 120);
    ShowHelpOn(mnuHelpActions, 130);
    ShowHelpOn(mnuHelpDisplay, 140);
    ShowHelpOn(mnuHelpBio, 145);
    mnuAbout.OnClick = [] { ShowAbout(); };
}

void frmMain::ShowHelpOn(ui::MenuItem& entry, int context) {
    entry.OnClick = [context] { ui::TheDesktop().ShowHelp(context); };
}

void frmMain::WireTree() {
    tvwTree.OnMouseDown = [this] { MouseSelected = false; };
    tvwTree.OnNodeClick = [this](ui::TreeNode&) { ClickNode(); };
    tvwTree.OnNodeReached = [this](ui::TreeNode&) { KeyboardSelection(); };
    tvwTree.OnNodeDoubleClick = [this](ui::TreeNode&) { EditNode(); };
    tvwTree.OnDrop = [this](const std::string& path) { DropFile(path); };
}

void frmMain::Activate() {
    KVOGlobal& globals = Globals();
    if (!globals.OpenForms.empty()) return;
    if (!globals.recR.IsEmpty() && globals.CurrentKey.empty()) SelectRoot();
    if (globals.DialogAccepted) globals.Saved = false;
    globals.DialogAccepted = false;
    if (!tvwTree.IsEmpty()) MouseSelected = true;
    SelectNode();
    Enable();
}

void frmMain::SelectRoot() {
    if (tvwTree.IsEmpty()) return;
    tvwTree.Select(tvwTree.Roots().front().get());
    Globals().CurrentKey = "R";
}

/// Makes the record of the selected node the current one. A node that was reached with the keyboard
/// does not count: nothing is current then.
void frmMain::SelectNode() {
    Globals().CurrentKey.clear();
    const ui::TreeNode* node = tvwTree.SelectedNode();
    if (node != nullptr && MouseSelected) {
        if (auto record = std::dynamic_pointer_cast<Record>(node->Tag.lock())) record->SetMe();
    }
    if (!Globals().ShellLocked) Enable();
}

void frmMain::ClickNode() {
    if (Globals().ShellLocked) return;
    MouseSelected = true;
    SelectNode();
}

void frmMain::KeyboardSelection() {
    if (Globals().ShellLocked) return;
    MouseSelected = false;
    SelectNode();
}

void frmMain::mnuExpandNode_Click() {
    if (!HasMouseSelection()) return;
    tvwTree.SelectedNode()->Expanded(true);
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
    rtfReading.Html(ReadingHtml(node == nullptr ? nullptr : node->Tag.lock().get()));
    lblStatus.Caption(StatusText(FileTitle, NextSteps()));
}

/// The captions of the toolbar buttons that can be pressed now.
std::string frmMain::NextSteps() const {
    std::string steps;
    for (const ui::ToolButton* button : Toolbar1.Buttons()) {
        if (!button->IsUsable()) continue;
        if (!steps.empty()) steps += ", ";
        steps += button->Caption();
    }
    return steps;
}

bool frmMain::QueryUnload() {
    const KVOGlobal& globals = Globals();
    if (!globals.OpenForms.empty() || globals.ShellLocked) {
        ui::Say("Please close all other windows before exiting the main form");
        return false;
    }
    return MayDiscard();
}

} // namespace vexora
