#include "records/clsS.h"

#include "records/clsL.h"
#include "records/clsR.h"
#include "support/DocumentFixture.h"

namespace vexora {
namespace {

using Samples = test::DocumentFixture;

TEST_F(Samples, PurityIsThatOfTheBestRatedMethod) {
    const std::pair<const char*, double> cases[] = {
        {"cm,99m%,gc;;", 99},
        {"cm;dist;99.5m%,gc,99.9w%,(by us)", 99.5},
        {"cm;dist;99.5m%,est,99.9w%,(by us)", 99.9},
        {"cm;;2h%,xy,98m%,gc", 98},
        {"cm;;98m%,gc,3h%,xy", 97},
        {"cm;;98m%,gc,1h%,xy", 98},
        {"cm;;98m%,gc,99x%,gc", 99},      // on equal rating the later one
        {"cm;;99m%,nosuch,98v%,sup", 98}, // an unknown method is the least trusted
        {"cm;;98v%,sup,99m%,nosuch", 98},
        {"cm;(99m% of it, twice);98.50w%,gc", 98.5},
        {"cm;;101m%,gc", 0},
        {"cm;;0m%,gc", 0},
        {"cm;;abcm%,gc", 0},
        {"cm;;100w%,gc", 100},
        {"cm;;99w%", 99},
        {"99m%,gc", 0},
        {"ns", 0},
        {"xx", 0}};
    for (const auto& [description, purity] : cases) {
        clsS sample;
        sample.Load(std::string("^S 1 ") + description);
        EXPECT_EQ(sample.Purity, purity) << description;
    }
}

TEST_F(Samples, DescriptionIsTheRestOfTheLine) {
    clsS sample;
    sample.Load("^S  2  cm;(two  words);99m%,gc ");
    EXPECT_EQ(sample.SMPNM, "2");
    EXPECT_EQ(sample.Key(), "Sample 2 (cm;(two  words);99m%,gc)");
}

TEST_F(Samples, NumbersOfDeletedSamplesAreNotGivenAgainWhileTaken) {
    auto source = std::make_shared<clsR>();
    auto compound = std::make_shared<clsL>();
    compound->AttachTo(*source);
    for (const char* number : {"1", "2", "3"}) {
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = number;
        sample->AttachTo(*compound);
    }
    EXPECT_EQ(compound->NextSampleNumber(), 4);
    compound->recS.Remove(compound->FindS(1).get());
    EXPECT_EQ(compound->NextSampleNumber(), 4);
    std::size_t index = 0;
    EXPECT_EQ(compound->FindS(3, &index)->SMPNM, "3");
    EXPECT_EQ(index, 2U);
    EXPECT_EQ(compound->FindS(1, &index), nullptr);
    EXPECT_EQ(index, 0U);
}

TEST_F(Samples, CheckDigitsAndFreshNumbers) {
    EXPECT_EQ(CheckDigit("773218"), '5');
    EXPECT_EQ(CheckDigit("99999999"), '4');
    EXPECT_EQ(CheckDigit(""), std::nullopt);
    EXPECT_EQ(CheckDigit("77 3"), std::nullopt);

    auto source = std::make_shared<clsR>();
    globals.recR.Add(source, "x");
    const auto add = [&](const char* rn) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->AttachTo(*source);
    };
    EXPECT_EQ(NewSubstanceRN(), "1003");
    add("1014");
    EXPECT_EQ(NewSubstanceRN(), "1003");
    add("1003");
    EXPECT_EQ(NewSubstanceRN(), "1014"); // one pass in list order
    source->recL.Clear();
    add("1003");
    add("1014");
    EXPECT_EQ(NewSubstanceRN(), "1025");
}

TEST_F(Samples, NumbersThatNameNoCompoundGiveNothing) {
    auto source = std::make_shared<clsR>();
    globals.CurrentR = source;
    for (const char* rn : {"", "999999994", "abc", "0"}) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->Name = "ghost";
        compound->Formula = "CH4";
        compound->AttachTo(*source);
        EXPECT_EQ(NameOfRN(rn), "") << rn;
        EXPECT_EQ(FormulaOfRN(rn), "") << rn;
        EXPECT_EQ(MolarMassOfRN(rn), 0) << rn;
    }
    EXPECT_EQ(NameOfRN("7732185"), "water");
    auto compound = std::make_shared<clsL>();
    compound->RN = "64175";
    compound->Formula = "C2H6O";
    compound->AttachTo(*source);
    EXPECT_NEAR(MolarMassOfRN("64175"), 46.069, 1e-9);
    compound->MMass = 50;
    EXPECT_EQ(MolarMassOfRN("64175", source.get()), 50);
}

} // namespace
} // namespace vexora
