// What stands on the form: a stored set shown, and what the controls say.
#include "chem/PrintedFormula.h"
#include "chem/clsMethod.h"
#include "entry/CodeLists.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "reactions/frmEquil.h"
#include "records/Presentation.h"
#include "records/PropertyChain.h"
#include "records/ReactionText.h"
#include "records/clsL.h"
#include "records/clsQ.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr const char* NoPhase = "Nothing";
const std::vector<std::string> Solutions = {"S", "S1", "S2"};

int NumberOf(std::string_view text) {
    return static_cast<int>(ToInteger(Val(text)));
}

std::string WithoutBlank(const std::string& field) {
    return IsBlankField(field) ? std::string() : field;
}

std::string PhaseIn(const ui::ComboBox& list) {
    return list.Chosen() == NoPhase ? std::string() : PhaseChosen(list);
}

/// The row of a variable; those of the participants share one.
const VariableRow* RowOf(const std::string& code) {
    return code.empty() ? nullptr : FindVariable(ParticipantCodeOf(code).code);
}

/// Other entries, of which the chosen one stays chosen as long as it is among them.
void Reassign(ui::ComboBox& list, std::vector<std::string> entries) {
    const std::string chosen = list.Chosen();
    if (entries == list.Items()) return;
    list.Assign(std::move(entries));
    if (!chosen.empty()) list.Choose(chosen);
}

} // namespace

void frmEquil::FillReaction() {
    lblReaction.Caption(reaction_->ShowKey());
    for (int i = 1; i <= Participants; ++i)
        FillParticipant(i);
}

/// Phases name the participants by these numbers and by their formulas, for which there is room.
void frmEquil::FillParticipant(int i) {
    const int n = i - 1;
    const std::string number = std::to_string(i) + ":";
    const std::string formula = PrintedFormula(reaction_->Formula(i));
    lblPart(n).Visible(IsUsed(i));
    cboSample(n).Visible(IsUsed(i));
    lblPart(n).Caption(number + " " + Coefficient(i) + " " + reaction_->Name(i) + ", sample #");
    for (int row = 0; row < Places; ++row) {
        ui::CheckBox& box = Part(row, i);
        box.Visible(IsUsed(i));
        box.Caption(number + " " + (formula.empty() ? reaction_->Name(i) : formula));
        box.ToolTip(reaction_->Name(i));
    }
    if (IsUsed(i)) FillSample(i, as_ ? as_->SMPNM(i) : reaction_->SMPNM(i));
}

/// A sample that the document does not have is not replaced in silence.
void frmEquil::FillSample(int i, const std::string& number) {
    SampleList& list = samples_[static_cast<std::size_t>(i - 1)];
    const auto participant = reaction_->Participant(i);
    list.Fill(participant);
    list.ChooseNone();
    if (participant) list.Choose(participant->FindSample(NumberOf(number)).get());
}

/// The lists that no property changes.
void frmEquil::FillLists() {
    const std::vector<std::string> phases = EquilPhases();
    std::vector<std::string> names;
    for (const std::string& code : phases)
        names.push_back(PhaseName(code));
    names.emplace_back(NoPhase);
    for (const auto& list : cboPhase) {
        list->Assign(names);
        list->Choose(NoPhase);
    }
    FillPromptedPhaseList(cboSolventPhase, phases);
    std::vector<std::string> states = Texts(StandardStates);
    states.insert(states.begin(), "Not stated");
    cboStandardState.Assign(std::move(states));
    cboStandardState.Index(0);
    quantities_ = EquilVariables(*reaction_);
    names.clear();
    for (const std::string& code : quantities_)
        names.push_back(ReactionVariableName(reaction_.get(), code));
    names.insert(names.begin(), "None");
    for (const auto& list : cboConst)
        list->Assign(names);
    names.front() = "SELECT VARIABLE";
    for (const auto& list : cboVar) {
        list->FirstIsPrompt = true;
        list->Assign(names);
    }
    for (int row = 0; row < Places; ++row)
        cboConst(row).Index(0);
    for (int row = 0; row < MostVariables; ++row) {
        cboVar(row).Index(0);
        for (ui::Control* control : std::initializer_list<ui::Control*>{
                 &lblVar(row), &cboVar(row), &cboVarUnit(row), &lblSystemUnit(row)})
            control->Visible(row < VariableCount());
    }
    lstNumerical.Assign(Texts(Presentation::Kinds()));
}

int frmEquil::VariableCount() const {
    return std::clamp(Globals().VariableCount, 1, MostVariables);
}

/// Brings the form in line with the property in force; what was chosen for another one stays.
void frmEquil::ShowProperty() {
    row_ = PropertyInForce();
    int first = 1;
    while (first < Participants && !IsUsed(first))
        ++first;
    Globals().CurrentMethod->MMass = reaction_->MolarMass(first);
    ProposeSetNumber();
}

