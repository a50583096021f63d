#include "pure/frmSingle.h"

#include <span>

#include "chem/CommentTags.h"
#include "chem/MethodTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/EditStatements.h"
#include "entry/PhaseLists.h"
#include "entry/PhaseRules.h"
#include "entry/PropertyContext.h"
#include "entry/ValueQuestions.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/PropertyChain.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"
#include "ui/Forms.h"

namespace vexora {

frmSingle::frmSingle() : ChainForm("frmSingle", "Single value") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdFinish, [this] { Accept(); });
    HelpContext = 325;
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
                          Field("Uncertainty:", Row({lblStated, cmdLastUnc, Stretch()})),
                          Group(frmConstraint, {Row({optPB, optFP})}),
                          Field("Comment to this record:", txtComment),
                          ButtonRow({cmdMethod, cmdUnc, cmdCheck, cmdAccept, cmdFinish})});
    PreferredColumns = 90;
}

void frmSingle::WireEvents() {
    lstPhase1.OnClick = [this] { Phase1Click(); };
    for (ui::ItemList* list : {&lstPhase2, &lstPhase3, &lstVariable_Unit})
        list->OnClick = [this] { Touch(); };
    for (ui::TextBox* box : {&txtIndVariable, &txtValue, &txtComment})
        box->OnChange = [this] { Touch(); };
    for (ui::OptionButton* option : {&optPB, &optFP})
        option->OnClick = [this] { Touch(); };
    cmdMethod.OnClick = [this] { Method(); };
    cmdUnc.OnClick = [this] { Uncertainty(); };
    cmdCheck.OnClick = [this] { CheckAverage(); };
}

void frmSingle::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    editing_ = globals.EditSingle && globals.CurrentZ != nullptr;
    if (!globals.CurrentMethod) globals.CurrentMethod = std::make_shared<clsMethod>();
    const ui::FillingScope filling(*this);
    if (editing_) TakeRecord(*globals.CurrentZ);
    choice_.Fill(editing_);
    UseSample();
    ShowProperty();
    if (editing_)
        ShowRecord(*globals.CurrentZ);
    else
        txtComment.Text(globals.PropertyComment);
    cmdUnc.Enabled(ui::Forms::Current().Knows("frmUnc"));
    cmdMethod.Enabled(ui::Forms::Current().Knows("frmProperty"));
    cmdCheck.Enabled(CanAverage());
    if (editing_) cmdAccept.Caption("Accept");
    offer_.Show();
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
    std::vector<clsX> items = Statements();
    const bool inSystemUnits = editing_ && globals.CurrentZ->commentInSystemUnits;
    if (EditStatementsOfValue(items, "RLSZ", inSystemUnits)) TakeStatements(items);
}

/// The statements as they stand, with the names and units of their quantities.
std::vector<clsX> frmSingle::Statements() const {
    const auto& head = Globals().CurrentProperty;
    if (!head) return {};
    clsZ named;
    named.nVar = Globals().VariableCount;
    named.PRPCODE = row_.Code;
    named.PROPERTY_UNIT = head->ConversionCode;
    named.Factor = head->Factor;
    if (IsFixed() && head->NextItem) named.VARIABLE_UNIT = UnitOfVariable();
    StoreStatements(named);
    return NamedStatements(named);
}

void frmSingle::TakeStatements(const std::vector<clsX>& items) {
    std::ranges::copy(items, statements_.begin());
    Touch();
}

void frmSingle::CheckAverage() {
    if (average_.Ask(statements_[0])) Touch();
}

void frmSingle::Touch() {
    if (Filling) return;
    stored_ = false;
    cmdAccept.Caption(editing_ ? "Accept" : "Next");
    offer_.Show();
}

void frmSingle::UseSample() {
    choice_.PutInContext(editing_ ? Globals().CurrentZ->FallbackMolarMass : 0);
    if (!editing_) ProposeSetNumber();
    Touch();
}

/// Brings the form in line with the property in force.
void frmSingle::ShowProperty() {
    row_ = PropertyInForce();
    Caption((editing_ ? "Edit: " : "") + row_.Property +
            (IsFixed() ? " at fixed conditions" : " as single valued property"));
    ShowVariable();
    ShowPhases();
    value_.ShowUnit();
    const std::string& code = row_.Code;
    frmConstraint.Visible(code == "PV" || code == "TB" || code == "HVP");
    ProposeSetNumber();
}

