#include "bio/frmBioData.h"

#include <algorithm>

#include "bio/BioTable.h"
#include "entry/Explanations.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/BioSet.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int HelpForm = 312;
constexpr int KeysPage = 330;        // of all tables
constexpr int DefinitionsPage = 345; // of all statements

constexpr const char* FirstRunText =
    "Each row of this table is one measurement: its properties first, then its variables. What is "
    "the same in all rows stands above the table. Type the values, paste them from another "
    "program, or read them from a text file. Cells that need a look are marked while you work, "
    "and listed below the table.";

} // namespace

frmBioData::frmBioData()
    : Form("frmBioData", "Bio data table"), TableMenu(static_cast<ui::Form&>(*this)) {
    using namespace ui;
    Arrangement = Column({lblColumns, ui::Split(tblData, picBeside), lblNotice, lstFindings,
                          Field("Stated for the set:", Row({lblStated, cmdLastUnc, Stretch()})),
                          ButtonRow({cmdView, cmdAssign, cmdClear, cmdSave, cmdFinish})});
    PreferredColumns = 130;
    PreferredRows = 40;
    CancelButton = &cmdFinish;
    HelpContext = HelpForm;
    WireEvents();
    WireMenus();
}

frmBioData::~frmBioData() = default;

void frmBioData::WireEvents() {
    table_.OnChanged = [this] { beside_.Follow(); };
    beside_.Points = [this] { return PointsBeside(); };
    beside_.OnGoTo = [this](int row, int column) {
        table_.EndTyping();
        table_.MoveTo(row, std::max(column, 0));
        tblData.SetFocus();
    };
    cmdView.OnClick = [this] { View(); };
    cmdAssign.OnClick = [this] { Assign(); };
    cmdClear.OnClick = [this] { table_.Blocks().Clear(); };
    cmdSave.OnClick = [this] { Save(); };
    cmdFinish.OnClick = [this] { Close(); };
}

void frmBioData::WireMenus() {
    table_.Wire(mnuAction2D, [this] { Action2D(); });
    table_.Wire(mnuSplit, [this] { Split(); });
    const auto help = [](ui::MenuItem& item, int context) {
        item.OnClick = [context] { ui::TheDesktop().ShowHelp(context); };
    };
    help(mnuHelpAbout, HelpForm);
    help(mnuHelpList, KeysPage);
    help(mnuUnc, DefinitionsPage);
}

void frmBioData::Load() {
    Globals().DialogAccepted = false;
    set_ = Globals().BioSetInHand;
    const bool hasColumns = set_ && set_->Columns() > 0;
    for (ui::Control* button :
         std::initializer_list<ui::Control*>{&cmdView, &cmdAssign, &cmdClear, &cmdSave})
        button->Enabled(hasColumns);
    mnuPlotBeside.Enabled(hasColumns);
    if (!hasColumns) return;
    TakeSet();
    FillRows();
    beside_.Follow();
    ExplainOnce(FirstRunText);
}

void frmBioData::TakeSet() {
    columns_ = ColumnsOf(*set_);
    UseStatements(NamedStatements(*set_));
    firstStatements_ = statements_;
    Caption(CaptionText());
    const std::string constants = ConstantsOf(*set_);
    lblColumns.Caption(constants);
    lblColumns.Visible(!constants.empty());
}

void frmBioData::FillRows() {
    {
        const ui::Grid::Batch batch(tblData);
        const int first = tblData.FixedRows();
        tblData.Resize(static_cast<int>(set_->recD.size()) + first + 1, columns_.Count());
        for (int column = 0; column < columns_.Count(); ++column) {
            const auto item = static_cast<std::size_t>(columns_[column].item);
            const bool isValue = columns_[column].kind == TableColumn::Kind::Value;
            tblData.Cell(0, column, InLines(columns_[column].head));
            for (std::size_t n = 0; n < set_->recD.size(); ++n) {
                const std::vector<BioCell>& cells = set_->recD[n].Cells;
                if (item >= cells.size()) continue;
                tblData.Cell(first + static_cast<int>(n), column,
                             isValue ? cells[item].value : cells[item].uncertainty);
            }
        }
    }
    table_.History().Clear();
    firstText_ = table_.Blocks().Text();
    table_.Findings().FindAgain();
    table_.MoveTo(tblData.FixedRows(), 0);
}

int frmBioData::CountOfProperties() const {
    return static_cast<int>(set_->CountOf(BioRole::Property));
}

/// The properties as function of the variables, without units, which the heads have.
std::string frmBioData::CaptionText() const {
    std::string text;
    BioRole last = BioRole::Property;
    for (std::size_t n = 0; n < set_->Columns(); ++n) {
        const BioQuantity& quantity = set_->Quantities()[n];
        if (n > 0) text += quantity.role == last ? "; " : " as function of ";
        text += set_->NameOf(quantity);
        last = quantity.role;
    }
    return text;
}

void frmBioData::Activate() {
    tblData.SetFocus();
}

bool frmBioData::IsChanged() const {
    return set_ && (table_.Blocks().Text() != firstText_ || statements_ != firstStatements_);
}

/// Work of an hour is not thrown away by a slip of the finger.
bool frmBioData::QueryUnload() {
    if (stored_) return true;
    table_.EndTyping();
    return !IsChanged() || ui::AskYesNo("The table has been changed\nDiscard the changes?");
}

void frmBioData::Unload() {
    CloseForm();
}

} // namespace vexora
