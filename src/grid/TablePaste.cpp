#include "grid/TablePaste.h"

#include <algorithm>
#include <cctype>
#include <map>

#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsDigits(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), IsDigit);
}

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

/// The kinds of trouble, each told once with its first place, in the order of their coming up.
/// A table with a hundred footnotes gets one line, not a hundred.
class Notices {
public:
    explicit Notices(int firstRow) : firstRow_(firstRow) {}
    void Add(const std::string& kind, std::size_t row, const std::string& text) {
        const auto known = counts_.find(kind);
        if (known == counts_.end()) {
            order_.push_back(kind);
            firsts_.push_back({firstRow_ + static_cast<int>(row), text});
        }
        ++counts_[kind];
    }
    void Drop(const std::string& kind) {
        const auto at = std::find(order_.begin(), order_.end(), kind);
        if (at == order_.end()) return;
        firsts_.erase(firsts_.begin() + (at - order_.begin()));
        order_.erase(at);
    }

    std::vector<PasteNotice> All() const {
        std::vector<PasteNotice> all = firsts_;
        for (std::size_t i = 0; i < order_.size(); ++i) {
            const int more = counts_.at(order_[i]) - 1;
            if (more > 0) all[i].text += " (and " + std::to_string(more) + " more)";
        }
        return all;
    }

private:
    int firstRow_;
    std::map<std::string, int> counts_;
    std::vector<std::string> order_;
    std::vector<PasteNotice> firsts_;
};

/// How the numbers of a block mark their decimals.
struct Decimals {
    bool comma = false; // a comma stands where none could part thousands
    bool point = false;
};

/// No-break, thin and the other blanks of fixed width (Unicode, general category Zs).
bool IsOddBlank(char32_t c) {
    return c == 0xA0 || (c >= 0x2000 && c <= 0x200A) || c == 0x202F || c == 0x205F || c == 0x3000;
}

/// U+2212 is the minus sign; dashes and hyphens stand for it in PDF texts. In front of a number
/// only: by itself a dash says that there is no value.
bool IsOddMinus(char32_t c) {
    return c == 0x2212 || c == 0x2013 || c == 0x2010 || c == 0x2011 || c == 0xFE63 || c == 0xFF0D;
}

/// Characters that show nothing: soft hyphens, joiners, byte-order marks.
bool IsInvisible(char32_t c) {
    return c == 0xAD || (c >= 0x200B && c <= 0x200D) || c == 0x2060 || c == 0xFEFF;
}