void frmEquil::ShowCaption() {
    std::string variables;
    for (const EquilQuantity& one : Draft().variables) {
        if (one.code.empty()) continue;
        const std::string name = ReactionVariableName(reaction_.get(), one.code);
        variables += (variables.empty() ? "" : ", ") + (name.empty() ? one.code : name);
    }
    if (variables.empty()) variables = "state variables";
    Caption((record_ ? "Edit: " : "") + row_.Property + " as function of " + variables);
}

/// The phase of a solvent is asked for where there is one, or a solution.
void frmEquil::ShowSolvent() {
    const bool hasSolution = std::ranges::any_of(cboPhase, [](const auto& list) {
        return std::ranges::find(Solutions, PhaseIn(*list)) != Solutions.end();
    });
    cboSolventPhase.Enabled(hasSolution || !reaction_->SOLVENTRN.empty() ||
                            cboSolventPhase.Index() > 0);
}

void frmEquil::ShowConstants() {
    for (int row = 0; row < Places; ++row) {
        const std::string code = QuantityOf(cboConst(row));
        const VariableRow* const known = RowOf(code);
        txtConst(row).Enabled(!code.empty());
        lblConstUnit(row).Caption(known && known->Unit != "1" ? known->Unit : "");
    }
}

/// The units of the paper or the system unit alone; one that the form came with stays on offer.
void frmEquil::ShowUnits() {
    const ui::FillingScope filling(*this);
    const bool original = Globals().OriginalUnits;
    for (int row = 0; row < VariableCount(); ++row) {
        const std::string code = QuantityOf(cboVar(row));
        const VariableRow* const known = RowOf(code);
        std::vector<std::string> units;
        if (known)
            units =
                original ? UnitList(known->Unit, known->IndVarCode) : FixedUnitList(known->Unit);
        const bool same = as_ && as_->VARIABLE(row + 1) == code && as_->isOriginalUnit == original;
        const std::string own = same ? UnitShown(*as_, row + 1) : std::string();
        if (!own.empty() && std::ranges::find(units, own) == units.end()) units.push_back(own);
        ui::ComboBox& list = cboVarUnit(row);
        Reassign(list, std::move(units));
        if (list.Count() == 1) list.Index(0);
        const bool hasUnit = known && known->Unit != "1";
        lblSystemUnit(row).Caption(hasUnit ? "System unit: " + known->Unit : "");
    }
}

/// The unit of a variable as the list shows it; what no table knows is shown as its code.
std::string frmEquil::UnitShown(const clsE& record, int n) const {
    const VariableRow* const row = RowOf(record.VARIABLE(n));
    const std::string& code = record.VAR_UNIT(n);
    if (!row) return code;
    return UnitText(row->Unit, record.isOriginalUnit ? code : "S", 0);
}

/// The number of a set that keeps its property does not change; one that is none can be mended.
void frmEquil::ProposeSetNumber() {
    if (record_ && record_->PRPCODE == row_.Code) {
        txtPrpSetNo.Text(record_->PRPSETNO);
        txtPrpSetNo.Locked(IsNumeric(record_->PRPSETNO));
        return;
    }
    clsE draft;
    draft.PRPCODE = row_.Code;
    txtPrpSetNo.Locked(true);
    txtPrpSetNo.Text(row_.Code.empty() ? "" : std::to_string(NextSetNumber(*reaction_, draft)));
}

void frmEquil::Fill(const clsE& record) {
    stated_ = record;
    stated_.recData.Clear();
    if (!record_) {
        for (clsX& item : stated_.UX)
            item.KVOUValue.clear();
    }
    NameStatements(stated_);
    Globals().CurrentProperty = BuildChain(record); // the tags of the comment name its quantities
    txtComment.Text(TakeComment(record.Header.DATACOMMENT));
    FillPhases(record);
    FillQuantities(record);
    FillPresentation(record);
}

void frmEquil::FillPhases(const clsE& record) {
    for (int row = 0; row < Places; ++row) {
        ChoosePhase(cboPhase(row), record.PHASE(row + 1));
        const std::string& digits = record.COMPONENTS_IN_PHASE(row + 1);
        for (int i = 1; i <= Participants; ++i)
            Part(row, i).Value(digits.find(std::to_string(i)) != std::string::npos);
    }
    ChoosePhase(cboSolventPhase, record.SOLVENTPHASE);
    if (!IsBlankField(record.STANDARD_STATE))
        ChooseCode(cboStandardState, StandardStates, record.STANDARD_STATE);
}

