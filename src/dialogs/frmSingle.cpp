#include "dialogs/frmSingle.h"

#include "chem/clsMethod.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int helpSingle = 320;
constexpr const char* newEntry = "New";

/// What a review of property and method can change.
std::string ChoiceInForce() {
    const KVOGlobal& globals = Globals();
    const clsMethod& method = *globals.CurrentMethod;
    std::string text;
    for (const std::string& part :
         {globals.PropertyCode, globals.PropertyUnit, globals.PropertyText, globals.ExpPurpose,
          globals.PropertyFlags, globals.PropertyComment, globals.KeyRest, method.Method,
          method.sMethod, std::to_string(method.f)}) {
        text += part + "\n";
    }
    return text;
}

} // namespace

frmSingle::frmSingle() : Form("frmSingle", "Single value") {
    ArrangeControls();
    WireEvents();
    DefaultButton = &cmdAccept;
    CancelButton = &cmdFinish;
    HelpContext = helpSingle;
    txtPrpSetNo.Locked(true);
}

void frmSingle::ArrangeControls() {
    using namespace ui;
    Arrangement = Column({Row({Field("Compound:", cboSubst), Field("Sample #", cboSample),
                               Field("Property set #", Narrow(txtPrpSetNo, 4))}),
                          Row({Field("Phase 1:", lstPhase1), Field("Phase 2:", lstPhase2),
                               Field("Phase 3:", lstPhase3)}),
                          Group(frmIndVar, {Row({Field("Value:", Narrow(txtIndVariable, 24)),
                                                 Field("Units:", lstVariable_Unit)})}),
                          Field("Property value:", Row({Narrow(txtValue, 24), lblUnit})),
                          Group(frmConstraint, {Row({optPB, optFP})}),
                          Field("Comment to this record:", txtComment),
                          ButtonRow({cmdMethod, cmdCheck, cmdAccept, cmdFinish})});
    PreferredColumns = 90;
}

void frmSingle::WireEvents() {
    cboSubst.OnClick = [this] { CompoundClick(); };
    cboSample.OnClick = [this] { SampleClick(); };
    lstPhase1.OnClick = [this] { Phase1Click(); };
    for (ui::ItemList* list : {&lstPhase2, &lstPhase3, &lstVariable_Unit})
        list->OnClick = [this] { Touch(); };
    for (ui::TextBox* box : {&txtIndVariable, &txtValue, &txtComment})
        box->OnChange = [this] { Touch(); };
    for (ui::OptionButton* option : {&optPB, &optFP})
        option->OnClick = [this] { Touch(); };
    cmdMethod.OnClick = [this] { Method(); };
    cmdCheck.OnClick = [] { ui::Forms::Current().Get("frmAverage").ShowModal(); };
    cmdAccept.OnClick = [this] { Accept(); };
    cmdFinish.OnClick = [this] { Close(); };
}

void frmSingle::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    editing_ = globals.EditSingle && globals.CurrentZ != nullptr;
    if (!globals.CurrentMethod) globals.CurrentMethod = std::make_shared<clsMethod>();
    const ui::FillingScope filling(*this);
    if (editing_) TakeRecord(*globals.CurrentZ);
    FillCompounds();
    ShowProperty();
    if (editing_)
        ShowRecord(*globals.CurrentZ);
    else
        txtComment.Text(globals.PropertyComment);
    cboSubst.Enabled(!editing_);
    cboSample.Enabled(!editing_);
    cmdMethod.Enabled(ui::Forms::Current().Knows("frmProperty"));
    const bool canAverage = ui::Forms::Current().Knows("frmAverage");
    cmdCheck.Enabled(canAverage);
    cmdCheck.ToolTip(canAverage ? "" : "Averages come with a later edition");
    if (editing_) cmdAccept.Caption("Accept");
}

void frmSingle::Unload() {
    CloseForm();
}

void frmSingle::CompoundClick() {
    if (Filling) return;
    FillSamples();
    Touch();
}

void frmSingle::SampleClick() {
    if (Filling) return;
    if (cboSample.Chosen() == newEntry)
        NewSample();
    else
        UseSample(cboSample.Index());
    Touch();
}

void frmSingle::Phase1Click() {
    ShowPhases();
    Touch();
}

/// Lets property and method be reviewed; a cancelled review has changed nothing.
void frmSingle::Method() {
    KVOGlobal& globals = Globals();
    globals.PropertyComment = txtComment.Text();
    const std::string before = ChoiceInForce();
    ui::Forms::Current().Get("frmProperty").ShowModal();
    if (ChoiceInForce() == before) return;
    {
        const ui::FillingScope filling(*this);
        txtComment.Text(globals.PropertyComment);
        ShowProperty();
    }
    Touch();
}

void frmSingle::Touch() {
    if (Filling) return;
    stored_ = false;
    cmdAccept.Caption(editing_ ? "Accept" : "Next");
}

} // namespace vexora
