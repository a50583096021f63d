#include <algorithm>
#include <array>
#include <cmath>

#include "chem/TableChecks.h"
#include "chem/UnitMeasure.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

// Stored data stand in these; a unit that changes here would change the meaning of stored data.
constexpr std::array<std::string_view, 34> Units{
    {"1",       "K",        "kPa",     "1/K",         "1/kPa",      "kg/m3",     "m3/kg",
     "m3/mol",  "mol/m3",   "m6/mol2", "kJ/mol",      "J/K/mol",    "J/K/kg",    "J/K/m3",
     "Pa*s",    "1/(Pa*s)", "m2/s",    "W/m/K",       "N/m",        "m/s",       "mol/kg",
     "mol/dm3", "V",        "A",       "MHz",         "kPa*kg/mol", "kJ/kg",     "K/kPa",
     "kPa/K",   "S/m",      "kg/dm3",  "kPa*dm3/mol", "S*m2/mol",   "m3/kPa/mol"}};

// Codes that differ by case only: each letter of these units has its own meaning.
constexpr std::string_view CasePairs = "AKVUZWXY";

// Compositions without the number of their component, as files have them.
constexpr std::string_view CompositionLetters = "MNJOQBE";

// Names of the schema (ThermoML, VariableType and ConstraintType).
constexpr std::array<std::string_view, 5> VariableGroups{{"eTemperature", "ePressure",
                                                          "eComponentComposition",
                                                          "eSolventComposition", "eMiscellaneous"}};

/// What must stand once among the codes. A number is its own factor and may serve several units.
std::string CodeIdentity(const std::string& code, const std::string& unit) {
    if (IsNumeric(code)) return code + " to " + unit;
    const bool hasTwin = code.size() == 1 && CasePairs.find(UpperAscii(code)) != CasePairs.npos;
    return hasTwin ? code : LowerAscii(code);
}

/// Of component 3 there is something to say in ternary mixtures only.
bool IsOfThirdComponent(std::string_view code) {
    return code.size() > 1 && (code.ends_with('3') || code.ends_with("3S"));
}

void CheckFactor(TableRows& row, const std::string& code) {
    const double factor = row.Number("FACTOR");
    const std::vector<std::string_view> builtIn = BuiltInConversions();
    const bool known = std::ranges::find(builtIn, code) != builtIn.end();
    const double constant = known || IsNumeric(code) ? ConversionFactor(code) : factor;
    row.Expect(factor > 0, "FACTOR is not above 0");
    const double difference = factor > constant ? factor - constant : constant - factor;
    // The last digits of a double may differ between the text and the constant, the figure may not.
    row.Expect(difference <= 1e-12 * constant,
               "FACTOR " + NumberText(factor) + " differs from the constant " +
                   NumberText(constant) + " of the code " + Quoted(code));
}

/// The factor against what the parts of the unit text make of it.
void CompareFactor(TableRows& row, const std::string& code) {
    // Constants were rounded when data were entered with them; inches of mercury are furthest off.
    constexpr double ofBuiltIn = 2e-4;
    constexpr double ofRows = 1e-6;
    const std::vector<std::string_view> builtIn = BuiltInConversions();
    const bool known = std::ranges::find(builtIn, code) != builtIn.end();
    const std::string text = row.Text("Conversion");
    const std::string unit = row.Text("Unit");
    const double factor = row.Number("FACTOR");
    if (factor <= 0) return;
    // "*8.31451" says how many of the system unit.
    const auto expected =
        FactorBetween(text.starts_with('*') ? unit + text : text, unit, IsMassBased(code));
    if (!expected)
        row.Tell("the unit text " + Quoted(text) + " cannot be read");
    else if (*expected == 0)
        row.Tell(Quoted(text) + " has not the dimension of " + Quoted(unit));
    else
        row.Expect(std::abs(factor - *expected) <= (known ? ofBuiltIn : ofRows) * *expected,
                   "FACTOR " + NumberText(factor) + " is not that of " + Quoted(text) + ", " +
                       NumberText(*expected));
}

void CheckStateVariables(const Database& vocabulary, RowRemarks& findings) {
    for (const QuantityText& state : StateVariables) {
        // With exact case: rules find state variables by these texts.
        const Recordset rows =
            vocabulary.Query("select * from IndVariables where IndVarCode=? collate binary"
                             " and IndVariable=? collate binary and Unit=? collate binary"
                             " and Pure<>0",
                             {state.code, state.text, state.unit});
        if (rows.IsEnd())
            findings.push_back({"IndVariables", 0,
                                "the state variable " + Quoted(state.code) + " " +
                                    Quoted(state.text) + " in " + std::string(state.unit) +
                                    " is missing",
                                false});
    }
}

