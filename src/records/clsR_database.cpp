#include "records/clsR.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/clsAuthor.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace vexora {

namespace {

/// Rows of SOURCE_REFINFO with the first three parts of the identity.
/// No second author is "", "&" or nothing at all, as the row was made.
Recordset RowsOf(std::string_view year, std::string_view author1, std::string_view author2) {
    return Globals().CompoundDb().Query(
        "select rowid as PLACE, * from SOURCE_REFINFO where YEARPUB = ? and AUTHOR1 = ? and "
        "replace(ifnull(AUTHOR2, ''), '&', '') = ? order by rowid",
        {year, author1, WithoutPlaceholder(author2)});
}

/// At the row with this identity, as Source() words it, or at the end.
Recordset RowOf(std::string_view identity) {
    WordReader words(identity);
    const auto year = words.NextWord();
    const auto author1 = words.NextWord();
    const auto author2 = words.NextWord();
    Recordset row = RowsOf(year, author1, author2);
    const std::int64_t number = ToInteger(Val(words.Rest()));
    while (!row.IsEnd() && row.Integer("AUTHORN") != number)
        row.MoveNext();
    return row;
}

/// The greatest number so far: of the rows, and of the sources of the document with this year and
/// these authors, which nobody may take before they are saved.
class Numbers {
public:
    /// By number: as text "10" comes before "9". Gaps stay, for a number once given may be cited.
    explicit Numbers(Recordset rows) {
        for (; !rows.IsEnd(); rows.MoveNext())
            highest_ = std::max(highest_, rows.Integer("AUTHORN"));
    }
    Numbers& Count(const std::function<bool(const clsR&)>& isCounted) {
        for (const auto& source : Globals().recR)
            if (isCounted(*source)) highest_ = std::max(highest_, ToInteger(Val(source->AUTHORN)));
        return *this;
    }
    int Next() const { return static_cast<int>(highest_) + 1; }

private:
    std::int64_t highest_ = 0;
};

/// Changes that are made all or none; a database that need not change is not locked for it.
class Changes {
public:
    Database& Begin() {
        if (!transaction_) transaction_.emplace(Globals().CompoundDb());
        return Globals().CompoundDb();
    }
    void Commit() {
        if (transaction_) transaction_->Commit();
    }

private:
    std::optional<Transaction> transaction_;
};

SqlAssignments FieldsOf(const clsR& source) {
    return {{"YEARPUB", source.YEARPUB},
            {"AUTHOR1", source.AUTHOR1},
            {"AUTHOR2", WithoutPlaceholder(source.AUTHOR2)},
            {"AUTHORN", source.AUTHORN},
            {"SOURCE", source.SSOURCE},
            {"TITLE", source.TTITLE}};
}

void Add(const clsR& source, Changes& changes) {
    SqlAssignments fields = FieldsOf(source);
    fields.emplace_back("NEW", true);
    changes.Begin().Insert("SOURCE_REFINFO", fields);
}

void Settle(const clsR& source, Changes& changes) {
    const Recordset row = RowOf(source.Source());
    if (row.IsEnd()) return;
    SqlAssignments text{{"SOURCE", source.SSOURCE}};
    if (!source.TTITLE.empty()) text.emplace_back("TITLE", source.TTITLE);
    changes.Begin().Update("SOURCE_REFINFO", row.Integer("PLACE"), text);
}

void Register(const clsR& source, Changes& changes) {
    const Recordset own = RowOf(source.RegisteredAs);
    if (own.IsEnd() || !own.Flag("NEW")) {
        if (RowOf(source.Source()).IsEnd()) Add(source, changes);
        return;
    }
    if (source.RegisteredAs != source.Source() || own.Text("SOURCE") != source.SSOURCE ||
        own.Text("TITLE") != source.TTITLE)
        changes.Begin().Update("SOURCE_REFINFO", own.Integer("PLACE"), FieldsOf(source));
}

void Register(const clsAuthor& author, Changes& changes) {
    if (!author.isNew || author.FULLNM.empty() || author.KnownName()) return;
    changes.Begin().Insert("SOURCE_AUTHOR", {{"LASTNM", author.LASTNM},
                                             {"INITNM", author.INITNM},
                                             {"FULLNM", author.FULLNM},
                                             {"NEW", true}});
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
    for (std::string* field : {&CASCIT, &CODEN, &ISSN})
        *field = next();
    BULCT = WithoutPlaceholder(Trim(NextHashField(text)));
    const std::size_t comma = SSOURCE.rfind(", ");
    if (TYPDOC == "S" && comma != std::string::npos) ManuscriptID = SSOURCE.substr(comma + 2);
    // The line would not be there otherwise; it stays new whatever the database says.
    isNew = true;
    if (!Globals().CompoundDb().IsOpen()) return {};
    const Recordset known = RowOf(Source());
    toRegister = known.IsEnd();
    if (toRegister) return {};
    RegisteredAs = Source();
    const std::string other = known.Text("SOURCE");
    if (TrimBlanks(other) == TrimBlanks(SSOURCE)) return {};
    return SSOURCE + "\nDatabase: " + other + "\n" + RegisteredAs +
           ": Are these sources different?";
}

void clsR::TakeKnownCitation() {
    if (isNew || !Globals().CompoundDb().IsOpen()) return;
    const Recordset known = RowOf(Source());
    if (known.IsEnd()) return;
    SSOURCE = known.Text("SOURCE");
    TTITLE = known.Text("TITLE");
}

Notice clsR::TakeNextNumber() {
    auto& sources = Globals().recR;
    const auto me = As<clsR>();
    const bool attached = sources.Remove(this);
    RegisteredAs.clear(); // that row is another source
    AUTHORN = std::to_string(NextAuthorNumber(YEARPUB, AUTHOR1, AUTHOR2, this));
    if (attached) sources.Add(me, Source());
    Synchronize();
    Globals().Saved = false;
    return {"Please adjust file name after closing it", {}};
}

void clsR::Renumber() {
    const std::string front = YEARPUB + " " + AUTHOR1 + " " + OrPlaceholder(AUTHOR2) + " ";
    AUTHORN = RegisteredAs.starts_with(front)
                  ? RegisteredAs.substr(front.size())
                  : std::to_string(NextAuthorNumber(YEARPUB, AUTHOR1, AUTHOR2, this));
}

int NextAuthorNumber(std::string_view year, std::string_view author1, std::string_view author2,
                     const clsR* leftOut) {
    if (!Globals().CompoundDb().IsOpen()) return 1;
    return Numbers(RowsOf(year, author1, author2))
        .Count([&](const clsR& source) {
            return &source != leftOut && source.YEARPUB == year &&
                   EqualNoCase(source.AUTHOR1, author1) &&
                   EqualNoCase(WithoutPlaceholder(source.AUTHOR2), WithoutPlaceholder(author2));
        })
        .Next();
}

int NextNumberOfNewSource(std::string_view year, std::string_view author1,
                          std::string_view author2) {
    if (!WithoutPlaceholder(author2).empty()) return NextAuthorNumber(year, author1, author2);
    if (!Globals().CompoundDb().IsOpen()) return 1;
    return Numbers(Globals().CompoundDb().Query(
                       "select * from SOURCE_REFINFO where YEARPUB = ? and AUTHOR1 = ?",
                       {year, author1}))
        .Count([&](const clsR& source) {
            return source.YEARPUB == year && EqualNoCase(source.AUTHOR1, author1);
        })
        .Next();
}

void RegisterReadSources() {
    Changes changes;
    for (const auto& source : Globals().recR) {
        if (source->toRegister) Add(*source, changes);
        if (source->toSettle) Settle(*source, changes);
    }
    changes.Commit();
    for (const auto& source : Globals().recR) {
        if (std::exchange(source->toRegister, false)) source->RegisteredAs = source->Source();
        source->toSettle = false;
    }
}

void RegisterDocument() {
    if (!Globals().CompoundDb().IsOpen()) return;
    Changes changes;
    for (const auto& source : Globals().recR) {
        if (!source->isNew) continue;
        Register(*source, changes);
        for (const auto& author : source->recAuthor)
            Register(*author, changes);
    }
    changes.Commit();
    for (const auto& source : Globals().recR)
        if (source->isNew) source->RegisteredAs = source->Source();
}

} // namespace vexora
