#include "pure/frmSingle.h"

#include "chem/CommentTags.h"
#include "chem/clsProperty.h"
#include "entry/PhaseLists.h"
#include "entry/PhaseRules.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

void frmSingle::UseSample() {
    choice_.PutInContext(editing_ ? Globals().CurrentZ->FallbackMolarMass : 0);
    if (!editing_) ProposeSetNumber();
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
    lstVariable_Unit.Assign(globals.OriginalUnits ? UnitList(row.Unit) : FixedUnitList(row.Unit));
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
    CommentTags tags = CommentTags::OfTags(record.Header.DATACOMMENT);
    const std::string state = frmConstraint.Visible() ? tags.TakeState() : "";
    optPB.Value(state == "PB");
    optFP.Value(state == "FP");
    txtComment.Text(TakeComment(tags.Stored()));
}

void frmSingle::ShowRecord(const clsZ& record) {
    statements_ = {record.Statements(0), record.Statements(1)};
    ShowComment(record);
    ChoosePhase(lstPhase1, record.PHASE1);
    ShowPhases();
    if (record.nVar == 0) {
        ChoosePhase(lstPhase2, record.PHASE2);
        ChoosePhase(lstPhase3, record.PHASE3);
    }
    txtIndVariable.Text(record.INDVARIABLE);
    if (IsSystemUnit(record.VARIABLE_UNIT)) {
        lstVariable_Unit.Index(0);
    } else if (record.isOriginalUnit) {
        std::string code = record.VARIABLE_UNIT;
        lstVariable_Unit.Choose(ConversionText(code, variableUnit_));
    }
    txtValue.Text(record.PRPVALUE);
}

bool frmSingle::IsFixed() const {
    return Globals().VariableCount == 1;
}

} // namespace vexora
