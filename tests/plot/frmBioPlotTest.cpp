#include "plot/frmBioPlot.h"

#include <algorithm>
#include <limits>
#include <memory>

#include <gtest/gtest.h>

#include "globals/KVOGlobal.h"
#include "support/StrictDesktop.h"
#include "ui/Forms.h"

namespace vexora::test {
namespace {

class frmBioPlotTest : public testing::Test {
protected:
    frmBioPlotTest() {
        forms.Register<frmBioPlot>("frmBioPlot");
        globals.BioPlot = std::make_shared<ColumnsToPlot>();
    }
    void Add(const std::string& name, bool isProperty, std::vector<double> values,
             std::vector<double> uncertainties = {}) {
        uncertainties.resize(values.size());
        const int column = static_cast<int>(globals.BioPlot->columns.size());
        globals.BioPlot->rows.clear();
        for (std::size_t row = 1; row <= values.size(); ++row)
            globals.BioPlot->rows.push_back(static_cast<int>(row));
        globals.BioPlot->isFar.assign(values.size(), false);
        globals.BioPlot->columns.push_back({name, isProperty, column, values, uncertainties});
    }
    frmBioPlot& Open() {
        auto& plot = forms.Get<frmBioPlot>("frmBioPlot");
        plot.Show();
        return plot;
    }
    static long Markers(const frmBioPlot& plot, int colour) {
        return std::ranges::count_if(plot.picPIC.Strokes(), [colour](const auto& stroke) {
            return stroke.shape == ui::Picture::Shape::Marker && stroke.colour == colour;
        });
    }

    StrictDesktop desktop;
    ui::Forms forms{desktop};
    KVOGlobal globals;
    static constexpr double None = std::numeric_limits<double>::quiet_NaN();
};

TEST_F(frmBioPlotTest, AnyColumnIsDrawnAgainstAnyOther) {
    Add("K", true, {1, 2, None, 3}, {0.1, 0.1, 0, 0.1});
    Add("H (kJ/mol)", true, {10, 20, 30, 40});
    Add("Temperature (K)", false, {300, 310, 300, 310});
    Add("pH", false, {7, 7, 8, 8});
    frmBioPlot& plot = Open();
    EXPECT_EQ(plot.Caption(), "K as function of Temperature (K)");
    EXPECT_EQ(plot.cboVarX.Items(),
              (std::vector<std::string>{"P  K", "P  H (kJ/mol)", "Temperature (K)", "pH"}));
    EXPECT_TRUE(plot.cmdUnc.Visible());
    EXPECT_EQ(Markers(plot, 1) * 10 + Markers(plot, 2), 32); // with the legend: pH 7 twice, 8 once
    plot.cboVarY.UserChoose(1);
    EXPECT_EQ(plot.Caption(), "H (kJ/mol) as function of Temperature (K)");
    EXPECT_FALSE(plot.cmdUnc.Visible());
    plot.cboVarX.UserChoose(0);
    EXPECT_EQ(plot.Caption(), "H (kJ/mol) as function of K");
    plot.picPIC.SetFocus();
    plot.UserKey(ui::ParseKey("End"));
    EXPECT_EQ(plot.lblPoint.Caption(), "(3, 40)");
    plot.picPIC.UserDrag(200, 200, 600, 400);
    plot.UserKey(ui::ParseKey("Enter"));
    EXPECT_EQ(globals.BioPlot->ChosenRow * 10 + globals.BioPlot->ChosenColumn, 41);
    EXPECT_EQ(forms.Find("frmBioPlot"), nullptr);
}

TEST_F(frmBioPlotTest, OddTablesAreShown) {
    EXPECT_EQ(Open().lblPoint.Caption(), "There are no points to draw");
    Open().Close();
    Add("K", true, {None, None});
    EXPECT_EQ(Open().Caption(), "K as function of K");
    EXPECT_EQ(Open().lblPoint.Caption(), "There are no points to draw");
    Open().Close();
    for (int n = 0; n < 12; ++n) // more than a point has room for
        Add("V" + std::to_string(n), false, {1.0 * n, 2.0 * n});
    frmBioPlot& plot = Open();
    plot.cboVarY.UserChoose(12);
    EXPECT_EQ(plot.Caption(), "V11 as function of V0");
    EXPECT_GT(Markers(plot, 1), 0);
}

} // namespace
} // namespace vexora::test
