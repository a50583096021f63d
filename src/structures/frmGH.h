#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "entry/BioPropertyForm.h"

namespace vexora {

class clsComplexSample;

/// Defines a set of a phase equilibrium of a gas hydrate below its sample: which phases are there,
/// and temperature, pressure and mole fractions as what is measured, varied and held constant, each
/// said of a phase.
class frmGH : public BioPropertyForm {
public:
    frmGH();

    ui::ComboBox cboPhase1{*this, "cboPhase1"};
    ui::ComboBox cboPhase2{*this, "cboPhase2"};
    ui::ComboBox cboPhase3{*this, "cboPhase3"};
    ui::ComboBox cboPhase4{*this, "cboPhase4"};
    ui::Label lblSystem{*this, "lblSystem"};

private:
    std::array<ui::ComboBox*, 4> PhaseLists() {
        return {&cboPhase1, &cboPhase2, &cboPhase3, &cboPhase4};
    }
    void BuildPhaseList(ui::ComboBox& list);
    std::vector<std::string> Phases() const;
    std::vector<BioComponent> Components() const;

    void FillOwn() override;
    void WriteOwn(clsBP& set) const override;
    std::vector<BioSubject> Subjects() const override;
    std::shared_ptr<clsBP> NewSet() const override;
    int NextNumber() const override;
    BioFaults CheckPhases();
    void Attach(const std::shared_ptr<clsBP>& set) const override;

    std::shared_ptr<clsComplexSample> sample_; // that was measured
};

} // namespace vexora
