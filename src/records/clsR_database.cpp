#include "records/clsR.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

/// Rows of SOURCE_REFINFO with the first three parts of the identity.
/// No second author is "", "&" or nothing at all, as the row was made.
Recordset RowsOf(std::string_view year, std::string_view author1, std::string_view author2) {
    return Globals().CompoundDb().Query(
        "select * from SOURCE_REFINFO where YEARPUB = ? and AUTHOR1 = ? and "
        "replace(ifnull(AUTHOR2, ''), '&', '') = ? order by rowid",
        {year, author1, WithoutPlaceholder(author2)});
}

/// SOURCE of the row with this identity, or nothing.
std::optional<std::string> KnownSource(const clsR& source) {
    for (Recordset row = RowsOf(source.YEARPUB, source.AUTHOR1, source.AUTHOR2); !row.IsEnd();
         row.MoveNext()) {
        if (row.Integer("AUTHORN") == ToInteger(Val(source.AUTHORN))) return row.Text("SOURCE");
    }
    return std::nullopt;
}

/// By number: as text "10" comes before "9". Gaps stay, for a number once given may be cited.
int OneAboveGreatest(Recordset rows) {
    std::int64_t highest = 0;
    for (; !rows.IsEnd(); rows.MoveNext())
        highest = std::max(highest, rows.Integer("AUTHORN"));
    return static_cast<int>(highest) + 1;
}

} // namespace

std::string clsR::LoadJ(std::string_view line) {
    std::string text(line);
    const auto next = [&text] { return WithoutPlaceholder(NextHashField(text)); };
    next();
    TYPDOC = next();
    SOURCEDOC = OrPlaceholder(NextHashField(text));
    for (std::string* field : {&SSOURCE, &TTITLE, &KEYWORDS, &ABSTRACT, &NOTE, &PRPCLASS})
        *field = next();
    next(); // the number of authors, told by the ^I lines themselves
    for (std::string* field : {&CASCIT, &CODEN, &ISSN, &BULCT})
        *field = next();
    BULCT = Trim(BULCT);
    const std::size_t comma = SSOURCE.rfind(", ");
    if (TYPDOC == "S" && comma != std::string::npos) ManuscriptID = SSOURCE.substr(comma + 2);
    // The line would not be there otherwise; it stays new whatever the database says.
    isNew = true;
    if (!Globals().CompoundDb().IsOpen()) return {};
    const auto known = KnownSource(*this);
    toRegister = !known;
    if (!known || TrimBlanks(*known) == TrimBlanks(SSOURCE)) return {};
    return SSOURCE + "\nDatabase: " + *known + "\n" + Source() + ": Are these sources different?";
}

Notice clsR::TakeNextNumber() {
    auto& sources = Globals().recR;
    const auto me = As<clsR>();
    const bool attached = sources.Remove(this);
    AUTHORN = std::to_string(NextAuthorNumber(YEARPUB, AUTHOR1, AUTHOR2));
    if (attached) sources.Add(me, Source());
    Synchronize();
    toRegister = true;
    Globals().Saved = false;
    return {"Please adjust file name after closing it", {}};
}

int NextAuthorNumber(std::string_view year, std::string_view author1, std::string_view author2) {
    if (!Globals().CompoundDb().IsOpen()) return 1;
    return OneAboveGreatest(RowsOf(year, author1, author2));
}

int NextNumberOfNewSource(std::string_view year, std::string_view author1,
                          std::string_view author2) {
    if (!WithoutPlaceholder(author2).empty()) return NextAuthorNumber(year, author1, author2);
    if (!Globals().CompoundDb().IsOpen()) return 1;
    return OneAboveGreatest(Globals().CompoundDb().Query(
        "select * from SOURCE_REFINFO where YEARPUB = ? and AUTHOR1 = ?", {year, author1}));
}

void RegisterSource(const clsR& source) {
    Globals().CompoundDb().Insert("SOURCE_REFINFO",
                                  {{"YEARPUB", source.YEARPUB},
                                   {"AUTHOR1", source.AUTHOR1},
                                   {"AUTHOR2", WithoutPlaceholder(source.AUTHOR2)},
                                   {"AUTHORN", source.AUTHORN},
                                   {"SOURCE", source.SSOURCE},
                                   {"TITLE", source.TTITLE},
                                   {"NEW", true}});
}

} // namespace vexora
