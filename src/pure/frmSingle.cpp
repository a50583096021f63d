#include "pure/frmSingle.h"

#include <span>

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/EditStatements.h"
#include "entry/PropertyContext.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/PropertyChain.h"
#include "records/clsZ.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int HelpSingle = 325;

} // namespace

frmSingle::frmSingle() : Form("frmSingle", "Single value") {
    ArrangeControls();
    WireEvents();
    DefaultButton = &cmdAccept;
    CancelButton = &cmdFinish;
    HelpContext = HelpSingle;
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
                          ButtonRow({cmdMethod, cmdUnc, cmdCheck, cmdAccept, cmdFinish})});
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
    cmdUnc.OnClick = [this] { Uncertainty(); };
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
    choice_.Fill();
    if (editing_) choice_.Lock();
    UseSample();
    ShowProperty();
    if (editing_)
        ShowRecord(*globals.CurrentZ);
    else
        txtComment.Text(globals.PropertyComment);
    cmdUnc.Enabled(ui::Forms::Current().Knows("frmUnc"));
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
    choice_.FillSamples();
    UseSample();
    Touch();
}

void frmSingle::SampleClick() {
    if (Filling) return;
    choice_.SampleClick();
    UseSample();
    Touch();
}

void frmSingle::Phase1Click() {
    ShowPhases();
    Touch();
}

/// Lets property and method be reviewed; a cancelled review has changed nothing.
void frmSingle::Method() {
    const std::string property = row_.Code;
    const std::string variable = variable_;
    if (!ReviewProperty(txtComment)) return;
    {
        const ui::FillingScope filling(*this);
        ShowProperty();
    }
    // What was stated about another quantity is not true of this one.
    if (row_.Code != property) statements_[0] = clsX();
    if (variable_ != variable) statements_[1] = clsX();
    Touch();
}

/// Statements about the value in hand; they go with it when it is stored.
void frmSingle::Uncertainty() {
    const KVOGlobal& globals = Globals();
    if (!globals.CurrentProperty) return;
    TakeTexts();
    clsZ named;
    named.nVar = globals.VariableCount;
    named.PRPCODE = row_.Code;
    named.PROPERTY_UNIT = globals.CurrentProperty->ConversionCode;
    named.Factor = globals.CurrentProperty->Factor;
    if (IsFixed()) named.VARIABLE_UNIT = globals.CurrentProperty->NextItem->ConversionCode;
    StoreStatements(named);
    std::vector<clsX> items = NamedStatements(named);
    const bool inSystemUnits = editing_ && globals.CurrentZ->commentInSystemUnits;
    if (!EditStatementsOfValue(items, "RLSZ", inSystemUnits)) return;
    std::ranges::copy(items, statements_.begin());
    Touch();
}

void frmSingle::Touch() {
    if (Filling) return;
    stored_ = false;
    cmdAccept.Caption(editing_ ? "Accept" : "Next");
}

} // namespace vexora
