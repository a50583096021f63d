#include "structures/StructureForms.h"

#include "structures/frmComplex.h"
#include "structures/frmComplexSample.h"
#include "structures/frmCrStruct.h"
#include "structures/frmGH.h"

namespace vexora {

void RegisterStructureForms(ui::Forms& forms) {
    forms.Register<frmComplex>("frmComplex");
    forms.Register<frmComplexSample>("frmComplexSample");
    forms.Register<frmGH>("frmGH");
    forms.Register<frmCrStruct>("frmCrStruct");
}

} // namespace vexora
