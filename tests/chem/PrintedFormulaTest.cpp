#include "chem/PrintedFormula.h"

namespace vexora::test {
namespace {

TEST(PrintedFormula, CountsAreLoweredAndOtherFiguresAreNot) {
    std::string text;
    for (const char* formula : {"C7H6O2", "C12H26", "CuSO4*5H2O", "(CH4)0.148(H2O)0.852", "{R}2O",
                                "C3.5H2", "", "C", "12", "é2"})
        text += PrintedFormula(formula) + "|";
    EXPECT_EQ(text, "C₇H₆O₂|C₁₂H₂₆|CuSO₄*5H₂O|(CH₄)₀.₁₄₈(H₂O)₀.₈₅₂|{R}₂O|C₃.₅H₂||C|12|é2|");
}

} // namespace
} // namespace vexora::test
