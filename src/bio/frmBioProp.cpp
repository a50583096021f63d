#include "bio/frmBioProp.h"

#include "entry/PhaseLists.h"
#include "entry/SelectionScope.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <utility>

namespace vexora {

namespace {

constexpr int UsualComponents = 6;
constexpr const char* Prompt = "Select or enter text here";
constexpr const char* Solution = "S";
constexpr const char* Crystal = "C";
constexpr const char* Solubility = "S";
constexpr const char* Solvent = "Solvent";

/// Contents that are said of a solvent.
bool IsOfSolvent(const BioQuantity& quantity) {
    return quantity.role != BioRole::Property && IsOneOf(quantity.code, {"Xs", "Ws", "Vs", "Js"});
}

/// The record of the selected node, null for none.
std::shared_ptr<ui::TreeTag> Selected() {
    const auto* const tree = Globals().tvwTree;
    const ui::TreeNode* const node = tree ? tree->SelectedNode() : nullptr;
    return node ? node->Tag.lock() : nullptr;
}

} // namespace

int frmBioProp::ComponentCount() {
    const auto shown = Shown();
    return BioRowCount(UsualComponents, shown ? shown->Components.size() : 0);
}

frmBioProp::frmBioProp() : BioPropertyForm("frmBioProp", "Bio System Properties", false) {
    using namespace ui;
    Arrange({{"Initial state",
              Column({Row({Field("Substance:", cmbSubst),
                           Field("Sample:", Narrow(cboSubstSample, 16))}),
                      Field(lblState1, cboState1), Field("Phase:", cboPhase1), Stretch()}),
              {&cmbSubst},
              [this] { return CheckFirst(); }},
             {"Final state",
              Column({Field(lblState2, cboState2), Field("Phase:", cboPhase2), Stretch()}),
              {&cboState2, &cboPhase2},
              [this] { return CheckSecond(); }},
             {"Composition", components_.Arrangement(), {&cmbComp(0)}, [this] {
                  return components_.Check();
              }}});
    for (ui::ComboBox* state : {&cboState1, &cboState2})
        state->OnGotFocus = [state] {
            if (state->Text() == Prompt) state->SelectFrom(0); // typing takes its place
        };
    cmbSubst.OnClick = [this] { SubstanceClick(); };
    cboSubstSample.OnClick = [this] { SampleClick(); };
    components_.Follow = [this] { Follow(); };
    HelpContext = 520;
}

/// A sample is one of its compound.
void frmBioProp::SubstanceClick() {
    if (Filling) return;
    const SelectionScope selection;
    const auto rn = substances_.Click();
    if (rn && *rn != rn_) {
        rn_ = *rn;
        samples_.Fill(Globals().CurrentR->FindL(rn_)); // one alone is chosen
        const auto sample = samples_.Sample();
        sample_ = sample ? sample->SMPNM : std::string();
    }
    Follow();
}

void frmBioProp::SampleClick() {
    if (Filling) return;
    const SelectionScope selection;
    const auto made = samples_.Click();
    const auto sample = samples_.Sample();
    sample_ = sample ? sample->SMPNM : std::string();
    if (made) Follow();
}

/// A person has changed what is in the solution, or made a compound or a sample on the way.
void frmBioProp::Follow() {
    FillSubstance();
    components_.Refresh();
    OfferSubjects();
}

std::shared_ptr<clsBP> frmBioProp::NewSet() const {
    const KVOGlobal& globals = Globals();
    auto set = std::make_shared<clsBP>();
    set->PrpType = globals.BioType;
    set->PHASE1 = Solution;
    set->PHASE2 = set->PrpType == Solubility ? Crystal : Solution;
    set->Add(AtmosphericPressure());
    // Whoever comes from a compound or a sample means it.
    const auto selected = Selected();
    const auto* const sample = dynamic_cast<const clsS*>(selected.get());
    const auto* const compound =
        sample ? sample->Parent : dynamic_cast<const clsL*>(selected.get());
    if (!compound) return set;
    set->RN = compound->RN;
    if (sample)
        set->SMPNM = sample->SMPNM;
    else if (compound->recS.Count() == 1)
        set->SMPNM = compound->recS.Item(1)->SMPNM;
    return set;
}

int frmBioProp::NextNumber() const {
    return Globals().CurrentR->NextBPNumber();
}

void frmBioProp::FillOwn() {
    rn_ = Base().RN;
    sample_ = Base().SMPNM;
    FillSubstance();
    FillStates();
    components_.Fill(Base().Components);
}

/// A sample that the document does not have is not replaced in silence.
void frmBioProp::FillSubstance() {
    const ui::FillingScope filling(*this);
    const auto compound = Globals().CurrentR->FindL(rn_);
    substances_.Fill(rn_);
    samples_.Fill(compound);
    samples_.ChooseNone();
    if (compound && !sample_.empty())
        samples_.Choose(compound->FindS(static_cast<int>(Val(sample_))).get());
    cboSubstSample.Enabled(compound != nullptr);
}

void frmBioProp::FillStates() {
    if (!IsTransition()) NamePages({"Phase 1", "Phase 2"});
    for (const auto& [list, state] :
         {std::pair(&cboState1, &Base().State1), std::pair(&cboState2, &Base().State2)}) {
        list->Assign({"Solution", "Native", "Denatured", "Monomer", "Dimer"});
        list->Text(state->empty() ? Prompt : *state);
        list->Visible(IsTransition());
    }
    lblState1.Visible(IsTransition());
    lblState2.Visible(IsTransition());
    for (const auto& [list, code] :
         {std::pair(&cboPhase1, &Base().PHASE1), std::pair(&cboPhase2, &Base().PHASE2)}) {
        list->Assign({PhaseName(Solution), PhaseName(Crystal)});
        ChoosePhase(*list, *code);
    }
}

/// The prompt is no state.
std::string frmBioProp::StateIn(const ui::ComboBox& list) const {
    const std::string text = list.Text();
    return text == Prompt ? std::string() : std::string(Trim(text));
}

void frmBioProp::WriteOwn(clsBP& set) const {
    set.RN = rn_;
    set.SMPNM = sample_;
    set.Components = components_.Components();
    set.PHASE1 = PhaseChosen(cboPhase1);
    set.PHASE2 = PhaseChosen(cboPhase2);
    if (!IsTransition()) return;
    set.State1 = StateIn(cboState1);
    set.State2 = StateIn(cboState2);
}

std::vector<BioSubject> frmBioProp::Subjects() const {
    clsBP draft;
    WriteOwn(draft);
    return BioSubjects(draft, {0}, components_.Rows());
}

BioFaults frmBioProp::CheckFirst() {
    if (rn_.empty()) return {{&cmbSubst, "Select the substance for which the property is stored"}};
    if (IsTransition() && StateIn(cboState1).empty())
        return {{&cboState1, "Please specity the initial state"}};
    return {};
}

BioFaults frmBioProp::CheckSecond() {
    if (IsTransition() && StateIn(cboState2).empty())
        return {{&cboState2, "Please specity the final state"}};
    return {};
}

BioFaults frmBioProp::CheckWhole() {
    BioFaults faults = CheckAcross(Entries());
    CheckSolvents(faults);
    if (Trim(txtMethod.Text()).empty()) faults.push_back(NoMethod());
    if (IsTransition() && StateIn(cboState1) == StateIn(cboState2))
        faults.push_back({&cboState2, "Please specity the final state other than initial state"});
    return faults;
}

/// In a solubility, contents of a solvent are those of a component that is one.
void frmBioProp::CheckSolvents(BioFaults& faults) {
    if (IsTransition()) return;
    clsBP draft;
    WriteOwn(draft);
    const std::vector<int> rows = components_.Rows();
    for (const BioEntry& entry : Entries()) {
        if (!IsOfSolvent(entry.quantity)) continue;
        std::size_t n = 0;
        while (n < rows.size() && draft.KeyOf(n) != entry.quantity.component)
            ++n;
        if (n < rows.size() && draft.Components[n].function == Solvent) continue;
        ui::Control& field = n < rows.size() ? cboFunction(rows[n]) : cmbComp(0);
        faults.push_back({&field, "Please review the Composition tab\n" +
                                      draft.CompoundName(entry.quantity.component) +
                                      " is not a solvent component"});
    }
}

/// The rows were measured on the substance that the set was of.
bool frmBioProp::ConfirmOwn() {
    if (rn_ == Base().RN || Base().recD.empty()) return true;
    return Confirm(cmbSubst, "The table has values of " + Base().CompoundName(Base().RN) +
                                 "\nDo they stand for " + Base().CompoundName(rn_) +
                                 " from now on?");
}

void frmBioProp::Attach(const std::shared_ptr<clsBP>& set) const {
    set->AttachTo(*Globals().CurrentR);
}

} // namespace vexora
