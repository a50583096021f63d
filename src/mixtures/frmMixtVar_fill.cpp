// What stands on the form: a stored set shown, and what the controls say.
#include "mixtures/frmMixtVar.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "chem/clsMethod.h"
#include "entry/CodeLists.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "records/Presentation.h"
#include "records/PropertyChain.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Chooses a text, which joins the list where it is not offered.
void ChooseText(ui::ComboBox& list, const std::string& text) {
    if (text.empty()) return list.Index(-1);
    if (list.Find(text) < 0) list.Add(text);
    list.Choose(text);
}

/// A table of codes behind an entry for none.
std::vector<std::string> WithBlank(CodeTexts table) {
    std::vector<std::string> texts = Texts(table);
    texts.insert(texts.begin(), "");
    return texts;
}

std::string WithoutBlank(const std::string& field) {
    return IsBlankField(field) ? std::string() : field;
}

int NumberChosen(const ui::ComboBox& list) {
    return list.Index() < 0 ? MixtVarDraft::NotChosen
                            : static_cast<int>(ToInteger(Val(list.Chosen())));
}

} // namespace

/// The lists that no property changes.
void frmMixtVar::FillHeader() {
    const std::string& context = Globals().DataContext;
    cboConstraints.Assign(OfferConstraintCounts(context));
    cboSolvent.Assign(WithBlank(SolventTexts(context)));
    cboStandardState.Assign(WithBlank(StandardStates));
    lstPROPERTY_FUNCT.Assign(Texts(MixtureFunctions()));
    lstRelation.Assign(Texts(MixtureRelations()));
    lstNumerical.Assign(Texts(Presentation::Kinds()));
    cboRefPhase.Assign({});
    for (const std::string& code : OfferPhasesOfSet({}, context))
        cboRefPhase.Add(PhaseName(code));
}

/// Mixtures of as many components as the property was chosen for.
void frmMixtVar::ListMixtures() {
    const KVOGlobal& globals = Globals();
    const int components = globals.DataContext == "Tern" ? 3 : 2;
    mixtures_.clear();
    cboMixt.Assign({});
    if (!globals.CurrentR) return;
    const clsM* const current = record_ ? record_->Parent : globals.CurrentM.get();
    for (const auto& mixture : globals.CurrentR->recM) {
        if (mixture->MixType != components) continue;
        mixtures_.push_back(mixture);
        cboMixt.Add(mixture->ShowKey());
        if (mixture.get() == current) cboMixt.Index(cboMixt.Count() - 1);
    }
    cboMixt.Enabled(!record_);
}

void frmMixtVar::UseMixture() {
    KVOGlobal& globals = Globals();
    const auto mixture = Mixture();
    for (int i = 0; i < MostComponents; ++i) {
        const auto compound = mixture ? mixture->Component(i + 1) : nullptr;
        const bool isThere = mixture && i < mixture->MixType;
        lblSample(i).Visible(isThere);
        cboSample(i).Visible(isThere);
        // By these numbers compositions name their component.
        lblSample(i).Caption(std::to_string(i + 1) + ": " +
                             (compound ? compound->ShowKey() + ", sample #" : "Sample #"));
        samples_[static_cast<std::size_t>(i)]->Fill(compound);
    }
    if (mixture && !record_) globals.CurrentM = mixture;
    globals.CurrentMethod->nComponent = mixture ? mixture->MixType : 0;
    globals.CurrentMethod->MMass = 0; // it follows the composition of each row
    ProposeSetNumber();
}

std::shared_ptr<clsM> frmMixtVar::Mixture() const {
    const int index = cboMixt.Index();
    return index < 0 ? nullptr : mixtures_[static_cast<std::size_t>(index)];
}

void frmMixtVar::Fill(const clsMV& record) {
    Globals().CurrentProperty = BuildChain(record); // the tags of the comment name its quantities
    txtComment.Text(TakeComment(record.Header.DATACOMMENT));
    lblVar5.Caption(""); // its value stands among the tags, known only now
    constraintsChosen_ = true;
    FillSamples(record);
    ChooseText(cboPhases, std::to_string(record.nPhases()));
    ChooseText(cboConstraints, std::to_string(record.ConstraintCount() - record.nPhases() + 1));
    FillSlots(record);
    FillVariables(record);
    FillDefinition(record);
    FillPresentation(record);
    ShowFrames();
    keepsSolvent_ = !cboSolvent.Visible() && cboSolvent.Index() > 0;
    keepsState_ = !cboStandardState.Visible() && cboStandardState.Index() > 0;
    ShowSolvent();
    ProposeSetNumber();
}

