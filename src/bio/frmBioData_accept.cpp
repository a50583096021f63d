#include "bio/frmBioData.h"

#include <utility>

#include "bio/BioTable.h"
#include "entry/ColumnNotes.h"
#include "entry/EditStatements.h"
#include "entry/RowChecks.h"
#include "entry/ValueQuestions.h"
#include "globals/KVOGlobal.h"
#include "records/BioSet.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

} // namespace

void frmBioData::Assign() {
    if (Check()) AssignAccepted();
}

/// The statements of the set, as a step of the history. False on Cancel.
bool frmBioData::AssignAccepted() {
    if (!ui::Forms::Current().Knows("frmUnc")) return true;
    int row = tblData.Selection().top;
    if (row < tblData.FixedRows() || IsEmptyRow(tblData, columns_, row)) row = tblData.FixedRows();
    TakeRow(row);
    Globals().CurrentProperty = chain_;
    std::vector<clsX> after = statements_;
    if (!EditStatements(after, CountOfProperties())) return false;
    AssignTo(after);
    return true;
}

void frmBioData::AssignTo(const std::vector<clsX>& after) {
    const bool assignedBefore = std::exchange(assigned_, true);
    if (after == statements_) return;
    table_.History().Do([](TableEdit&) {},
                        [this, before = statements_, after, assignedBefore](bool done) {
                            UseStatements(done ? after : before);
                            assigned_ = done || assignedBefore;
                        });
}

void frmBioData::UseStatements(const std::vector<clsX>& statements) {
    statements_ = statements;
    chain_ = ChainOf(*set_, statements_);
    offer_.Show();
    tblData.Stated(StatedTexts(columns_, statements_));
}

/// The values of a row, and what it states of them.
void frmBioData::TakeRow(int row) {
    int n = 0;
    for (clsProperty* item = chain_.get(); item; item = item->NextItem.get(), ++n) {
        const auto cell = [&](Kind kind) {
            const int column = columns_.Find(kind, n);
            return column < 0 ? std::string()
                              : CleanCell(columns_[column], tblData.Cell(row, column));
        };
        item->Text = cell(Kind::Value);
        item->Value = item->PRECISION = item->Der = 0;
        item->Unc = cell(Kind::Unc);
        item->DS = item->Rep = item->nRep = "";
        const clsX& statement = statements_[static_cast<std::size_t>(n)];
        item->CD = statement.iCD ? statement.CDRms : "";
    }
}

bool frmBioData::Refuse(const Finding& finding, const std::string& title) {
    table_.Findings().GoTo(finding);
    tblData.SetFocus();
    ui::Say(finding.text, title);
    return false;
}

/// Cells lose the blanks and commas that came with typing and pasting.
bool frmBioData::Check() {
    table_.EndTyping();
    table_.History().Do([this](TableEdit& edit) {
        for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
            for (int column = 0; column < columns_.Count(); ++column)
                edit.Cell(row, column, CleanCell(columns_[column], tblData.Cell(row, column)));
        }
    });
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        const auto findings = CheckBioRow(tblData, columns_, row, CountOfProperties());
        if (!findings.empty()) return Refuse(findings.front());
    }
    return true;
}

/// Evaluates one row; the column of the value that cannot be, -1 for none.
int frmBioData::Calc_unc(int row, const ConfirmValue& confirm) {
    TakeRow(row);
    int n = 0;
    for (clsProperty* item = chain_.get(); item; item = item->NextItem.get(), ++n) {
        if (item->Text.empty()) continue;
        bool ok = true;
        item->Convert(ok, 0, confirm);
        if (!ok) return columns_.Find(Kind::Value, n);
    }
    return -1;
}

bool frmBioData::CheckUnc() {
    SuspicionsOfRun suspicions;
    const auto confirm = [&](const ValueDoubt& doubt) { return suspicions.Confirm(doubt); };
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
        if (IsEmptyRow(tblData, columns_, row)) continue;
        const int column = Calc_unc(row, confirm);
        if (column >= 0)
            return Refuse({row, column, "Erroneous data combination\nPlease correct it"}, "Error");
    }
    return true;
}

void frmBioData::Save() {
    if (!Check()) return;
    if (!assigned_ && !AssignAccepted()) return;
    if (!CheckUnc()) return;
    offer_.Keep();
    Store();
    Close();
}

/// All new rows are made before they take the place of the old ones. Statements that nobody has
/// touched stay as they were read.
void frmBioData::Store() {
    std::vector<clsBD> fresh;
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row)
        if (!IsEmptyRow(tblData, columns_, row)) fresh.push_back(NewRow(row));
    set_->recD = std::move(fresh);
    set_->recU.resize(statements_.size());
    for (std::size_t n = 0; n < statements_.size(); ++n) {
        if (statements_[n] == firstStatements_[n]) continue;
        clsX& item = set_->recU[n];
        const std::string name = item.Name, unit = item.Unit;
        item = statements_[n];
        item.Name = name; // they follow from the set
        item.Unit = unit;
    }
    stored_ = true;
    Globals().Saved = false;
    Globals().DialogAccepted = true;
}

/// The row as it stood at the beginning, wherever it has been moved; null for a new one.
const clsBD* frmBioData::OldRowHere(int row) const {
    const int first = table_.History().FirstPlaceOf(row) - tblData.FixedRows();
    const auto place = static_cast<std::size_t>(first);
    return first >= 0 && place < set_->recD.size() ? &set_->recD[place] : nullptr;
}

/// Where rows state uncertainties one that is left out is 0; one that was out already stays so as
/// long as its value does.
clsBD frmBioData::NewRow(int row) const {
    const clsBD* const old = OldRowHere(row);
    clsBD data;
    data.Flag1 = old ? old->Flag1 : set_->Flag1;
    data.Flag2 = old ? old->Flag2 : set_->Flag2;
    data.Cells.resize(set_->Columns());
    for (int column = 0; column < columns_.Count(); ++column) {
        const auto item = static_cast<std::size_t>(columns_[column].item);
        const std::string& text = tblData.Cell(row, column);
        BioCell& cell = data.Cells[item];
        if (columns_[column].kind == Kind::Value) {
            cell.value = text;
            continue;
        }
        const bool wasOut = old && item < old->Cells.size() &&
                            old->Cells[item].value == cell.value &&
                            old->Cells[item].uncertainty.empty();
        const bool isNeeded = !cell.value.empty() && !wasOut;
        cell.uncertainty = text.empty() && isNeeded ? std::string("0") : text;
    }
    return data;
}

} // namespace vexora
