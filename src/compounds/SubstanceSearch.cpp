#include "compounds/SubstanceSearch.h"

#include "reference/ReferenceDatabases.h"
#include "reference/Text.h"

namespace vexora {

namespace {

std::vector<CompoundRow> Rows(std::string_view sql, const SqlValues& values) {
    std::vector<CompoundRow> found;
    const ReferenceDatabases* databases = CurrentDatabases();
    if (!databases || !databases->CompoundDb.IsOpen()) return found;
    Recordset rows = databases->CompoundDb.Query(sql, values);
    for (; !rows.IsEnd(); rows.MoveNext())
        found.push_back({rows.Integer("RN"), rows.Text("NAME"), rows.Text("FORMULA")});
    return found;
}

} // namespace

std::string NamePattern(std::string_view typed) {
    std::string pattern = Replace(Replace(typed, "[", "*"), "%", "*");
    while (Find(pattern, "**") > 0)
        pattern = Replace(pattern, "**", "*");
    return pattern == "*" ? std::string() : pattern;
}

std::vector<CompoundRow> FindCompounds(std::string_view namePattern, std::string_view formula) {
    std::string sql = "select * from ALLNAME where";
    SqlValues values;
    if (!formula.empty()) {
        sql += " like_case(?, FORMULA)";
        values.emplace_back(formula);
    }
    if (!formula.empty() && !namePattern.empty()) sql += " and";
    if (!namePattern.empty()) {
        sql += " NAME like ?";
        values.emplace_back(namePattern);
    }
    if (values.empty()) return {};
    return Rows(sql + " order by rowid", values);
}

std::vector<CompoundRow> CompoundsNamed(std::string_view name) {
    return Rows("select * from ALLNAME where NAME=? order by rowid", {name});
}

} // namespace vexora