void frmEquil::FillQuantities(const clsE& record) {
    for (int row = 0; row < Places; ++row) {
        ChooseQuantity(cboConst(row), WithoutBlank(record.CONSTANT_VARIABLE(row + 1)));
        txtConst(row).Text(WithoutBlank(record.CNVARVALUE(row + 1)));
        constants_[static_cast<std::size_t>(row)] = QuantityOf(cboConst(row));
    }
    for (int row = 0; row < VariableCount(); ++row)
        ChooseQuantity(cboVar(row), WithoutBlank(record.VARIABLE(row + 1)));
    ShowUnits();
    for (int row = 0; row < VariableCount(); ++row)
        cboVarUnit(row).Choose(UnitShown(record, row + 1));
}

void frmEquil::FillPresentation(const clsE& record) {
    const Presentation presentation = Presentation::Of(record.DATATYPE);
    ChooseCode(lstNumerical, Presentation::Kinds(), presentation.numerical);
    chkCalc.Value(presentation.calculated);
    chkEqu.Value(presentation.equation);
    chkGraph.Value(presentation.graph);
    chkIncludeDigit.Value(
        std::ranges::any_of(record.recData, [](const clsData& row) { return row.isDigit; }));
}

/// A code that is not offered, as a file may have it, joins all lists and is its own text.
void frmEquil::ChooseQuantity(ui::ComboBox& list, const std::string& code) {
    auto found = std::ranges::find(quantities_, code);
    const auto place = static_cast<int>(found - quantities_.begin());
    if (!code.empty() && found == quantities_.end()) {
        quantities_.push_back(code);
        for (const auto& one : cboConst)
            one->Add(code);
        for (const auto& one : cboVar)
            one->Add(code);
    }
    list.Index(code.empty() ? 0 : place + 1);
}

std::string frmEquil::QuantityOf(const ui::ComboBox& list) const {
    return list.Index() <= 0 ? std::string()
                             : quantities_[static_cast<std::size_t>(list.Index() - 1)];
}

/// The digits of the participants that the form shows.
std::string frmEquil::ShownDigits() const {
    std::string digits;
    for (int i = 1; i <= Participants; ++i)
        if (IsUsed(i)) digits += std::to_string(i);
    return digits;
}

std::string frmEquil::TickedDigits(int row) const {
    std::string digits;
    for (int i = 1; i <= Participants; ++i)
        if (IsUsed(i) && Part(row, i).Value()) digits += std::to_string(i);
    return digits;
}

/// The number of the sample, as the set that the form began with writes it; one that the document
/// does not have counts for what it is while nobody chooses another.
std::string frmEquil::SampleNumber(int i) const {
    const auto sample = samples_[static_cast<std::size_t>(i - 1)].Chosen();
    const std::string before = as_ ? as_->SMPNM(i) : std::string();
    const auto participant = reaction_->Participant(i);
    const auto known = participant ? participant->FindSample(NumberOf(before)) : nullptr;
    return known == sample ? before : sample ? sample->SMPNM : std::string();
}

/// A stored set keeps its coefficients, which may be others than those of the reaction now; one
/// that has none goes by these.
std::string frmEquil::Coefficient(int i) const {
    for (int n = 1; record_ && n <= Participants; ++n)
        if (!IsBlankField(record_->PARTICIPANT_COEFF(n))) return record_->PARTICIPANT_COEFF(i);
    return reaction_->Coeff(i);
}

EquilDraft frmEquil::Draft() const {
    EquilDraft draft;
    draft.property = row_.Code;
    draft.setNumber = txtPrpSetNo.Text();
    for (int i = 1; i <= Participants; ++i)
        draft.participants.push_back(IsUsed(i) ? EquilParticipant{reaction_->Name(i),
                                                                  Val(Coefficient(i)) != 0,
                                                                  !IsBlankField(SampleNumber(i))}
                                               : EquilParticipant());
    for (int row = 0; row < Places; ++row) {
        draft.phases.push_back({PhaseIn(cboPhase(row)), TickedDigits(row)});
        draft.constants.push_back({QuantityOf(cboConst(row)), {}, txtConst(row).Text()});
    }
    for (int row = 0; row < VariableCount(); ++row)
        draft.variables.push_back({QuantityOf(cboVar(row)), cboVarUnit(row).Chosen()});
    draft.solventPhase = PhaseChosen(cboSolventPhase);
    if (cboStandardState.Index() > 0)
        draft.standardState = CodeChosen(cboStandardState, StandardStates);
    draft.numerical = CodeChosen(lstNumerical, Presentation::Kinds());
    draft.saysNumerical = !record_ || !Presentation::Of(record_->DATATYPE).numerical.empty();
    return draft;
}

} // namespace vexora
