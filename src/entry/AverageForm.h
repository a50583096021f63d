#pragma once

#include <cstdint>
#include <string>

#include "ui/Form.h"

namespace vexora {

class clsX;

/// The dialog that averages repeated measurements of one value, as its callers know it: they say
/// what stands above the list, and read the figures once it has closed. A helper: it takes no part
/// in the chain of dialogs.
class AverageForm : public ui::Form {
public:
    using Form::Form;

    std::string sAverage, sUncertainty; // as they are printed, in the unit of the values
    std::string sFormat;                // the mask that printed them
    std::int16_t nData = 0;             // 0 when nothing was averaged
    std::uint8_t Digits = 0;            // decimals of the first value

    /// To be shown above the list, set before the form opens.
    std::string Remark;
};

/// Whether that dialog is there to be opened.
bool CanAverage();

/// The average of repeated values, as a form takes it into its field of one value. The form owns
/// the field and this.
class AverageEntry {
public:
    AverageEntry(ui::Form& form, ui::TextBox& value) : form_(form), value_(value) {}

    /// Opens the dialog. The average becomes the value; of several values the uncertainty of the
    /// mean and their number become the repeatability that the statement tells. The focus comes
    /// back to the field. False, and nothing has changed, when nothing was averaged.
    bool Ask(clsX& statement, const std::string& remark = {});
    /// Takes the repeatability out that an average gave: it is of no other value.
    void TakeOut(clsX& statement) const;

private:
    ui::Form& form_;
    ui::TextBox& value_;
    std::string givenUncertainty_, givenCount_; // by the average before
};

} // namespace vexora
