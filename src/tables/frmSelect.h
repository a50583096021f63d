#pragma once

#include <array>
#include <memory>

#include "entry/SampleList.h"
#include "ui/Form.h"

namespace vexora {

class clsL;
class clsM;

/// The kind of what is to be entered: of a table to process, with the compound and its sample or
/// the mixture and those of its components; of data below a complex sample; of bio data. It tells
/// by the globals, and whoever showed it opens the form for it.
class frmSelect : public ui::Form {
public:
    frmSelect();

    ui::Label lblType{*this, "lblType", "Kind of table:"};
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
    bool IsOfTable() const;
    bool IsOfMixture() const;
    void ShowTableFields();
    void FillTypes();
    void FillMixtures();
    void FillSamples();
    std::shared_ptr<clsL> Component(std::size_t n) const;

    // Accepting.
    void Accept();
    bool Check();
    bool CheckTable();
    void Store() const;
    void StoreTable() const;

    std::array<SampleList, 3> samples_{SampleList{*this, cboSample(0)},
                                       SampleList{*this, cboSample(1)},
                                       SampleList{*this, cboSample(2)}};
    std::shared_ptr<clsM> mixture_;  // the chosen one, or null
    std::shared_ptr<clsL> compound_; // for a table of a pure compound
};

} // namespace vexora
