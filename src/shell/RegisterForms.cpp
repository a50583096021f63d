#include "shell/RegisterForms.h"

#include "bio/BioForms.h"
#include "compounds/CompoundForms.h"
#include "entry/EntryForms.h"
#include "mixtures/MixtureForms.h"
#include "plot/PlotForms.h"
#include "pure/PureForms.h"
#include "reactions/ReactionForms.h"
#include "shell/frmCheck.h"
#include "shell/frmCompare.h"
#include "shell/frmConfigure.h"
#include "shell/frmMain.h"
#include "sources/SourceForms.h"
#include "structures/StructureForms.h"
#include "tables/TableForms.h"

namespace vexora {

void RegisterForms(ui::Forms& forms) {
    forms.Register<frmMain>("frmMain");
    forms.Register<frmCompare>("frmCompare");
    forms.Register<frmConfigure>("frmConfigure");
    forms.Register<frmCheck>("frmCheck");
    RegisterSourceForms(forms);
    RegisterCompoundForms(forms);
    RegisterEntryForms(forms);
    RegisterPureForms(forms);
    RegisterMixtureForms(forms);
    RegisterReactionForms(forms);
    RegisterBioForms(forms);
    RegisterStructureForms(forms);
    RegisterTableForms(forms);
    RegisterPlotForms(forms);
}

} // namespace vexora
