#pragma once

#include <array>
#include <memory>

#include "entry/SampleList.h"
#include "ui/Form.h"

namespace vexora {

class clsL;
class clsM;

/// What a table to process is about: its kind, the compound with its sample or the mixture with
/// those of its components. It tells by the globals; frmProcess opens behind it.
class frmSelect : public ui::Form {
public:
    frmSelect();

    ui::ComboBox cboType{*this, "cboType"};
    ui::Label lblMixt{*this, "lblMixt", "Mixture:"};
    ui::ComboBox cboMixt{*this, "cboMixt"};
    ui::ControlArray<ui::Label> lblSample{*this, "lblSample", 3};
    ui::ControlArray<ui::ComboBox> cboSample{*this, "cboSample", 3};
    ui::CheckBox chkStatic{*this, "chkStatic", "Measured by a static method"};
    ui::CommandButton cmdOK{*this, "cmdOK", "OK"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;

private:
    void ArrangeControls();
    void WireEvents();

    void MixtureClick();
    void MakeNew();
    void SampleClick(std::size_t n);

    // What is offered.
    bool IsOfMixture() const;
    void FillTypes();
    void FillMixtures();
    void FillSamples();
    std::shared_ptr<clsL> Component(std::size_t n) const;

    // Accepting.
    void Accept();
    bool Check();
    void Store() const;

    std::array<SampleList, 3> samples_{SampleList{*this, cboSample(0)},
                                       SampleList{*this, cboSample(1)},
                                       SampleList{*this, cboSample(2)}};
    std::shared_ptr<clsM> mixture_;  // the chosen one, or null
    std::shared_ptr<clsL> compound_; // for a table of a pure compound
};

} // namespace vexora
