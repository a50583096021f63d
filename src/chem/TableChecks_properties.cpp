#include <algorithm>
#include <array>

#include "chem/TableChecks.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr std::array<std::string_view, 13> Classes{
    {"NN", "FF", "GG", "DD", "HH", "AA", "YY", "PP", "EE", "II", "WW", "ZZ", "XX"}};

// Contexts of a property: the phases in pairs, as sets of mixtures tell them apart.
constexpr std::array<std::string_view, 5> Equilibria{{"vle", "lle", "sle", "sse", "sub"}};

bool IsForPure(const TableRows& row) {
    return row.Flag("Single") || row.Flag("Fixed") || row.Flag("One") || row.Flag("Two");
}

bool IsForMixture(const TableRows& row) {
    return row.Flag("MixZ") || row.Flag("MixV");
}

/// The first phase of pure compounds in which a class has no letter for the summary of a compound.
std::string PhaseWithoutLetter(std::string_view propertyClass) {
    for (const std::string& name : PhaseList("Pure"))
        for (const bool onBoundary : {false, true})
            if (PureLetter(propertyClass, onBoundary, PhaseCode(name)).value_or("").empty())
                return name;
    return {};
}

void CheckClasses(TableRows& row) {
    const std::string pure = row.Text("PureAvail");
    const std::string mixture = row.Text("MixtAvail");
    row.Expect(pure.empty() != IsForPure(row),
               "PureAvail must name a class just where pure data can be entered");
    row.Expect(mixture.empty() != IsForMixture(row),
               "MixtAvail must name a class just where mixture data can be entered");
    for (const std::string& name : {pure, mixture})
        row.Expect(name.empty() || std::ranges::find(Classes, name) != Classes.end(),
                   Quoted(name) + " is no class of properties");
    const std::string phase = pure.empty() ? "" : PhaseWithoutLetter(pure);
    row.Expect(phase.empty(),
               "the class " + Quoted(pure) + " has no letter in the phase " + Quoted(phase));
}

/// The contexts that a row is offered in; a group must be offered there too.
std::vector<std::string> ContextsOf(const TableRows& row) {
    std::vector<std::string> contexts;
    if (IsForPure(row)) contexts.emplace_back("Pure");
    if (IsForMixture(row) && row.Flag("Bin")) contexts.emplace_back("Bin");
    if (IsForMixture(row) && row.Flag("Tern")) contexts.emplace_back("Tern");
    if (row.Flag("REACT")) contexts.emplace_back("React");
    return contexts;
}

/// Files have some codes without the number of the component: such a row only names what is read.
bool IsShortForm(const std::string& code) {
    return FindProperty(code + "1") != nullptr;
}

void CheckOffer(TableRows& row) {
    const std::vector<std::string> contexts = ContextsOf(row);
    row.Expect(!contexts.empty() || IsShortForm(row.Text("Code")),
               "the property is offered nowhere");
    row.Expect(IsForMixture(row) || !(row.Flag("Bin") || row.Flag("Tern")),
               "offered for mixtures, but neither MixZ nor MixV is set");
    for (const std::string& context : contexts) {
        const auto groups = PropertyGroups(context);
        const bool found = std::ranges::any_of(
            groups, [&](const auto& group) { return group.GROUP == row.Text("GROUP"); });
        row.Expect(found, "the group " + Quoted(row.Text("GROUP")) + " is not offered for " +
                              context + ", the property is");
    }
}

/// The codes beginning with K lead to the dialog of equilibria.
void CheckEquilibriumCode(TableRows& row, const std::string& code) {
    if (!row.Flag("REACT")) return;
    const bool isEquilibrium = XMLPropertyGroup(code, "React") == "ReactionEquilibriumProp";
    row.Expect(code.starts_with('K') == isEquilibrium,
               "among reaction properties the equilibrium constants, and only they, begin with K");
}

void CheckContext(TableRows& row) {
    const std::string context = row.Text("CONTEXT");
    row.Expect(context.empty() || std::ranges::find(Equilibria, context) != Equilibria.end(),
               Quoted(context) + " is no kind of phase equilibrium");
    if (context != "lle" && context != "sle" && context != "sse") return;
    const std::string group = XMLPropertyGroup(row.Text("Code"), "Bin", context);
    row.Expect(group == "PhaseTransition", "the row for " + context + " is exported as " +
                                               Quoted(group) + ", not as a phase transition");
}

void CheckGroups(const Database& vocabulary, RowRemarks& findings) {
    const std::vector<std::string> used = ColumnTexts(vocabulary, "Properties", "GROUP");
    for (TableRows row(vocabulary, "PropertyGroups", findings); !row.IsEnd(); row.MoveNext()) {
        CheckListRow(row, "GROUP", "GroupName");
        const std::string name = row.Required("XMLGroup");
        row.Expect(IsXmlName(name), "XMLGroup " + Quoted(name) + " is no XML name");
        row.Expect(Contains(used, row.Text("GROUP")), "the group has no property");
    }
}

} // namespace

void CheckProperties(const Database& vocabulary, RowRemarks& findings) {
    CheckGroups(vocabulary, findings);
    const std::vector<std::string> units = ColumnTexts(vocabulary, "Conversions", "Unit");
    for (TableRows row(vocabulary, "Properties", findings); !row.IsEnd(); row.MoveNext()) {
        const std::string code = row.Required("Code");
        CheckCode(row, code);
        const std::string context = row.Text("CONTEXT");
        // A code may have rows of its own for solid-liquid, liquid-liquid and vapour-liquid
        // equilibria.
        row.ExpectOnce("the code", LowerAscii(context.empty() ? code : code + " " + context));
        row.ExpectOnce("the property", LowerAscii(row.Required("Property")));
        CheckUnitAndExportName(row);
        const std::string unit = row.Text("Unit");
        // A dimensionless quantity needs no conversion.
        row.Expect(unit == "1" || Contains(units, unit),
                   "no other unit than " + Quoted(unit) + " is offered");
        CheckOffer(row);
        CheckClasses(row);
        CheckContext(row);
        CheckEquilibriumCode(row, code);
        row.Expect(VariableValid(row.Text("IndVarFixed")),
                   "IndVarFixed " + Quoted(row.Text("IndVarFixed")) + " is no state variable");
        const auto methods = MethodsOf(code);
        // UNKNOWN and OTHER alone would be no choice.
        row.Expect(methods.size() >= 3,
                   "only " + std::to_string(methods.size()) + " methods are offered");
    }
}

} // namespace vexora
