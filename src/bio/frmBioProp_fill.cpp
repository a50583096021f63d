// What stands on the form: a set shown, and what the controls say.
#include "bio/frmBioProp.h"
#include "entry/PhaseLists.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr const char* Prompt = "Select or enter text here";
constexpr const char* Solution = "S";
constexpr const char* Crystal = "C";

} // namespace

/// What the form begins with: the edited set, the definition of another one, or a new set.
std::shared_ptr<clsBP> frmBioProp::Base() const {
    const KVOGlobal& globals = Globals();
    const auto pattern = Pattern();
    const auto set = pattern ? pattern->Copy() : std::make_shared<clsBP>();
    if (record_) return set;
    set->recD.clear();
    for (clsX& statement : set->recU)
        statement.KVOUValue.clear();
    set->SetNo = globals.CurrentR->NextBPNumber();
    if (pattern) return set;
    set->PrpType = globals.BioType;
    set->PHASE1 = Solution;
    set->PHASE2 = set->PrpType == "S" ? Crystal : Solution;
    // Whoever comes from a compound means it.
    const auto compound = std::dynamic_pointer_cast<clsL>(globals.CurrentL);
    if (globals.CurrentKey.starts_with("RL") && compound) {
        set->RN = compound->RN;
        if (compound->recS.Count() == 1) set->SMPNM = compound->recS.Item(1)->SMPNM;
    }
    set->Add(AtmosphericPressure());
    return set;
}

void frmBioProp::Fill() {
    const ui::FillingScope filling(*this);
    rn_ = base_->RN;
    sample_ = base_->SMPNM;
    lblSetNo.Caption(std::to_string(base_->SetNo));
    txtMethod.Text(base_->Method);
    txtComment.Text(base_->Header.DATACOMMENT);
    FillStates();
    FillPhases();
    FillSubstance();
    components_.Fill(base_->Components);
    for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
        page->Offer(*base_, base_->PrpType);
    OfferSubjects();
    for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
        page->Fill(base_->Quantities());
}

void frmBioProp::FillStates() {
    if (!IsTransition())
        TabStrip1.Assign({"Phase 1", "Phase 2", "Composition", "Property", "Variables",
                          "Constraints", "Description"});
    TabStrip1.Index(0);
    for (const auto& [list, state] :
         {std::pair(&cboState1, &base_->State1), std::pair(&cboState2, &base_->State2)}) {
        list->Assign({"Solution", "Native", "Denatured", "Monomer", "Dimer"});
        list->Text(state->empty() ? Prompt : *state);
        list->Visible(IsTransition());
    }
    lblState1.Visible(IsTransition());
    lblState2.Visible(IsTransition());
}

void frmBioProp::FillPhases() {
    for (const auto& [list, code] :
         {std::pair(&cboPhase1, &base_->PHASE1), std::pair(&cboPhase2, &base_->PHASE2)}) {
        list->Assign({PhaseName(Solution), PhaseName(Crystal)});
        ChoosePhase(*list, *code);
    }
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

void frmBioProp::WriteSubstance(clsBP& set) const {
    set.RN = rn_;
    set.SMPNM = sample_;
    set.Components = components_.Components();
}

/// The prompt is no state.
std::string frmBioProp::StateIn(const ui::ComboBox& list) const {
    const std::string text = list.Text();
    return text == Prompt ? std::string() : std::string(Trim(text));
}

/// What the form says, with the rows of the edited set; null when the person wants to go back.
std::shared_ptr<clsBP> frmBioProp::MakeSet() const {
    const auto set = base_->Copy();
    WriteSubstance(*set);
    if (IsTransition()) {
        set->State1 = StateIn(cboState1);
        set->State2 = StateIn(cboState2);
    }
    set->PHASE1 = PhaseChosen(cboPhase1);
    set->PHASE2 = PhaseChosen(cboPhase2);
    set->Method = Trim(txtMethod.Text());
    FillBioHeader(set->Header, record_ == nullptr, txtComment.Text());
    return TakeEntries(*set, Entries()) ? set : nullptr;
}

BioEntries frmBioProp::Entries() const {
    BioEntries entries = properties_.Entries();
    for (const BioQuantityPage* page : {&variables_, &constraints_})
        std::ranges::move(page->Entries(), std::back_inserter(entries));
    return entries;
}

} // namespace vexora
