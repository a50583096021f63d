#include "tables/frmData2.h"

#include <algorithm>
#include <map>
#include <utility>

#include "entry/ValueQuestions.h"
#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

constexpr const char* AsTyped = "as typed"; // a relation without conversion

/// A cell of a column of per cent is that share of the row's value.
std::string AsFigure(const TableColumn& column, const std::string& cell, double value) {
    if (!column.percent || !IsNumeric(cell)) return cell;
    return NumberText(Val(cell) * 0.01 * value);
}

/// The counts of digits say nothing that the texts do not.
bool TellsItsDigits(const clsData& row) {
    for (std::size_t n = 0; n <= static_cast<std::size_t>(row.nVar); ++n)
        if (row.Digits[n] != 0 && row.Digits[n] != SignificantDigits(row.Values[n])) return false;
    return true;
}

} // namespace

bool frmData2::Refuse(const Finding& finding, const std::string& title) {
    table_.Findings().GoTo(finding);
    ui::Say(finding.text, title);
    return false;
}

/// Cells lose the blanks and commas that came with typing and pasting.
void frmData2::CleanCells() {
    table_.History().Do([this](TableEdit& edit) {
        for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
            for (int column = 0; column < columns_.Count(); ++column)
                edit.Cell(row, column, CleanCell(columns_[column], tblData.Cell(row, column)));
        }
    });
}

bool frmData2::Check() {
    table_.EndTyping();
    CleanCells();
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        const auto findings = CheckRow(tblData, columns_, row);
        if (!findings.empty()) return Refuse(findings.front());
    }
    return true;
}

/// Values whose unit cannot be converted are never stored.
bool frmData2::CheckUnits() {
    if (!original_) return true;
    for (const clsProperty* item = chain_.get(); item; item = item->NextItem.get()) {
        const std::string& code = item->ConversionCode;
        const std::string unit = item == chain_.get()
                                     ? UnitOfProperty(item->PropertyCode, set_->DataContext())
                                     : UnitOfVariable(item->PropertyCode);
        const bool known = item->Factor > 0 || (code != "*" && ConversionFactor(code, unit) > 0);
        if (known) continue;
        ui::Say("Invalid conversion factor");
        return false;
    }
    if (chain_->Factor > 0 || !IsMassBased(chain_->ConversionCode)) return true;
    // In a mixture a row without one is kept as it was typed.
    const bool known = molarMass_ > 0 || set_->MolarMassFollowsRows();
    if (!known) ui::Say("Molar mass of the compound is not known");
    return known;
}

/// [g/mol]; in a mixture that of the row's composition, 0 where no unit goes by it.
double frmData2::MolarMassOf(int row) const {
    if (!set_->MolarMassFollowsRows()) return molarMass_;
    if (!original_ || !set_->ConvertsByRow()) return 0;
    clsData values;
    values.nVar = static_cast<std::int8_t>(set_->nVar);
    values.inOriginalUnits = true;
    for (int n = 0; n <= set_->nVar; ++n)
        values.Values.at(static_cast<std::size_t>(n)) =
            NormalizeNumber(tblData.Cell(row, columns_.Find(Kind::Value, n)));
    return masses_->Of(values);
}

/// The first row whose composition does not tell the molar mass that its unit goes by; -1 for none.
int frmData2::RowWithoutMolarMass() const {
    if (!original_ || !set_->ConvertsByRow()) return -1;
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row)
        if (!IsEmptyRow(tblData, columns_, row) && MolarMassOf(row) <= 0) return row;
    return -1;
}

/// Once for a set: its rows are kept all the same, as they were typed.
void frmData2::TellOfMolarMass() {
    if (toldOfMolarMass_ || RowWithoutMolarMass() < 0) return;
    toldOfMolarMass_ = true;
    ui::Say(NoMolarMass);
}

void frmData2::TakeStatements(clsProperty& item, int place, int row) const {
    const double value = Val(item.Text);
    const auto cell = [&](Kind kind) {
        const int column = columns_.Find(kind, place);
        if (column < 0) return std::string();
        return AsFigure(columns_[column], tblData.Cell(row, column), value);
    };
    item.DS = cell(Kind::DS);
    item.Rep = cell(Kind::Rep);
    item.nRep = IsNumeric(cell(Kind::Repetitions)) ? cell(Kind::Repetitions) : "";
    item.Unc = cell(Kind::Unc);
    item.CD = place == 0 ? cell(Kind::CD) : "";
    const clsX& ofSet = set_->UX[0];
    if (place == 0 && item.CD.empty() && ofSet.iCD) item.CD = ofSet.CDRms;
}

/// Evaluates one row; its last cell shows "Error" when that fails.
void frmData2::Calc_unc(int row, bool& ok, const ConfirmValue& confirm) {
    int place = 0;
    for (clsProperty* item = chain_.get(); item; item = item->NextItem.get(), ++place) {
        item->Text = tblData.Cell(row, columns_.Find(Kind::Value, place));
        item->Value = item->PRECISION = item->Der = 0;
        TakeStatements(*item, place, row);
    }
    const int figure = columns_.Find(Kind::KVO);
    const auto sums = CheckFractions(tblData, columns_, row, *chain_, sums_);
    std::string result;
    if (std::ranges::any_of(sums, &Finding::isFault)) {
        ui::Say("Composition error");
        result = "Error";
    } else {
        // Without a molar mass the value has no figure in system units, to which limits apply.
        const double molarMass = MolarMassOf(row);
        const std::string relation = chain_->Relation;
        if (molarMass <= 0 && original_ && set_->ConvertsByRow()) chain_->Relation = AsTyped;
        result = EvaluateUncertainty(*chain_, molarMass, confirm);
        chain_->Relation = relation;
    }
    if (tblData.Cell(row, figure) == "Error" || !result.empty())
        table_.History().Do([&](TableEdit& edit) { edit.Cell(row, figure, result); });
    ok = result.empty() || IsNumeric(result);
}

