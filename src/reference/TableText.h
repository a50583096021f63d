// A table kept as text: lines of cells with a tab (or, in .csv files, a comma) between them, the
// first line naming the columns. Cells are kept as they stand, blanks included.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// A finding about a line of a text file, ready to print.
struct LineRemark {
    std::string file;
    int line = 0; // from 1
    std::string text;
    /// "file:line: error: text", or with "warning".
    std::string Line(std::string_view severity = "error") const;
};

/// Reads a table text line by line. Line ends of any platform, a byte-order mark and Windows-1252
/// bytes are understood; empty lines are passed over.
/// The whole text is held in memory. One pass; to read again, make another.
class TableReader {
public:
    /// Own: tabs, cells as they stand; a path ending in ".csv" has commas and double quotes.
    /// Foreign, from any program: UTF-16 as well, and the first line tells whether tabs, semicolons
    /// or commas stand between cells, which may be in double quotes.
    enum class Kind { Own, Foreign };
    explicit TableReader(const std::string& path, Kind kind = Kind::Own);
    bool IsOpen() const { return isOpen_; }
    /// Why it is not open, where more is known than that it cannot be read.
    const std::string& Fault() const { return fault_; }
    /// Cells of the next line; nothing at the end of the text.
    std::optional<std::vector<std::string>> NextRow();
    /// Number of the line that the last row began on.
    int Line() const { return rowLine_; }

private:
    void TakeForeign();
    bool NextLine(std::string_view& line);
    std::vector<std::string> QuotedCells(std::string_view line);

    std::string text_;
    std::size_t at_ = 0;
    int line_ = 0;
    int rowLine_ = 0;
    bool isOpen_ = false;
    bool quoted_ = false;
    char separator_ = ',';
    std::string fault_;
};

} // namespace vexora
