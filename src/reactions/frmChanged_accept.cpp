#include "chem/MethodTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/CodeLists.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "entry/ValueQuestions.h"
#include "globals/KVOGlobal.h"
#include "reactions/frmChanged.h"
#include "records/LineWriter.h"
#include "records/clsC.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr int Count = clsQ::MostParticipants;

/// The registry number of a name, as the source has it, else the reference database; "" for an
/// unknown one.
std::string NumberOfName(std::string_view name) {
    for (const auto& compound : Globals().CurrentR->recL)
        if (EqualNoCase(compound->Name, name)) return compound->RN;
    const Recordset rows =
        Globals().CompoundDb().Query("select RN from ALLNAME where NAME=? order by rowid", {name});
    return rows.IsEnd() ? std::string() : std::to_string(rows.Integer("RN"));
}

/// The code of the chosen entry, "" for the first one, which says that there is none.
std::string CodeBehindNone(const ui::ComboBox& list, CodeTexts table) {
    return list.Index() > 0 ? CodeChosen(list, table) : std::string();
}

} // namespace

void frmChanged::Accept() {
    if (stored_) {
        Close();
        return;
    }
    if (!Check()) return;
    Store();
    offer_.Keep();
    if (record_) {
        Close();
        return;
    }
    const ui::FillingScope filling(*this);
    txtValue.Text("");
    statement_ = clsX(); // it was of the value that has been stored
    offer_.Show();
    SetSet();
    cmdAccept.Caption("Done");
    stored_ = true;
    txtValue.SetFocus();
}

bool frmChanged::Check() {
    const KVOGlobal& globals = Globals();
    if (globals.PropertyCode.empty() || !globals.CurrentProperty)
        return Refuse(cmdMethod, "Please review the property selection");
    CopyStates();
    if (!CheckPhases() || !CheckSolvent()) return false;
    for (const StateField& field : states_)
        if (!CheckState(field)) return false;
    if (!CheckNumber() || !CheckSolventPhase() || !CheckSamples()) return false;
    for (int i = 1; i <= Count; ++i)
        if (!CheckComposition(i)) return false;
    return CheckValue();
}

bool frmChanged::CheckPhases() {
    for (int i = 1; i <= Count; ++i)
        if (IsUsed(i) && PhaseChosen(cboPhase(i - 1)).empty())
            return Refuse(cboPhase(i - 1),
                          "Select phase for " + std::to_string(i) + " participant");
    return true;
}

/// A solution has a solvent; the reaction learns of it when the value is stored.
bool frmChanged::CheckSolvent() {
    if (!solvent_.empty()) return true;
    for (int i = 1; i <= Count; ++i)
        if (IsDissolved(i)) return AskForSolvent(cboPhase(i - 1));
    return true;
}

bool frmChanged::AskForSolvent(ui::Control& field) {
    const auto answer = ui::TheDesktop().Ask({"Please enter solvent:", {}, "water"});
    const std::string name(Trim(answer.value_or("")));
    if (name.empty()) {
        field.SetFocus();
        return false;
    }
    clsQ dissolved;
    dissolved.TakeDefinition(*reaction_);
    dissolved.SOLVENTRN = NumberOfName(name);
    if (dissolved.SOLVENTRN.empty())
        return Refuse(field, "No compound of the name \"" + name + "\" is known");
    // The solvent tells reactions apart.
    if (Globals().CurrentR->FindQ(dissolved))
        return Refuse(field, "This reaction has already been entered");
    solvent_ = dissolved.SOLVENTRN;
    ShowSolvent();
    return true;
}

bool frmChanged::CheckState(const StateField& field) {
    ui::TextBox& box = field.box;
    box.Text(NormalizeNumber(box.Text()));
    if (box.IsEmpty()) return Refuse(box, "Enter " + field.name);
    const double value = Val(box.Text());
    const bool isPossible = field.isTemperature ? value > 0 : value >= 0;
    return (IsNumeric(box.Text()) && isPossible) || Refuse(box, "Invalid " + field.name);
}

bool frmChanged::CheckNumber() {
    txtValue.Text(NormalizeNumber(txtValue.Text()));
    return IsNumeric(txtValue.Text()) || Refuse(txtValue, "Invalid property value");
}

bool frmChanged::CheckSolventPhase() {
    return !HasSolution() || !PhaseChosen(cboSolventPhase).empty() ||
           Refuse(cboSolventPhase, "Select the solvent phase");
}

/// A number that the document does not have counts for what it is while nobody chooses another.
bool frmChanged::CheckSamples() {
    clsC draft;
    StoreParticipants(draft);
    for (int i = 1; i <= Count; ++i)
        if (!draft.SMPNM(i).empty()) return true;
    int first = 1;
    while (first < Count && !IsUsed(first))
        ++first;
    return Refuse(cboSample(first - 1),
                  "No samples specified\nAt least one participant must have a sample number");
}