/// The variable is the last item of the property chain; it is the one that the property fixes.
void frmSingle::ShowVariable() {
    const KVOGlobal& globals = Globals();
    frmIndVar.Visible(IsFixed());
    variable_ = IsFixed() ? IndVarFixed(row_.Code) : std::string();
    if (!IsFixed() || !globals.CurrentProperty) return;
    const VariableRow* found = FindVariable(variable_);
    const VariableRow row = found ? *found : VariableRow();
    variableUnit_ = row.Unit;
    frmIndVar.Caption("Independent variable: " + row.IndVariable);
    const std::string chosen = lstVariable_Unit.Chosen();
    lstVariable_Unit.Assign(globals.OriginalUnits ? UnitList(row.Unit, variable_)
                                                  : FixedUnitList(row.Unit));
    lstVariable_Unit.Index(lstVariable_Unit.Count() == 1 ? 0 : lstVariable_Unit.Find(chosen));
    clsProperty& head = *globals.CurrentProperty;
    if (!head.isLast && head.NextItem && head.NextItem->PropertyCode == variable_) return;
    head.NextItem = std::make_shared<clsProperty>();
    head.NextItem->PropertyCode = variable_;
    head.NextItem->Relation = "A";
    head.NextItem->Name = row.Unit == "1" ? row.IndVariable : row.IndVariable + ", " + row.Unit;
    head.isLast = false;
}

void frmSingle::ShowPhases() {
    const int count = Globals().VariableCount;
    const std::string& context = Globals().DataContext;
    const ui::FillingScope filling(*this);
    const PhaseOffer offer = OfferPhases(row_.Code, count, PhaseChosen(lstPhase1), context);
    FillPhaseList(lstPhase1, OfferPhases(row_.Code, count, {}, context).Phase1);
    FillPhaseList(lstPhase2, offer.Phase2);
    FillPhaseList(lstPhase3, offer.Phase3);
}

/// The number of a record that keeps its property does not change.
void frmSingle::ProposeSetNumber() {
    const KVOGlobal& globals = Globals();
    const auto sample = choice_.Sample();
    if (!sample || row_.Code.empty()) {
        txtPrpSetNo.Text("");
    } else if (editing_ && globals.CurrentZ->PRPCODE == row_.Code) {
        txtPrpSetNo.Text(globals.CurrentZ->PRPSETNO);
    } else {
        txtPrpSetNo.Text(std::to_string(sample->NextSetNumber(row_.Code, globals.VariableCount)));
    }
}

/// Puts what a record holds into the context, as if the property had just been chosen.
void frmSingle::TakeRecord(const clsZ& record) {
    TakeProperty(
        {record.PRPCODE, record.PROPERTY_UNIT, record.Factor, record.isOriginalUnit, record.nVar},
        record.Header);
    clsProperty& head = *Globals().CurrentProperty;
    head.Text = record.PRPVALUE;
    head.Value = Val(record.PRPVALUE);
}

/// A state that the form does not ask for stays among the tags.
void frmSingle::ShowComment(const clsZ& record) {
    CommentTags tags(record.Header.DATACOMMENT);
    const std::string state = frmConstraint.Visible() || AsksForSurface() ? tags.TakeState() : "";
    optPB.Value(state == "PB");
    optFP.Value(state == "FP");
    txtComment.Text(TakeComment(tags.Stored()));
}

void frmSingle::ShowRecord(const clsZ& record) {
    statements_ = {record.Statements(0), record.Statements(1)};
    ShowComment(record);
    ChoosePhase(lstPhase1, record.PHASE1);
    ShowPhases();
    ChoosePhase(lstPhase2, record.PhaseBeside());
    ChoosePhase(lstPhase3, record.PHASE3);
    txtIndVariable.Text(record.INDVARIABLE);
    if (IsSystemUnit(CodeInField(record.VARIABLE_UNIT, variableUnit_))) {
        lstVariable_Unit.Index(0);
    } else if (record.isOriginalUnit) {
        lstVariable_Unit.Choose(UnitText(variableUnit_, record.VARIABLE_UNIT, 0));
    }
    txtValue.Text(record.PRPVALUE);
}

bool frmSingle::AsksForSurface() const {
    return IsFixed() && lstPhase2.Enabled();
}

bool frmSingle::IsFixed() const {
    return Globals().VariableCount == 1;
}

void frmSingle::Accept() {
    if (stored_) {
        Close();
        return;
    }
    if (!Check()) return;
    Store();
    KeepStatements();
    if (editing_) {
        Close();
        return;
    }
    const ui::FillingScope filling(*this);
    txtValue.Text("");
    statements_ = {}; // they were of the value that has been stored
    offer_.Show();
    ProposeSetNumber();
    cmdAccept.Caption("Done");
    stored_ = true;
    txtValue.SetFocus();
}

bool frmSingle::Check() {
    const KVOGlobal& globals = Globals();
    if (globals.PropertyCode.empty() || !globals.CurrentProperty)
        return Refuse(cmdMethod, "Please review the property selection");
    if (!choice_.Sample()) return Refuse(cboSample, "Select the sample");
    return CheckPhases() && CheckVariable() && value_.Check();
}

