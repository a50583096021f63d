#pragma once

#include <functional>
#include <memory>
#include <string>

#include "entry/SampleList.h"
#include "ui/Form.h"
#include "ui/Lists.h"

namespace vexora {

class SubstanceSample;
class clsL;

/// The two lists in which a dialog for data of a pure compound asks for the compound and its
/// sample. The dialog owns the lists and this; the choice is told through the globals. Data of a
/// complex belong to the sample that was current when the dialog was opened: the lists show it and
/// offer no other.
class SampleChoice {
public:
    /// Answers to clicks in the lists: another compound offers its samples, the "New" of the
    /// samples makes one, which is chosen with its compound, whichever that is; the form then
    /// follows what was chosen. A prompt, if there is one, leads the list of samples.
    SampleChoice(ui::Form& form, ui::ComboBox& compounds, ui::ComboBox& samples,
                 const std::function<void()>& follow, std::string prompt = {});

    /// Lists the compounds of the document and chooses the current one with its current sample.
    /// To be called when the dialog loads; the handlers of the form are held off meanwhile. Locked
    /// when a record is edited, which keeps its sample.
    void Fill(bool isLocked);

    /// The chosen one, null for none.
    std::shared_ptr<SubstanceSample> Sample() const;
    /// Molar mass [g/mol] of the compound or complex, 0 when it is not known.
    /// From the registry number, whose formula the databases know.
    double MolarMass() const;
    /// Makes the sample the current one, unless locked, and puts purity and molar mass, or this one
    /// where the formula gives none, into the working context.
    /// Units by mass are converted with that molar mass from here on.
    void PutInContext(double fallbackMolarMass);

private:
    std::shared_ptr<clsL> Compound() const;
    void ShowOfComplex();
    void ListCompounds(const clsL* chosen);
    void ClickSample();

    ui::Form& form_;
    ui::ComboBox& compounds_;
    ui::ComboBox& sampleBox_;
    SampleList samples_;
    std::shared_ptr<SubstanceSample> ofComplex_; // null for data of a compound
    bool locked_ = false;
};

} // namespace vexora