bool frmChanged::CheckComposition(int i) {
    ui::TextBox& box = txtComposition(i - 1);
    if (!IsUsed(i)) return true;
    box.Text(NormalizeNumber(box.Text()));
    const std::string kind = CodeBehindNone(cboComposition(i - 1), ParticipantCompositions);
    const bool asRead =
        record_ && record_->COMPOSITION(i) == kind && record_->COMPOSITION_VALUE(i) == box.Text();
    if (asRead || (kind.empty() && box.IsEmpty())) return true;
    const std::string ofParticipant = " composition of participant " + std::to_string(i);
    if (kind.empty()) return Refuse(cboComposition(i - 1), "Select the kind of" + ofParticipant);
    if (box.IsEmpty()) return Refuse(box, "Enter the" + ofParticipant);
    return (IsNumeric(box.Text()) && Val(box.Text()) > 0) || Refuse(box, "Invalid" + ofParticipant);
}

/// A value whose unit cannot be converted is never stored.
bool frmChanged::CheckValue() {
    clsProperty& head = *Globals().CurrentProperty;
    const bool asRead = record_ && record_->MassOf() == massOf_;
    if (AsksForMassOf() && massOf_.empty() && !asRead)
        return Refuse(cboMassOf, "Select the participant by whose mass the value goes");
    if (const std::string fault = UnitFault(head); !fault.empty()) return Refuse(cboUnit, fault);
    head.Text = txtValue.Text();
    bool ok = true;
    head.Convert(ok, Globals().CurrentMethod->MMass, ConfirmInBox);
    return ok || Refuse(txtValue, "Invalid property value");
}

void frmChanged::Store() {
    KVOGlobal& globals = Globals();
    const auto record = record_ ? record_ : std::make_shared<clsC>();
    StoreSolvent();
    StoreParticipants(*record);
    StoreValue(*record);
    StoreStatement(*record);
    FillHeader(record->Header, !record_,
               BuildComment(txtComment.Text(), *globals.CurrentProperty, {}));
    if (record_)
        record->Rekey();
    else
        record->AttachTo(*reaction_);
    globals.CurrentC = record;
    globals.Saved = false;
    globals.DialogAccepted = true;
    NoteAccepted();
}

void frmChanged::StoreSolvent() {
    if (solvent_ == reaction_->SOLVENTRN) return;
    clsR& source = *Globals().CurrentR;
    if (!source.FindL(solvent_)) {
        const auto compound = std::make_shared<clsL>();
        compound->RN = solvent_;
        compound->TakeKnownIdentity();
        compound->AttachTo(source);
    }
    reaction_->SOLVENTRN = solvent_;
    reaction_->Rekey();
    reaction_->Refresh();
}

/// A stored value keeps its coefficients, which may be others than those of the reaction now, and
/// the number of a sample as the file has it.
void frmChanged::StoreParticipants(clsC& record) const {
    for (int i = 1; i <= Count; ++i) {
        const int n = i - 1;
        if (!IsUsed(i)) continue;
        if (!record_) record.PARTICIPANT_COEFF(i, reaction_->Coeff(i));
        record.PARTICIPANT_PHASE(i, PhaseChosen(cboPhase(n)));
        const auto sample = samples_[static_cast<std::size_t>(n)].Chosen();
        const std::string before = record_ ? record_->SMPNM(i) : std::string();
        const auto participant = reaction_->Participant(i);
        const auto known = participant
                               ? participant->FindSample(static_cast<int>(ToInteger(Val(before))))
                               : nullptr;
        record.SMPNM(i, known == sample ? before : sample ? sample->SMPNM : std::string());
        record.COMPOSITION(i, CodeBehindNone(cboComposition(n), ParticipantCompositions));
        record.COMPOSITION_VALUE(i, txtComposition(n).Text());
    }
}

void frmChanged::StoreValue(clsC& record) const {
    StoreUnit(record);
    record.PRPSETNO = txtPrpSetNo.Text();
    record.SOLVENT_PHASE = PhaseChosen(cboSolventPhase);
    record.STANDARD_STATE = CodeBehindNone(cboStandardState, StandardStates);
    record.INITIAL_TEMPERATURE = txtInitialT.Text();
    record.INITIAL_PRESSURE = txtInitialP.Text();
    record.FINAL_TEMPERATURE = txtFinalT.Text();
    record.FINAL_PRESSURE = txtFinalP.Text();
    record.PRPVALUE = txtValue.Text();
}

void frmChanged::StoreUnit(clsC& record) const {
    const StoredProperty property = PropertyToStore();
    record.PRPCODE = row_.Code;
    record.isOriginalUnit = property.isOriginalUnit;
    record.Factor = property.factor;
    record.PROPERTY_UNIT = property.unit;
    // What a file says of another unit stays as it is.
    const bool isKept = record_ && record_->UnitCode() == property.unit;
    if (AsksForMassOf() || isKept) record.MassOf(massOf_);
}

/// What is stated goes with its quantity, which the item names besides.
void frmChanged::StoreStatement(clsC& record) const {
    clsX item = statement_;
    item.N = 0;
    item.PRPCODE = row_.Code;
    if (item.PHASE.empty()) item.PHASE = "&";
    record.Statements(0, item);
}

} // namespace vexora