/// "Liquid ..." begins with L, "Crystal ..." with C, and only the gas with G: records and rules
/// know the kind of a phase by that letter.
void CheckKindOfPhase(TableRows& row, const std::string& code) {
    const std::string name = row.Text("Phase");
    row.Expect(!name.starts_with("Liquid") || IsLiquidPhase(code) || IsCriticalCurve(code),
               "the code of a liquid begins with L");
    row.Expect(!name.starts_with("Crystal") || IsCrystalPhase(code),
               "the code of a crystal begins with C");
    row.Expect(!code.starts_with('G') || code == "G", "only the gas begins with G");
    row.Expect(CodePointCount(code) <= 3, "a phase code has at most three letters");
    // In a slot of a mixture these letters are compositions: molality, molarity and the ratios.
    row.Expect(code.size() != 1 || CompositionLetters.find(code) == CompositionLetters.npos,
               "the phase code " + Quoted(code) + " is that of a composition");
    row.Expect(code != "S" && code != "S1" && code != "S2",
               "the solution " + Quoted(code) + " is known without a row");
}

} // namespace

bool IsUnitOfTables(std::string_view unit) {
    return std::ranges::find(Units, unit) != Units.end();
}

void CheckUnitAndExportName(TableRows& row) {
    const std::string unit = row.Required("Unit");
    row.Expect(unit.empty() || IsUnitOfTables(unit), Quoted(unit) + " is no system unit");
    const std::string name = row.Required("XMLNAME");
    if (name.empty() || unit.empty() || unit == "1") return;
    const std::string exported = unit == "A" ? "nm" : unit; // wavelengths go out in nanometres
    row.Expect(name.ends_with(", " + exported),
               "XMLNAME " + Quoted(name) + " does not end with \", " + exported + '"');
}

void CheckCode(TableRows& row, const std::string& code) {
    row.Expect(code.find_first_of(" :&_\"") == code.npos,
               "the code " + Quoted(code) + " holds a blank or one of : & _ \"");
    row.Expect(!row.Flag("Bin") || !IsOfThirdComponent(code),
               Quoted(code) + " speaks of component 3 but is offered for binary mixtures");
}

void CheckListRow(TableRows& row, std::string_view codeField, std::string_view textField) {
    const std::string code = row.Required(codeField);
    CheckCode(row, code);
    row.ExpectOnce("the code", LowerAscii(code));
    row.ExpectOnce("the text", LowerAscii(row.Required(textField)));
}

void CheckVariables(const Database& vocabulary, RowRemarks& findings) {
    CheckStateVariables(vocabulary, findings);
    for (TableRows row(vocabulary, "IndVariables", findings); !row.IsEnd(); row.MoveNext()) {
        CheckListRow(row, "IndVarCode", "IndVariable");
        CheckUnitAndExportName(row);
        const std::string group = row.Required("XMLGroup");
        row.Expect(std::ranges::find(VariableGroups, group) != VariableGroups.end(),
                   Quoted(group) + " is no group of variables");
        row.Expect(group != "eSolventComposition" || row.Flag("NeedSolvent"),
                   "a composition of the solvent needs NeedSolvent");
        // A pressure is the same quantity as property and as variable.
        const std::string unit = DefaultUnit(row.Text("IndVariable"));
        row.Expect(unit == row.Text("Unit"),
                   "the property of the same name is kept in " + Quoted(unit));
    }
}

void CheckConversions(const Database& vocabulary, RowRemarks& findings) {
    std::map<std::string, std::string> meanings; // system unit and factor of each code
    for (TableRows row(vocabulary, "Conversions", findings); !row.IsEnd(); row.MoveNext()) {
        const std::string code = row.Required("ConversionCode");
        const std::string text = row.Required("Conversion");
        const std::string unit = row.Required("Unit");
        const std::string meaning = unit + " " + row.Text("FACTOR");
        const auto [known, isNew] = meanings.emplace(code, meaning);
        // Files know the letter alone: it may have a second text where that says the same.
        const bool isSecondText = !isNew && IsUnitLetter(code) && known->second == meaning;
        if (!isSecondText) row.ExpectOnce("the code", CodeIdentity(code, unit));
        row.ExpectOnce("the unit text", unit + " from " + text);
        row.Expect(IsUnitOfTables(unit), Quoted(unit) + " is no system unit");
        row.Expect(text != unit, Quoted(text) + " is the system unit itself");
        row.Expect(text.find('\'') == text.npos, "a text with an apostrophe is never found");
        CheckFactor(row, code);
        CompareFactor(row, code);
    }
    const std::vector<std::string> codes = ColumnTexts(vocabulary, "Conversions", "ConversionCode");
    for (const std::string_view code : BuiltInConversions())
        if (!Contains(codes, code))
            findings.push_back(
                {"Conversions", 0, "the code " + Quoted(code) + " has no row", false});
}

void CheckPhases(const Database& vocabulary, RowRemarks& findings) {
    for (TableRows row(vocabulary, "Phases", findings); !row.IsEnd(); row.MoveNext()) {
        CheckListRow(row, "Code", "Phase");
        CheckKindOfPhase(row, row.Text("Code"));
        const bool offered = row.Flag("Pure") || row.Flag("Bin") || row.Flag("Tern") ||
                             row.Flag("React") || row.Flag("GH");
        row.Expect(offered, "the phase is offered nowhere");
    }
}

} // namespace vexora
