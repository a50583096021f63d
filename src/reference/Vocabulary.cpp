#include "reference/Vocabulary.h"

#include "reference/KVODefinitions.h"
#include "reference/Text.h"
#include "reference/VocabularyQuery.h"

#include <algorithm>
#include <array>

namespace vexora {

namespace {

constexpr std::array<CodeText, 3> kSolutions{{
    {"Solution", "S"},
    {"Solution 1", "S1"},
    {"Solution 2", "S2"},
}};

VariableRow ReadVariable(const Recordset& row) {
    VariableRow variable;
    variable.IndVarCode = row.Text("IndVarCode");
    variable.IndVariable = row.Text("IndVariable");
    variable.Unit = row.Text("Unit");
    variable.XMLGroup = row.Text("XMLGroup");
    variable.XMLNAME = row.Text("XMLNAME");
    variable.Constr = row.Flag("Constr");
    variable.NeedSolvent = row.Flag("NeedSolvent");
    return variable;
}

/// Reaction and bio variables have no flag column of their own.
bool VariableOffered(const Recordset& row, std::string_view context) {
    return context == "React" || IsOffered(row, context);
}

std::optional<VariableRow> FirstVariable(std::string_view sql, std::string_view value,
                                         std::string_view context) {
    std::optional<Recordset> rows = LocalRows(sql, {value});
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        if (VariableOffered(*rows, context)) return ReadVariable(*rows);
    return std::nullopt;
}

constexpr std::string_view kVariableByCode =
    "select * from IndVariables where IndVarCode=? collate binary order by rowid";
constexpr std::string_view kVariableByName =
    "select * from IndVariables where IndVariable=? order by rowid";

/// "(some (text))" without its outer brackets, inner "(" blanked.
std::string BareText(std::string_view text) {
    text.remove_prefix(1);
    if (!text.empty() && text.back() == ')') text.remove_suffix(1);
    return Replace(text, "(", " ");
}

std::string BracketedText(std::string_view text) {
    return std::string(text) + (text.back() == ')' ? "" : ")");
}

std::string NameOf(std::string_view sql, std::string_view code) {
    if (code.starts_with('(')) return BareText(code);
    return LocalText(sql, {code}, "Method");
}

std::string CodeOf(std::string_view sql, std::string_view text) {
    if (text.starts_with('(')) return BracketedText(text);
    return LocalText(sql, {text}, "Code");
}

std::optional<Recordset> CompoundsByName(std::string_view name) {
    const ReferenceDatabases* databases = CurrentDatabases();
    if (!databases || !databases->CompoundDb.IsOpen()) return std::nullopt;
    return databases->CompoundDb.Query("select * from ALLNAME where NAME=? order by rowid", {name});
}

} // namespace

std::string PhaseCode(std::string_view name) {
    const std::string solution = CodeOfText(kSolutions, name);
    if (!solution.empty()) return solution;
    return LocalText("select Code from Phases where Phase=? order by rowid", {name}, "Code");
}

std::string PhaseName(std::string_view code) {
    const std::string solution = TextOfCode(kSolutions, code);
    if (!solution.empty()) return solution;
    return LocalText("select Phase from Phases where Code=? collate binary order by rowid", {code},
                     "Phase");
}

bool PhaseValid(std::string_view code) {
    return code == "&" || !PhaseName(code).empty();
}

std::vector<std::string> PhaseList(std::string_view context, std::string_view prefix) {
    std::vector<std::string> names;
    std::optional<Recordset> rows = LocalRows("select * from Phases order by rowid");
    for (; rows && !rows->IsEnd(); rows->MoveNext()) {
        std::string name = rows->Text("Phase");
        const bool fits = EqualNoCase(std::string_view(name).substr(0, prefix.size()), prefix);
        const bool ofHydrate = context == "Complex" && rows->Flag("GH");
        if (fits && (ofHydrate || IsOffered(*rows, context))) names.push_back(std::move(name));
    }
    return names;
}

bool IsCriticalCurve(std::string_view code) {
    return std::ranges::find(CriticalCurves(), code) != CriticalCurves().end();
}

bool IsCrystalPhase(std::string_view code) {
    return code.starts_with('C') && !IsCriticalCurve(code);
}

bool IsLiquidPhase(std::string_view code) {
    return code.starts_with('L');
}
bool IsGasPhase(std::string_view code) {
    return code == "G";
}

std::optional<VariableRow> FindVariable(std::string_view code) {
    return FirstVariable(kVariableByCode, code, {});
}

std::optional<VariableRow> FindVariableByName(std::string_view name) {
    return FirstVariable(kVariableByName, name, {});
}

std::vector<VariableRow> VariablesOf(std::string_view context, bool constraintsOnly) {
    std::vector<VariableRow> variables;
    std::optional<Recordset> rows = LocalRows("select * from IndVariables order by rowid");
    for (; rows && !rows->IsEnd(); rows->MoveNext()) {
        const bool wanted = !constraintsOnly || rows->Flag("Constr");
        if (wanted && VariableOffered(*rows, context)) variables.push_back(ReadVariable(*rows));
    }
    return variables;
}

std::string VariableName(std::string_view code, std::string_view context) {
    return FirstVariable(kVariableByCode, code, context).value_or(VariableRow()).IndVariable;
}

std::string VariableCode(std::string_view name, std::string_view context) {
    return FirstVariable(kVariableByName, name, context).value_or(VariableRow()).IndVarCode;
}

bool VariableValid(std::string_view code) {
    return FirstVariable(kVariableByCode, code, "Pure").has_value();
}

std::string PurificationName(std::string_view code) {
    return NameOf("select Method from Purification where Code=? collate binary order by rowid",
                  code);
}

std::string PurificationCode(std::string_view text) {
    return CodeOf("select Code from Purification where Method=? order by rowid", text);
}

std::string DeterminationName(std::string_view code) {
    return NameOf("select Method from PurityDetermination where Code=? collate binary"
                  " order by rowid",
                  code);
}

std::string DeterminationCode(std::string_view text) {
    return CodeOf("select Code from PurityDetermination where Method=? order by rowid", text);
}

std::vector<std::string> PurificationList() {
    return LocalTexts("select Method from Purification order by rowid", {}, "Method");
}

std::vector<std::string> DeterminationList() {
    std::vector<std::string> names =
        LocalTexts("select Method from PurityDetermination order by rowid", {}, "Method");
    const std::string first = "Stated by supplier";
    std::erase(names, first);
    names.insert(names.begin(), first);
    return names;
}

std::optional<int> PurityRating(std::string_view code) {
    const auto rows = LocalRows(
        "select Rating from PurityDetermination where Code=? collate binary order by rowid",
        {code});
    if (!rows || rows->IsEnd()) return std::nullopt;
    return static_cast<int>(rows->Integer("Rating"));
}

std::string CompoundFormula(std::string_view name) {
    const auto rows = CompoundsByName(name);
    return rows ? rows->Text("FORMULA") : std::string();
}

std::int64_t CompoundRN(std::string_view name) {
    const auto rows = CompoundsByName(name);
    return rows ? rows->Integer("RN") : 0;
}

std::vector<CompoundRow> CompoundsOf(std::int64_t rn) {
    std::vector<CompoundRow> found;
    const ReferenceDatabases* databases = CurrentDatabases();
    if (!databases || !databases->CompoundDb.IsOpen()) return found;
    Recordset rows =
        databases->CompoundDb.Query("select * from ALLNAME where RN=? order by rowid", {rn});
    for (; !rows.IsEnd(); rows.MoveNext())
        found.push_back({rn, rows.Text("NAME"), rows.Text("FORMULA")});
    return found;
}

std::string ReactionType(std::string_view code) {
    return LocalText("select RType from Reactions where RCode=? collate binary order by rowid",
                     {code}, "RType");
}

std::string ReactionCode(std::string_view type) {
    return LocalText("select RCode from Reactions where RType=? order by rowid", {type}, "RCode");
}

std::vector<std::string> ReactionTypes() {
    return LocalTexts("select RType from Reactions order by rowid", {}, "RType");
}

std::vector<std::string> JournalTitles() {
    return LocalTexts("select ShortTitle from Journals order by rowid", {}, "ShortTitle");
}

std::vector<std::string> PublisherNames() {
    return LocalTexts("select Publisher from Publishers order by rowid", {}, "Publisher");
}

std::string CompleteJournal(std::string_view typed) {
    return LocalText("select ShortTitle from Journals where ShortTitle like ?||'*' order by rowid",
                     {typed}, "ShortTitle");
}

std::string CompletePublisher(std::string_view typed) {
    return LocalText("select Publisher from Publishers where Publisher like ?||'*' order by rowid",
                     {typed}, "Publisher");
}

} // namespace vexora
