#pragma once

#include <cmath>
#include <memory>

#include "BenchDesktop.h"
#include "globals/KVOGlobal.h"
#include "plot/frmGraph.h"
#include "ui/Forms.h"

namespace vexora {

/// As many points as a table can have, with bars, in curves of twenty.
struct FullPlot {
    FullPlot() {
        forms.Register<frmGraph>("frmGraph");
        auto table = std::make_shared<PlotTable>();
        table->YName = "Density (kg/m3)";
        table->VarNames = {"Temperature (K)", "Pressure (kPa)"};
        table->nVar = 2;
        for (std::size_t i = 0; i < PlotTable::MostPoints; ++i) {
            const auto at = static_cast<double>((i * 7919) % PlotTable::MostPoints);
            table->Add({1000 - at / 50, 300 + at / 100, std::floor(at / 20)}, 0.1,
                       static_cast<int>(i));
        }
        globals.Plot = table;
    }
    frmGraph& Open() {
        auto& graph = forms.Get<frmGraph>("frmGraph");
        graph.Show();
        return graph;
    }
    ~FullPlot() { forms.CloseAll(); }

    BenchDesktop desktop;
    ui::Forms forms{desktop};
    KVOGlobal globals;
};

} // namespace vexora
