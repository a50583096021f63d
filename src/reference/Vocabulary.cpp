#include "reference/Vocabulary.h"

#include "reference/KVODefinitions.h"
#include "reference/Text.h"
#include "reference/VocabularyTables.h"

#include <algorithm>
#include <array>

namespace vexora {

namespace {

constexpr std::array<CodeText, 3> Solutions{{
    {"Solution", "S"},
    {"Solution 1", "S1"},
    {"Solution 2", "S2"},
}};

/// Reaction and bio variables have no flag column of their own.
bool VariableOffered(const VariableRow& row, std::string_view context) {
    return context == "React" || row.Offered.IsIn(context);
}

/// An empty context takes any row.
const VariableRow* FirstVariable(std::string VariableRow::*key, std::string_view value,
                                 std::string_view context) {
    for (const VariableRow* row : Kept(&VocabularyTables::IndVariables).With(key, value))
        if (VariableOffered(*row, context)) return row;
    return nullptr;
}

/// The other of two texts of the first row with this key; "" if there is none.
template <class Row>
std::string TextOf(const KeptTable<Row>& table, std::string Row::*key, std::string_view value,
                   std::string Row::*text) {
    const Row* row = table.First(key, value);
    return row ? row->*text : std::string();
}

template <class Row>
std::vector<std::string> Texts(const KeptTable<Row>& table, std::string Row::*text) {
    std::vector<std::string> texts;
    for (const Row& row : table.Rows())
        texts.push_back(row.*text);
    return texts;
}

/// "(some (text))" without its outer brackets, inner "(" blanked.
std::string BareText(std::string_view text) {
    text.remove_prefix(1);
    if (!text.empty() && text.back() == ')') text.remove_suffix(1);
    return Replace(text, "(", " ");
}

std::string BracketedText(std::string_view text) {
    return std::string(text) + (text.back() == ')' ? "" : ")");
}

using SampleMethods = KeptTable<SampleMethodRow> VocabularyTables::*;

std::string NameOf(SampleMethods table, std::string_view code) {
    if (code.starts_with('(')) return BareText(code);
    return TextOf(Kept(table), &SampleMethodRow::Code, code, &SampleMethodRow::Method);
}

/// Free text is its own code, kept in its brackets.
std::string CodeOf(SampleMethods table, std::string_view text) {
    if (text.starts_with('(')) return BracketedText(text);
    return TextOf(Kept(table), &SampleMethodRow::Method, text, &SampleMethodRow::Code);
}

} // namespace

bool ContextFlags::IsIn(std::string_view context) const {
    if (context == "Pure" || context == "Complex") return Pure;
    if (context == "Bin") return Bin;
    if (context == "Tern") return Tern;
    if (context == "React") return React;
    // A context that has no column hides nothing.
    return context != "GH" || GH;
}

std::string PhaseCode(std::string_view name) {
    std::string solution = CodeOfText(Solutions, name);
    if (!solution.empty()) return solution;
    return TextOf(Kept(&VocabularyTables::Phases), &PhaseRow::Phase, name, &PhaseRow::Code);
}

std::string PhaseName(std::string_view code) {
    std::string solution = TextOfCode(Solutions, code);
    if (!solution.empty()) return solution;
    return TextOf(Kept(&VocabularyTables::Phases), &PhaseRow::Code, code, &PhaseRow::Phase);
}

bool PhaseValid(std::string_view code) {
    return code == "&" || !PhaseName(code).empty();
}

std::vector<std::string> PhaseList(std::string_view context, std::string_view prefix) {
    std::vector<std::string> names;
    for (const PhaseRow& row : Kept(&VocabularyTables::Phases).Rows()) {
        const std::string_view name = row.Phase;
        const bool fits = EqualNoCase(name.substr(0, prefix.size()), prefix);
        const bool ofHydrate = context == "Complex" && row.Offered.GH;
        if (fits && (ofHydrate || row.Offered.IsIn(context))) names.push_back(row.Phase);
    }
    return names;
}

bool IsCriticalCurve(std::string_view code) {
    return std::ranges::find(CriticalCurves, code) != CriticalCurves.end();
}

bool IsCrystalPhase(std::string_view code) {
    return code.starts_with('C') && !IsCriticalCurve(code);
}

bool IsLiquidPhase(std::string_view code) {
    return code.starts_with('L');
}

const VariableRow* FindVariable(std::string_view code) {
    return FirstVariable(&VariableRow::IndVarCode, code, {});
}

const VariableRow* FindVariableByName(std::string_view name) {
    return FirstVariable(&VariableRow::IndVariable, name, {});
}

std::vector<VariableRow> VariablesOf(std::string_view context, bool constraintsOnly) {
    std::vector<VariableRow> variables;
    for (const VariableRow& row : Kept(&VocabularyTables::IndVariables).Rows()) {
        const bool wanted = !constraintsOnly || row.Constr;
        if (wanted && VariableOffered(row, context)) variables.push_back(row);
    }
    return variables;
}

std::string VariableName(std::string_view code, std::string_view context) {
    const VariableRow* row = FirstVariable(&VariableRow::IndVarCode, code, context);
    return row ? row->IndVariable : std::string();
}

std::string VariableCode(std::string_view name, std::string_view context) {
    const VariableRow* row = FirstVariable(&VariableRow::IndVariable, name, context);
    return row ? row->IndVarCode : std::string();
}

bool VariableValid(std::string_view code) {
    return FirstVariable(&VariableRow::IndVarCode, code, "Pure") != nullptr;
}

std::string PurificationName(std::string_view code) {
    return NameOf(&VocabularyTables::Purification, code);
}

std::string PurificationCode(std::string_view text) {
    return CodeOf(&VocabularyTables::Purification, text);
}

std::string DeterminationName(std::string_view code) {
    return NameOf(&VocabularyTables::PurityDetermination, code);
}

std::string DeterminationCode(std::string_view text) {
    return CodeOf(&VocabularyTables::PurityDetermination, text);
}

std::vector<std::string> PurificationList() {
    return Texts(Kept(&VocabularyTables::Purification), &SampleMethodRow::Method);
}

std::vector<std::string> DeterminationList() {
    std::vector<std::string> names =
        Texts(Kept(&VocabularyTables::PurityDetermination), &SampleMethodRow::Method);
    // The most frequent answer leads, wherever the table has it.
    const std::string first = "Stated by supplier";
    std::erase(names, first);
    names.insert(names.begin(), first);
    return names;
}

std::optional<int> PurityRating(std::string_view code) {
    const SampleMethodRow* row =
        Kept(&VocabularyTables::PurityDetermination).First(&SampleMethodRow::Code, code);
    return row ? std::optional(row->Rating) : std::nullopt;
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
    return TextOf(Kept(&VocabularyTables::Reactions), &ReactionRow::RCode, code,
                  &ReactionRow::RType);
}

std::string ReactionCode(std::string_view type) {
    return TextOf(Kept(&VocabularyTables::Reactions), &ReactionRow::RType, type,
                  &ReactionRow::RCode);
}

std::vector<std::string> ReactionTypes() {
    return Texts(Kept(&VocabularyTables::Reactions), &ReactionRow::RType);
}

std::optional<double> AtomicMass(std::string_view symbol) {
    const ElementRow* row = Kept(&VocabularyTables::Elements).First(&ElementRow::SYMBOL, symbol);
    return row ? std::optional(row->AMASS) : std::nullopt;
}

} // namespace vexora
