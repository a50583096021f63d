#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "ui/Form.h"
#include "ui/Lists.h"

namespace vexora {

class Substance;
class SubstanceSample;
class clsS;

/// A list in which a data dialog asks for the sample of one compound, or of a complex. The dialog
/// owns the list and this; a mixture has one for each of its compounds. The samples of a compound
/// end with "New", which makes one on the way.
class SampleList {
public:
    /// A prompt, if there is one, leads the list.
    /// The prompt has no sample: while it is chosen, Sample is null.
    SampleList(ui::Form& form, ui::ComboBox& list, std::string prompt = {});

    /// Lists the samples of a compound; one alone is chosen by itself. Without a compound nothing
    /// is on offer.
    /// Samples stand by their numbers (SMPNM), in the order of the document.
    void Fill(std::shared_ptr<Substance> system);
    /// Chooses a sample that is on offer; another one, or null, changes nothing.
    void Choose(const SubstanceSample* sample);
    /// No sample is in force then.
    void ChooseNone() { ChoosePosition(0); }
    /// Acts on the chosen entry: "New" opens frmSample as a link of the chain behind the form. The
    /// sample that it made is the answer, null for none; one of the list's own compound is chosen,
    /// else what was chosen before stays.
    std::shared_ptr<clsS> Click();

    const std::shared_ptr<Substance>& System() const { return system_; }
    /// The sample in force, null for none; Sample is null for one of a complex, too.
    std::shared_ptr<SubstanceSample> Chosen() const;
    std::shared_ptr<clsS> Sample() const;

private:
    std::shared_ptr<clsS> Make();
    void ChoosePosition(std::size_t position);

    ui::Form& form_;
    ui::ComboBox& list_;
    std::string prompt_;
    std::shared_ptr<Substance> system_;
    std::size_t chosen_ = 0; // position of the sample in force, 0 for none
};

} // namespace vexora