void frmMixtVar::FillSamples(const clsMV& record) {
    for (int n = 1; n <= record.MixType; ++n) {
        SampleList& list = *samples_[static_cast<std::size_t>(n - 1)];
        if (!list.System()) continue;
        const auto sample =
            list.System()->FindSample(static_cast<int>(ToInteger(Val(record.SMPNM(n)))));
        list.Choose(sample.get());
    }
}

void frmMixtVar::FillSlots(const clsMV& record) {
    const std::vector<std::string> phases = record.Phases();
    for (int i = 0; i < MostPhases; ++i) {
        lstPhase(i).Index(0);
        if (i < static_cast<int>(phases.size()))
            ChoosePhase(lstPhase(i), phases[static_cast<std::size_t>(i)]);
    }
    const std::vector<ConstraintSlot> slots = ConstraintsOf(record);
    for (int i = 0; i < static_cast<int>(slots.size()); ++i) {
        const ConstraintSlot& slot = slots[static_cast<std::size_t>(i)];
        const std::string name = VariableName(slot.code);
        ChooseText(cboConstraint(i), name.empty() ? slot.code : name);
        txtConstr(i).Text(WithoutBlank(slot.value));
        ChooseText(cboConstrUnit(i), UnitShown(slot.code, slot.unit));
        ChooseText(cboConstrPhase(i), PhaseName(slot.phase));
    }
}

void frmMixtVar::FillVariables(const clsMV& record) {
    const std::string system = "S";
    for (int i = 0; i < record.nVar; ++i) {
        const std::string& code = record.VARIABLE(i + 1);
        const std::string name = VariableName(code);
        ChooseText(cboVar(i), name.empty() ? code : name);
        const std::string& unit = record.isOriginalUnit ? record.VAR_UNIT(i + 1) : system;
        ChooseText(cboVarUnit(i), UnitShown(code, unit));
        ChooseText(cboVarPhase(i), PhaseName(record.PhaseFor(i + 1)));
    }
}

void frmMixtVar::FillDefinition(const clsMV& record) {
    const ResultDefinition definition = ResultDefinition::Of(record.PROPERTY_FUNCT);
    ChooseCode(lstPROPERTY_FUNCT, MixtureFunctions(), definition.function);
    ChooseCode(lstRelation, MixtureRelations(), definition.relation);
    txtRefT.Text(WithoutBlank(record.REFERENCE_TEMPERATURE));
    txtRefP.Text(WithoutBlank(record.REFERENCE_PRESSURE));
    cboRefPhase.Index(-1);
    ChoosePhase(cboRefPhase, record.REFERENCE_PHASE);
    cboSolvent.Index(0);
    ChooseCode(cboSolvent, SolventTexts(record.DataContext()), record.SOLVENT);
    ChooseCode(cboStandardState, StandardStates, record.STANDARD_STATE);
}

void frmMixtVar::FillPresentation(const clsMV& record) {
    const Presentation presentation = Presentation::Of(record.DATATYPE);
    ChooseCode(lstNumerical, Presentation::Kinds(), presentation.numerical);
    chkCalc.Value(presentation.calculated);
    chkEqu.Value(presentation.equation);
    chkGraph.Value(presentation.graph);
    chkIncludeDigit.Value(std::any_of(record.recData.begin(), record.recData.end(),
                                      [](const clsData& row) { return row.isDigit; }));
}

/// A set that is edited keeps its number as long as it is alike those that it was counted with.
void frmMixtVar::ProposeSetNumber() {
    const auto mixture = Mixture();
    if (!mixture) return txtPrpSetNo.Text("");
    clsMV set;
    set.MixType = mixture->MixType;
    set.nVar = Draft().VariableCount();
    set.PRPCODE = row_.Code;
    for (int n = 1; n <= set.MixType; ++n)
        set.SMPNM(n, SampleNumber(n));
    bool same = record_ && record_->nVar == set.nVar && record_->PRPCODE == set.PRPCODE;
    for (int n = 1; n <= set.MixType && same; ++n)
        same = record_->SMPNM(n) == set.SMPNM(n);
    txtPrpSetNo.Text(same ? record_->PRPSETNO : std::to_string(NextSetNumber(*mixture, set)));
}

/// The number of the chosen sample of component n, as the set that the form began with writes it.
std::string frmMixtVar::SampleNumber(int n) const {
    const auto sample = samples_[static_cast<std::size_t>(n - 1)]->Sample();
    if (!sample) return {};
    const bool same = as_ && ToInteger(Val(as_->SMPNM(n))) == ToInteger(Val(sample->SMPNM));
    return same ? as_->SMPNM(n) : sample->SMPNM;
}

