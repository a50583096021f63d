#include "tables/frmData2.h"

#include <algorithm>
#include <span>

#include "chem/clsProperty.h"
#include "entry/ColumnNotes.h"
#include "globals/KVOGlobal.h"
#include "globals/PlotTable.h"
#include "records/DataSet.h"
#include "records/PropertyChain.h"
#include "reference/Conversions.h"
#include "reference/UnitText.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

/// A unit that needs a look into the tables becomes its factor here, not for every row.
void TakeFactor(clsProperty& item) {
    if (item.Factor <= 0 && IsUnitLong(item.ConversionCode))
        item.Factor = ConversionFactor(item.ConversionCode);
}

} // namespace

void frmData2::TakeSet() {
    set_ = CurrentSet();
    if (!set_) return;
    statementsBefore_ = set_->UX;
    molarMass_ = set_->MolarMass();
    TakeRows();
    MarkStatementsOfRows(rows_,
                         std::span(set_->UX).first(static_cast<std::size_t>(set_->nVar) + 1));
    ownSigns_ = AbsoluteEntries(rows_);
    AnalyseCurrentProperty();
    NameQuantities();
    ShowUnits();
    FillHeader();
    FillRows();
}

/// Rows in the units of the paper and rows in system units cannot stand in one table.
void frmData2::TakeRows() {
    rows_ = set_->recData;
    const auto isDigit = [](const clsData& row) { return row.isDigit; };
    hasBothKinds_ = std::ranges::any_of(rows_, isDigit) && !std::ranges::all_of(rows_, isDigit);
    const auto isOriginal = [](const clsData& row) { return row.inOriginalUnits; };
    const bool all = std::all_of(rows_.begin(), rows_.end(), isOriginal);
    const bool none = !rows_.IsEmpty() && std::none_of(rows_.begin(), rows_.end(), isOriginal);
    original_ = set_->isOriginalUnit && all;
    if (set_->isOriginalUnit && none)
        table_.Blocks().Tell({{0, "The rows of this set stand in system units"}});
    if (original_ || rows_.IsEmpty() || none) return;
    adjusted_ = set_->Copy();
    adjusted_->isOriginalUnit = true;
    isMixed_ = !adjusted_->AdjustUnits();
    if (isMixed_) {
        table_.Blocks().Tell(
            {{0, "Some rows stand in the units of the paper and cannot be brought "
                 "to system units as the others are: the table cannot be accepted"}});
        return;
    }
    rows_ = adjusted_->recData;
    // A converted text no longer tells how many of its digits were measured.
    if (std::any_of(rows_.begin(), rows_.end(), isDigit)) Globals().IncludeDigits = true;
    set_->UX = adjusted_->UX;
    table_.Blocks().Tell({{0, "Rows in the units of the paper were brought to system units"}});
}

/// The chain that checks and evaluates a row: the property, then its variables.
void frmData2::AnalyseCurrentProperty() {
    if (adjusted_) adjusted_->UX = set_->UX;
    chain_ = BuildChain(SetOfCells(), original_);
    for (clsProperty* item = chain_.get(); item; item = item->NextItem.get())
        TakeFactor(*item);
    sums_ = FractionSums(SetOfCells());
    masses_.emplace(*set_);
    Globals().CurrentProperty = chain_;
}

/// By the units of the cells; those of constants turn along.
void frmData2::NameQuantities() {
    DataSet& named = adjusted_ ? *adjusted_ : *set_;
    NameStatements(named, original_);
    set_->UX = named.UX;
}

std::string frmData2::CaptionText() const {
    const clsX& property = set_->UX[0];
    std::string text = property.Name + " (" + property.Unit + ") as function of ";
    // Names with a phase have a comma of their own.
    const char* const between = set_->UX[1].Name.find(',') != std::string::npos ? "; " : ", ";
    for (int n = 1; n <= set_->nVar; ++n)
        text += (n > 1 ? between : "") + set_->UX[static_cast<std::size_t>(n)].Name;
    return text;
}

