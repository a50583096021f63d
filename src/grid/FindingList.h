#pragma once

#include <map>
#include <utility>
#include <vector>

#include "grid/TableRules.h"
#include "ui/Grid.h"
#include "ui/Lists.h"

namespace vexora {

/// The findings of a table: marks on its cells, lines in the list below it, and the steps from one
/// to the next. Those of a row and the hints, which need the whole table, are asked of the form and
/// kept by row. Belongs to the table editor.
class FindingList {
public:
    /// Rules, grid and list must outlive it.
    FindingList(const TableRules& rules, ui::Grid& grid, ui::ListBox& list);
    FindingList(const FindingList&) = delete;
    FindingList& operator=(const FindingList&) = delete;

    /// Asks for the findings of these rows and, when the values have changed, for all hints, and
    /// shows what is new. Rows that are no longer in the table lose theirs.
    void FindAgain(int firstRow, int lastRow, bool valuesChanged);
    /// Asks for all.
    void FindAgain();
    /// For whoever shows the rows otherwise, as a plot rings its points. Rows count as in the grid.
    bool HasHint(int row) const { return hints_.contains(row); }
    /// To the next finding behind the selected cell (1), or in front of it (-1); around at the
    /// ends.
    /// Nothing happens without findings.
    void Step(int step);
    /// Selects the cell of the finding, and its line if it has one.
    void GoTo(const Finding& finding);

private:
    using ByRow = std::map<int, std::vector<Finding>>;

    std::pair<int, int> HintAgain();
    /// Valid until findings or hints are asked again.
    std::vector<const Finding*> AllOf(int firstRow, int lastRow) const;
    /// Colours the cells of these rows, with the text as tool tip.
    void Mark(int firstRow, int lastRow);
    void ShowLines();

    const TableRules& rules_;
    ui::Grid& grid_;
    ui::ListBox& list_;
    ByRow findings_, hints_;
    std::vector<Finding> listed_; // as the list shows them
};

} // namespace vexora