/// The slots of a set that name no phase.
std::vector<ConstraintSlot> frmMixtVar::ConstraintsOf(const clsMV& record) const {
    std::vector<ConstraintSlot> slots;
    for (int n = 0; n < record.ConstraintCount(); ++n) {
        const ConstraintSlot& slot = record.Constraints[static_cast<std::size_t>(n)];
        if (!NamesPhase(slot.code)) slots.push_back(slot);
    }
    return slots;
}

/// Code of the quantity chosen behind the first entry, empty for none.
std::string frmMixtVar::CodeOf(const ui::ComboBox& list) const {
    if (list.Index() <= 0) return {};
    const std::string code = VariableCode(list.Chosen());
    return code.empty() ? list.Chosen() : code;
}

/// The phase of a quantity: the one chosen where it is asked for, else that of before while it is
/// there, else the primary one.
std::string frmMixtVar::PhaseShown(const ui::ComboBox& list, const std::string& code,
                                   const std::string& before) const {
    if (code.empty()) return {};
    if (list.Visible()) return PhaseChosen(list);
    const bool isThere = std::ranges::any_of(lstPhase, [&](const auto& phase) {
        return phase->Visible() && !before.empty() && PhaseChosen(*phase) == before;
    });
    return isThere ? before : PhaseChosen(lstPhase(0));
}

MixtVarQuantity frmMixtVar::ConstraintShown(int row) const {
    const std::string code = CodeOf(cboConstraint(row));
    const std::string value = IsCriticalCurve(code) ? std::string() : txtConstr(row).Text();
    std::string before;
    bool isUnstated = false;
    if (as_) {
        const std::vector<ConstraintSlot> slots = ConstraintsOf(*as_);
        const auto place = static_cast<std::size_t>(row);
        const bool isSame = place < slots.size() && slots[place].code == code;
        if (isSame) before = slots[place].phase;
        isUnstated = record_ && isSame && code.empty() && value.empty();
    }
    return {code, cboConstrUnit(row).Chosen(), PhaseShown(cboConstrPhase(row), code, before), value,
            isUnstated};
}

MixtVarQuantity frmMixtVar::VariableShown(int row) const {
    const std::string code = CodeOf(cboVar(row));
    const bool same = as_ && as_->VARIABLE(row + 1) == code;
    return {code, cboVarUnit(row).Chosen(),
            PhaseShown(cboVarPhase(row), code, same ? as_->PhaseFor(row + 1) : std::string())};
}

MixtVarDraft frmMixtVar::Draft() const {
    const clsMethod& method = *Globals().CurrentMethod;
    MixtVarDraft draft;
    draft.context = Globals().DataContext;
    draft.property = row_.Code;
    draft.unit = Globals().OriginalUnits ? Globals().PropertyUnit : "S";
    draft.method = method.Method.empty() && !method.sMethod.empty() ? "OTHER" : method.Method;
    for (int i = 0; i < draft.MixType(); ++i)
        draft.hasSample.push_back(samples_[static_cast<std::size_t>(i)]->Sample() != nullptr);
    draft.phaseCount = NumberChosen(cboPhases);
    draft.constraintCount = NumberChosen(cboConstraints);
    for (int i = 0; i < std::min(draft.phaseCount, MostPhases); ++i)
        draft.phases.push_back(PhaseChosen(lstPhase(i)));
    for (int i = 0; i < std::min(draft.constraintCount, MostRows); ++i)
        draft.constraints.push_back(ConstraintShown(i));
    for (int i = 0; i < std::min(draft.VariableCount(), MostRows); ++i)
        draft.variables.push_back(VariableShown(i));
    draft.constant = txtVar5.Text();
    draft.function = CodeChosen(lstPROPERTY_FUNCT, MixtureFunctions());
    draft.relation = CodeChosen(lstRelation, MixtureRelations());
    draft.refPhase = PhaseChosen(cboRefPhase);
    draft.refTemp = txtRefT.Text();
    draft.refPressure = txtRefP.Text();
    if (cboSolvent.Visible()) draft.solvent = CodeChosen(cboSolvent, SolventTexts(draft.context));
    if (cboStandardState.Visible())
        draft.standardState = CodeChosen(cboStandardState, StandardStates);
    draft.numerical = CodeChosen(lstNumerical, Presentation::Kinds());
    return draft;
}

} // namespace vexora
