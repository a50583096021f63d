#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "entry/AverageForm.h"

namespace vexora {

/// Average of repeated measurements of one value, with the uncertainty of the mean.
class frmAverage : public AverageForm {
public:
    frmAverage();

    ui::Label lblRemark{*this, "lblRemark"};
    ui::TextBox txtValue{*this, "txtValue"};
    ui::Label lblUnit{*this, "lblUnit"};
    ui::CommandButton cmdAdd{*this, "cmdAdd", "Add"};
    ui::ListBox lstAll{*this, "lstAll"};
    ui::CommandButton cmdRemove{*this, "cmdRemove", "Remove"};
    ui::Label lblResult{*this, "lblResult"};
    ui::CommandButton cmdCalc{*this, "cmdCalc", "Use the average"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    bool QueryUnload() override;

private:
    void WireEvents();
    bool Add();
    void Remove();
    void Calculate();
    void ShowResult();
};

/// What repeated values give. The texts are numbers; without any the result is empty, of one the
/// uncertainty is the value itself. Uncertainty: standard deviation of the mean.
struct AverageOfValues {
    std::string average, uncertainty, format;
    std::int16_t count = 0;
    std::uint8_t digits = 0;
};
AverageOfValues Average(const std::vector<std::string>& values);

} // namespace vexora