/// Blanks and minus signs of typesetters become those of a keyboard.
std::string PlainCharacters(std::string_view line, std::size_t row, Notices& notices) {
    if (std::ranges::all_of(line, [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
        return std::string(line);
    std::string plain;
    plain.reserve(line.size());
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t start = at;
        const char32_t c = NextCodePoint(line, at);
        const char next = at < line.size() ? line[at] : '\0';
        if (IsOddBlank(c)) {
            plain += ' ';
            const bool inside = start > 0 && IsDigit(line[start - 1]) && IsDigit(next);
            notices.Add("odd blank", row,
                        inside ? "a no-break blank between digits parted a number in two"
                               : "no-break blanks were read as blanks");
        } else if (IsOddMinus(c) && (IsDigit(next) || next == '.' || next == ',')) {
            plain += '-';
            notices.Add("odd minus", row, "a typeset minus was read as \"-\"");
        } else if (!IsInvisible(c)) {
            plain.append(line.substr(start, at - start));
        }
    }
    return plain;
}

/// What stands between the tabs. Texts aligned to the right begin with blanks, which part no
/// columns.
std::vector<std::string> PartsOf(std::string_view line) {
    std::vector<std::string> parts = Split(line, '\t');
    for (std::string& part : parts)
        if (const std::string_view inner = TrimBlanks(part); inner.size() < part.size())
            part = std::string(inner);
    return parts;
}

/// What a comma in a number may have meant besides the decimal point.
void NoteCommas(std::string_view cell, std::size_t row, Decimals& decimals, Notices& notices) {
    const std::size_t comma = cell.find(',');
    if (comma == cell.npos) {
        decimals.point = decimals.point || (cell.find('.') != cell.npos && IsNumeric(cell));
        return;
    }
    const std::string point = Replace(cell, ",", ".");
    if (!IsNumeric(point)) return; // told as no number
    // "1,234" alone cannot be decided; another cell of the block, "0,5" or "2.5", may decide it.
    const bool thousands = MayPartThousands(cell);
    if (thousands) notices.Add("thousands", row, Quoted(cell) + " became " + point);
    decimals.comma = decimals.comma || !thousands;
}

constexpr std::string_view PlusMinus = "\u00b1";

/// What tables print where there is no value, or in a column of its own between two.
bool StandsForNothing(std::string_view cell) {
    if (cell.empty() || cell == PlusMinus) return !cell.empty();
    for (std::size_t at = 0; at < cell.size();) {
        const char32_t c = NextCodePoint(cell, at);
        const bool dash = c == U'-' || (c >= 0x2010 && c <= 0x2015) || c == 0x2212;
        if (!dash && c != U'.' && c != 0x2026 && c != 0xB7 && c != 0x22EF) return false;
    }
    return true;
}

/// Why a cell is no number, for the troubles that printed tables are known for.
void NoteNoNumber(const std::string& cell, const std::string& typed, std::size_t row,
                  Notices& notices) {
    if (cell.empty() || IsNumeric(cell) ||
        (cell.back() == '%' && IsNumeric(cell.substr(0, cell.size() - 1))))
        return;
    // The longest beginning that is a number; what is left tells the kind of trouble.
    std::size_t end = cell.size();
    while (end > 0 && !IsNumeric(cell.substr(0, end)))
        --end;
    const std::string rest = cell.substr(end);
    // "0.1234(5)": the standard uncertainty of the last digits (JCGM 100:2008, 7.2.2).
    const bool bracket = end > 0 && rest.front() == '(' && rest.back() == ')' &&
                         IsDigits(Replace(rest.substr(1, rest.size() - 2), ".", ""));
    // One or two characters behind a number: "1.23a", "4.5*".
    const bool mark = end > 0 && CodePointCount(rest) <= 2 && !IsDigit(rest.back()) &&
                      rest.front() != '.' && rest.front() != '-';
    if (bracket)
        notices.Add("bracket", row, Quoted(cell) + " holds an uncertainty in brackets");
    else if (mark)
        notices.Add("footnote", row, Quoted(cell) + " ends in a footnote mark");
    else if (typed != cell && typed.find_first_not_of("0123456789.,+-eE") == typed.npos)
        notices.Add("comma", row, Quoted(typed) + " became " + cell + ", which is no number");
    else
        notices.Add("no number", row, Quoted(cell) + " is no number");
}

/// A dash in front of a number may be its sign.
void NoteNothing(const std::string& piece, const std::string& next, std::size_t row,
                 Notices& notices) {
    const bool dash = CodePointCount(piece) == 1 && piece != "." && piece != "\u2026" &&
                      piece != "\u00b7" && piece != "\u22ef" && piece != PlusMinus;
    const bool sign = dash && !next.empty() && (IsDigit(next.front()) || next.front() == '.');
    if (sign)
        notices.Add("loose sign", row,
                    Quoted(piece + " " + next) + " was read as an empty cell and a number");
    else
        notices.Add("no value", row, Quoted(piece) + " was read as an empty cell");
}

/// The pieces of a cell between its blanks; a value and what stands behind "±" are two.
std::vector<std::string> PiecesOf(const std::string& part, std::size_t row, Notices& notices) {
    if (part == PlusMinus) return {part};
    std::vector<std::string> pieces;
    const bool parted = part.find(PlusMinus) != part.npos;
    if (parted) notices.Add("plus-minus", row, Quoted(part) + " was parted at its \u00b1");
    for (const std::string& piece : Split(parted ? Replace(part, PlusMinus, " ") : part, ' ')) {
        if (!piece.empty() || part.empty()) pieces.push_back(piece);
    }
    return pieces;
}

/// One line whose tabs alone part cells. A comma is that of a number or stays in the text.
std::vector<std::string> CellsBetweenTabs(const std::string& line, std::size_t row,
                                          Decimals& decimals, Notices& notices) {
    std::vector<std::string> cells;
    for (const std::string& part : PartsOf(line)) {
        if (StandsForNothing(part)) {
            NoteNothing(part, "", row, notices);
            cells.emplace_back();
            continue;
        }
        NoteCommas(part, row, decimals, notices);
        const std::string point = Replace(part, ",", ".");
        cells.push_back(IsNumeric(point) ? point : part);
    }
    return cells;
}

/// One line, its blanks and tabs cleaned: the cells.
std::vector<std::string> CellsOf(const std::string& line, bool tabbed, std::size_t row,
                                 Decimals& decimals, Notices& notices) {
    std::vector<std::string> cells;
    for (std::string& part : PartsOf(line)) {
        if (IsNumeric(part)) { // most are; nothing is to be said of them
            decimals.point = decimals.point || part.find('.') != part.npos;
            cells.push_back(std::move(part));
            continue;
        }
        const std::vector<std::string> pieces = PiecesOf(part, row, notices);
        const bool parted = part.find(PlusMinus) != part.npos;
        if (tabbed && pieces.size() > (parted ? 2u : 1u))
            notices.Add("inner blank", row, Quoted(part) + " was split at its blank");
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            const std::string& piece = pieces[i];
            if (StandsForNothing(piece)) {
                NoteNothing(piece, i + 1 < pieces.size() ? pieces[i + 1] : "", row, notices);
                cells.emplace_back();
                continue;
            }
            NoteCommas(piece, row, decimals, notices);
            cells.push_back(Replace(piece, ",", "."));
            NoteNoNumber(cells.back(), piece, row, notices);
        }
    }
    return cells;
}

/// Whether two neighbours look like one number printed in groups of three digits.
bool LooksGrouped(const std::vector<std::string>& row) {
    for (std::size_t i = 1; i < row.size(); ++i) {
        const std::string& left = row[i - 1];
        const std::string whole = row[i].substr(0, row[i].find('.'));
        // Groups of three before the point: "12 345.6".
        const bool start = left.size() <= 4 && IsDigits(left.substr(left.starts_with('-') ? 1 : 0));
        if (start && whole.size() == 3 && IsDigits(whole)) return true;
        // And behind it: "0.123 45".
        const bool fraction = left.size() > 4 && left[left.size() - 4] == '.' && IsNumeric(left);
        if (fraction && IsDigits(row[i]) && row[i].size() <= 3) return true;
    }
    return false;
}

std::size_t FilledWidth(const std::vector<std::string>& row) {
    std::size_t width = row.size();
    while (width > 0 && row[width - 1].empty())
        --width;
    return width;
}

/// The width that most rows have is taken for that of the table.
void NoteRagged(const PastedTable& table, Notices& notices) {
    std::map<std::size_t, std::size_t> widths;
    for (const auto& row : table.rows)
        if (row.size() > 1 || !row.front().empty()) ++widths[row.size()];
    if (widths.size() < 2) return;
    const auto usual = std::max_element(widths.begin(), widths.end(),
                                        [](auto& a, auto& b) { return a.second < b.second; });
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const auto& row = table.rows[i];
        if (row.size() == usual->first || FilledWidth(row) == 0) continue;
        // Nothing but tabs at the end of the line.
        if (row.size() > usual->first && FilledWidth(row) <= usual->first) continue;
        if (row.size() > usual->first && LooksGrouped(row))
            notices.Add("inner blank", i, "a number with an inner blank was split");
        notices.Add("ragged", i,
                    std::to_string(row.size()) + (row.size() == 1 ? " cell" : " cells") +
                        " where most rows have " + std::to_string(usual->first));
    }
}

