#include "entry/SetPictures.h"

#include "entry/PureEnds.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "support/DocumentFixture.h"
#include "support/MixtureSet.h"

namespace vexora::test {
namespace {

using Sets = std::vector<const DataSet*>;

std::string Title(const PlotTable& table) {
    std::string text = table.IsTriangle() ? table.Title + "\n" : table.YName + "|";
    for (int n = 1; n <= table.nVar; ++n)
        text += table.NameOf(n) + (n < table.nVar ? "|" : "\n");
    return text;
}

/// The whole picture: names, then for each point its values, series, tie number and row.
std::string TextOf(const std::shared_ptr<PlotTable>& table) {
    if (!table) return "none";
    std::string text = Title(*table);
    for (std::size_t i = 0; i < table->PointTable.size(); ++i) {
        for (int n = 0; n <= table->nVar; ++n)
            text += NumberText(table->PointTable[i][static_cast<std::size_t>(n)]) + " ";
        const auto series = static_cast<std::size_t>(table->PointSeries[i]);
        text += table->SeriesNames[series] + " " + std::to_string(table->PointTie[i]) + " row " +
                std::to_string(table->PointRow[i]) + (table->PointFar[i] ? " far" : "") + "\n";
    }
    for (const PlotTable::End& end : table->Ends)
        text += end.name + " " + NumberText(end.at[0]) + " at " + NumberText(end.at[1]) + "\n";
    return text;
}

class PhasePlotTest : public DocumentFixture {
protected:
    /// What the table of a set would hand over: each row a point, the last one to be looked at.
    static PlotTable OwnPlot(const DataSet& set) {
        PlotTable table;
        table.YName = set.PRPCODE;
        table.nVar = set.nVar;
        for (const clsData& row : set.recData) {
            PlotTable::Row point{};
            for (int n = 0; n <= set.nVar; ++n)
                point[static_cast<std::size_t>(n)] = Val(row.Values[static_cast<std::size_t>(n)]);
            table.Add(point, 0, table.PointCount() + 1);
            table.VarNames = {"V1", "V2", "V3"};
        }
        table.PointFar.back() = true;
        return table;
    }
    static std::shared_ptr<PlotTable> Picture(const DataSet& set, const SetSurroundings& around) {
        const PlotTable table = OwnPlot(set);
        return PhasePlot({set, set, table, true}, around);
    }
    SetSurroundings Around(Sets sets) const {
        return {{"ethanol", "water"}, std::move(sets), {}, {}};
    }

