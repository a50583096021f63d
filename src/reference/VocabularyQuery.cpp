#include "reference/VocabularyQuery.h"

namespace vexora {

std::optional<Recordset> LocalRows(std::string_view sql, const SqlValues& values) {
    const ReferenceDatabases* databases = CurrentDatabases();
    if (!databases || !databases->LocalDb.IsOpen()) return std::nullopt;
    return databases->LocalDb.Query(sql, values);
}

std::string LocalText(std::string_view sql, const SqlValues& values, std::string_view field) {
    const std::optional<Recordset> rows = LocalRows(sql, values);
    return rows ? rows->Text(field) : std::string();
}

std::vector<std::string> LocalTexts(std::string_view sql, const SqlValues& values,
                                    std::string_view field) {
    std::vector<std::string> texts;
    std::optional<Recordset> rows = LocalRows(sql, values);
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        texts.push_back(rows->Text(field));
    return texts;
}

std::string_view ContextColumn(std::string_view context) {
    if (context == "Pure" || context == "Complex") return "Pure";
    if (context == "Bin" || context == "Tern" || context == "React" || context == "GH")
        return context;
    return {};
}

bool IsOffered(const Recordset& row, std::string_view context) {
    const std::string_view column = ContextColumn(context);
    return column.empty() || row.Flag(column);
}

} // namespace vexora
