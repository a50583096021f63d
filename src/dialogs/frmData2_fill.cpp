#include "dialogs/frmData2.h"

#include <algorithm>

#include "chem/clsProperty.h"
#include "dialogs/PropertyRules.h"
#include "globals/KVOGlobal.h"
#include "globals/PlotTable.h"
#include "records/clsTwo.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

struct Quantity {
    std::string name;
    std::string unit;
};

Quantity PropertyOf(const clsTwo& set, bool original) {
    const auto row = FindProperty(set.PRPCODE, "Pure");
    if (!row) return {set.PRPCODE, {}};
    return {row->Property, original ? UnitText(*row, set.PROPERTY_UNIT, set.Factor) : row->Unit};
}

Quantity VariableOf(const clsTwo& set, int n, bool original) {
    const auto row = FindVariable(set.VARIABLE(n));
    if (!row) return {set.VARIABLE(n), {}};
    std::string code = set.VAR_UNIT(n);
    const bool asTyped = original && !IsSystemUnit(code);
    const std::string text = asTyped ? ConversionText(code, row->Unit) : std::string();
    return {row->IndVariable, text.empty() ? row->Unit : text};
}

/// A unit that needs a look into the tables becomes its factor here, not for every row.
void TakeUnit(clsProperty& item, const std::string& code, double factor, bool original) {
    item.ConversionCode = original ? code : "S";
    item.Factor = original ? factor : 0;
    if (original && factor <= 0 && IsUnitLong(code)) item.Factor = ConversionFactor(code);
}

/// A statement of the set in the unit of the cells.
std::string InUnitOf(const clsProperty& item, const clsX& stated, const std::string& text) {
    if (stated.N == 0 || !stated.inSystemUnits || !IsNumeric(text)) return text;
    const double one = ToSystem(item.ConversionCode, 1, item.Factor, 0) -
                       ToSystem(item.ConversionCode, 0, item.Factor, 0);
    return one == 0 ? text : NumberText(Val(text) / one);
}

/// What the whole set states serves the rows that state nothing.
void TakeMasters(clsProperty& item, const clsX& stated) {
    item.masterds = stated.iDS ? InUnitOf(item, stated, stated.DSValue) : "";
    item.masterrep = stated.iRep ? InUnitOf(item, stated, stated.RValue) : "";
    item.masterunc = stated.iUnc ? InUnitOf(item, stated, stated.UValue) : "";
    item.masternrep = stated.iRep ? static_cast<int>(ToInteger(Val(stated.Repetitions))) : 0;
    item.DSLevel = stated.iDS ? Val(stated.DSLevel) : 0;
    item.replevel = stated.iRep ? stated.RType : 0;
    item.unclevel = stated.iUnc ? Val(stated.ULevel) : 0;
}

} // namespace

void frmData2::TakeSet() {
    set_ = Globals().CurrentTwo;
    if (!set_) return;
    statementsBefore_ = set_->UX;
    molarMass_ = set_->MolarMass();
    TakeRows();
    AnalyseCurrentProperty();
    NameStatements();
    Caption(CaptionText());
    lblColumns.Caption(ColumnsText());
    FillHeader();
    FillRows();
}

/// Rows in the units of the paper and rows in system units cannot stand in one table.
void frmData2::TakeRows() {
    rows_.assign(set_->recData.begin(), set_->recData.end());
    const auto isOriginal = [](const auto& row) { return row->inOriginalUnits; };
    const bool all = std::all_of(rows_.begin(), rows_.end(), isOriginal);
    const bool none = !rows_.empty() && std::none_of(rows_.begin(), rows_.end(), isOriginal);
    original_ = set_->isOriginalUnit && all;
    if (original_ || rows_.empty() || none) return;
    adjusted_ = std::make_unique<clsTwo>(*set_);
    adjusted_->recData.Clear();
    for (const auto& row : rows_)
        adjusted_->recData.Add(std::make_shared<clsData>(*row));
    adjusted_->isOriginalUnit = true;
    adjusted_->AdjustUnits();
    rows_.assign(adjusted_->recData.begin(), adjusted_->recData.end());
    set_->UX = adjusted_->UX;
    lblNotice.Caption("Rows in the units of the paper were brought to system units");
}

