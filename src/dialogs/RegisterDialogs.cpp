#include "dialogs/RegisterDialogs.h"

#include "dialogs/frmAuthor.h"
#include "dialogs/frmData2.h"
#include "dialogs/frmDocument.h"
#include "dialogs/frmKey.h"
#include "dialogs/frmMakeBook.h"
#include "dialogs/frmMakeConf.h"
#include "dialogs/frmMakeDeposited.h"
#include "dialogs/frmMakeJournal.h"
#include "dialogs/frmMakePatent.h"
#include "dialogs/frmMakeReport.h"
#include "dialogs/frmMakeThesis.h"
#include "dialogs/frmPasteView.h"
#include "dialogs/frmProperty.h"
#include "dialogs/frmRef.h"
#include "dialogs/frmSample.h"
#include "dialogs/frmSingle.h"
#include "dialogs/frmSubst.h"
#include "dialogs/frmTwo.h"
#include "dialogs/frmUnc.h"

namespace vexora {

void RegisterDialogs(ui::Forms& forms) {
    forms.Register<frmKey>("frmKey");
    forms.Register<frmData2>("frmData2");
    forms.Register<frmPasteView>("frmPasteView");
    forms.Register<frmProperty>("frmProperty");
    forms.Register<frmSample>("frmSample");
    forms.Register<frmSingle>("frmSingle");
    forms.Register<frmSubst>("frmSubst");
    forms.Register<frmTwo>("frmTwo");
    forms.Register<frmUnc>("frmUnc");
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
