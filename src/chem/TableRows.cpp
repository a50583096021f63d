#include "chem/TableRows.h"

#include <algorithm>

#include "reference/Text.h"

namespace vexora {

std::string RowRemark::Line() const {
    return table + (row > 0 ? ":" + std::to_string(row) : "") +
           (isWarning ? ": warning: " : ": error: ") + text;
}

TableRows::TableRows(const Database& database, std::string_view table, RowRemarks& findings)
    : table_(table), findings_(findings),
      rows_(
          database.Query("select rowid as row_number, * from \"" + table_ + "\" order by rowid")) {
    if (rows_.IsEnd()) findings_.push_back({table_, 0, "the table is empty", false});
}

void TableRows::MoveNext() {
    rows_.MoveNext();
}

void TableRows::File(std::string text, bool isWarning) {
    findings_.push_back({table_, Row(), std::move(text), isWarning});
}

void TableRows::Expect(bool holds, std::string text) {
    if (!holds) Tell(std::move(text));
}

std::string TableRows::Required(std::string_view field) {
    std::string text = rows_.Text(field);
    if (text.empty())
        Tell(std::string(field) + " is empty");
    else
        Expect(Trim(text) == text, std::string(field) + " has blanks at an end");
    return text;
}

void TableRows::ExpectOnce(const std::string& kind, const std::string& value) {
    const auto [place, isNew] = seen_[kind].emplace(value, Row());
    if (!isNew)
        Tell(kind + " " + Quoted(value) + " stands in row " + std::to_string(place->second) +
             " already");
}

std::vector<std::string> ColumnTexts(const Database& database, std::string_view table,
                                     std::string_view column) {
    std::vector<std::string> texts;
    Recordset rows = database.Query("select * from \"" + std::string(table) + "\" order by rowid");
    for (; !rows.IsEnd(); rows.MoveNext())
        texts.push_back(rows.Text(column));
    return texts;
}

bool Contains(const std::vector<std::string>& texts, std::string_view text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

} // namespace vexora
