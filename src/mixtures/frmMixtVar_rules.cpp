// What the form offers and shows, by the property and by what is chosen.
#include "mixtures/frmMixtVar.h"

#include <algorithm>
#include <utility>

#include "chem/CommentTags.h"
#include "entry/CodeLists.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "records/clsMV.h"
#include "reference/Conversions.h"
#include "reference/Text.h"
#include "reference/UnitText.h"

namespace vexora {

namespace {

// First entries of the lists in which nothing is chosen at first.
constexpr const char* SelectVariable = "SELECT VARIABLE";
constexpr const char* SelectConstraint = "SELECT CONSTRAINT";

void ShowAll(std::initializer_list<ui::Control*> controls, bool visible) {
    for (ui::Control* control : controls)
        control->Visible(visible);
}

/// Other entries, of which the chosen one stays chosen as long as it is among them.
void Reassign(ui::ComboBox& list, std::vector<std::string> entries) {
    const std::string chosen = list.Chosen();
    if (entries == list.Items()) return;
    list.Assign(std::move(entries));
    if (!chosen.empty()) list.Choose(chosen);
}

} // namespace

/// Brings the form in line with the property in force; what was chosen for another one stays.
void frmMixtVar::ShowProperty() {
    row_ = PropertyInForce();
    const std::string& context = Globals().DataContext;
    variables_ = OfferMixtureVariables(row_.Code, context, false);
    constraints_ = OfferMixtureVariables(row_.Code, context, true);
    const std::string phases = cboPhases.Chosen();
    cboPhases.Assign(OfferPhaseCounts(row_.Code, context));
    if (!phases.empty() && cboPhases.Find(phases) < 0) cboPhases.Add(phases);
    cboPhases.Index(phases.empty() && cboPhases.Count() == 1 ? 0 : cboPhases.Find(phases));
    RestrictPhases();
    FillConstraints();
    ChooseCode(lstPROPERTY_FUNCT, MixtureFunctions(), PresetFunction(row_.Code));
    PresetConstraints();
    ShowFrames();
    ProposeSetNumber();
}

void frmMixtVar::ShowCaption() {
    std::string variables;
    for (const MixtVarQuantity& one : Draft().variables) {
        const std::string name = VariableName(one.code);
        if (!name.empty()) variables += (variables.empty() ? "" : ", ") + name;
    }
    if (variables.empty()) variables = "state variables";
    Caption((record_ ? "Edit: " : "") + row_.Property + " (" + Globals().PropertyText +
            ") as function of " + variables);
}

/// The rows that phases, constraints and the phase rule ask for.
void frmMixtVar::ShowFrames() {
    const ui::FillingScope filling(*this);
    const MixtVarDraft draft = Draft();
    const int free = draft.VariableCount();
    for (int i = 0; i < MostPhases; ++i)
        ShowAll({&lblPhase(i), &lstPhase(i)}, i < draft.phaseCount);
    fraConstraints.Visible(draft.constraintCount > 0);
    fraVariables.Visible(free > 0);
    for (int i = 0; i < MostRows; ++i) {
        ShowAll({&lblConstraint(i), &cboConstraint(i)}, i < draft.constraintCount);
        ShowAll({&lblVar(i), &cboVar(i), &cboVarUnit(i)}, i < free);
    }
    const bool isKnown = draft.phaseCount > 0 && draft.constraintCount >= 0;
    lblVariables.Caption(!isKnown    ? ""
                         : free == 1 ? "1 variable"
                         : free > 0  ? std::to_string(free) + " variables"
                                     : "no variable is left");
    ShowQuantities();
    ProposeSetNumber();
}

/// What can be held constant, and what can vary.
void frmMixtVar::FillConstraints() {
    for (int i = 0; i < MostRows; ++i) {
        OfferQuantities(cboConstraint(i), SelectConstraint, constraints_);
        OfferQuantities(cboVar(i), SelectVariable, variables_);
    }
}

/// One that is chosen and not offered any more stays: it must not vanish silently.
void frmMixtVar::OfferQuantities(ui::ComboBox& list, const std::string& prompt,
                                 const std::vector<VariableRow>& rows) {
    list.FirstIsPrompt = true;
    const std::string chosen = list.Index() > 0 ? list.Chosen() : std::string();
    std::vector<std::string> names = {prompt};
    for (const VariableRow& row : rows)
        names.push_back(row.IndVariable);
    if (!chosen.empty() && std::ranges::find(names, chosen) == names.end()) names.push_back(chosen);
    list.Assign(std::move(names));
    list.Index(chosen.empty() ? 0 : list.Find(chosen));
}

void frmMixtVar::RestrictPhases() {
    const auto codes = OfferPhasesOfSet(row_.Code, Globals().DataContext);
    for (const auto& list : lstPhase)
        FillPromptedPhaseList(*list, codes);
}

/// Constraints and variables that are of one phase can be of those that are there; where there is
/// but one it is not asked for.
void frmMixtVar::ShowPhasesOfQuantities() {
    const ui::FillingScope filling(*this);
    for (int i = 0; i < MostRows; ++i) {
        ShowPhaseOf(cboConstraint(i), cboConstrPhase(i));
        ShowPhaseOf(cboVar(i), cboVarPhase(i));
    }
}

/// What can be of one phase alone need not be asked.
void frmMixtVar::ShowPhaseOf(const ui::ComboBox& quantity, ui::ComboBox& list) {
    const std::string code = CodeOf(quantity);
    std::vector<std::string> phases, fitting;
    std::size_t count = 0;
    for (const auto& one : lstPhase) {
        count += one->Visible() ? 1 : 0;
        const std::string name = one->Chosen();
        const bool isOpen = !one->Visible() || one->Index() <= 0;
        if (isOpen || std::ranges::find(phases, name) != phases.end()) continue;
        phases.push_back(name);
        // A choice that does not fit stays as long as its phase: it must not change silently.
        if (CanBeOf(code, PhaseChosen(*one)) || name == list.Chosen()) fitting.push_back(name);
    }
    // A phase that is still open, or doubled, may become the one.
    const bool allKnown = phases.size() == count;
    Reassign(list, fitting.empty() ? std::move(phases) : std::move(fitting));
    list.Visible(quantity.Visible() && count > 1 && IsOfOnePhase(code));
    if (list.Visible() && list.Count() == 1 && allKnown) list.Index(0);
}

/// What follows from the chosen constraints and variables.
void frmMixtVar::ShowQuantities() {
    const ui::FillingScope filling(*this);
    for (int i = 0; i < MostRows; ++i) {
        const bool isShown = cboConstraint(i).Visible();
        const bool isCurve = IsCriticalCurve(CodeOf(cboConstraint(i)));
        ShowAll({&txtConstr(i), &cboConstrUnit(i)}, isShown && !isCurve);
    }
    ShowPhasesOfQuantities();
    ShowUnits();
    ShowSolvent();
    ShowVar5();
    ShowDefinition();
    ShowCaption();
}

/// The units of the paper or the system unit alone; one that the form came with stays on offer.
void frmMixtVar::ShowUnits() {
    const ui::FillingScope filling(*this);
    const bool original = Globals().OriginalUnits;
    const std::vector<ConstraintSlot> slots =
        as_ ? ConstraintsOf(*as_) : std::vector<ConstraintSlot>();
    for (int i = 0; i < MostRows; ++i) {
        const auto place = static_cast<std::size_t>(i);
        std::string code = CodeOf(cboConstraint(i));
        std::string own;
        if (place < slots.size() && slots[place].code == code)
            own = UnitShown(code, slots[place].unit);
        OfferUnits(cboConstrUnit(i), code, own);
        code = CodeOf(cboVar(i));
        own.clear();
        if (as_ && as_->VARIABLE(i + 1) == code && as_->isOriginalUnit == original)
            own = UnitShown(code, original ? as_->VAR_UNIT(i + 1) : "S");
        OfferUnits(cboVarUnit(i), code, own);
    }
}

void frmMixtVar::OfferUnits(ui::ComboBox& list, const std::string& code, const std::string& own) {
    const VariableRow* const row = code.empty() ? nullptr : FindVariable(code);
    std::vector<std::string> units;
    if (row) units = Globals().OriginalUnits ? UnitList(row->Unit, code) : FixedUnitList(row->Unit);
    if (!own.empty() && std::ranges::find(units, own) == units.end()) units.push_back(own);
    Reassign(list, std::move(units));
    if (list.Count() == 1) list.Index(0);
}

/// The unit of a quantity as the list shows it; what no table knows is shown as its code.
std::string frmMixtVar::UnitShown(const std::string& variable, const std::string& code) {
    const VariableRow* const row = FindVariable(variable);
    return row ? UnitText(row->Unit, code, 0) : code;
}

/// Solvent and standard state are asked for where something goes by them.
void frmMixtVar::ShowSolvent() {
    const ui::FillingScope filling(*this);
    const bool needsSolvent = NeedsSolvent(Draft());
    ShowAll({&lblSolvent, &cboSolvent}, needsSolvent || keepsSolvent_);
    ShowAll({&lblStandardState, &cboStandardState}, NeedsStandardState(row_.Code) || keepsState_);
    LockSolventForHEX();
    PresetSolvent();
}

/// Of two components the one that is no solute is the solvent; what a stored set says stays.
void frmMixtVar::PresetSolvent() {
    const MixtVarDraft draft = Draft();
    const std::string_view solvent = SolventOfBinary(draft);
    if (solvent.empty() || (record_ && !record_->SOLVENT.empty())) return;
    ChooseCode(cboSolvent, SolventTexts(draft.context), solvent);
}

/// A component is mixed with all the others; what a stored set says else is left to the check.
void frmMixtVar::LockSolventForHEX() {
    const std::string_view solvent = SolventOfProperty(row_.Code);
    const CodeTexts table = SolventTexts(Globals().DataContext);
    const bool isStored = record_ && record_->PRPCODE == row_.Code && !record_->SOLVENT.empty() &&
                          record_->SOLVENT != solvent;
    const bool isFixed = !solvent.empty() && !isStored;
    if (isFixed) ChooseCode(cboSolvent, table, solvent);
    cboSolvent.Enabled(!isFixed);
}

/// Wavelength or frequency of a spectral property, which the phase rule does not count.
void frmMixtVar::ShowVar5() {
    const std::string open = OpenSpectralVariable(Draft());
    const QuantityText* const quantity = QuantityByCode(StateVariables, open);
    const std::string caption = quantity ? std::string(quantity->text) + ":" : "";
    const bool same = lblVar5.Caption() == caption;
    ShowAll({&lblVar5, &txtVar5, &lblUnit5}, quantity != nullptr);
    lblVar5.Caption(caption);
    lblUnit5.Caption(quantity ? std::string(quantity->unit) : "");
    if (!same) txtVar5.Text(CommentTags::OfTags(Globals().KeyRest).Constant(open));
}

/// What a definition does not ask for cannot be entered.
void frmMixtVar::ShowDefinition() {
    const MixtVarDraft draft = Draft();
    const bool relative = NeedsRelation(draft.function);
    const bool ofSolute = NeedsPhaseOfSolute(draft.property);
    lstRelation.Enabled(relative);
    txtRefT.Enabled(relative && draft.Definition().FixesTemperature());
    txtRefP.Enabled(relative && draft.Definition().FixesPressure());
    cboRefPhase.Enabled(ofSolute || (relative && draft.Definition().NamesPhase()));
    lblRefPhase.Enabled(cboRefPhase.Enabled());
    lblRefPhase.Caption(ofSolute ? "Initial phase of solute:" : "Reference phase:");
}

/// The number of variables that was asked for leaves so many constraints.
void frmMixtVar::PresetConstraints() {
    const MixtVarDraft draft = Draft();
    if (constraintsChosen_ || draft.phaseCount < 1) return;
    const ui::FillingScope filling(*this);
    const int count = ConstraintsFor(Globals().VariableCount, draft.phaseCount, draft.context);
    cboConstraints.Index(count < 0 ? -1 : cboConstraints.Find(std::to_string(count)));
}

} // namespace vexora
