#include "records/DocumentCheck.h"

#include "records/RoundTripFixture.h"
#include "reference/Text.h"

#include <fstream>
#include <utility>

namespace vexora::test {

class DocumentCheckTest : public RoundTripFixture {
protected:
    static std::string Shipped(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(VEXORA_SOURCE_DIR "/" + path, std::ios::binary).rdbuf();
        return text.str();
    }
    /// The findings, a line each; every one belongs to a record that stands in the tree.
    std::string Found(const std::string& document) {
        Read(document);
        std::string found;
        for (const DocumentFinding& finding : CheckDocument({0, lost, remarks})) {
            EXPECT_TRUE(finding.record && finding.record->tNode) << finding.text;
            found += std::to_string(finding.line) + " " +
                     std::string(SeverityWord(finding.severity)) + ": " + finding.text + "\n";
        }
        return found;
    }
    /// What is found in the rows of two sets of densities in one document, and in nothing else.
    std::string FoundIn(const std::string& sets) {
        std::string told;
        for (const std::string& line : Split(Found(kHead + sets), '\n'))
            if (line.find(": Density: ") != line.npos)
                told += line.substr(line.find(": Density: ") + 11) + "|";
        return told;
    }
};

TEST_F(DocumentCheckTest, FifteenSeededFaultsAreFifteenLines) {
    EXPECT_EQ(Found(Shipped("tests/records/fifteen_faults.txt")),
              "14 warning: sample 1 is described before, as cm;;\n"
              "41 warning: Compound Heavy Water stands twice: 7789200 and 1003\n"
              "2 warning: The source has no title\n"
              "2 hint: The journal is in no table: J. Nowhere\n"
              "2 hint: The citation names no volume\n"
              "2 hint: The citation names no pages\n"
              "2 warning: The source does not say where it was taken from: saving will ask for it\n"
              "5 warning: Compound benzene has no sample and will not be saved\n"
              "7 hint: Sample 1 (cm;;): no purity is stated\n"
              "23 warning: Density: row 2: this point stands in row 2 of set 1 too (and 1 more)\n"
              "9 hint: Critical temperature: no uncertainty is stated\n"
              "11 warning: Critical temperature: value 2000 is suspicious\n"
              "13 error: Unknown phase Q9\n"
              "30 warning: Density: no pressure is stated\n"
              "35 warning: Vapor or sublimation pressure: the data set has no rows\n");
}

TEST_F(DocumentCheckTest, TheExampleLacksUncertaintiesAndIsBeyondSomeSoftLimits) {
    EXPECT_EQ(Found(Shipped("examples/water/2002wagpru1.txt")),
              "9 hint: Critical temperature: no uncertainty is stated\n"
              "12 warning: Critical pressure: value 22064 is suspicious\n"
              "12 hint: Critical pressure: no uncertainty is stated\n"
              "15 hint: Critical density: no uncertainty is stated\n"
              "18 hint: Vapor or sublimation pressure: no uncertainty is stated\n"
              "18 warning: Vapor or sublimation pressure: row 3: value 16908.2693 is suspicious\n");
}

TEST_F(DocumentCheckTest, GapsOfACitationAreThoseOfItsKindOfDocument) {
    const std::string rest = "T##A##S#0####\n^I#1#wagner#w  #Wagner, W.\n";
    const std::pair<std::string, std::string> cases[] = {
        {"^J#J#O#@j.chem. thermodyn@ $7$(2), 1-2#" + rest, ""},
        {"^J#J#O#@J. Chem. Thermodyn.@ No. 2, 1-2#" + rest, "hint: The citation names no volume|"},
        {"^J#J#O#@J. Chem. Thermodyn.@ $7$#" + rest, "hint: The citation names no pages|"},
        {"^J#J#O#J. Old 2002, 31, 3#" + rest,
         "hint: The parts of the citation cannot be told apart: J. Old 2002, 31, 3|"},
        {"^J#J#O##" + rest, "warning: The citation names no journal|"},
        {"^J#S#O#@J. Chem. Thermodyn.@#" + rest, ""},
        {"^J#B#O#@A book@#" + rest, ""},
        {"^J#B#O##T##A##S#0####\n",
         "warning: The source has no authors|warning: The source has no citation|"},
        {"", ""}, // the reference database has it
    };
    int year = 2001; // each is a source of its own, for the database remembers them
    for (const auto& [description, told] : cases) {
        std::string found;
        for (const std::string& line :
             Split(Found("^R " + std::to_string(++year) + " wag pru 2\n" + description +
                         "^L 7732185 DNNNN S\n^S 1 cm;;99m%,gc\n^A & O & & & & & &\n"
                         "^z 1 TC S 1 L G & 647 & 1 &\n"),
                   '\n'))
            if (!line.empty()) found += line.substr(line.find(' ') + 1) + "|";
        EXPECT_EQ(found, told) << description;
    }
}

TEST_F(DocumentCheckTest, PointsAreEqualAtOneStateWithOneValueInAnyUnits) {
    const auto set = [](const std::string& number, const std::string& rest) {
        return "^A & O C & AB CD 1/15/2026 ::P = 100:\n^1 1 VDN S DIR " + number + "\tY " + rest +
               "\n^M 0\n";
    };
    const std::string statement = "\n^X 0 VDN L - & & & - & & & + 95 1 - & & - & & &";
    const std::string first = set("1", "L & FP S & & &" + statement + "\n^d 300 996.5 &");
    const std::string row1 = "row 1: this point stands in row 1 of set 1 too|";
    const std::pair<std::string, std::string> cases[] = {
        {"L & FP S & & &" + statement + "\n^d 300.0 996.50 &", row1},
        {"L & FP C & & &" + statement + "\n^d 26.85 996.5 &\n^d 27 996.5 &", row1},
        {"L & FP S & & &" + statement + "\n^d 300 996.6 &", ""},
        {"L & FP S & & &" + statement + "\n^d 300 x &", "row 1: this is no number: x|"},
        {"G & FP S & & &" + statement + "\n^d 300 996.5 &", ""},
        {"L & FP nounit & & &" + statement + "\n^d 300 996.5 &", ""},
    };
    for (const auto& [second, told] : cases)
        EXPECT_EQ(FoundIn(first + set("2", second)), told) << second;
    EXPECT_EQ(FoundIn(set("1", "L & FP S & & &" + statement + "\n^d 300 9 &\n^d 300 9 &")), "")
        << "rows of one set are the business of its table";
}

TEST_F(DocumentCheckTest, ASingleValueThatStandsTwiceInAnyUnitsIsNamed) {
    const std::string header = "^A & O & & AB CD 1/15/2026 &\n";
    const auto value = [&header](const std::string& line) { return header + line + " & 1 &\n"; };
    const std::string first = value("^f 1 VDN S 1 L 300 S 997");
    const std::string stands = "this value stands in set 1 too|";
    EXPECT_EQ(FoundIn(first + value("^f 1 VDN S 2 L 26.85 C 997.0")), stands);
    for (const char* other :
         {"^f 1 VDN S 2 L 300 S 996", "^f 1 VDN S 2 L 301 S 997", "^f 1 VDN S 2 G 300 S 997",
          "^f 1 VDN S 2 L 300 nounit 997", "^z 1 VDN S 2 L G & 997"})
        EXPECT_EQ(FoundIn(first + value(other)).find("stands"), std::string::npos) << other;
    EXPECT_EQ(FoundIn(first + "^A & O & & AB CD 1/15/2026 ::P = 200:\n"
                              "^f 1 VDN S 2 L 300 S 997 & 1 &\n"),
              "");
}

TEST_F(DocumentCheckTest, WhatWasSaidOnlyWhileReadingIsInTheReport) {
    desktop.Expect("Undefined author nobodyxy1:");
    EXPECT_TRUE(Found(kHead + "^I#2#nobody#xy1#\n")
                    .starts_with("6 warning: Undefined author nobodyxy1:\n"));
}

TEST_F(DocumentCheckTest, WhatNothingStatesOfAStateIsNamed) {
    const std::pair<std::string, std::string> cases[] = {
        {"^A & O C & & & & ::P = 100:\n^1 1 VDN S DIR 1\tN L & FP S & & &\n", ""},
        {"^A & O C & & & & &\n^1 1 VDN S DIR 1\tN L & FT S & & &\n", "no temperature is stated|"},
        {"^A & O C & & & & ::T = 300:\n^1 1 VDN S DIR 1\tN L & FT S & & &\n", ""},
        {"^A & O C & & & & &\n^1 1 VDN S DIR 1\tN L G PB S & & &\n", ""},
        {"^A & O C & & & & ::P = 100:\n^1 1 VDN S DFR 1\tN L & FP S & 100 &\n",
         "no reference temperature is stated|no reference phase is stated|"},
        {"^A & O C & & & & ::P = 100:\n^1 1 VDN S MN 1\tN L & FP S & & &\n",
         "no upper temperature is stated|no lower temperature is stated|"},
    };
    for (const auto& [set, told] : cases)
        EXPECT_EQ(FoundIn(set + "^M 0\n"), told) << set;
}

} // namespace vexora::test
