#include "pure/frmSingle.h"

#include "chem/MethodTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "entry/ValueQuestions.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"

namespace vexora {

void frmSingle::Accept() {
    if (stored_) {
        Close();
        return;
    }
    if (!Check()) return;
    Store();
    if (editing_) {
        Close();
        return;
    }
    const ui::FillingScope filling(*this);
    txtValue.Text("");
    statements_ = {}; // they were of the value that has been stored
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
}

void frmSingle::StoreHeader(clsZ& record) const {
    const bool asked = frmConstraint.Visible();
    const std::string state = asked && optFP.Value() ? "FP" : asked && optPB.Value() ? "PB" : "";
    FillHeader(record.Header, !editing_,
               BuildComment(txtComment.Text(), *Globals().CurrentProperty, state));
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
    item.ConversionCode =
        Globals().OriginalUnits ? ConversionCodeOf(lstVariable_Unit.Chosen(), variableUnit_) : "S";
}

} // namespace vexora
