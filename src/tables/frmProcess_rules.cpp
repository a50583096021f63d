// What the columns of the table stand for, and what is to be said of its cells.

#include "tables/frmProcess.h"

#include <numeric>

#include "entry/frmPasteView.h"
#include "tables/frmProcess_outlook.h"

namespace vexora {

ProcessColumn frmProcess::ColumnAt(int column) const {
    ProcessColumn described = heads_->ColumnOf(HeadsOf(column));
    const auto place = static_cast<std::size_t>(column - 1);
    if (place >= filled_.columns.size()) return described;
    const ProcessColumn& shown = filled_.columns[place];
    // Another quantity in its place is a new column.
    if (shown.quantity == described.quantity && shown.phase == described.phase)
        described.role = shown.role;
    return described;
}

/// Where the row stood in the table as filled, from 0; -1 for a new one.
int frmProcess::FirstPlaceOf(int row) const {
    const int place = table_.History().FirstPlaceOf(row) - HeadRows();
    return place < static_cast<int>(filled_.rows.size()) ? std::max(place, -1) : -1;
}

/// Cells of columns that stand for nothing are left out.
ProcessTable frmProcess::Table() const {
    ProcessTable table;
    table.MixType = system_.MixType();
    table.notStated = filled_.notStated;
    table.origin = filled_.origin;
    for (int column = 1; column < tblData.Columns(); ++column)
        table.columns.push_back(ColumnAt(column));
    while (!table.columns.empty() && !table.columns.back().IsDescribed())
        table.columns.pop_back();
    const int last = table_.History().LastFilledRow();
    for (int row = HeadRows(); row <= last; ++row) {
        ProcessRow cells;
        cells.cells.resize(table.columns.size());
        for (std::size_t column = 0; column < table.columns.size(); ++column)
            if (table.columns[column].IsDescribed())
                cells.cells[column] = tblData.Cell(row, static_cast<int>(column) + 1);
        cells.place = FirstPlaceOf(row);
        if (cells.place >= 0) cells.tie = filled_.rows[static_cast<std::size_t>(cells.place)].tie;
        table.rows.push_back(std::move(cells));
    }
    return table;
}

const frmProcess::Outlook& frmProcess::Now() const {
    if (outlook_) return *outlook_;
    Outlook made{Table(), {}, {}};
    if (IsPure())
        made.functions = AnalyseTDF(made.table);
    else
        made.phases = AnalyseVLE(made.table);
    made.findings = FindingsIn(made);
    outlook_ = std::make_unique<Outlook>(std::move(made));
    return *outlook_;
}

/// As the grid counts. Without a table that can be processed nothing is known of its cells.
std::vector<Finding> frmProcess::FindingsIn(const Outlook& outlook) const {
    if (!outlook.Ok()) return {};
    std::vector<Finding> findings =
        IsPure() ? CheckThermalTable(outlook.table, outlook.functions, system_)
                 : CheckPhaseTable(outlook.table, outlook.phases, system_);
    for (Finding& finding : findings) {
        finding.row += HeadRows();
        finding.column += tblData.FixedColumns();
    }
    return findings;
}

std::vector<Finding> frmProcess::Hints() const {
    return heads_ ? Now().findings : std::vector<Finding>();
}

/// One value can make another column the independent one.
std::vector<int> frmProcess::HintColumns() const {
    std::vector<int> columns(static_cast<std::size_t>(tblData.Columns()));
    std::iota(columns.begin(), columns.end(), 0);
    return columns;
}

bool frmProcess::IsTypedInto(int column) const {
    const auto isNamed = [this](int one) { return !tblData.Cell(HeadRow::Quantity, one).empty(); };
    if (isNamed(column)) return true;
    for (int one = 1; one < tblData.Columns(); ++one)
        if (isNamed(one)) return false;
    return true; // columns are named later
}

std::string frmProcess::ColumnName(int column) const {
    const ProcessColumn described = heads_->ColumnOf(HeadsOf(column));
    return described.IsDescribed() ? heads_->NameOf(described) : "column " + std::to_string(column);
}

bool frmProcess::IsWanted(const PastedTable& block) const {
    return IsWantedAsShown(block);
}

} // namespace vexora
