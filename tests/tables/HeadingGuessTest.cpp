#include "tables/HeadingGuess.h"

#include <gtest/gtest.h>

#include "reference/TableText.h"
#include "reference/Text.h"
#include "support/DocumentFixture.h"

namespace vexora::test {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// "T/K | x1 // 300 | 0.5": rows of cells.
Rows RowsOf(const std::string& text) {
    Rows rows;
    for (const std::string& line : Split(Replace(text, "//", "\n"), '\n')) {
        auto& row = rows.emplace_back();
        for (const std::string& cell : Split(line, '|'))
            row.emplace_back(TrimBlanks(cell));
    }
    return rows;
}

/// "ethanol C2H6O; water H2O"
NamedComponents ComponentsOf(const std::string& text) {
    NamedComponents components;
    for (const std::string& part : Split(text, ';')) {
        const std::string component(TrimBlanks(part));
        const auto blank = component.rfind(' ');
        components.names.push_back(component.substr(0, blank));
        components.formulas.push_back(component.substr(blank + 1));
    }
    return components;
}

/// "X1 0.01 L", "W2 *0.001", "-" for a column of which nothing is said.
std::string Line(const ProcessColumn& column) {
    if (!column.IsDescribed()) return "-";
    std::string line = column.quantity;
    for (const std::string& part : {column.unit + column.factor, column.phase})
        if (!part.empty()) line += " " + part;
    return line;
}

std::string Guess(const std::string& heads, const std::string& components) {
    std::string text;
    for (const ProcessColumn& column : GuessHeads(RowsOf(heads), ComponentsOf(components)).columns)
        text += (text.empty() ? "" : "; ") + Line(column);
    return text;
}

constexpr const char* Binary = "ethanol C2H6O; water H2O";
constexpr const char* Pure = "alumina Al2O3";

class HeadingGuess : public DocumentFixture {};

TEST_F(HeadingGuess, HeadingsOfPapersAreReadAsTheirAuthorsMeantThem) {
    TableReader cases(std::string(VEXORA_SOURCE_DIR) + "/tests/tables/headings.tsv");
    cases.NextRow();
    int all = 0, right = 0;
    while (const auto row = cases.NextRow()) {
        const auto got = GuessHeads(RowsOf(row->at(1)), ComponentsOf(row->at(0))).columns;
        const std::vector<std::string> wanted = Split(row->at(2), ';');
        for (std::size_t i = 0; i < wanted.size(); ++i, ++all) {
            const std::string want(TrimBlanks(wanted[i]));
            const std::string line = i < got.size() ? Line(got[i]) : "-";
            if (line == want)
                ++right;
            else if (line != "-")
                ADD_FAILURE() << line << ", and not " << want << ": " << row->at(1);
        }
    }
    EXPECT_GE(all, 50);
    EXPECT_GE(4 * right, 3 * all) << right << " of " << all;
}

TEST_F(HeadingGuess, NothingIsProposedWhereItIsNotSure) {
    for (const char* heading : {"x",
                                "t",
                                "x1 calc",
                                "x1/y1",
                                "Δx1",
                                "u(x1)",
                                "γ1",
                                "y1 - y1,calc",
                                "x1 + x2",
                                "10^3 x",
                                "wt %",
                                "mole fraction",
                                "ethanol",
                                "c / mol·dm-3",
                                "x1 (salt free)",
                                "z1",
                                "x3",
                                "P1/kPa",
                                "T/s",
                                "ρ/kg·m-3",
                                "p / mPa·s",
                                "t/min",
                                "ln P",
                                "1/T",
                                "x(methanol)",
                                "2-ethanol wt %",
                                "x1 (2)",
                                "w(ethanol + water)",
                                "x1 × 10^3",
                                "m1 / mol kg-1",
                                "w1 wt % ethanol mol %"})
        EXPECT_EQ(Guess(std::string("T/K | ") + heading, Binary).substr(3), "; -") << heading;
    for (const char* heading : {"Cp / kJ·mol-1", "S", "-{G(T)-H(0)}/T", "[H(T)-H(298.15)]/T",
                                "ΔfH° / kJ mol-1", "x1", "Heat capacity / J K-1 mol-1", "p/kPa",
                                "Cp / J·K-1·m-3", "(H-H(0))/RT", "Φ / J K-1 mol-1"})
        EXPECT_EQ(Guess(std::string("T/K | ") + heading, Pure).substr(3), "; -") << heading;
}

TEST_F(HeadingGuess, PhasesAreToldOnlyByAllColumnsTogether) {
    EXPECT_EQ(Guess("x1 | w1", Binary), "X1 D; W1 D");
    EXPECT_EQ(Guess("x1' | P/kPa", Binary), "X1 D; P S");
    EXPECT_EQ(Guess("x1' | y1''", Binary), "X1 D L; X1 D G");
    EXPECT_EQ(Guess("w1 (aqueous phase) | w1", Binary), "W1 D; W1 D");
    EXPECT_EQ(Guess("liquid | | vapor // x1 | x2 | y1", Binary), "X1 D L; X2 D L; X1 D G");
    EXPECT_EQ(Guess("organic | | aqueous // w1 | w2 | w1", Binary), "W1 D L1; W2 D; W1 D L2");
    EXPECT_EQ(Guess("y1", Binary), "X1 D");
}

TEST_F(HeadingGuess, OnlyRowsWithoutValuesAreHeadings) {
    struct Case {
        const char* block;
        int rows;
    };
    for (const Case& c :
         std::initializer_list<Case>{{"T/K | x1 // 300 | 0.5 // 310 | 0.6", 1},
                                     {"300 | 0.5 // T/K | x1", 0},
                                     {"300a | 0.5 // 310 | 0.6", 0},
                                     {"0,5 | –", 0},
                                     {"– | – // 300 | 0.5", 0},
                                     {"298.15 K | 0.123(4) // T/K | x1", 0},
                                     {"ethanol | water // 300 | 0.5", 0},
                                     {"Table 2. Ethanol (1) + water (2) at 101.3 kPa | | // T | x1 "
                                      "| y1 // K | | // 79 | 0.5 | 0.6",
                                      3},
                                     {"T/K | x1 // P = 101.3 kPa | // 300 | 0.5", 1},
                                     {"T/K | x1 // azeotrope | // 300 | 0.5", 1}})
        EXPECT_EQ(GuessHeads(RowsOf(c.block), ComponentsOf(Binary)).rows, c.rows) << c.block;
    // Values above 1 leave it open in which unit a fraction is.
    EXPECT_EQ(Guess("T/K | x1 | 100 y1 // 300 | 19.0 | 20.0", Binary), "T S; X1 L; X1 0.01 G");
}

} // namespace
} // namespace vexora::test
