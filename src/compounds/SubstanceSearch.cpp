#include "compounds/SubstanceSearch.h"

#include "reference/CompoundNames.h"
#include "reference/NameKey.h"
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
    const CompoundNames* names = KnownNames();
    if (!names || (formula.empty() && NameKey(namePattern).empty())) return {};
    return names->Matching(namePattern, formula);
}

std::vector<std::string> NamesBeginningWith(std::string_view typed) {
    constexpr std::size_t shown = 100;
    try {
        const CompoundNames* names = KnownNames();
        return names ? names->BeginningWith(typed, shown) : std::vector<std::string>();
    } catch (const DatabaseError&) {
        return {}; // a search tells of it; not every key that is typed
    }
}

std::vector<CompoundRow> CompoundsNamed(std::string_view name) {
    return Rows("select * from ALLNAME where NAME=? order by rowid", {name});
}

} // namespace vexora
