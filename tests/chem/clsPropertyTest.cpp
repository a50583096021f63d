#include "chem/clsProperty.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "chem/PropertyLimits.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {
namespace {

std::vector<std::string> Cells(const std::string& line) {
    std::vector<std::string> cells(1);
    for (const char c : line) {
        if (c == '\t')
            cells.emplace_back();
        else
            cells.back() += c;
    }
    return cells;
}

clsProperty ItemOf(const std::vector<std::string>& cells) {
    clsProperty item;
    item.PropertyCode = cells[0];
    item.ConversionCode = cells[1];
    item.Text = cells[2];
    item.DS = cells[3];
    item.DSLevel = Val(cells[4]);
    item.Rep = cells[5];
    item.replevel = cells[6] == "1" ? 1 : 0;
    item.nRep = cells[7];
    item.Unc = cells[8];
    item.unclevel = Val(cells[9]);
    item.CD = cells[10];
    item.PrecisionText = cells[11];
    item.Relation = "A";
    return item;
}

TEST(Property, UncertaintiesAreMergedAsWorkedOutByHand) {
    std::ifstream file(std::string(VEXORA_SOURCE_DIR) + "/tests/chem/uncertainties.tsv");
    int cases = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') continue;
        const std::vector<std::string> cells = Cells(line);
        ASSERT_EQ(cells.size(), 15U) << line;
        clsProperty item = ItemOf(cells);
        EXPECT_EQ(EvaluateUncertainty(item, 0), "") << line;
        EXPECT_NEAR(item.PRECISION, Val(cells[12]), 1e-9 * item.PRECISION) << line;
        EXPECT_NEAR(item.SystemPrecision, Val(cells[13]), 1e-9 * (1 + item.SystemPrecision))
            << line;
        ++cases;
    }
    EXPECT_GT(cases, 35);
}

TEST(Property, MassBasedUnitUsesTheMolarMassAndNotAFactor) {
    clsProperty item;
    item.PropertyCode = "HVP";
    item.ConversionCode = "Z";
    item.Text = "100";
    item.Relation = "A";
    EXPECT_EQ(EvaluateUncertainty(item, 78.11), "");
    EXPECT_DOUBLE_EQ(item.SystemValue, 7.811);
}

TEST(Property, ADifferenceIsNotTestedAndLosesTheOffset) {
    clsProperty item;
    item.PropertyCode = "T";
    item.ConversionCode = "C";
    item.Text = "-500";
    item.Relation = "D";
    EXPECT_EQ(EvaluateUncertainty(item, 0), "");
    EXPECT_DOUBLE_EQ(item.SystemValue, -500);
}

TEST(Property, DefaultsOfTheSetFillWhatTheRowLeavesOpen) {
    clsProperty item;
    item.PropertyCode = "CP";
    item.ConversionCode = "S";
    item.Text = "100";
    item.Relation = "A";
    item.masterrep = "0.1";
    item.masternrep = 5;
    item.masterds = "9";
    item.DS = "0";
    EXPECT_EQ(EvaluateUncertainty(item, 0), "");
    EXPECT_NEAR(item.PRECISION, 0.2015048373, 1e-12);
}

TEST(Property, LimitsRefuseAndQuestionAtTheirBounds) {
    struct Case {
        const char* code;
        double value;
        bool valid, plausible;
    };
    const Case cases[] = {
        {"RID", 1, false, true},     {"RID", 1.333, true, true},  {"RID", 2, true, false},
        {"VDN", 0, false, false},    {"VDN", 5000, true, true},   {"VDN", 5001, true, false},
        {"RSS", 1500, true, true},   {"RSS", 9, true, false},     {"PA", -1, true, true},
        {"PA", -2, false, true},     {"TA", -1, true, true},      {"TC", 647.096, true, true},
        {"TC", 189, true, false},    {"PC", 22064, true, false},  {"G/T", 0.1, false, true},
        {"X2", 1, true, true},       {"X2", 1.0001, false, true}, {"XU3", -0.1, false, true},
        {"X7", 7, true, true},       {"M1", 20, true, false},     {"CP", -75, false, true},
        {"HEX", -10.5, true, false}, {"V2S", 1.5, false, true},   {"VDC", 322, true, true},
        {"WL2", 1.2, false, true},   {"WL", 5893, true, true},    {"TG", -1, false, false},
        {"NMC", -1, false, true},    {"GEX", 11, true, false},    {"XI4", 1.1, false, true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(IsValidValue(c.code, c.value), c.valid) << c.code << " " << c.value;
        EXPECT_EQ(IsPlausibleValue(c.code, c.value), c.plausible) << c.code << " " << c.value;
    }
}

clsProperty Absolute(const std::string& code, const std::string& text) {
    clsProperty item;
    item.PropertyCode = item.Name = code;
    item.ConversionCode = "S";
    item.Relation = "A";
    item.Text = text;
    return item;
}

TEST(Property, DoubtsComeInTheOrderOfTheChainUntilOneIsRefused) {
    std::string told;
    bool answer = true;
    const auto confirm = [&](const ValueDoubt& doubt) {
        told += doubt.item + " " + NumberText(doubt.value) + (doubt.isQuestion ? "? " : "! ") +
                doubt.text + "\n";
        return answer;
    };
    const auto evaluate = [&] {
        told.clear();
        clsProperty head = Absolute("VDN", "5001");
        head.isLast = false;
        head.NextItem = std::make_shared<clsProperty>(Absolute("RID", "0.5"));
        return EvaluateUncertainty(head, 0, confirm);
    };
    const std::string ofHead = "VDN VDN 5001? Value 5001 VDN is suspicious\nIs that all right?\n";
    EXPECT_EQ(evaluate(), "Error"); // no answer makes a value that cannot be true stand
    EXPECT_EQ(told, ofHead + "RID RID 0.5! Value 0.5 RID is not valid\n");
    answer = false;
    EXPECT_EQ(evaluate(), "Error");
    EXPECT_EQ(told, ofHead);

    clsProperty head = Absolute("VDN", "5001");
    EXPECT_EQ(EvaluateUncertainty(head, 0), "Error"); // nobody is there to say that it may stand
    head.Relation.clear();
    told.clear();
    EXPECT_EQ(EvaluateUncertainty(head, 0, confirm), "");
    EXPECT_EQ(told, "VDN VDN 5001! No relation\n");
}

TEST(Property, CopyTakesTheWholeChainAndSharesNothing) {
    clsProperty head;
    head.Text = "1";
    head.isLast = false;
    head.NextItem = std::make_shared<clsProperty>();
    head.NextItem->Text = "2";
    clsProperty copy;
    copy.Copy(head);
    head.NextItem->Text = "3";
    ASSERT_TRUE(copy.NextItem);
    EXPECT_EQ(copy.NextItem->Text, "2");
    EXPECT_FALSE(copy.isLast);
    EXPECT_TRUE(copy.NextItem->isLast);
}

} // namespace
} // namespace vexora
