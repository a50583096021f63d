#include "sources/SourceForms.h"

#include "sources/frmAuthor.h"
#include "sources/frmDocument.h"
#include "sources/frmMakeBook.h"
#include "sources/frmMakeConf.h"
#include "sources/frmMakeDeposited.h"
#include "sources/frmMakeJournal.h"
#include "sources/frmMakePatent.h"
#include "sources/frmMakeReport.h"
#include "sources/frmMakeThesis.h"
#include "sources/frmRef.h"

namespace vexora {

void RegisterSourceForms(ui::Forms& forms) {
    forms.Register<frmDocument>("frmDocument");
    forms.Register<frmAuthor>("frmAuthor");
    forms.Register<frmMakeBook>("frmMakeBook");
    forms.Register<frmMakeJournal>("frmMakeJournal");
    forms.Register<frmMakeReport>("frmMakeReport");
    forms.Register<frmMakePatent>("frmMakePatent");
    forms.Register<frmMakeThesis>("frmMakeThesis");
    forms.Register<frmMakeConf>("frmMakeConf");
    forms.Register<frmMakeDeposited>("frmMakeDeposited");
    forms.Register<frmRef>("frmRef");
}

} // namespace vexora
