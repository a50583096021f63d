#include "structures/frmGH.h"

#include "entry/PhaseLists.h"
#include "globals/KVOGlobal.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <iterator>

namespace vexora {

namespace {

constexpr const char* HydratePhases[] = {"C", "CS1", "CS2", "CSH", "L", "LQ1", "LQ2", "G"};
constexpr const char* NoPhase = "None";

std::string PhaseIn(const ui::ComboBox& list) {
    return list.Chosen() == NoPhase ? std::string() : PhaseChosen(list);
}

} // namespace

frmGH::frmGH() : BioPropertyForm("frmGH", "Gas Hydrate Data", true) {
    using namespace ui;
    std::vector<Layout> rows = {Field("System:", lblSystem)};
    for (ComboBox* list : PhaseLists()) {
        rows.push_back(Field("Phase " + std::to_string(rows.size()) + ":", Narrow(*list, 24)));
        BuildPhaseList(*list);
        list->OnClick = [this] {
            if (!Filling) OfferPhases(Phases());
        };
    }
    rows.push_back(Stretch());
    Arrange({{"Phases", Column(std::move(rows)), {&cboPhase1}, [this] { return CheckPhases(); }}});
    HelpContext = 560;
}

void frmGH::BuildPhaseList(ui::ComboBox& list) {
    std::vector<std::string> names;
    for (const char* code : HydratePhases)
        names.push_back(PhaseName(code));
    names.emplace_back(NoPhase);
    list.Assign(std::move(names));
}

/// The phases of the set, in the order of their lists.
std::vector<std::string> frmGH::Phases() const {
    std::vector<std::string> codes;
    for (const ui::ComboBox* list : {&cboPhase1, &cboPhase2, &cboPhase3, &cboPhase4}) {
        const std::string code = PhaseIn(*list);
        if (!code.empty() && std::ranges::find(codes, code) == codes.end()) codes.push_back(code);
    }
    return codes;
}

std::shared_ptr<clsBP> frmGH::NewSet() const {
    auto set = std::make_shared<clsBP>();
    set->PrpType = "G";
    return set;
}

int frmGH::NextNumber() const {
    const clsComplexSample& sample = *Globals().CurrentComplexSample;
    int number = static_cast<int>(sample.recBP.Count()) + 1;
    while (sample.FindBP(number))
        ++number;
    return number;
}

void frmGH::FillOwn() {
    sample_ = Globals().CurrentComplexSample;
    lblSystem.Caption(sample_->SystemName() + ", " + sample_->Name());
    const std::string* codes[] = {&Base().PHASE1, &Base().PHASE2, &Base().PHASE3, &Base().PHASE4};
    auto code = std::begin(codes);
    for (ui::ComboBox* list : PhaseLists()) {
        list->Choose(NoPhase);
        ChoosePhase(*list, **code++);
    }
    OfferPhases(Phases());
}

/// What the set names, and what else the system consists of.
std::vector<BioComponent> frmGH::Components() const {
    std::vector<BioComponent> components = Base().Components;
    for (const ComplexComponent& one : sample_->Parent->Components) {
        if (std::ranges::count(components, one.RN, &BioComponent::RN) > 0) continue;
        components.push_back({one.RN, one.SMPNM, one.function, {}, {}});
    }
    return components;
}

/// An edited set gets a further component of its system only when a quantity is said of it.
void frmGH::WriteOwn(clsBP& set) const {
    if (set.RN.empty()) {
        set.RN = sample_->Parent->RN;
        set.SMPNM = sample_->SMPNM;
    }
    const std::size_t own = Base().Components.size();
    const BioEntries entries = Entries();
    std::vector<BioComponent> components = Components();
    if (own > 0)
        for (std::size_t n = components.size(); n-- > own;)
            if (std::ranges::none_of(entries, [&](const BioEntry& entry) {
                    return BioSet::RNOfKey(entry.quantity.component) == components[n].RN;
                }))
                components.erase(components.begin() + static_cast<std::ptrdiff_t>(n));
    set.Components = std::move(components);
    set.PHASE1 = PhaseIn(cboPhase1);
    set.PHASE2 = PhaseIn(cboPhase2);
    set.PHASE3 = PhaseIn(cboPhase3);
    set.PHASE4 = PhaseIn(cboPhase4);
}

/// Mole fractions are those of the components, not of the system itself.
std::vector<BioSubject> frmGH::Subjects() const {
    clsBP draft;
    draft.PrpType = "G";
    draft.RN = sample_->Parent->RN;
    draft.Components = Components();
    std::vector<BioSubject> subjects = BioSubjects(draft, {}, {});
    subjects.erase(subjects.begin());
    return subjects;
}

BioFaults frmGH::CheckPhases() {
    BioFaults faults;
    std::vector<std::string> chosen;
    for (ui::ComboBox* list : PhaseLists()) {
        const std::string code = PhaseIn(*list);
        if (code.empty()) continue;
        if (std::ranges::find(chosen, code) != chosen.end())
            faults.push_back({list, "Duplicate phase"});
        chosen.push_back(code);
    }
    return faults;
}

void frmGH::Attach(const std::shared_ptr<clsBP>& set) const {
    set->AttachTo(*sample_);
}

} // namespace vexora
