#include "globals/PlotTable.h"
#include "support/MixtureSet.h"
#include "tables/frmData2Fixture.h"

namespace vexora::test {
namespace {

/// Boiling temperatures of a mixture, in the only class of sets that the table opens by itself.
class BoilingSet : public clsTwo {
public:
    SetSurroundings around;
    std::string_view DataContext() const override { return "Bin"; }
    std::vector<HeldConstant> Constants() const override { return {{2, "P", "101.325", "S", ""}}; }
    SetSurroundings Surroundings() const override { return around; }
    std::shared_ptr<DataSet> Copy() const override { return std::make_shared<BoilingSet>(*this); }
};

TEST_F(frmData2Fixture, ThePlotOfAMixtureBeginsWithItsPhases) {
    const MixtureSet dew{{{"X1", "S", "G"}, {"X1", "S", "L"}},
                         {"L", "G"},
                         {{"P", "", 101.325}},
                         {"0.0190 0.1700", "0.0721 0.3891"}};
    const auto boiling = std::make_shared<BoilingSet>();
    boiling->PRPCODE = "T";
    boiling->PROPERTY_UNIT = "C";
    boiling->PHASE1 = "L";
    boiling->PHASE2 = "G";
    boiling->VARIABLE1 = "X1";
    boiling->VAR1_UNIT = "S";
    boiling->around = {{"ethanol", "water"}, {boiling.get(), &dew}, {}, {}};
    globals.CurrentTwo = boiling;
    forms.Register("frmGraph", [] { return std::make_unique<ui::Form>("frmGraph", "Plot"); });
    OpenTable();
    Paste("0.0190 95.5\n0.0721 89.0\n0.5 79");
    desktop.OnModal([&](ui::Form& form) {
        PlotTable& phases = *globals.Plot;
        EXPECT_EQ(phases.SeriesNames, (std::vector<std::string>{"Liquid", "Gas"}));
        EXPECT_EQ(phases.PointCount(), 5);
        EXPECT_EQ(phases.NameOf(1), "Mole fraction of ethanol");
        EXPECT_EQ(phases.Next->PointCount(), 3);
        EXPECT_EQ(phases.Next->Whole[1], 1);
        phases.ChosenRow = phases.PointRow.back();
        form.Close();
    });
    form_->cmdView.UserClick();
    EXPECT_EQ(form_->tblData.Selection().top, 3);
}

} // namespace
} // namespace vexora::test
