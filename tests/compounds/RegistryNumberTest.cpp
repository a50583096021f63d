#include "compounds/RegistryNumber.h"

#include "chem/clsAtom.h"
#include "compounds/SubstanceSearch.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "support/DocumentFixture.h"

namespace vexora {

namespace {

std::string FindingText(const RegistryParts& parts) {
    const auto finding = CheckRegistryNumber(parts);
    if (!finding) return "sound";
    return finding->Text + " " + std::to_string(finding->Part) + " " +
           std::to_string(finding->Start) + "+" + std::to_string(finding->Length);
}

} // namespace

TEST(RegistryNumber, ChecksThePartsInOrder) {
    const std::pair<RegistryParts, const char*> cases[] = {
        {{"", "", ""}, "sound"},
        {{"7732", "18", "5"}, "sound"},
        {{"77x2", "1", ""}, "Enter numeric RN 0 2+1"},
        {{"7 32", "18", ""}, "Enter numeric RN 0 1+1"},
        {{"7\xC3\xA4\xC3\xB6", "18", ""}, "Enter numeric RN 0 1+1"},
        {{"7732", "1", ""}, "Enter numeric RN 1 0+0"},
        {{"7732", "", ""}, "Enter numeric RN 1 0+0"},
        {{"7732", "184", ""}, "Enter numeric RN 1 0+0"},
        {{"7732", "1x", ""}, "Enter numeric RN 1 1+1"},
        {{"", "18", ""}, "Enter numeric RN 0 0+0"},
        {{"", "", "5"}, "Enter numeric RN 1 0+0"},
        {{"0732", "18", "5"}, "RN cannot start with 0 0 0+1"}};
    for (const auto& [parts, finding] : cases)
        EXPECT_EQ(FindingText(parts), finding) << parts.Front << "-" << parts.Middle;
}

TEST(RegistryNumber, OnlyAWholePrintedNumberIsTakenApart) {
    for (const char* text : {"7732-18-5", " 50-00-0\n", "1234567-89-0", "7732\u201118\u20135"}) {
        const auto parts = PrintedRegistryNumber(text);
        ASSERT_TRUE(parts) << text;
        EXPECT_EQ(parts->Middle.size() * 10 + parts->Check.size(), 21U) << text;
    }
    for (const char* text : {"", "7732", "7732-18", "7732-18-", "7732-18-55", "77x2-18-5",
                             "7732--18-5", "7-32-18-5", "12345678-90-1", "-18-5", "7732 18 5"})
        EXPECT_FALSE(PrintedRegistryNumber(text)) << text;
}

TEST(RegistryNumber, CheckDigitFollowsTheFirstTwoParts) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"7732", "18", "5"}, {"64", "17", "5"},   {"7789", "20", "0"},
        {"1", "00", "3"},    {"7732", "1", ""},   {"77 2", "18", ""},
        {"7732", "1x", ""},  {"7732", "18 ", ""}, {"77.2", "18", ""}};
    for (const auto& [front, middle, digit] : cases)
        EXPECT_EQ(CheckDigitText(front, middle), digit) << front << "-" << middle;
}

TEST(RegistryNumber, SplitsAndJoins) {
    EXPECT_EQ(DashedRegistryNumber("7732185"), "7732-18-5");
    EXPECT_EQ(DashedRegistryNumber("1003"), "1-00-3");
    EXPECT_EQ((RegistryParts{"7732", "18", ""}.Joined()), "7732185");
    EXPECT_EQ((RegistryParts{"7732", "18", "x"}.Joined()), "7732185");
    EXPECT_EQ((RegistryParts{"7732", "18", "6"}.Joined()), "7732186");
    EXPECT_TRUE(SplitRegistryNumber("").IsEmpty());
}

using SubstanceSearchTest = test::DocumentFixture;

TEST_F(SubstanceSearchTest, ATakenNumberIsRaisedUntilFree) {
    auto source = std::make_shared<clsR>();
    for (const char* rn : {"1014", "1003", "1025"}) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->AttachTo(*source);
    }
    EXPECT_EQ(FreeSubstanceRN(*source, "1014"), "1036");
    EXPECT_EQ(FreeSubstanceRN(*source, "2006"), "2006");
}

TEST_F(SubstanceSearchTest, NamePatternsHoldNoListsAndNoRunsOfStars) {
    EXPECT_EQ(NamePattern("bicyclo[2.2.1]hept*"), "bicyclo*2.2.1]hept*");
    EXPECT_EQ(NamePattern("*[%*x"), "*x");
    EXPECT_EQ(NamePattern("[*%"), "");
    EXPECT_EQ(NamePattern("water"), "water");
}

TEST_F(SubstanceSearchTest, FindsByNameFormulaOrBoth) {
    ASSERT_EQ(FindCompounds("WATER", "").size(), 1U);
    EXPECT_EQ(FindCompounds("WATER", "").front().RN, 7732185);
    EXPECT_EQ(FindCompounds("heavy%", "D2O").size(), 1U);
    EXPECT_TRUE(FindCompounds("water", "h2o").empty());
    EXPECT_TRUE(FindCompounds("no \"such\" name", "").empty());
    EXPECT_TRUE(FindCompounds("", "").empty());
    EXPECT_EQ(CompoundsNamed("Water").size(), 1U);
}

TEST_F(SubstanceSearchTest, EveryFormulaOfTheDatabaseIsInCanonicalOrder) {
    auto rows = globals.CompoundDb().Query("select * from ALLNAME order by rowid");
    for (; !rows.IsEnd(); rows.MoveNext())
        EXPECT_EQ(CanonicalFormula(rows.Text("FORMULA")), rows.Text("FORMULA"))
            << rows.Text("NAME");
}

} // namespace vexora