    const std::vector<SetConstant> atmosphere{{"P", "", 101.325}};
    const std::vector<std::string> vle{"L", "G"}, lle{"L1", "L2"};
    const MixtureSet bubble{
        {{"T", "C", "L"}, {"X1", "S", "L"}}, vle, atmosphere, {"0.0190 95.5", "0.0721 89.0"}};
    const MixtureSet dew{
        {{"X1", "S", "G"}, {"X1", "S", "L"}}, vle, atmosphere, {"0.0721 0.3891", "0.019 0.1700"}};
};

TEST_F(PhasePlotTest, EitherSetOfACurveShowsBoilingAndCondensingPointsTied) {
    EXPECT_EQ(TextOf(Picture(bubble, Around({&bubble, &dew}))),
              "T|Mole fraction of ethanol\n"
              "95.5 0.019 Liquid 1 row 1\n95.5 0.17 Gas 1 row 1\n"
              "89 0.0721 Liquid 2 row 2 far\n89 0.3891 Gas 2 row 2 far\n");
    // The temperatures of the vapor's set are another's, and so in the system unit.
    EXPECT_EQ(TextOf(Picture(dew, Around({&bubble, &dew}))),
              "Temperature (K)|Mole fraction of ethanol\n"
              "368.65 0.019 Liquid 1 row 2 far\n368.65 0.17 Gas 1 row 2 far\n"
              "362.15 0.0721 Liquid 2 row 1\n362.15 0.3891 Gas 2 row 1\n");
}

TEST_F(PhasePlotTest, RepeatedSetsAndOtherConditionsStayApart) {
    const MixtureSet bubbleAgain = bubble, dewAgain = dew;
    MixtureSet lower = bubble;
    lower.constants[0].value = 50;
    EXPECT_EQ(
        TextOf(Picture(bubbleAgain, Around({&bubble, &lower, &bubbleAgain, &dew, &dewAgain}))),
        "T|Mole fraction of ethanol|Pressure (kPa)\n"
        "95.5 0.019 101.325 Liquid 1 row 0\n95.5 0.17 101.325 Gas 1 row 0\n"
        "89 0.0721 101.325 Liquid 2 row 0\n89 0.3891 101.325 Gas 2 row 0\n"
        "95.5 0.019 50 Liquid 0 row 0\n89 0.0721 50 Liquid 0 row 0\n"
        "95.5 0.019 101.325 Liquid 5 row 1\n95.5 0.17 101.325 Gas 5 row 1\n"
        "89 0.0721 101.325 Liquid 6 row 2 far\n89 0.3891 101.325 Gas 6 row 2 far\n");
}

TEST_F(PhasePlotTest, SetsThatTellNoPhasesHaveNone) {
    const MixtureSet density{{{"VDN", "S", "L"}, {"X1", "S", "L"}}, {"L"}, atmosphere, {"0.5 900"}};
    const MixtureSet molality{{{"T", "S", "L"}, {"M1", "S", "L"}}, vle, atmosphere, {"0.5 360"}};
    EXPECT_EQ(Picture(bubble, Around({&bubble, &density})), nullptr);
    EXPECT_EQ(Picture(density, Around({&bubble, &dew, &density})), nullptr);
    EXPECT_EQ(Picture(molality, Around({&bubble, &dew, &molality})), nullptr);
}

TEST_F(PhasePlotTest, LayersOfATernaryAreJoinedByTheirTieNumbers) {
    // The form names the main phase of each set beside its temperature.
    const std::vector<SetConstant> room{{"T", "L1", 291.15}}, other{{"T", "L2", 291.15}};
    std::vector<MixtureSet> sets{
        {{{"W2", "0.01", "L1"}, {"W1", "0.01", "L1"}},
         lle,
         room,
         {"0.00 99.01 & 1", "6.77 91.85 & 2"}},
        {{{"W1", "S", "L2"}, {"W1", "0.01", "L1"}}, lle, other, {"6.77 0.2510 & 2", "0.00 0 & 1"}},
        {{{"W3", "0.01", "L2"}, {"W1", "0.01", "L1"}},
         lle,
         other,
         {"0.00 99.16 & 1", "6.77 73.69 & 2"}},
    };
    Sets all;
    for (MixtureSet& set : sets) {
        set.context = "Tern";
        all.push_back(&set);
    }
    const SetSurroundings around{{"acetic acid", "chloroform"}, all, {}, {}};
    const std::string names =
        "Weight fraction (%), 291.15 K\n"
        "Weight fraction of acetic acid (%)|Weight fraction of chloroform (%)\n";
    EXPECT_EQ(TextOf(Picture(sets[0], around)),
              names + "0 0 99.01 Liquid mixture 1 1 row 1\n0 0 0.84 Liquid mixture 2 1 row 1\n"
                      "0 6.77 91.85 Liquid mixture 1 2 row 2 far\n"
                      "0 25.1 1.21 Liquid mixture 2 2 row 2 far\n");
    EXPECT_EQ(Picture(sets[0], around)->Corners[2], "Component 3");
    EXPECT_EQ(TextOf(Picture(sets[1], around)),
              names +
                  "0 0 99.01 Liquid mixture 1 1 row 2 far\n"
                  "0 0 0.84 Liquid mixture 2 1 row 2 far\n"
                  "0 6.77 91.85 Liquid mixture 1 2 row 1\n0 25.1 1.21 Liquid mixture 2 2 row 1\n");
}

TEST_F(PhasePlotTest, APropertyOfATernaryStandsAtItsCompositions) {
    MixtureSet density{{{"VDN", "S", "L"}, {"X3", "S", "L"}, {"X1", "S", "L"}},
                       {"L"},
                       {{"T", "", 298.15}, {"P", "", 101.325}},
                       {"0.2 0.3 900", "0.1 & 920", "0.6 0.1 950"}};
    density.context = "Tern";
    EXPECT_EQ(TextOf(Picture(density, {{"A", "B", "C"}, {&density}, {}, {}})),
              "VDN by mole fraction, 298.15 K, 101.325 kPa\n"
              "Mole fraction of A|Mole fraction of B\n"
              "900 0.3 0.5 Liquid 0 row 1\n950 0.1 0.3 Liquid 0 row 3 far\n");
}

TEST_F(PhasePlotTest, PureComponentsEndTheAxisOfTheComposition) {
    const MixtureSet density{{{"VDN", "1000", "L"}, {"T", "C", "L"}, {"W1", "0.01", "L"}},
                             {"L"},
                             {},
                             {"20 50 0.91384", "20 10 0.98", "25 50 0.9"}};
    const auto pure = [](std::vector<SetQuantity> all, const std::vector<std::string>& rows) {
        return MixtureSet(std::move(all), {"L"}, {}, rows);
    };
    const MixtureSet water =
        pure({{"VDN", "S", "L"}, {"T", "S", "L"}}, {"293.15 998.23", "300 996.5"});
    const MixtureSet vapor = pure({{"VDN", "S", "G"}, {"T", "S", "G"}}, {"293.15 0.02"});
    const MixtureSet ethanol = pure({{"VDN", "S", "L"}, {"T", "S", "L"}, {"P", "S", "L"}},
                                    {"298.15 100 785.1", "293.15 100 789.34"});
    const MixtureSet boiling =
        pure({{"PV", "S", "L"}, {"T", "S", "L"}}, {"373.15 101.3", "360 60"});
    SetSurroundings around{
        {"ethanol", "water"}, {&bubble, &dew}, {{&ethanol}, {&vapor, &water, &boiling}}, {}};
    const auto ends = [&around](const DataSet& set) {
        PlotTable table = OwnPlot(set);
        AddPureEnds(table, PlotColumns::Of(set, true), set, around);
        std::string text;
        for (const PlotTable::End& end : table.Ends) {
            text += end.name;
            for (int n = 0; n <= set.nVar; ++n)
                text += " " + NumberText(end.at[static_cast<std::size_t>(n)]);
            text += "\n";
        }
        return text;
    };
    EXPECT_EQ(ends(density), "ethanol 0.78934 20 100\nethanol 0.7851 25 100\nwater 0.99823 20 0\n");
    EXPECT_EQ(ends(bubble), "water 100 0\n");
    EXPECT_EQ(ends(dew), "");
    clsZ normal, point; // single values of ethanol
    normal.PRPCODE = "TBN";
    normal.PROPERTY_UNIT = "C";
    normal.PRPVALUE = "78.3";
    point.PRPCODE = "VDN";
    point.PROPERTY_UNIT = "S";
    point.PHASE1 = "L";
    point.PRPVALUE = "789.4";
    point.Header.DATACOMMENT = "::T = 293.15:";
    around.pure[0].clear();
    around.pureValues = {{&normal, &point}};
    EXPECT_EQ(ends(bubble), "ethanol 78.3 1\nwater 100 0\n");
    EXPECT_EQ(ends(density), "ethanol 0.7894 20 100\nwater 0.99823 20 0\n");
    around.pureValues.clear();
    EXPECT_EQ(Picture(dew, around)->Ends.size(), 1u);
}

TEST_F(PhasePlotTest, ARecordIsSeenWithItsSystemOrAlone) {
    MixtureSet boiling = bubble, vapor = dew;
    boiling.around = {{"ethanol", "water"}, {&boiling, &vapor}, {}, {}};
    EXPECT_EQ(TextOf(PictureOfRecord(boiling)),
              "Temperature of phase equilibrium (C)|Mole fraction of ethanol\n"
              "95.5 0.019 Liquid 1 row 1\n95.5 0.17 Gas 1 row 1\n"
              "89 0.0721 Liquid 2 row 2\n89 0.3891 Gas 2 row 2\n");
    MixtureSet halves = bubble; // one row in the units of the paper, one in system units
    halves.LoadRow("^G 0.5 2 360.15 5 &");
    halves.LoadRow("^d 0.6 none &");
    const auto own = PictureOfRecord(halves);
    ASSERT_EQ(own->PointCount(), 3);
    EXPECT_EQ(own->YName, "Temperature of phase equilibrium (K)");
    EXPECT_EQ(NumberText(own->PointTable[0][0]) + " " + NumberText(own->PointTable[2][0]),
              "368.65 360.15");
    halves.recData.Clear();
    halves.LoadRow("^d 0.0190 95.5 &");
    EXPECT_EQ(PictureOfRecord(halves), nullptr);
}

TEST_F(PhasePlotTest, OfManyRowsSomeAreSeen) {
    MixtureSet full = bubble;
    for (int row = 0; row < 16382; ++row)
        full.LoadRow("^d 0." + std::to_string(10000 + row) + " 80 &");
    full.around.sameSystem = {&full, &dew};
    const auto picture = PictureOfRecord(full);
    EXPECT_EQ(picture->PointCount(), 965); // of 17 rows one, and the gas beside one
    EXPECT_EQ(picture->PointTable.back()[1], 0.26369);
}

TEST_F(PhasePlotTest, CaptionsNameTheComponents) {
    const SetSurroundings around{{"ethanol", std::string(60, 'a')}, {}, {}, {}};
    EXPECT_EQ(WithComponentName("Mole fraction of component 1 (%)", around),
              "Mole fraction of ethanol (%)");
    EXPECT_EQ(WithComponentName("Activity of component 2", around),
              "Activity of " + std::string(45, 'a') + "...");
    EXPECT_EQ(WithComponentName("Molality of component 3", around), "Molality of component 3");
    EXPECT_EQ(WithComponentName("Density", around), "Density");
}

} // namespace
} // namespace vexora::test
