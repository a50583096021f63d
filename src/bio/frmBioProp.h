#pragma once

#include <string>
#include <vector>

#include "entry/BioPropertyForm.h"
#include "entry/CompoundList.h"
#include "entry/SampleList.h"

namespace vexora {

/// Defines a set of a property of a biological substance: its transition between two states
/// (BioType "D") or its solubility ("S"), and the solution that it was measured in.
class frmBioProp : public BioPropertyForm {
public:
    frmBioProp();

    ui::ComboBox cmbSubst{*this, "cmbSubst"};
    ui::ComboBox cboSubstSample{*this, "cboSubstSample"};
    ui::Label lblState1{*this, "lblState1", "Initial state:"};
    ui::ComboBox cboState1{*this, "cboState1", ui::ComboBox::Style::Editable};
    ui::ComboBox cboPhase1{*this, "cboPhase1"};

    ui::Label lblState2{*this, "lblState2", "Final state:"};
    ui::ComboBox cboState2{*this, "cboState2", ui::ComboBox::Style::Editable};
    ui::ComboBox cboPhase2{*this, "cboPhase2"};

    ui::ControlArray<ui::ComboBox> cmbComp{*this, "cmbComp", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboFunction{*this, "cboFunction", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboCompPhase{*this, "cboCompPhase", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboCompSample{*this, "cboCompSample", ComponentCount()};
    ui::ControlArray<ui::TextBox> txtContent{*this, "txtContent", ComponentCount()};

private:
    static int ComponentCount();
    bool IsTransition() const { return Base().PrpType != "S"; }

    void SubstanceClick();
    void SampleClick();
    void Follow();

    void FillOwn() override;
    void FillSubstance();
    void FillStates();
    std::string StateIn(const ui::ComboBox& list) const;
    void WriteOwn(clsBP& set) const override;
    std::vector<BioSubject> Subjects() const override;

    std::shared_ptr<clsBP> NewSet() const override;
    int NextNumber() const override;
    BioFaults CheckFirst();
    BioFaults CheckSecond();
    BioFaults CheckWhole() override;
    void CheckSolvents(BioFaults& faults);
    bool ConfirmOwn() override;
    void Attach(const std::shared_ptr<clsBP>& set) const override;

    CompoundList substances_{*this, cmbSubst};
    SampleList samples_{*this, cboSubstSample, "None"};
    BioComponentPage components_{
        *this, {cmbComp, cboFunction, cboCompPhase, cboCompSample, txtContent}, false};
    std::string rn_, sample_; // of the substance
};

} // namespace vexora
