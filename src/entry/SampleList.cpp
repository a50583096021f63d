#include "entry/SampleList.h"

#include <utility>

#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* NewEntry = "New";
constexpr const char* SampleDialog = "frmSample";

} // namespace

SampleList::SampleList(ui::Form& form, ui::ComboBox& list, std::string prompt)
    : form_(form), list_(list), prompt_(std::move(prompt)) {}

void SampleList::Fill(std::shared_ptr<clsL> compound) {
    const ui::FillingScope filling(form_);
    compound_ = std::move(compound);
    list_.Clear();
    if (!prompt_.empty()) list_.Add(prompt_);
    if (!compound_) return ChoosePosition(0);
    for (const auto& sample : compound_->recS)
        list_.Add(sample->SMPNM);
    // Not offered where nothing could open.
    if (ui::Forms::Current().Knows(SampleDialog)) list_.Add(NewEntry);
    ChoosePosition(compound_->recS.Count() == 1 ? 1 : 0);
}

void SampleList::Choose(const clsS* sample) {
    const std::size_t position = compound_ ? compound_->recS.Position(sample) : 0;
    if (position > 0) ChoosePosition(position);
}

void SampleList::Click() {
    if (list_.Chosen() == NewEntry)
        Make();
    else
        ChoosePosition(static_cast<std::size_t>(list_.Index() + (prompt_.empty() ? 1 : 0)));
}

void SampleList::Make() {
    KVOGlobal& globals = Globals();
    const std::size_t before = compound_->recS.Count();
    const std::size_t chosen = chosen_;
    globals.CurrentL = compound_;
    // By this the dialog knows that it was opened on the way, and comes back here when it closes.
    globals.OpenForms.push_back(form_.Name());
    ui::Forms::Current().Get(SampleDialog).ShowModal();
    Fill(compound_);
    const std::size_t count = compound_->recS.Count();
    // Cancelled: "New" is no sample and must not stay chosen.
    if (count == before) return ChoosePosition(chosen);
    const auto made = compound_->recS.Item(count);
    // What has been made must be found by its number, or data could not refer to it.
    const auto found = compound_->FindS(static_cast<int>(Val(made->SMPNM)));
    if (!found) ui::Say("Sample internal error");
    ChoosePosition(found ? count : 0);
}

void SampleList::ChoosePosition(std::size_t position) {
    const ui::FillingScope filling(form_);
    chosen_ = position;
    list_.Index(static_cast<int>(position) - (prompt_.empty() ? 1 : 0));
}

std::shared_ptr<clsS> SampleList::Sample() const {
    return compound_ ? compound_->recS.Item(chosen_) : nullptr;
}

} // namespace vexora
