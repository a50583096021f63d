#include "chem/CommentTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/CodeLists.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "reactions/frmChanged.h"
#include "records/clsC.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr int Count = clsQ::MostParticipants;
const std::vector<std::string> Solutions = {"S", "S1", "S2"};

std::vector<std::string> PhaseCodes() {
    std::vector<std::string> codes;
    for (const std::string& name : PhaseList("React"))
        codes.push_back(PhaseCode(name));
    codes.insert(codes.end(), Solutions.begin(), Solutions.end());
    return codes;
}

/// A list of codes behind an entry that says there is none.
void FillCodes(ui::ComboBox& list, CodeTexts table, const char* none) {
    std::vector<std::string> texts = Texts(table);
    texts.insert(texts.begin(), none);
    list.Assign(std::move(texts));
    list.Index(0);
}

int NumberOf(std::string_view text) {
    return static_cast<int>(ToInteger(Val(text)));
}

} // namespace

void frmChanged::FillReaction() {
    for (int i = 1; i <= Count; ++i) {
        FillRow(i);
        if (IsUsed(i)) cboMassOf.Add(reaction_->Name(i));
        if (IsUsed(i)) FillSample(i, reaction_->SMPNM(i));
    }
    FillPromptedPhaseList(cboSolventPhase, PhaseCodes());
    FillCodes(cboStandardState, StandardStates, "Not stated");
    solvent_ = reaction_->SOLVENTRN;
    ShowSolvent();
}

void frmChanged::FillRow(int i) {
    const int n = i - 1;
    for (ui::Control* control : std::initializer_list<ui::Control*>{
             &lblPart(n), &cboPhase(n), &cboSample(n), &cboComposition(n), &txtComposition(n)})
        control->Visible(IsUsed(i));
    // A file may give a value other coefficients than its reaction.
    const std::string own = record_ ? record_->PARTICIPANT_COEFF(i) : std::string();
    lblPart(n).Caption((own.empty() ? reaction_->Coeff(i) : own) + " " + reaction_->Name(i) + ":");
    FillPromptedPhaseList(cboPhase(n), PhaseCodes());
    FillCodes(cboComposition(n), ParticipantCompositions, "No composition");
}

/// A sample that the document does not have is not replaced in silence.
void frmChanged::FillSample(int i, const std::string& number) {
    SampleList& list = samples_[static_cast<std::size_t>(i - 1)];
    const auto participant = reaction_->Participant(i);
    list.Fill(participant);
    list.ChooseNone();
    if (participant) list.Choose(participant->FindSample(NumberOf(number)).get());
}

/// Brings the form in line with the property in force.
void frmChanged::FillProperty() {
    row_ = PropertyInForce();
    Caption((record_ ? "Edit: " : "") + row_.Property);
    FillUnits();
    SetSet();
}

void frmChanged::FillUnits() {
    const KVOGlobal& globals = Globals();
    unit_ = {globals.PropertyText, globals.PropertyUnit, globals.CurrentMethod->Factor};
    cboUnit.Assign(globals.OriginalUnits ? UnitList(row_.Unit, row_.Code)
                                         : FixedUnitList(row_.Unit));
    if (cboUnit.Find(unit_.text) < 0) cboUnit.Add(unit_.text);
    cboUnit.Choose(unit_.text);
    UseUnit();
}

/// A unit by mass needs the participant whose mass is meant.
void frmChanged::UseUnit() {
    const bool asks = AsksForMassOf();
    lblMassOf.Visible(asks);
    cboMassOf.Visible(asks);
    // Where a file does not say it, the first participant is meant.
    int place = massOf_.empty() && record_ ? 1 : reaction_->PlaceOf(massOf_);
    while (massOf_.empty() && record_ && place < Count && !IsUsed(place))
        ++place;
    Globals().CurrentMethod->MMass = reaction_->MolarMass(place);
}

bool frmChanged::AsksForMassOf() const {
    const KVOGlobal& globals = Globals();
    return globals.OriginalUnits && globals.CurrentMethod->Factor <= 0 &&
           IsMassBased(globals.PropertyUnit);
}

/// Only a solution has a composition and a solvent; what a file states besides stays open.
void frmChanged::UsePhases() {
    for (int i = 1; i <= Count; ++i) {
        const int n = i - 1;
        const bool asks =
            IsDissolved(i) || cboComposition(n).Index() > 0 || !txtComposition(n).IsEmpty();
        cboComposition(n).Enabled(asks);
        txtComposition(n).Enabled(asks);
    }
    cboSolventPhase.Enabled(HasSolution() || cboSolventPhase.Index() > 0);
}

bool frmChanged::IsDissolved(int i) const {
    return IsUsed(i) && std::ranges::count(Solutions, PhaseChosen(cboPhase(i - 1))) > 0;
}

bool frmChanged::HasSolution() const {
    for (int i = 1; i <= Count; ++i)
        if (IsDissolved(i)) return true;
    return false;
}

void frmChanged::ShowSolvent() {
    const std::string name = NameOfRN(solvent_);
    lblSolvent.Caption(solvent_.empty() ? "" : "Solvent: " + (name.empty() ? solvent_ : name));
}

/// The number of a record that keeps its property does not change.
void frmChanged::SetSet() {
    if (record_ && record_->PRPCODE == row_.Code) {
        txtPrpSetNo.Text(record_->PRPSETNO);
        return;
    }
    clsC draft;
    draft.PRPCODE = row_.Code;
    txtPrpSetNo.Text(row_.Code.empty() ? "" : std::to_string(NextSetNumber(*reaction_, draft)));
}

/// Puts what a record holds into the context, as if the property had just been chosen.
void frmChanged::TakeRecord(const clsC& record) const {
    TakeProperty({record.PRPCODE, record.UnitCode(), record.Factor, record.isOriginalUnit, 0},
                 record.Header);
    clsProperty& head = *Globals().CurrentProperty;
    head.Text = record.PRPVALUE;
    head.Value = Val(record.PRPVALUE);
}

void frmChanged::Fill(const clsC& record) {
    statement_ = record.Statements(0);
    txtComment.Text(TakeComment(record.Header.DATACOMMENT));
    for (int i = 1; i <= Count; ++i) {
        const int n = i - 1;
        ChoosePhase(cboPhase(n), record.PARTICIPANT_PHASE(i));
        if (IsUsed(i)) FillSample(i, record.SMPNM(i));
        const std::string& kind = record.COMPOSITION(i);
        if (!IsBlankField(kind)) ChooseCode(cboComposition(n), ParticipantCompositions, kind);
        txtComposition(n).Text(record.COMPOSITION_VALUE(i));
    }
    ChoosePhase(cboSolventPhase, record.SOLVENT_PHASE);
    if (!IsBlankField(record.STANDARD_STATE))
        ChooseCode(cboStandardState, StandardStates, record.STANDARD_STATE);
    txtInitialT.Text(record.INITIAL_TEMPERATURE);
    txtInitialP.Text(record.INITIAL_PRESSURE);
    txtFinalT.Text(record.FINAL_TEMPERATURE);
    txtFinalP.Text(record.FINAL_PRESSURE);
    txtValue.Text(record.PRPVALUE);
    massOf_ = record.MassOf();
    int place = 0;
    for (int i = 1; i <= Count; ++i) {
        if (!IsUsed(i)) continue;
        if (reaction_->RN(i) == massOf_ && cboMassOf.Index() < 0) cboMassOf.Index(place);
        ++place;
    }
    UseUnit();
}

} // namespace vexora