/// The chain that checks and evaluates a row: the property, then its variables.
void frmData2::AnalyseCurrentProperty() {
    const auto before = Globals().CurrentProperty;
    const auto named = [](clsProperty& item, const Quantity& quantity) {
        item.Name = quantity.name + (quantity.unit.empty() ? "" : ", " + quantity.unit);
    };
    chain_ = std::make_shared<clsProperty>();
    chain_->PropertyCode = set_->PRPCODE;
    chain_->Relation = set_->Relation();
    TakeUnit(*chain_, set_->PROPERTY_UNIT, set_->Factor, original_);
    named(*chain_, PropertyOf(*set_, false));
    if (before && before->PropertyCode == set_->PRPCODE)
        chain_->PrecisionText = before->PrecisionText;
    clsProperty* last = chain_.get();
    for (int n = 1; n <= set_->nVar; ++n) {
        last->isLast = false;
        last->NextItem = std::make_shared<clsProperty>();
        last = last->NextItem.get();
        last->PropertyCode = set_->VARIABLE(n);
        last->Relation = "A";
        TakeUnit(*last, set_->VAR_UNIT(n), 0, original_);
        named(*last, VariableOf(*set_, n, false));
    }
    int place = 0;
    for (clsProperty* item = chain_.get(); item; item = item->NextItem.get())
        TakeMasters(*item, set_->UX[static_cast<std::size_t>(place++)]);
    Globals().CurrentProperty = chain_;
}

/// Every quantity has a place among the statements, named for the dialog that asks for them.
void frmData2::NameStatements() {
    for (int n = 0; n <= set_->nVar; ++n) {
        clsX& item = set_->UX[static_cast<std::size_t>(n)];
        const Quantity quantity =
            n == 0 ? PropertyOf(*set_, original_) : VariableOf(*set_, n, original_);
        item.N = n;
        item.PRPCODE = n == 0 ? set_->PRPCODE : set_->VARIABLE(n);
        item.Name = quantity.name;
        item.Unit = quantity.unit;
        if (!item.IsStated() && item.PHASE.empty()) item.PHASE = set_->PHASE1;
    }
}

std::string frmData2::CaptionText() const {
    const Quantity property = PropertyOf(*set_, original_);
    std::string text = property.name + " (" + property.unit + ") as function of ";
    for (int n = 1; n <= set_->nVar; ++n)
        text += (n > 1 ? ", " : "") + VariableOf(*set_, n, original_).name;
    return text;
}

void frmData2::NamePlot(PlotTable& table) const {
    const auto named = [](const Quantity& quantity) {
        return quantity.name + (quantity.unit.empty() ? "" : " (" + quantity.unit + ")");
    };
    table.YName = named(PropertyOf(*set_, original_));
    table.VarNames[0] = "Point number";
    for (int n = 1; n <= set_->nVar; ++n)
        table.VarNames[static_cast<std::size_t>(n - 1)] = named(VariableOf(*set_, n, original_));
}

std::string frmData2::ColumnsText() const {
    std::string text;
    for (int n = 1; n <= set_->nVar; ++n) {
        const Quantity variable = VariableOf(*set_, n, original_);
        text += "Var" + std::to_string(n) + ": " + variable.name + ", " + variable.unit + "    ";
    }
    const Quantity property = PropertyOf(*set_, original_);
    return text + "Property: " + property.name + ", " + property.unit;
}

/// Lays the columns out anew; cells keep their texts, and the history goes with them.
void frmData2::FillHeader() {
    const TableColumns before = columns_;
    columns_ = TableColumns(*set_, Globals().IncludeDigits);
    if (before.All() == columns_.All()) return;
    const ui::Grid::Batch batch(tblData);
    const std::vector<int> places = before.PlacesIn(columns_);
    std::vector<std::vector<std::string>> cells;
    for (int row = 1; row < tblData.Rows(); ++row) {
        std::vector<std::string> moved(static_cast<std::size_t>(columns_.Count()));
        for (std::size_t from = 0; from < places.size(); ++from) {
            if (places[from] >= 0)
                moved[static_cast<std::size_t>(places[from])] =
                    tblData.Cell(row, static_cast<int>(from));
        }
        cells.push_back(std::move(moved));
    }
    tblData.Resize(tblData.Rows(), columns_.Count());
    for (int column = 0; column < columns_.Count(); ++column) {
        tblData.Cell(0, column, columns_[column].head);
        for (std::size_t row = 0; row < cells.size(); ++row)
            tblData.Cell(static_cast<int>(row) + 1, column,
                         cells[row][static_cast<std::size_t>(column)]);
    }
    undo_.MoveColumns(places);
    tblData.Select({1, 0, 1, 0});
}

void frmData2::FillRows() {
    {
        const ui::Grid::Batch batch(tblData);
        tblData.Resize(static_cast<int>(rows_.size()) + 2, columns_.Count());
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            for (int column = 0; column < columns_.Count(); ++column)
                tblData.Cell(static_cast<int>(i) + 1, column, columns_.CellOf(*rows_[i], column));
        }
    }
    undo_.Clear();
    FindAgain(1, tblData.Rows() - 1);
}

} // namespace vexora
