#include "reference/Conversions.h"

#include "reference/Numbers.h"
#include "reference/ReferenceFixture.h"
#include "reference/TableText.h"
#include "reference/UnitText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vexora {
namespace {

bool Near(double a, double b) {
    return std::fabs(a - b) <= 1e-12 * std::max(1.0, std::fabs(b));
}

TEST(Conversions, EveryKnownUnitLeadsToItsSystemUnitAndBack) {
    TableReader cases(std::string(VEXORA_SOURCE_DIR) + "/tests/reference/conversions.tsv");
    ASSERT_TRUE(cases.IsOpen());
    cases.NextRow();
    int count = 0;
    while (const auto row = cases.NextRow()) {
        const std::string& code = row->at(0);
        const double entered = Val(row->at(1));
        const double molarMass = Val(row->at(2));
        const double system = Val(row->at(3));
        EXPECT_PRED2(Near, ToSystem(code, entered, 0, molarMass), system) << code;
        EXPECT_PRED2(Near, FromSystem(code, system, 0, molarMass), entered) << code;
        EXPECT_EQ(IsMassBased(code), molarMass > 0) << code;
        ++count;
    }
    EXPECT_EQ(count, 58);
}

TEST(Conversions, AUserFactorReplacesTheCode) {
    EXPECT_EQ(ToSystem("C", 25, 2, 0), 50);
    EXPECT_EQ(FromSystem("C", 50, 2, 0), 25);
    EXPECT_EQ(ToSystem("xyz", 25, 2, 0), 50);
    EXPECT_EQ(FromSystem("Z", 50, 2, 0), 25);
    EXPECT_EQ(ToSystem("C", 25, -1, 0), 298.15);
}

TEST(Conversions, UnknownCodesAndMissingMolarMassesGiveZero) {
    EXPECT_EQ(ToSystem("xyz", 5, 0, 0), 0);
    EXPECT_EQ(FromSystem("xyz", 5, 0, 0), 0);
    EXPECT_EQ(FromSystem("0", 5, 0, 0), 0);
    EXPECT_EQ(ToSystem("Z", 5, 0, 0), 0);
    for (const char* code : {"Z", "G", "P", "B", "z", "Y", "N"}) {
        EXPECT_EQ(FromSystem(code, 5, 0, 0), 0) << code;
        EXPECT_EQ(FromSystem(code, 5, 0, -1), 0) << code;
    }
    EXPECT_EQ(FromSystem("M", 2.326, 0, 0), 1000);
}

TEST(Conversions, CodesAreSortedByHowRecordLinesTreatThem) {
    for (const char* code : {"C", "a", "S", "D"}) {
        EXPECT_TRUE(IsUnitLetter(code)) << code;
        EXPECT_FALSE(IsUnitLong(code)) << code;
    }
    for (const char* code : {"MegaPa", "0.001", "5", "J/mol"}) {
        EXPECT_FALSE(IsUnitLetter(code)) << code;
        EXPECT_TRUE(IsUnitLong(code)) << code;
    }
    for (const char* code : {"", "&", "*"}) {
        EXPECT_FALSE(IsUnitLetter(code)) << code;
        EXPECT_FALSE(IsUnitLong(code)) << code;
    }
}

class ConversionRows : public test::ReferenceFixture {
protected:
    void SetUp() override {
        folder.Write("Conversions.tsv", "ConversionCode\tConversion\tUnit\tFACTOR\tSOURCE_OF_ROW\n"
                                        "a\t1/atm\t1/kPa\t0.00986923\t-\n"
                                        "A\tatm\tkPa\t101.325\t-\n"
                                        "mPa\tmPa\tkPa\t0.000001\t-\n"
                                        "MegaPa\tMPa\tkPa\t1000\t-\n"
                                        "F\tF\tK\t0.5555555555555556\t-\n"
                                        "R\tdegR\tK\t0.5555555555555556\t-\n"
                                        "Z\tJ/g\tkJ/mol\t0.001\t-\n"
                                        "z\tJ/K/g\tJ/K/mol\t1\t-\n"
                                        "J/K/g\tJ/K/g\tJ/K/kg\t1000\t-\n"
                                        "zero\tzero\tkPa\t0\t-\n"
                                        "ft\tfoot's\tm\t0.3048\t-\n"
                                        "D\tDimensionless\t1\t1\t-\n");
        Build();
    }
    static std::string TextOf(std::string code, std::string_view unit = {}) {
        return ConversionText(code, unit);
    }
};

TEST_F(ConversionRows, CaseDecidesBetweenUnitsThatDifferByIt) {
    EXPECT_EQ(TextOf("a"), "1/atm");
    EXPECT_EQ(TextOf("A"), "atm");
    EXPECT_EQ(TextOf("A", "1/kPa"), "");
    EXPECT_EQ(TextOf("X"), "*8.31451");
    EXPECT_EQ(ConversionCodeOf("MPa"), "MegaPa");
    EXPECT_EQ(ConversionCodeOf("mPa"), "mPa");
    EXPECT_EQ(ConversionCodeOf("MPA"), "S");
    EXPECT_EQ(ConversionCodeOf("J/K/g", "J/K/kg"), "J/K/g");
    EXPECT_EQ(ConversionCodeOf("J/K/g", "J/K/mol"), "z");
    EXPECT_EQ(ConversionFactor("MEGAPA"), 0);
}

TEST_F(ConversionRows, TextsWithAnApostropheAreTheSystemUnit) {
    EXPECT_EQ(ConversionCodeOf("foot's"), "S");
    EXPECT_EQ(ConversionCodeOf("x' or '1'='1"), "S");
    EXPECT_EQ(ConversionCodeOf("x\" or 1=1 --"), "S");
    EXPECT_EQ(ConversionCodeOf("Dimensionless"), "D");
}

TEST_F(ConversionRows, RowsConvertButAZeroFactorNeverDivides) {
    EXPECT_EQ(ToSystem("J/K/g", 2, 0, 0), 2000);
    EXPECT_EQ(FromSystem("J/K/g", 2000, 0, 0), 2);
    EXPECT_EQ(FromSystem("zero", 5, 0, 0), 0);
    EXPECT_EQ(ConversionFactor("MegaPa"), 1000);
    EXPECT_EQ(ConversionFactor("bar"), 100);
    EXPECT_EQ(ConversionFactor("0.001"), 0.001);
    EXPECT_FALSE(IsKnownConversion("zero"));
    EXPECT_TRUE(IsKnownConversion("S"));
}

TEST_F(ConversionRows, AFactorNamesTheFirstListedUnitThatIsNothingElse) {
    const auto named = [](double factor, const char* unit) { return UnitText(unit, "S", factor); };
    EXPECT_EQ(named(1000, "kPa"), "MPa");
    EXPECT_EQ(UnitText("kPa", "1000", 0), "MPa");
    EXPECT_EQ(named(1000, "K"), "1000* K"); // of another quantity
    EXPECT_EQ(named(1 / 1.8, "K"), "degR");
    EXPECT_EQ(named(Val(NumberText(1 / 1.8)), "K"), "degR"); // as a record has it
    EXPECT_EQ(named(1, "J/K/mol"), "1* J/K/mol");
    EXPECT_EQ(named(0.001, "kJ/mol"), "0.001* kJ/mol"); // of a unit by mass, at 1 g/mol
    EXPECT_EQ(named(1000.0001, "kPa"), "1000.0001* kPa");
}

TEST_F(ConversionRows, UnitListsBeginWithTheSystemUnit) {
    using List = std::vector<std::string>;
    EXPECT_EQ(UnitList("kPa"), (List{"kPa", "atm", "mPa", "MPa", "zero"}));
    EXPECT_EQ(UnitList("KPA"), (List{"KPA"}));
    EXPECT_EQ(UnitList("1"), (List{"Dimensionless"}));
    EXPECT_EQ(FixedUnitList("kPa"), (List{"kPa"}));
}

TEST_F(ConversionRows, OldReactionCodesAreRenamedForTheNextCall) {
    std::string code = "Z 1";
    EXPECT_EQ(ConversionText(code, "", "Pure"), "");
    EXPECT_EQ(code, "Z 1");
    EXPECT_EQ(ConversionText(code, "", "React"), "");
    EXPECT_EQ(code, "S 1");
    code = "G 2";
    ConversionText(code, "kJ/mol", "React");
    EXPECT_EQ(code, "J 2");
}

} // namespace
} // namespace vexora