bool frmData2::CheckUnc() {
    SuspicionsOfRun suspicions;
    const auto confirm = [&](const ValueDoubt& doubt) { return suspicions.Confirm(doubt); };
    const int figure = columns_.Find(Kind::KVO);
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        if (tblData.Cell(row, columns_.Find(Kind::Value, 1)).empty()) continue;
        bool ok = true;
        Calc_unc(row, ok, confirm);
        const auto findings = CheckEvaluation(tblData, columns_, row);
        if (!ok || !findings.empty())
            return Refuse(findings.empty() ? Finding{row, figure,
                                                     "Erroneous data combination\n"
                                                     "Please correct it"}
                                           : findings.front(),
                          "Error");
    }
    return true;
}

void frmData2::Save() {
    if (!Check() || !CheckUnits()) return;
    TellOfMolarMass();
    if (!assigned_ && !AssignAccepted()) return;
    if (!CheckUnc()) return;
    offer_.Keep();
    Store();
    Close();
}

/// All new rows are made before they take the place of the old ones.
void frmData2::Store() {
    const std::vector<const clsData*> sources = OldRows();
    RowList fresh;
    const int property = columns_.Find(Kind::Value, 0);
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        if (tblData.Cell(row, property).empty()) continue;
        fresh.Add(NewRow(row, sources[static_cast<std::size_t>(row)]));
    }
    std::swap(set_->recData, fresh);
    DropIdleMarks();
    set_->isOriginalUnit = original_;
    if (adjusted_) {
        set_->AdjustUnits(); // what the definition holds constant; the rest comes from the table
        set_->Header.DATACOMMENT = adjusted_->Header.DATACOMMENT;
        set_->commentInSystemUnits = true;
    }
    KVOGlobal& globals = Globals();
    stored_ = true;
    globals.Saved = false;
    globals.DialogAccepted = true;
}

/// For each row of the table the old row whose unseen parts it keeps: the one that stood here, else
/// the one with the same variables when they have changed; null for a new row.
std::vector<const clsData*> frmData2::OldRows() const {
    std::vector<const clsData*> sources(static_cast<std::size_t>(tblData.Rows()));
    std::multimap<std::string, const clsData*> left; // by their variables
    for (const clsData& row : rows_)
        left.emplace(VariablesOf(row), &row);
    const auto take = [&](int row, const std::string& variables, const clsData* wanted) {
        auto [at, end] = left.equal_range(variables);
        while (at != end && wanted && at->second != wanted)
            ++at;
        if (at == end) return;
        sources[static_cast<std::size_t>(row)] = at->second;
        left.erase(at);
    };
    const auto eachWithoutOne = [&](const auto& action) {
        for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row)
            if (!sources[static_cast<std::size_t>(row)]) action(row);
    };
    eachWithoutOne([&](int row) {
        if (const clsData* here = OldRowHere(row)) take(row, VariablesOf(row), here);
    });
    eachWithoutOne([&](int row) { take(row, VariablesOf(row), nullptr); });
    eachWithoutOne([&](int row) {
        if (const clsData* here = OldRowHere(row)) take(row, VariablesOf(*here), here);
    });
    return sources;
}

/// The row as it stood at the beginning, wherever it has been moved; null for a new one.
const clsData* frmData2::OldRowHere(int row) const {
    const int first = table_.History().FirstPlaceOf(row) - tblData.FixedRows();
    return first >= 0 ? rows_.Item(static_cast<std::size_t>(first) + 1) : nullptr;
}

std::string frmData2::VariablesOf(const clsData& row) const {
    std::string text;
    for (int n = 1; n <= set_->nVar; ++n)
        text += columns_.CellOf(row, columns_.Find(Kind::Value, n)) + "\n";
    return text;
}

std::string frmData2::VariablesOf(int row) const {
    std::string text;
    for (int n = 1; n <= set_->nVar; ++n)
        text += tblData.Cell(row, columns_.Find(Kind::Value, n)) + "\n";
    return text;
}

clsData frmData2::NewRow(int row, const clsData* old) const {
    clsData data = old ? *old : clsData();
    for (int column = 0; column < firstColumns_.Count(); ++column) {
        const TableColumn& gone = firstColumns_[column]; // its entries went with the statement
        if (gone.IsStatement() && gone.kind != Kind::Digits &&
            columns_.Find(gone.kind, gone.item) < 0)
            firstColumns_.Store(data, column, {});
    }
    data.nVar = static_cast<std::int8_t>(set_->nVar);
    data.isDigit = Globals().IncludeDigits;
    data.inOriginalUnits = original_;
    for (int column = 0; column < columns_.Count(); ++column)
        columns_.Store(data, column, tblData.Cell(row, column));
    if (hasBothKinds_ && old && !old->isDigit && TellsItsDigits(data)) data.isDigit = false;
    return data;
}

} // namespace vexora
