#include "entry/SampleList.h"

#include <utility>
#include <vector>

#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* NewEntry = "New";
constexpr const char* SampleDialog = "frmSample";

std::vector<std::size_t> SampleCounts(const clsR& source) {
    std::vector<std::size_t> counts;
    for (const auto& compound : source.recL)
        counts.push_back(compound->recS.Count());
    return counts;
}

/// The sample that came since the samples were counted, or null. The dialog may have made its
/// compound as well, or have gone to another one.
std::shared_ptr<clsS> AddedSample(const clsR& source, std::vector<std::size_t> before) {
    before.resize(source.recL.Count());
    auto count = before.begin();
    for (const auto& compound : source.recL)
        if (compound->recS.Count() > *count++) return compound->recS.Item(compound->recS.Count());
    return nullptr;
}

} // namespace

SampleList::SampleList(ui::Form& form, ui::ComboBox& list, std::string prompt)
    : form_(form), list_(list), prompt_(std::move(prompt)) {}

void SampleList::Fill(std::shared_ptr<Substance> system) {
    const ui::FillingScope filling(form_);
    system_ = std::move(system);
    list_.Clear();
    list_.FirstIsPrompt = prompt_.starts_with("SELECT "); // "None" is an answer
    if (!prompt_.empty()) list_.Add(prompt_);
    if (!system_) return ChoosePosition(0);
    const auto samples = system_->Samples();
    for (const auto& sample : samples)
        list_.Add(sample->SMPNM);
    // Not offered where nothing could open.
    const bool isCompound = dynamic_cast<const clsL*>(system_.get()) != nullptr;
    if (isCompound && ui::Forms::Current().Knows(SampleDialog)) list_.Add(NewEntry);
    ChoosePosition(samples.size() == 1 ? 1 : 0);
}

void SampleList::Choose(const SubstanceSample* sample) {
    if (!system_ || !sample) return;
    std::size_t position = 0;
    for (const auto& one : system_->Samples()) {
        ++position;
        if (one.get() == sample) return ChoosePosition(position);
    }
}

std::shared_ptr<clsS> SampleList::Click() {
    if (list_.Chosen() == NewEntry) return Make();
    ChoosePosition(static_cast<std::size_t>(list_.Index() + (prompt_.empty() ? 1 : 0)));
    return nullptr;
}

std::shared_ptr<clsS> SampleList::Make() {
    KVOGlobal& globals = Globals();
    const std::vector<std::size_t> before = SampleCounts(*system_->Parent);
    const std::size_t chosen = chosen_;
    globals.CurrentL = system_;
    // By this the dialog knows that it was opened on the way, and comes back here when it closes.
    if (!globals.IsEditingInPlace()) globals.OpenForms.push_back(form_.Name());
    ui::Forms::Current().Get(SampleDialog).ShowModal();
    Fill(system_);
    // Cancelled: "New" is no sample and must not stay chosen.
    ChoosePosition(chosen);
    const auto made = AddedSample(*system_->Parent, before);
    if (!made) return nullptr;
    // What has been made must be found by its number, or data could not refer to it.
    auto found = made->Parent->FindS(static_cast<int>(Val(made->SMPNM)));
    if (!found) {
        ui::Say("Sample internal error");
        ChoosePosition(0);
    }
    Choose(found.get());
    return found;
}

void SampleList::ChoosePosition(std::size_t position) {
    const ui::FillingScope filling(form_);
    chosen_ = position;
    list_.Index(static_cast<int>(position) - (prompt_.empty() ? 1 : 0));
}

std::shared_ptr<SubstanceSample> SampleList::Chosen() const {
    if (!system_ || chosen_ == 0) return nullptr;
    const auto samples = system_->Samples();
    return chosen_ <= samples.size() ? samples[chosen_ - 1] : nullptr;
}

std::shared_ptr<clsS> SampleList::Sample() const {
    return std::dynamic_pointer_cast<clsS>(Chosen());
}

} // namespace vexora
