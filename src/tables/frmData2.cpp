#include "tables/frmData2.h"

#include "chem/clsProperty.h"
#include "entry/Explanations.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int HelpAbout = 310;
constexpr int HelpSequence = 320;
constexpr int HelpList = 330;
constexpr int HelpHow = 340;
constexpr int HelpUncertainty = 345;

constexpr const char* FirstRunText =
    "Numerical data are entered in an electronic table: type the values, paste them from another "
    "program, or read them from a text file. Each row holds the variables and the property. "
    "Cells that need a look are marked while you work, and listed below the table.";

} // namespace

frmData2::frmData2() : Form("frmData2", "Data table"), TableMenu(static_cast<ui::Form&>(*this)) {
    ArrangeControls();
    WireEvents();
    WireMenus();
    CancelButton = &cmdFinish;
    HelpContext = HelpAbout;
    chkSup.ToolTip("No derivatives are calculated in this edition: there is nothing to suppress");
}

frmData2::~frmData2() = default;

void frmData2::ArrangeControls() {
    using namespace ui;
    Arrangement = Column({lblColumns, ui::Split(tblData, picBeside), lblNotice, lstFindings,
                          Row({chkSup, Stretch()}),
                          Field("Stated for the set:", Row({lblStated, cmdLastUnc, Stretch()})),
                          ButtonRow({cmdView, cmdAssign, cmdClear, cmdSave, cmdFinish})});
    PreferredColumns = 130;
    PreferredRows = 40;
}

void frmData2::WireEvents() {
    table_.Blocks().OnPut = [this](BlockToPut& put) { return MakeRoom(put); };
    table_.OnChanged = [this] { beside_.Follow(); };
    beside_.Points = [this] { return PointsBeside(); };
    beside_.OnGoTo = [this](int row, int) { GoToRow(row); };
    cmdView.OnClick = [this] { View(); };
    cmdAssign.OnClick = [this] { Assign(); };
    cmdClear.OnClick = [this] { table_.Blocks().Clear(); };
    cmdSave.OnClick = [this] { Save(); };
    cmdFinish.OnClick = [this] { Close(); };
}

void frmData2::WireMenus() {
    table_.Wire(mnuAction2D, [this] { Action2D(); });
    table_.Wire(mnuSplit, [this] { Split(); });
    table_.Wire(mnuSystemUnits, [this] { AdjustUnits(); });
    const auto help = [](ui::MenuItem& item, int context) {
        item.OnClick = [context] { ui::TheDesktop().ShowHelp(context); };
    };
    help(mnuHelpAbout, HelpAbout);
    help(mnuHelpSeq, HelpSequence);
    help(mnuHelpList, HelpList);
    help(mnuHelpHow, HelpHow);
    help(mnuUnc, HelpUncertainty);
}

void frmData2::Load() {
    Globals().DialogAccepted = false;
    TakeSet();
    cmdView.Enabled(set_ != nullptr);
    cmdAssign.Enabled(set_ != nullptr && ui::Forms::Current().Knows("frmUnc"));
    cmdSave.Enabled(set_ != nullptr && !isMixed_);
    if (!set_) mnuSystemUnits.Enabled(false);
    offer_.Show();
    mnuPlotBeside.Enabled(set_ != nullptr);
    if (set_) beside_.Follow();
    ExplainOnce(FirstRunText);
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
    table_.EndTyping();
    return !IsChanged() || ui::AskYesNo("The table has been changed\nDiscard the changes?");
}

/// What the statements became belongs to a table that was accepted.
void frmData2::Unload() {
    if (set_ && !stored_) set_->UX = statementsBefore_;
    CloseForm();
}

} // namespace vexora