std::string frmData2::ColumnsText() const {
    std::string text;
    for (int n = 1; n <= set_->nVar; ++n) {
        const clsX& variable = set_->UX[static_cast<std::size_t>(n)];
        text += "Var" + std::to_string(n) + ": " + variable.Name + ", " + variable.Unit + "    ";
    }
    text += "Property: " + set_->UX[0].Name + ", " + set_->UX[0].Unit;
    for (const HeldConstant& constant : SetOfCells().Constants()) {
        const clsX& item = set_->UX.at(static_cast<std::size_t>(constant.item));
        if (item.Constr && !item.Name.empty())
            text +=
                "    Constant: " + item.Name + " = " + NumberWithUnit(constant.value, item.Unit);
    }
    return text;
}

TableColumns frmData2::ColumnsOfSet() const {
    return TableColumns(set_->Quantities(), Globals().IncludeDigits, set_->HasTies(), ownSigns_);
}

/// What is stated for the whole set is seen beside the rows, and is no part of them.
void frmData2::ShowStatements() {
    StatementsOfSet stated = set_->UX;
    for (int n = 1; n <= set_->nVar; ++n) {
        clsX& item = stated[static_cast<std::size_t>(n)];
        item = InEnteredUnit(item, original_ ? set_->VAR_UNIT(n) : "S");
    }
    tblData.Stated(StatedTexts(columns_, stated));
    tblData.HeadNotes(HeadNotes(columns_, set_->UX));
}

/// Lays the columns out anew; cells keep their texts, and the empty columns of a printed table that
/// stood beside the others stay beside them.
void frmData2::FillHeader() {
    const TableColumns before = columns_;
    const ui::Grid::Block selected = tblData.Selection();
    columns_ = ColumnsOfSet();
    ShowStatements();
    if (before.All() == columns_.All()) return;
    const ui::Grid::Batch batch(tblData);
    std::vector<int> places = before.PlacesIn(columns_);
    const int beside = before.Count() > 0 ? std::max(tblData.Columns() - before.Count(), 0) : 0;
    for (int i = 0; i < beside; ++i)
        places.push_back(columns_.Count() + i);
    const int wide = columns_.Count() + beside;
    std::vector<std::vector<std::string>> cells;
    for (int row = 1; row < tblData.Rows(); ++row) {
        std::vector<std::string> moved(static_cast<std::size_t>(wide));
        for (std::size_t from = 0; from < places.size(); ++from) {
            if (places[from] >= 0)
                moved[static_cast<std::size_t>(places[from])] =
                    tblData.Cell(row, static_cast<int>(from));
        }
        cells.push_back(std::move(moved));
    }
    tblData.Resize(tblData.Rows(), wide);
    for (int column = 0; column < wide; ++column) {
        tblData.Cell(0, column, column < columns_.Count() ? columns_[column].head : "");
        for (std::size_t row = 0; row < cells.size(); ++row)
            tblData.Cell(static_cast<int>(row) + 1, column,
                         cells[row][static_cast<std::size_t>(column)]);
    }
    const bool stays = selected.left < static_cast<int>(places.size()) &&
                       selected.top < tblData.Rows() && selected.top >= tblData.FixedRows();
    const int column = stays ? places[static_cast<std::size_t>(selected.left)] : -1;
    table_.MoveTo(stays ? selected.top : tblData.FixedRows(), std::max(column, 0));
}

void frmData2::FillRows() {
    {
        const ui::Grid::Batch batch(tblData);
        tblData.Resize(static_cast<int>(rows_.Count()) + 2, columns_.Count());
        int row = tblData.FixedRows();
        for (const clsData& data : rows_) {
            for (int column = 0; column < columns_.Count(); ++column)
                tblData.Cell(row, column, columns_.CellOf(data, column));
            ++row;
        }
    }
    table_.History().Clear();
    firstText_ = TableText();
    firstStatements_ = set_->UX;
    firstColumns_ = columns_;
    table_.Findings().FindAgain();
    table_.Blocks().TellAgain();
}

} // namespace vexora
