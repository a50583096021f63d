#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class clsData;
class clsM;
class clsMV;
class clsS;

/// One column of a table that is to become data sets, as its heads describe it.
struct ProcessColumn {
    /// In place of a quantity: the column holds combined uncertainties of the value on its left.
    static constexpr std::string_view CombinedUncertainty = "CU";
    /// In place of a conversion code: the unit is a factor.
    static constexpr std::string_view ByFactor = "*";

    std::string quantity; // code of a property or variable ("T", "X1", "CP"), empty for nothing
    std::string unit;     // conversion code of its unit ("S", "C"), ByFactor, empty for none chosen
    std::string factor;   // typed factor to the system unit, with ByFactor
    std::string phase;    // code; empty for T and P, which all phases share, and for pure compounds
    /// What the column was in the sets that filled the table; a new one is free.
    enum class Role { Free, Variable, Constant } role = Role::Free;

    bool IsDescribed() const { return !quantity.empty(); }
    bool IsUncertainty() const { return quantity == CombinedUncertainty; }
    bool IsState() const { return quantity == "T" || quantity == "P"; }
    bool operator==(const ProcessColumn&) const = default;
};

/// Where a cell came from when stored sets filled the table. As long as its text is the same, it
/// keeps what the stored row knows of it beside the text: its count of digits and its statements.
struct CellOrigin {
    const clsData* row = nullptr; // null for a cell that came from nowhere, as an empty one
    int item = 0;                 // 0 the property, 1 to 3 the variables, -1 a constant of the set
    std::string text;             // as it stood in the table
};

/// The stored sets that filled a table, and which of their rows stands in which cell.
class TableOrigin {
public:
    std::vector<std::shared_ptr<clsMV>> sets; // in the order of the document
    std::vector<ProcessColumn> columns;       // as filled
    /// Of the cells of one row of the filled table, by column; rows count from 0.
    std::vector<std::vector<CellOrigin>> cells;

    /// Null for a place outside.
    const CellOrigin* At(int place, int column) const;
};

/// One row of the table: the texts of its cells as typed.
struct ProcessRow {
    std::vector<std::string> cells;
    int place = -1;  // of the same row in the table as filled from stored sets, -1 for a new one
    std::string tie; // the tie number that it had there
};

/// A table of values with its described columns: what the form shows, without the form. The
/// analyses and all that is made of a table work on this.
struct ProcessTable {
    int MixType = 2; // number of components: 1 a pure compound, 2, 3
    std::vector<ProcessColumn> columns;
    std::vector<ProcessRow> rows;
    /// "T" or "P": a constant that the stored sets do not state, so that it is not asked again.
    std::vector<std::string> notStated;
    std::shared_ptr<const TableOrigin> origin; // null for a table of new values

    /// Text of a cell without blanks around it; empty outside.
    std::string_view Cell(int row, int column) const;
    /// Some cell of a described column holds something.
    bool IsUsed(int row) const;
    bool HasUsedRow() const;
    /// The first described column of this quantity, -1 for none.
    int ColumnOf(std::string_view quantity) const;
};

/// What a table is about: what its sets will belong to.
struct ProcessSystem {
    std::shared_ptr<clsM> mixture;      // null for a pure compound
    std::array<std::string, 3> samples; // numbers of the samples of its components
    std::shared_ptr<clsS> sample;       // of a pure compound
    std::string phase;                  // code, of a pure compound

    int MixType() const; // 1 for a pure compound
};

/// Constants of a mixture that no column holds, in system units; empty for not known.
struct AskedConstants {
    std::string T = {}, P = {};
    bool isAsked = false; // an empty one was left empty, and is not asked for again
};

} // namespace vexora
