#include "entry/SampleChoice.h"

#include <utility>

#include "chem/clsMethod.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* newEntry = "New";
constexpr const char* sampleDialog = "frmSample";

} // namespace

SampleChoice::SampleChoice(ui::Form& form, ui::ComboBox& compounds, ui::ComboBox& samples,
                           std::string prompt)
    : form_(form), compounds_(compounds), samples_(samples), prompt_(std::move(prompt)) {}

void SampleChoice::Fill() {
    const KVOGlobal& globals = Globals();
    const ui::FillingScope filling(form_);
    FillCompoundList(compounds_);
    if (!globals.CurrentR) return;
    compounds_.Index(static_cast<int>(globals.CurrentR->recL.Position(globals.CurrentL.get())) - 1);
    FillSamples();
    const auto compound = Compound();
    const std::size_t current = compound ? compound->recS.Position(globals.CurrentS.get()) : 0;
    if (current > 0) ChoosePosition(current);
}

void SampleChoice::FillSamples() {
    const ui::FillingScope filling(form_);
    const auto compound = Compound();
    samples_.Clear();
    if (!prompt_.empty()) samples_.Add(prompt_);
    if (!compound) return ChoosePosition(0);
    for (const auto& sample : compound->recS)
        samples_.Add(sample->SMPNM);
    if (ui::Forms::Current().Knows(sampleDialog)) samples_.Add(newEntry);
    ChoosePosition(compound->recS.Count() == 1 ? 1 : 0);
}

void SampleChoice::SampleClick() {
    if (samples_.Chosen() == newEntry)
        MakeSample();
    else
        ChoosePosition(static_cast<std::size_t>(samples_.Index() + (prompt_.empty() ? 1 : 0)));
}

void SampleChoice::Lock() {
    locked_ = true;
    compounds_.Enabled(false);
    samples_.Enabled(false);
}

void SampleChoice::MakeSample() {
    KVOGlobal& globals = Globals();
    const auto compound = Compound();
    const std::size_t before = compound->recS.Count();
    const std::size_t chosen = chosen_;
    globals.CurrentL = compound;
    globals.OpenForms.push_back(form_.Name());
    ui::Forms::Current().Get(sampleDialog).ShowModal();
    FillSamples();
    const std::size_t count = compound->recS.Count();
    if (count == before) return ChoosePosition(chosen);
    const auto made = compound->recS.Item(count);
    const auto found = compound->FindS(static_cast<int>(Val(made->SMPNM)));
    if (!found) ui::Say("Sample internal error");
    ChoosePosition(found ? count : 0);
}

void SampleChoice::ChoosePosition(std::size_t position) {
    const ui::FillingScope filling(form_);
    chosen_ = position;
    samples_.Index(static_cast<int>(position) - (prompt_.empty() ? 1 : 0));
}

std::shared_ptr<clsL> SampleChoice::Compound() const {
    const KVOGlobal& globals = Globals();
    if (!globals.CurrentR || compounds_.Index() < 0) return nullptr;
    return globals.CurrentR->recL.Item(static_cast<std::size_t>(compounds_.Index() + 1));
}

std::shared_ptr<clsS> SampleChoice::Sample() const {
    const auto compound = Compound();
    return compound ? compound->recS.Item(chosen_) : nullptr;
}

double SampleChoice::MolarMass() const {
    const auto compound = Compound();
    return compound ? MolarMassOfRN(compound->RN) : 0;
}

void SampleChoice::PutInContext(double fallbackMolarMass) const {
    KVOGlobal& globals = Globals();
    const auto sample = Sample();
    const double mass = MolarMass();
    globals.CurrentMethod->MMass = mass > 0 ? mass : fallbackMolarMass;
    globals.CurrentMethod->Purity = sample ? sample->Purity : 0;
    if (!sample || locked_) return;
    globals.CurrentL = Compound();
    globals.CurrentS = sample;
}

} // namespace vexora
