#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/TableUndo.h"

namespace vexora {

/// What a paste had to guess or could not mend, with the row where it happened first; 0 for none.
/// The row counts from 1 in the table, as people do, and not as the grid counts.
struct PasteNotice {
    int row = 0;
    std::string text;
    std::string Line() const;
};

/// What parts the cells of a line that holds tabs. In a table without texts a blank in a cell is
/// doubtful and parts it; where headings or empty cells matter only the tabs do, so that no value
/// comes into another column.
enum class CellParting { AtBlanks, AtTabsAlone };

/// A text table cleaned for a grid: "," is a decimal point, runs of blanks, tabs and ";" part
/// columns, line ends part rows; a dash for no value becomes an empty cell and a plus-minus sign
/// parts a value from its uncertainty. The notices name what the cleaning had to guess or could not
/// mend, one for each kind of trouble with its first place; a plain table has none.
/// Nothing is refused here: a cell that is no number goes in as it stands and is found there.
struct PastedTable {
    std::vector<std::vector<std::string>> rows;
    std::vector<PasteNotice> notices;
    /// Columns up to the last one that holds something.
    std::size_t Columns() const;
};

/// The notices count rows from firstRow on, the one where the block is to stand.
/// Every text is a table, if need be of one cell.
PastedTable CleanTable(std::string_view text, int firstRow = 1,
                       CellParting parting = CellParting::AtBlanks);

/// A number whose comma may part thousands as well as decimals, such as "1,234".
/// "0,123" and "12,34" may not, "1,234" may.
bool MayPartThousands(std::string_view cell);

/// How a block comes into a table, all in one step of its history.
struct PasteManner {
    bool replaces = false;                     // all that stood in the table goes first
    bool widens = false;                       // the table gets the columns that it lacks
    std::function<void(bool done)> ahead = {}; // goes along, in front of the cells (TableUndo::Do)
};

/// Writes the block from this cell on, the grid growing downward as it needs to; cells that a short
/// line does not fill become empty, so that nothing old stands among the new. False, and nothing is
/// written, when it has more columns than the grid has from there on and does not widen it.
/// Rows and columns count as in the grid, heads included.
bool PasteTable(TableUndo& table, const PastedTable& block, int row, int column,
                const PasteManner& manner = {});

} // namespace vexora
