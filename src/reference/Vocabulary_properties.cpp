#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "reference/VocabularyTables.h"

#include <algorithm>
#include <array>
#include <span>

namespace vexora {

namespace {

bool OpenForPure(const PropertyRow& row) {
    return row.Single || row.Fixed || row.One || row.Two;
}

/// The ways of entry tell for pure data; mixtures have a flag for each number of components too.
bool PropertyOffered(const PropertyRow& row, std::string_view context) {
    if (context == "Pure" || context == "Complex") return OpenForPure(row);
    const bool isOfMixtures = context == "Bin" || context == "Tern" || context == "GH";
    return row.Offered.IsIn(context) && (!isOfMixtures || row.MixZ || row.MixV);
}

/// How well a row fits, 0 best.
int Misfit(const PropertyRow& row, std::string_view context, std::string_view propertyContext) {
    if (!PropertyOffered(row, context)) return 3;
    if (EqualNoCase(row.CONTEXT, propertyContext)) return 0;
    return row.CONTEXT.empty() ? 1 : 2;
}

/// The first of equal rows stays, as table order has it.
const PropertyRow* BestProperty(std::string PropertyRow::*key, std::string_view value,
                                std::string_view context, std::string_view propertyContext) {
    const PropertyRow* best = nullptr;
    int least = 4;
    for (const PropertyRow* row : Kept(&VocabularyTables::Properties).With(key, value)) {
        const int misfit = Misfit(*row, context, propertyContext);
        if (misfit >= least) continue;
        least = misfit;
        best = row;
    }
    return best;
}

struct Mode {
    std::string_view name;
    bool PropertyRow::*isOpen;
};
constexpr std::array<Mode, 4> PureModes{{{"Single", &PropertyRow::Single},
                                         {"Fixed", &PropertyRow::Fixed},
                                         {"One", &PropertyRow::One},
                                         {"Two", &PropertyRow::Two}}};
constexpr std::array<Mode, 2> MixtureModes{
    {{"MixZ", &PropertyRow::MixZ}, {"MixV", &PropertyRow::MixV}}};

/// A text of the first row with this code to which the mode is open; "" for a mode that is none.
std::string TextWhere(std::string_view code, std::string_view mode, std::span<const Mode> modes,
                      std::string PropertyRow::*text) {
    const auto found = std::ranges::find(modes, mode, &Mode::name);
    if (found == modes.end()) return {};
    for (const PropertyRow* row :
         Kept(&VocabularyTables::Properties).With(&PropertyRow::Code, code))
        if (row->*found->isOpen) return row->*text;
    return {};
}

/// Capital letters are of the liquid and the gas, small ones of all other phases.
std::string LetterByPhase(std::string_view propertyClass, std::string_view phase1) {
    const std::string letter(propertyClass.substr(0, 1));
    return phase1 == "L" || phase1 == "G" ? letter : LowerAscii(letter);
}

} // namespace

const PropertyRow* FindProperty(std::string_view code, std::string_view context,
                                std::string_view propertyContext) {
    return BestProperty(&PropertyRow::Code, code, context, propertyContext);
}

const PropertyRow* FindPropertyByName(std::string_view name, std::string_view context) {
    return BestProperty(&PropertyRow::Property, name, context, {});
}

std::vector<PropertyGroupRow> PropertyGroups(std::string_view context) {
    std::vector<PropertyGroupRow> groups;
    for (const PropertyGroupRow& row : Kept(&VocabularyTables::PropertyGroups).Rows())
        if (row.Offered.IsIn(context)) groups.push_back(row);
    return groups;
}

std::vector<PropertyRow> PropertiesOfGroup(std::string_view group, std::string_view context) {
    std::vector<PropertyRow> properties;
    for (const PropertyRow* row :
         Kept(&VocabularyTables::Properties).With(&PropertyRow::GROUP, group))
        if (PropertyOffered(*row, context)) properties.push_back(*row);
    return properties;
}

std::string PropertyCode(std::string_view name) {
    const PropertyRow* row = FindPropertyByName(name);
    return row ? row->Code : std::string();
}

std::string PropertyName(std::string_view code, std::string_view context,
                         std::string_view propertyContext) {
    const PropertyRow* row = FindProperty(code, context, propertyContext);
    return row ? row->Property : std::string();
}

bool PropertyValid(std::string_view code) {
    return std::ranges::any_of(Kept(&VocabularyTables::Properties).With(&PropertyRow::Code, code),
                               [](const PropertyRow* row) { return OpenForPure(*row); });
}

std::string DefaultUnit(std::string_view name) {
    if (const PropertyRow* property = FindPropertyByName(name)) return property->Unit;
    const VariableRow* variable = FindVariableByName(name);
    return variable ? variable->Unit : std::string();
}

std::string UnitOfProperty(std::string_view code, std::string_view context) {
    const PropertyRow* row = FindProperty(code, context);
    return row ? row->Unit : std::string();
}

std::string UnitOfVariable(std::string_view code) {
    const VariableRow* row = FindVariable(code);
    return row ? row->Unit : std::string();
}

std::string PureAvailable(std::string_view code, std::string_view mode) {
    return TextWhere(code, mode, PureModes, &PropertyRow::PureAvail);
}

std::string MixtureAvailable(std::string_view code, std::string_view mode) {
    return TextWhere(code, mode, MixtureModes, &PropertyRow::MixtAvail);
}

// Most properties are reported at a temperature.
std::string IndVarFixed(std::string_view code) {
    std::string variable = TextWhere(code, "Fixed", PureModes, &PropertyRow::IndVarFixed);
    if (variable.empty()) variable = TextWhere(code, "One", PureModes, &PropertyRow::IndVarFixed);
    return variable.empty() ? "T" : variable;
}

std::optional<std::string> PureLetter(std::string_view propertyClass, bool onBoundary,
                                      std::string_view phase1) {
    const bool fluid = phase1 == "L" || phase1 == "G" || phase1 == "FL";
    const std::string_view c = propertyClass;
    if (c == "NN" || c == "FF" || c == "GG") return LetterByPhase(c, phase1);
    if (c == "DD") return onBoundary ? (fluid ? "V" : "v") : LetterByPhase(c, phase1);
    if (c == "HH") return onBoundary ? (fluid ? "l" : "") : LetterByPhase(c, phase1);
    if (c == "AA" || c == "YY" || c == "PP") return phase1 == "G" ? "P" : fluid ? "S" : "s";
    if (c == "EE" || c == "II" || c == "WW" || c == "ZZ" || c == "XX") return "";
    return std::nullopt;
}

std::vector<MethodRow> MethodsOf(std::string_view propertyCode) {
    std::vector<MethodRow> methods;
    for (const MethodOfProperty* row :
         Kept(&VocabularyTables::Methods).With(&MethodOfProperty::Code, propertyCode))
        methods.push_back(*row);
    return methods;
}

std::string MethodCode(std::string_view name, std::string_view propertyCode) {
    for (const MethodOfProperty* row :
         Kept(&VocabularyTables::Methods).With(&MethodOfProperty::Code, propertyCode))
        if (EqualNoCase(row->Method, name)) return row->MethodCode;
    return {};
}

std::vector<QuestionRow> Questions(std::string_view method, std::string_view context) {
    std::vector<QuestionRow> questions;
    for (const QuestionOfMethod* row :
         Kept(&VocabularyTables::Questions).With(&QuestionOfMethod::Method, method))
        if (EqualNoCase(row->Context, context)) questions.push_back(*row);
    return questions;
}

} // namespace vexora
