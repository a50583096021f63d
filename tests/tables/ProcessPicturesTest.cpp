#include "tables/ProcessPictures.h"

#include <gtest/gtest.h>

#include "tables/ProcessTableFixture.h"

namespace vexora::test {
namespace {

std::string Names(const PlotTable& table) {
    std::string text = table.IsTriangle() ? table.Corners[0] + "+" + table.Corners[1] + "+" +
                                                table.Corners[2] + ": " + table.Title
                                          : table.YName;
    for (int n = 1; n <= table.nVar; ++n)
        text += " | " + table.NameOf(n);
    return text + (table.HasDiagonal ? " | diagonal" : "") + "\n";
}

/// All pictures: names, then of each point its values, series, tie, row and column.
std::string TextOf(std::shared_ptr<PlotTable> table) {
    std::string text;
    for (; table; table = table->Next) {
        text += Names(*table);
        for (std::size_t i = 0; i < table->PointTable.size(); ++i) {
            const int first = table->IsTriangle() ? 1 : 0;
            for (int n = first; n <= table->nVar; ++n)
                text += NumberText(table->PointTable[i][static_cast<std::size_t>(n)]) + " ";
            if (table->PointUnc[i] != 0) text += "+-" + NumberText(table->PointUnc[i]) + " ";
            if (!table->SeriesNames.empty())
                text += table->SeriesNames[static_cast<std::size_t>(table->PointSeries[i])] + " ";
            text += std::to_string(table->PointTie[i]) + " at " +
                    std::to_string(table->PointRow[i]) + "," +
                    std::to_string(table->PointColumn[i]) + "\n";
        }
    }
    return text;
}

class ProcessPicturesTest : public ProcessTableFixture {
protected:
    std::string Diagrams(const std::string& mixture, const std::string& text) {
        const auto system = Mixture(mixture).mixture;
        return TextOf(PhaseDiagrams(TableOf(system->MixType, text), *system));
    }
};

constexpr const char* EthanolWater = "^B 64175 7732185 P";
constexpr const char* AcidChloroformWater = "^T 64197 67663 7732185 S";

TEST_F(ProcessPicturesTest, ABinaryShowsBothPhasesAndGasOverLiquid) {
    EXPECT_EQ(Diagrams(EthanolWater, "T P X1 X2\n"
                                     "C S D 0.01\n"
                                     "- - L G\n"
                                     "95.5 101.325 0.0190 83\n"
                                     "89.0 101.325 0.0721 -\n"
                                     "a 101.325 0.1 50\n"),
              "Temperature (C) | Mole fraction of ethanol\n"
              "95.5 0.019 Liquid 1 at 1,2\n"
              "95.5 0.17 Gas 1 at 1,3\n"
              "89 0.0721 Liquid 0 at 2,2\n"
              "Mole fraction of ethanol, Gas | Mole fraction of ethanol, Liquid | diagonal\n"
              "0.17 0.019 0 at 1,3\n"
              "0.5 0.1 0 at 3,3\n");
}

TEST_F(ProcessPicturesTest, PressuresAndTwoLiquidsHaveTheirPictures) {
    EXPECT_EQ(Diagrams(EthanolWater, "T P X1 X1 X1\n"
                                     "S S D D D\n"
                                     "- - L1 L2 G\n"
                                     "300 5 0.1 0.8 0.6\n"
                                     "300 6 0.2 0.7 0.65\n"),
              "Pressure (kPa) | Mole fraction of ethanol\n"
              "5 0.1 Liquid mixture 1 1 at 1,2\n"
              "5 0.8 Liquid mixture 2 1 at 1,3\n"
              "5 0.6 Gas 1 at 1,4\n"
              "6 0.2 Liquid mixture 1 2 at 2,2\n"
              "6 0.7 Liquid mixture 2 2 at 2,3\n"
              "6 0.65 Gas 2 at 2,4\n"
              "Mole fraction of ethanol, Gas | Mole fraction of ethanol | diagonal\n"
              "0.6 0.1 Liquid mixture 1 0 at 1,4\n"
              "0.65 0.2 Liquid mixture 1 0 at 2,4\n"
              "0.6 0.8 Liquid mixture 2 0 at 1,4\n"
              "0.65 0.7 Liquid mixture 2 0 at 2,4\n");
    EXPECT_EQ(Diagrams(EthanolWater, "T J1 J2\nS S S\n- L G\n300 1 2\n310 2 3\n"),
              "Temperature (K) | Molarity of ethanol (mol/dm3)\n"
              "300 1 Liquid 0 at 1,1\n"
              "310 2 Liquid 0 at 2,1\n");
    EXPECT_EQ(Diagrams(EthanolWater, "T P\nS S\n- -\n300 5\n310 6\n"), "");
}

TEST_F(ProcessPicturesTest, ATernaryShowsItsTiesInTheTriangle) {
    EXPECT_EQ(Diagrams(AcidChloroformWater, "T W1 W2 W3 W1 W3\n"
                                            "C 0.01 0.01 0.01 0.01 0.01\n"
                                            "- L1 L1 L1 L2 L2\n"
                                            "18 0.00 99.01 0.99 0.00 99.16\n"
                                            "18 6.77 91.85 1.38 25.10 -\n"),
              "acetic acid+chloroform+water: Weight fraction (%), 291.15 K"
              " | Weight fraction of acetic acid | Weight fraction of chloroform\n"
              "0 99.01 Liquid mixture 1 1 at 1,1\n"
              "0 0.84 Liquid mixture 2 1 at 1,4\n"
              "6.77 91.85 Liquid mixture 1 0 at 2,1\n");
}

TEST_F(ProcessPicturesTest, EachFunctionHasACurveWithItsUncertainty) {
    const ProcessTable table = TableOf(1, "T CP CU S\nS S - S\n- - - -\n"
                                          "100 12.855 1% 4.295\n200 51.120 0.5 -\n");
    EXPECT_EQ(TextOf(ColumnPlots(table, ViewsOf(table, AnalyseTDF(table)), nullptr)),
              "Heat capacity at constant pressure Cp (J/K/mol) | Temperature (K)\n"
              "12.855 100 +-0.12855 0 at 1,1\n"
              "51.12 200 +-0.5 0 at 2,1\n"
              "Entropy (J/K/mol) | Temperature (K)\n"
              "4.295 100 0 at 1,3\n");
}

TEST_F(ProcessPicturesTest, ColumnsAreSeenAsFarAsTheirHeadsGo) {
    const auto system = Mixture(EthanolWater).mixture;
    const auto plots = [&](const std::string& text) {
        const ProcessTable table = TableOf(2, text);
        return TextOf(ColumnPlots(table, ViewsOf(table, AnalyseVLE(table)), system.get()));
    };
    EXPECT_EQ(plots("T X1\n- D\n- -\n300 0.5\n310 -\n"),
              "Mole fraction of ethanol | Temperature\n0.5 300 0 at 1,1\n");
    EXPECT_EQ(plots("X1 W2\nD 0.01\nL -\n0.5 40\n"),
              "Weight fraction of water (%) | Mole fraction of ethanol, Liquid\n40 0.5 0 at 1,1\n");
    EXPECT_EQ(plots("P\nS\n-\n5\n-\n7\n"),
              "Pressure (kPa) | Point number\n5 1 0 at 1,0\n7 3 0 at 3,0\n");
    // A table that will become sets is seen by these.
    EXPECT_EQ(plots("T P X1 X1\nS S D D\n- - L G\n350 101.3 0.1 0.4\n360 101.3 0.2 0.5\n"),
              "Temperature (K) | Mole fraction of ethanol, Liquid\n"
              "350 0.1 0 at 1,0\n360 0.2 0 at 2,0\n"
              "Mole fraction of ethanol, Gas | Mole fraction of ethanol, Liquid\n"
              "0.4 0.1 0 at 1,3\n0.5 0.2 0 at 2,3\n");
}

} // namespace
} // namespace vexora::test
