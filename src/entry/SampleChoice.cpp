#include "entry/SampleChoice.h"

#include <utility>

#include "chem/clsMethod.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"

namespace vexora {

SampleChoice::SampleChoice(ui::Form& form, ui::ComboBox& compounds, ui::ComboBox& samples,
                           const std::function<void()>& follow, std::string prompt)
    : form_(form), compounds_(compounds), sampleBox_(samples),
      samples_(form, samples, std::move(prompt)) {
    compounds.OnClick = [this, follow] {
        if (form_.Filling) return;
        samples_.Fill(Compound());
        follow();
    };
    samples.OnClick = [this, follow] {
        if (form_.Filling) return;
        ClickSample();
        follow();
    };
}

void SampleChoice::Fill(bool isLocked) {
    ofComplex_ = CurrentCompoundSample() ? nullptr : Globals().CurrentS;
    locked_ = isLocked || ofComplex_;
    compounds_.Enabled(!locked_);
    sampleBox_.Enabled(!locked_);
    if (ofComplex_) return ShowOfComplex();
    ListCompounds(CurrentCompound().get());
    samples_.Fill(Compound());
    samples_.Choose(CurrentCompoundSample().get());
}

void SampleChoice::ShowOfComplex() {
    const ui::FillingScope filling(form_);
    compounds_.Assign({ofComplex_->SystemName()});
    compounds_.Index(0);
    sampleBox_.Assign({ofComplex_->SMPNM});
    sampleBox_.Index(0);
}

std::shared_ptr<SubstanceSample> SampleChoice::Sample() const {
    if (ofComplex_) return ofComplex_;
    return samples_.Sample();
}

void SampleChoice::ListCompounds(const clsL* chosen) {
    const ui::FillingScope filling(form_);
    FillCompoundList(compounds_);
    const auto source = Globals().CurrentR;
    // Position 0, for a compound that is not there, becomes index -1: nothing chosen.
    if (source) compounds_.Index(static_cast<int>(source->recL.Position(chosen)) - 1);
}

/// The sample dialog may come back with another compound: made on the way, or merely chosen there.
void SampleChoice::ClickSample() {
    const auto compound = Compound();
    const auto made = samples_.Click();
    const bool elsewhere = made && made->Parent != compound.get();
    ListCompounds(elsewhere ? made->Parent : compound.get());
    if (!elsewhere) return;
    samples_.Fill(Compound());
    samples_.Choose(made.get());
}

std::shared_ptr<clsL> SampleChoice::Compound() const {
    const KVOGlobal& globals = Globals();
    if (!globals.CurrentR || compounds_.Index() < 0) return nullptr;
    return globals.CurrentR->recL.Item(static_cast<std::size_t>(compounds_.Index() + 1));
}

double SampleChoice::MolarMass() const {
    if (ofComplex_) return ofComplex_->MolarMass();
    const auto compound = Compound();
    return compound ? compound->MolarMass() : 0;
}

void SampleChoice::PutInContext(double fallbackMolarMass) {
    KVOGlobal& globals = Globals();
    const auto sample = Sample();
    const double mass = MolarMass();
    globals.CurrentMethod->MMass = mass > 0 ? mass : fallbackMolarMass;
    globals.CurrentMethod->Purity = sample ? sample->Purity : 0;
    // A record that is edited stands under its sample already.
    if (!sample || locked_) return;
    globals.CurrentL = Compound();
    globals.CurrentS = sample;
}

} // namespace vexora