bool frmSingle::CheckPhases() {
    for (ui::ComboBox* list : {&lstPhase1, &lstPhase2, &lstPhase3}) {
        // A file may leave open what a surface lies against.
        if (list == &lstPhase2 && editing_ && AsksForSurface()) continue;
        if (list->Enabled() && list->Index() < 0)
            return Refuse(*list, "Select the phase", "Phase of the substance");
    }
    return true;
}

bool frmSingle::CheckVariable() {
    if (!IsFixed()) return true;
    txtIndVariable.Text(NormalizeNumber(txtIndVariable.Text()));
    if (!IsNumeric(txtIndVariable.Text()))
        return Refuse(txtIndVariable, "Enter the value of independent variable");
    if (lstVariable_Unit.Index() < 0)
        return Refuse(lstVariable_Unit, "Select units for the independent variable");
    TakeTexts();
    bool ok = true;
    Globals().CurrentProperty->NextItem->Convert(ok, 0, ConfirmInBox);
    if (!ok) txtIndVariable.SetFocus();
    return ok;
}

void frmSingle::Store() {
    KVOGlobal& globals = Globals();
    const auto record = editing_ ? globals.CurrentZ : std::make_shared<clsZ>();
    StoreValues(*record);
    StoreStatements(*record);
    StoreHeader(*record);
    if (editing_)
        record->Rekey();
    else
        record->AttachTo(*choice_.Sample());
    globals.CurrentZ = record;
    globals.Saved = false;
    globals.DialogAccepted = true;
    NoteAccepted();
}

void frmSingle::StoreHeader(clsZ& record) const {
    FillHeader(record.Header, !editing_,
               BuildComment(txtComment.Text(), *Globals().CurrentProperty, StateTag()));
}

/// The line of a value at a fixed variable has no second phase: a tag tells it.
std::string frmSingle::StateTag() const {
    const std::string beside = AsksForSurface() ? PhaseChosen(lstPhase2) : "";
    const bool asked = frmConstraint.Visible();
    if (beside == "air" || (asked && optFP.Value())) return "FP";
    if (beside == "G" || (asked && optPB.Value())) return "PB";
    return {};
}

void frmSingle::StoreValues(clsZ& record) const {
    const StoredProperty property = PropertyToStore();
    record.nVar = property.nVar;
    record.SMPNM = choice_.Sample()->SMPNM;
    record.PRPCODE = row_.Code;
    record.PRPSETNO = txtPrpSetNo.Text();
    record.isOriginalUnit = property.isOriginalUnit;
    record.Factor = property.factor;
    record.PROPERTY_UNIT = property.unit;
    record.PHASE1 = OrPlaceholder(PhaseChosen(lstPhase1));
    record.PHASE2 = IsFixed() ? "&" : OrPlaceholder(PhaseChosen(lstPhase2));
    record.PHASE3 = IsFixed() ? "&" : OrPlaceholder(PhaseChosen(lstPhase3));
    if (row_.Code == "TBN") record.PHASE3 = "&";
    if (row_.Code == "TMN") record.PHASE3 = "air";
    record.PRPVALUE = txtValue.Text();
    if (!IsFixed()) return;
    record.INDVARIABLE = txtIndVariable.Text();
    if (property.isOriginalUnit || record.VARIABLE_UNIT.empty())
        record.VARIABLE_UNIT = Globals().CurrentProperty->NextItem->ConversionCode;
}

/// What is stated goes with its quantity, which the item names besides.
void frmSingle::StoreStatements(clsZ& record) const {
    for (int n = 0; n <= Globals().VariableCount; ++n) {
        clsX item = statements_[static_cast<std::size_t>(n)];
        item.N = n;
        item.PRPCODE = n == 0 ? row_.Code : variable_;
        item.PHASE = OrPlaceholder(PhaseChosen(lstPhase1));
        record.Statements(n, item);
    }
}

/// The chain as the form stands.
void frmSingle::TakeTexts() {
    value_.TakeText();
    const clsProperty& head = *Globals().CurrentProperty;
    if (!IsFixed() || !head.NextItem) return;
    clsProperty& item = *head.NextItem;
    item.Text = NormalizeNumber(txtIndVariable.Text());
    item.ConversionCode = UnitOfVariable();
}

std::string frmSingle::UnitOfVariable() const {
    return Globals().OriginalUnits ? ConversionCodeOf(lstVariable_Unit.Chosen(), variableUnit_)
                                   : "S";
}

/// The scatter of an average is of that value alone.
void frmSingle::KeepStatements() const {
    std::vector<clsX> items = Statements();
    if (!items.empty()) average_.TakeOut(items.front());
    StatementOffer::Keep(items);
}

} // namespace vexora
