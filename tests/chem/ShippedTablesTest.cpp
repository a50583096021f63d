#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

#include "chem/TableRows.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/ReferenceDatabases.h"
#include "reference/TableText.h"
#include "reference/Text.h"
#include "reference/UnitText.h"
#include "reference/Vocabulary.h"

namespace vexora::test {
namespace {

class ShippedTables : public testing::Test {
protected:
    ShippedTables() {
        const std::string share = VEXORA_SHARE_DIR;
        const auto fault = databases.OpenBoth(share + "/VXRLocal.mdb", share + "/VXR.mdb");
        EXPECT_EQ(fault.value_or(""), "");
        UseDatabases(&databases);
    }
    ~ShippedTables() override { UseDatabases(nullptr); }

    template <class Step>
    void EachRow(const char* table, Step step) {
        RowRemarks none;
        const bool isOfCompounds = std::string_view(table) == "ALLNAME";
        TableRows row(isOfCompounds ? databases.CompoundDb : databases.LocalDb, table, none);
        EXPECT_TRUE(none.empty()) << table;
        for (; !row.IsEnd(); row.MoveNext())
            step(row);
    }
    ReferenceDatabases databases;
};

TEST_F(ShippedTables, CodesLeadToTextsAndBackInEveryRow) {
    EachRow("Phases", [](const TableRows& row) {
        EXPECT_EQ(PhaseName(row.Text("Code")), row.Text("Phase"));
        EXPECT_EQ(PhaseCode(row.Text("Phase")), row.Text("Code"));
        EXPECT_TRUE(PhaseValid(row.Text("Code")));
    });
    EachRow("IndVariables", [](const TableRows& row) {
        const std::string code = row.Text("IndVarCode");
        EXPECT_EQ(VariableName(code), row.Text("IndVariable"));
        EXPECT_EQ(VariableCode(row.Text("IndVariable")), code);
        EXPECT_EQ(VariableValid(code), row.Flag("Pure"));
        EXPECT_EQ(XMLVariableGroup(code), row.Text("XMLGroup"));
        EXPECT_EQ(DefaultUnit(row.Text("IndVariable")), row.Text("Unit"));
    });
    EachRow("Reactions", [](const TableRows& row) {
        EXPECT_EQ(ReactionType(row.Text("RCode")), row.Text("RType"));
        EXPECT_EQ(ReactionCode(row.Text("RType")), row.Text("RCode"));
    });
    EachRow("Purification", [](const TableRows& row) {
        EXPECT_EQ(PurificationName(row.Text("Code")), row.Text("Method"));
        EXPECT_EQ(PurificationCode(row.Text("Method")), row.Text("Code"));
    });
    EachRow("PurityDetermination", [](const TableRows& row) {
        EXPECT_EQ(DeterminationName(row.Text("Code")), row.Text("Method"));
        EXPECT_EQ(DeterminationCode(row.Text("Method")), row.Text("Code"));
        EXPECT_EQ(PurityRating(row.Text("Code")), row.Integer("Rating"));
    });
}

TEST_F(ShippedTables, PropertiesAndTheirMethodsLeadBothWaysInEveryRow) {
    EachRow("Properties", [](const TableRows& row) {
        const std::string code = row.Text("Code");
        const bool isForMixtures = row.Flag("MixZ") || row.Flag("MixV");
        const bool isForPure = !row.Text("PureAvail").empty();
        const std::string context = isForPure ? "Pure" : isForMixtures ? "Tern" : "";
        EXPECT_EQ(PropertyName(code, context, row.Text("CONTEXT")), row.Text("Property"));
        EXPECT_EQ(PropertyCode(row.Text("Property")), code);
        EXPECT_EQ(DefaultUnit(row.Text("Property")), row.Text("Unit"));
        EXPECT_EQ(PropertyValid(code), isForPure || code == "P" || code == "T") << code;
        EXPECT_TRUE(IsXmlName(XMLPropertyGroup(code, context, row.Text("CONTEXT")))) << code;
    });
    EachRow("Methods", [](const TableRows& row) {
        const std::string property = row.Text("Code");
        EXPECT_EQ(XMLMethod(row.Text("MethodCode"), property), row.Text("Method"));
        EXPECT_EQ(MethodCode(row.Text("Method"), property), row.Text("MethodCode"));
    });
}

TEST_F(ShippedTables, UnitsLeadBothWaysAndValuesComeBackFromThemInEveryRow) {
    EachRow("Conversions", [](const TableRows& row) {
        std::string code = row.Text("ConversionCode");
        const std::string unit = row.Text("Unit");
        const bool isShown = row.Text("Conversion") != "kJ/kg"; // as J/g
        EXPECT_EQ(ConversionText(code, unit), isShown ? row.Text("Conversion") : "J/g");
        EXPECT_EQ(ConversionCodeOf(row.Text("Conversion"), unit), code);
        EXPECT_TRUE(Contains(UnitList(unit, "X1"), row.Text("Conversion"))) << code;
        const double system = ToSystem(code, 7.25, 0, 18.015);
        EXPECT_NEAR(FromSystem(code, system, 0, 18.015), 7.25, 1e-11) << code;
        EXPECT_NE(system, 0) << code;
    });
}

/// A fraction or a ratio to a solvent by its name, and no equilibrium constant in terms of one.
bool NamesContent(const std::string& name) {
    const std::string lower = LowerAscii(name);
    return lower.find("constant") == lower.npos &&
           (lower.ends_with("fraction") || lower.find("ratio of solute") != lower.npos ||
            lower.find("ratio of component") != lower.npos);
}

TEST_F(ShippedTables, PerCentIsAUnitOfFractionsAndRatiosOnly) {
    const std::vector<std::string> contents{"Dimensionless", "per cent", "ppm", "mmol/mol"};
    const std::vector<std::string> others{"Dimensionless"};
    const auto check = [&](const TableRows& row, const char* column) {
        if (row.Text("Unit") != "1") return;
        const std::string code = row.Text(column);
        const bool isContent = NamesContent(row.Text("XMLNAME"));
        EXPECT_EQ(UnitList("1", code), isContent ? contents : others) << code;
    };
    EachRow("Properties", [&](const TableRows& row) { check(row, "Code"); });
    EachRow("IndVariables", [&](const TableRows& row) { check(row, "IndVarCode"); });
    EXPECT_EQ(UnitText("1", ConversionCodeOf("ppm", "1"), 0), "ppm");
    EXPECT_EQ(ToSystem(ConversionCodeOf("per cent", "1"), 12.5, 0, 0), 0.125);
}

TEST_F(ShippedTables, EquilibriaOfAMixtureHaveNamesOfTheirOwn) {
    const std::string boiling = "Boiling temperature at pressure P, K";
    const std::string transition = "Phase transition temperature, K";
    const std::string vapor = "Vapor or sublimation pressure, kPa";
    for (const char* context : {"Bin", "Tern"}) {
        EXPECT_EQ(XMLPropertyName("T", context, "vle"), boiling);
        EXPECT_EQ(XMLPropertyName("T", context, "sse"), transition);
        EXPECT_EQ(XMLPropertyName("T", context, "sub"), transition);
        EXPECT_EQ(XMLPropertyName("P", context, "sub"), vapor);
        EXPECT_EQ(XMLPropertyGroup("P", context, "sse"), "PhaseTransition");
    }
}

/// A code or a text that is given must be known, and a pair must belong together.
bool Fits(const std::string& code, const std::string& text, const std::string& textOfCode,
          const std::string& codeOfText) {
    if (!code.empty() && !text.empty()) return textOfCode == text && codeOfText == code;
    return code.empty() ? !codeOfText.empty() : !textOfCode.empty();
}

bool AnyTitleHolds(const std::vector<std::string>& titles, const std::string& part) {
    return std::ranges::any_of(
        titles, [&](const std::string& title) { return title.find(part) != title.npos; });
}

bool IsNameOf(const std::string& rn, const std::string& name) {
    const auto rows = CompoundsOf(ParseInteger(rn).value_or(0));
    return std::ranges::any_of(rows, [&](const CompoundRow& row) { return row.NAME == name; });
}

/// What rules, dialogs and files speak of by its code or name.
TEST_F(ShippedTables, NamesThatAreInUseAreThere) {
    using Text = const std::string&;
    const auto column = [this](const char* table, const char* name) {
        return ColumnTexts(databases.LocalDb, table, name);
    };
    const std::map<std::string, std::function<bool(Text, Text)>> isKnown = {
        {"property", [](Text c, Text t) { return Fits(c, t, PropertyName(c), PropertyCode(t)); }},
        {"variable", [](Text c, Text t) { return Fits(c, t, VariableName(c), VariableCode(t)); }},
        {"phase", [](Text c, Text t) { return Fits(c, t, PhaseName(c), PhaseCode(t)); }},
        {"reaction", [](Text c, Text t) { return Fits(c, t, ReactionType(c), ReactionCode(t)); }},
        {"purification",
         [](Text c, Text t) { return Fits(c, t, PurificationName(c), PurificationCode(t)); }},
        {"determination",
         [](Text c, Text t) { return Fits(c, t, DeterminationName(c), DeterminationCode(t)); }},
        {"conversion",
         [](Text c, Text t) {
             std::string code = c;
             return Fits(c, t, ConversionText(code, ""), ConversionCodeOf(t));
         }},
        {"unit", [](Text unit, Text) { return UnitList(unit).size() > 1; }},
        {"unit list", [](Text unit, Text t) { return Contains(UnitList(unit), t); }},
        {"group", [&](Text c, Text) { return Contains(column("PropertyGroups", "XMLGroup"), c); }},
        {"method", [](Text property, Text m) { return !XMLMethod(m, property).empty(); }},
        {"no method", [](Text property, Text m) { return XMLMethod(m, property).empty(); }},
        {"element", [](Text c, Text t) { return AtomicMass(c) == Val(t); }},
        {"factor", [](Text c, Text t) { return ConversionFactor(c) == Val(t); }},
        {"anymethod", [&](Text c, Text) { return Contains(column("Methods", "MethodCode"), c); }},
        {"journal", [&](Text, Text t) { return Contains(column("Journals", "ShortTitle"), t); }},
        {"journal part",
         [&](Text, Text t) { return AnyTitleHolds(column("Journals", "ShortTitle"), t); }},
        {"compound", IsNameOf}};
    TableReader names(std::string(VEXORA_SOURCE_DIR) + "/tests/chem/names_in_use.tsv");
    ASSERT_TRUE(names.IsOpen());
    names.NextRow();
    while (const auto row = names.NextRow())
        EXPECT_TRUE(isKnown.at(row->at(0))(row->at(1), row->at(2)))
            << row->at(0) << " " << row->at(1) << " " << row->at(2);
}

} // namespace
} // namespace vexora::test