/// ";" parts cells where the comma is the decimal sign. Empty lines at the end are none of the
/// table.
std::vector<std::string> LinesOf(std::string_view text) {
    std::string plain = Replace(Replace(Replace(text, "\r\n", "\n"), "\r", "\n"), ";", "\t");
    while (plain.ends_with('\n'))
        plain.pop_back();
    return Split(plain, '\n');
}

} // namespace

bool MayPartThousands(std::string_view cell) {
    const std::size_t comma = cell.find(',');
    if (comma == cell.npos) return false;
    const std::size_t sign = cell.starts_with('-') || cell.starts_with('+') ? 1 : 0;
    const std::string_view whole = cell.substr(sign, comma - sign);
    return IsDigits(whole) && whole.size() <= 3 && whole.front() != '0' &&
           cell.size() - comma == 4 && IsDigits(cell.substr(comma + 1));
}

std::string PasteNotice::Line() const {
    return (row > 0 ? "row " + std::to_string(row) + ": " : "") + text;
}

std::size_t PastedTable::Columns() const {
    std::size_t columns = 0;
    for (const auto& row : rows)
        columns = std::max(columns, FilledWidth(row));
    return columns;
}

PastedTable CleanTable(std::string_view text, int firstRow, CellParting parting) {
    PastedTable table;
    Notices notices(firstRow);
    std::vector<std::string> lines = LinesOf(text);
    // With tabs about, a blank inside a cell is doubtful; without them it parts columns.
    const bool tabbed = text.find_first_of("\t;") != text.npos;
    Decimals decimals;
    for (std::size_t row = 0; row < lines.size(); ++row) {
        const std::string plain = PlainCharacters(lines[row], row, notices);
        const bool byTabs = parting == CellParting::AtTabsAlone && plain.find('\t') != plain.npos;
        table.rows.push_back(byTabs ? CellsBetweenTabs(plain, row, decimals, notices)
                                    : CellsOf(plain, tabbed, row, decimals, notices));
    }
    // Commas are plainly the decimal sign of this block.
    if (decimals.comma && !decimals.point) notices.Drop("thousands");
    NoteRagged(table, notices);
    table.notices = notices.All();
    return table;
}

bool PasteTable(TableUndo& table, const PastedTable& block, int row, int column,
                const PasteManner& manner) {
    const ui::Grid& grid = table.Table();
    const std::size_t columns = block.Columns();
    const int wide = column + static_cast<int>(columns);
    if (wide > grid.Columns() && !manner.widens) return false;
    const int rows = static_cast<int>(block.rows.size());
    const auto writer = [&](TableEdit& edit) {
        if (manner.replaces) edit.Rows(grid.FixedRows());
        edit.Columns(std::max(grid.Columns(), wide));
        // All rows at once, and the spare one below them: to grow row by row is slow.
        edit.Rows(std::max(grid.Rows(), row + rows + 1));
        for (int i = 0; i < rows; ++i) {
            const auto& cells = block.rows[static_cast<std::size_t>(i)];
            // Short lines write empty cells over what stood there.
            for (std::size_t j = 0; j < std::max(columns, cells.size()); ++j)
                edit.Cell(row + i, column + static_cast<int>(j),
                          j < cells.size() ? cells[j] : std::string());
        }
    };
    table.Do(writer, {}, manner.ahead);
    return true;
}

} // namespace vexora
