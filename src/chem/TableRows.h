#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "reference/Database.h"

namespace vexora {

/// Something wrong with a row of a reference table, ready to print.
struct RowRemark {
    std::string table;
    int row = 0; // from 1, the heading of the text table not counted; 0 means the whole table
    std::string text;
    bool isWarning = false;
    /// "table:row: error: text", or with "warning".
    std::string Line() const;
};
using RowRemarks = std::vector<RowRemark>;

/// Steps through a table for its checks and files what they find under the row it stands on. Lives
/// for one pass; database and findings belong to the caller.
class TableRows {
public:
    TableRows(const Database& database, std::string_view table, RowRemarks& findings);

    bool IsEnd() const { return rows_.IsEnd(); }
    void MoveNext();
    std::string Text(std::string_view field) const { return rows_.Text(field); }
    double Number(std::string_view field) const { return rows_.Number(field); }
    std::int64_t Integer(std::string_view field) const { return rows_.Integer(field); }
    bool Flag(std::string_view field) const { return rows_.Flag(field); }

    void Tell(std::string text) { File(std::move(text), false); }
    void Warn(std::string text) { File(std::move(text), true); }
    /// Files the text unless the condition holds.
    void Expect(bool holds, std::string text);
    /// The text of a field that must not be empty and has no blanks at its ends.
    std::string Required(std::string_view field);
    /// Files a repetition: the same value of the same kind in an earlier row.
    void ExpectOnce(const std::string& kind, const std::string& value);

private:
    void File(std::string text, bool isWarning);
    int Row() const { return static_cast<int>(rows_.Integer("row_number")); }

    std::string table_;
    RowRemarks& findings_;
    Recordset rows_;
    std::map<std::string, std::map<std::string, int>> seen_; // row of each value, by kind
};

/// The texts of a column in table order.
std::vector<std::string> ColumnTexts(const Database& database, std::string_view table,
                                     std::string_view column);
/// True for a text that occurs among others with exact case.
bool Contains(const std::vector<std::string>& texts, std::string_view text);
/// A text in double quotes.
std::string Quoted(std::string_view text);

} // namespace vexora
