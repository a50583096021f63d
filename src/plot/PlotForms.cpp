#include "plot/PlotForms.h"

#include "plot/frmBioPlot.h"
#include "plot/frmBox.h"
#include "plot/frmGraph.h"

namespace vexora {

void RegisterPlotForms(ui::Forms& forms) {
    forms.Register<frmBioPlot>("frmBioPlot");
    forms.Register<frmBox>("frmBox");
    forms.Register<frmGraph>("frmGraph");
}

} // namespace vexora
