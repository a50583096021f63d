#include "sources/SourceForms.h"

#include "sources/MakeForms.h"
#include "sources/frmAuthor.h"
#include "sources/frmCitation.h"
#include "sources/frmDocument.h"
#include "sources/frmRef.h"

namespace vexora {

void RegisterSourceForms(ui::Forms& forms) {
    forms.Register<frmDocument>("frmDocument");
    forms.Register<frmAuthor>("frmAuthor");
    forms.Register<frmCitation>("frmCitation");
    RegisterMakeForms(forms);
    forms.Register<frmRef>("frmRef");
}

} // namespace vexora
