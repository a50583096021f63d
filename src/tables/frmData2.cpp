#include "tables/frmData2.h"

#include <functional>

#include "chem/clsProperty.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "grid/GridKey.h"
#include "records/clsTwo.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int helpAbout = 310;
constexpr int helpSequence = 320;
constexpr int helpList = 330;
constexpr int helpHow = 340;
constexpr int helpUncertainty = 345;

constexpr const char* firstRunText =
    "Numerical data are entered in an electronic table: type the values, paste them from another "
    "program, or read them from a text file. Each row holds the variables and the property. "
    "Cells that need a look are marked while you work, and listed below the table.";

} // namespace

frmData2::frmData2() : Form("frmData2", "Data table") {
    tblData.Editor = &txtCell;
    tblData.ShowsRowNumbers = true;
    txtCell.Visible(false);
    ArrangeControls();
    WireEvents();
    WireMenus();
    CancelButton = &cmdFinish;
    HelpContext = helpAbout;
}

frmData2::~frmData2() = default;

void frmData2::ArrangeControls() {
    using namespace ui;
    Arrangement = Column({lblColumns, tblData, lblNotice, lstFindings, Row({chkSup, Stretch()}),
                          ButtonRow({cmdView, cmdAssign, cmdClear, cmdSave, cmdFinish})});
    PreferredColumns = 130;
    PreferredRows = 40;
}

void frmData2::WireEvents() {
    tblData.OnKey = [this](ui::Key& key) { GridKeys(key); };
    tblData.OnDoubleClick = [this] {
        const ui::Grid::Block& block = tblData.Selection();
        ToEditMode(tblData.Cell(block.top, block.left));
    };
    tblData.OnEdit = [this](int row, int column, const std::string& text) {
        Enter(column, column,
              [&] { undo_.Do([&](TableEdit& edit) { edit.Cell(row, column, text); }); });
    };
    tblData.OnPaste = [this](const std::string& text) { Paste(text); };
    txtCell.OnKey = [this](ui::Key& key) { CellKeys(key); };
    txtCell.OnLostFocus = [this] { ToStandardMode(); };
    undo_.OnChange = [this] { TableChanged(); };
    undo_.OnCell = [this](TableEdit& edit, int row, int column, const std::string& before) {
        FollowCell(edit, row, column, before);
    };
    lstFindings.OnClick = [this] {
        const int index = lstFindings.Index();
        if (!Filling && index >= 0 && index < static_cast<int>(listed_.size()))
            GoTo(listed_[static_cast<std::size_t>(index)]);
    };
    cmdView.OnClick = [this] { View(); };
    cmdAssign.OnClick = [this] { Assign(); };
    cmdClear.OnClick = [this] { Clear(); };
    cmdSave.OnClick = [this] { Save(); };
    cmdFinish.OnClick = [this] { Close(); };
}

void frmData2::WireMenus() {
    // What is being typed into a cell belongs to the table before anything else is done with it.
    const auto on = [this](ui::MenuItem& item, const std::function<void()>& action) {
        item.OnClick = [this, action] {
            ToStandardMode();
            action();
        };
    };
    on(mnuFileOpen, [this] { OpenFile(); });
    on(mnuFileSave, [this] { SaveFile(); });
    on(mnuUndo, [this] { StepBack(undo_.CanUndo(), [this] { undo_.Undo(); }); });
    on(mnuRedo, [this] { StepBack(undo_.CanRedo(), [this] { undo_.Redo(); }); });
    const auto copy = [this] { ui::TheDesktop().ClipboardText(tblData.SelectionText()); };
    on(mnuCopy, copy);
    on(mnuCut, [this, copy] {
        copy();
        EmptyCells();
    });
    on(mnuPaste, [this] { Paste(ui::TheDesktop().ClipboardText()); });
    on(mnuPasteShown, [this] { PasteShown(); });
    on(mnuInsertRows, [this] { InsertRows(); });
    on(mnuRemoveRows, [this] { RemoveRows(); });
    on(mnuNextFinding, [this] { StepFinding(1); });
    on(mnuLastFinding, [this] { StepFinding(-1); });
    on(mnuAction2D, [this] { Action2D(); });
    on(mnuSplit, [this] { Split(); });
    on(mnuSystemUnits, [this] { AdjustUnits(); });
    const auto help = [](ui::MenuItem& item, int context) {
        item.OnClick = [context] { ui::TheDesktop().ShowHelp(context); };
    };
    help(mnuHelpAbout, helpAbout);
    help(mnuHelpSeq, helpSequence);
    help(mnuHelpList, helpList);
    help(mnuHelpHow, helpHow);
    help(mnuUnc, helpUncertainty);
}

void frmData2::Load() {
    Globals().DialogAccepted = false;
    TakeSet();
    const bool canPlot = ui::Forms::Current().Knows("frmGraph");
    cmdView.Enabled(set_ != nullptr && canPlot);
    cmdView.ToolTip(canPlot ? "" : "Plots come with a later edition");
    cmdAssign.Enabled(set_ != nullptr && ui::Forms::Current().Knows("frmUnc"));
    cmdSave.Enabled(set_ != nullptr);
    if (!set_) mnuSystemUnits.Enabled(false);
    if (Globals().FirstRun) ui::Say(firstRunText);
}

void frmData2::Activate() {
    tblData.SetFocus();
}

bool frmData2::IsChanged() const {
    return set_ && (TableText() != firstText_ || set_->UX != firstStatements_);
}

/// Work of an hour is not thrown away by a slip of the finger.
bool frmData2::QueryUnload() {
    if (stored_) return true;
    ToStandardMode();
    return !IsChanged() || ui::AskYesNo("The table has been changed\nDiscard the changes?");
}

/// What the statements became belongs to a table that was accepted.
void frmData2::Unload() {
    if (set_ && !stored_) set_->UX = statementsBefore_;
    CloseForm();
}

} // namespace vexora
