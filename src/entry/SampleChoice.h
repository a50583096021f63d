#pragma once

#include <memory>
#include <string>

#include "ui/Form.h"
#include "ui/Lists.h"

namespace vexora {

class clsL;
class clsS;

/// The two lists in which a data dialog asks for the compound and its sample. The dialog owns the
/// lists and this; the choice is told through the globals. Samples end with "New", which makes one
/// on the way.
class SampleChoice {
public:
    /// A prompt, if there is one, leads the list of samples.
    SampleChoice(ui::Form& form, ui::ComboBox& compounds, ui::ComboBox& samples,
                 std::string prompt = {});

    /// Lists the compounds of the document and chooses the current one with its current sample.
    void Fill();
    /// Lists the samples of the chosen compound; one alone is chosen by itself.
    void FillSamples();
    /// Acts on the chosen entry: "New" opens frmSample as a link of the chain behind the form, and
    /// what it made is chosen, else what was chosen before.
    void SampleClick();
    /// Nothing is to be changed: the record that is edited keeps its sample.
    void Lock();

    std::shared_ptr<clsL> Compound() const;
    std::shared_ptr<clsS> Sample() const;
    /// Molar mass [g/mol] of the compound, 0 when it is not known.
    double MolarMass() const;
    /// Makes the sample the current one, unless locked, and puts purity and molar mass, or this one
    /// where the formula gives none, into the working context.
    void PutInContext(double fallbackMolarMass) const;

private:
    void MakeSample();
    void ChoosePosition(std::size_t position);

    ui::Form& form_;
    ui::ComboBox& compounds_;
    ui::ComboBox& samples_;
    std::string prompt_;
    std::size_t chosen_ = 0; // position of the sample in force, 0 for none
    bool locked_ = false;
};

} // namespace vexora
