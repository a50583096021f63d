#include "tables/frmData2.h"

#include <algorithm>
#include <functional>

#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "records/PropertyChain.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

bool AnyUnitChanges(const DataSet& set) {
    bool any = set.PropertyConversion().ChangesValues();
    for (int n = 1; n <= set.nVar; ++n)
        any = any || set.VariableConversion(n).ChangesValues();
    return any;
}

/// The cell of a row in system units. Of a value all digits: until Accept only the table holds
/// them.
std::string TurnedCell(const TableColumns& columns, const clsData& row, int column) {
    if (columns[column].kind != TableColumn::Kind::Value) return columns.CellOf(row, column);
    return row.Values.at(static_cast<std::size_t>(columns[column].item));
}

} // namespace

/// Brings the table from the units of the paper to system units, in one step that can be undone.
void frmData2::AdjustUnits() {
    if (!Check() || !CheckUnits()) return;
    if (const int row = RowWithoutMolarMass(); row >= 0) {
        Refuse({row, columns_.Find(TableColumn::Kind::Value, 0), NoMolarMass});
        return;
    }
    std::vector<int> rows;
    for (int row = tblData.FixedRows(); row <= table_.History().LastFilledRow(); ++row)
        if (!IsEmptyRow(tblData, columns_, row)) rows.push_back(row);
    const std::shared_ptr<DataSet> adjusted = Adjusted(rows);
    if (!adjusted) {
        // Of a row as it stood, which the table no longer shows.
        ui::Say(NoMolarMass);
        return;
    }
    RowList old; // those that stood here at the beginning
    for (std::size_t place = rows.size() + 1; place <= adjusted->recData.Count(); ++place)
        old.Add(*adjusted->recData.Item(place));
    bool needsDigits = false;
    for (std::size_t place = 1; place <= rows.size(); ++place)
        needsDigits = needsDigits || adjusted->recData.Item(place)->isDigit;
    std::function<void(bool)> digits; // counts that the texts would not tell
    if (needsDigits && !Globals().IncludeDigits) {
        digits = [this](bool done) {
            Globals().IncludeDigits = done;
            FillHeader();
        };
    }
    const auto before = [this, statements = set_->UX, typed = rows_] {
        TakeUnits(nullptr, statements, typed);
    };
    const auto after = [this, adjusted, old] { TakeUnits(adjusted, adjusted->UX, old); };
    table_.History().Do(
        [&](TableEdit& edit) {
            for (std::size_t i = 0; i < rows.size(); ++i)
                for (int column = 0; column < columns_.Count(); ++column)
                    edit.Cell(rows[i], column,
                              TurnedCell(columns_, *adjusted->recData.Item(i + 1), column));
        },
        [before, after](bool done) { done ? after() : before(); }, digits);
}

/// The set in system units: first these rows of the table, then the rows as they stood; null when
/// they cannot be converted.
std::shared_ptr<DataSet> frmData2::Adjusted(const std::vector<int>& rows) const {
    auto adjusted = set_->Copy();
    adjusted->recData.Clear();
    for (const int row : rows)
        adjusted->recData.Add(NewRow(row, nullptr));
    for (const clsData& row : rows_)
        adjusted->recData.Add(row);
    adjusted->isOriginalUnit = true;
    return adjusted->AdjustUnits() ? adjusted : nullptr;
}

/// Takes the set in system units, or with null goes back to the units of the paper.
void frmData2::TakeUnits(const std::shared_ptr<DataSet>& adjusted,
                         const StatementsOfSet& statements, const RowList& rows) {
    adjusted_ = adjusted;
    original_ = adjusted == nullptr;
    rows_ = rows;
    set_->UX = statements;
    AnalyseCurrentProperty();
    NameQuantities();
    ShowUnits();
    table_.Findings().FindAgain();
}

void frmData2::ShowUnits() {
    Caption(CaptionText());
    lblColumns.Caption(ColumnsText());
    ShowStatements();
    mnuSystemUnits.Enabled(original_ && AnyUnitChanges(*set_));
}

} // namespace vexora
