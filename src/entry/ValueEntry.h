#pragma once

#include "ui/Buttons.h"
#include "ui/Form.h"
#include "ui/TextBox.h"

namespace vexora {

/// The field in which a form takes one value of the property in force, in the unit that was chosen
/// with the property. The form owns the controls and this; the text goes to the head of the
/// property chain in the globals.
class ValueEntry {
public:
    /// The button is the one that leads to property and unit.
    /// All of them must outlive it.
    ValueEntry(ui::Form& form, ui::TextBox& value, ui::Label& unit, ui::CommandButton& method);

    /// Shows the unit of the property in force beside the field.
    void ShowUnit();
    /// Puts the number into the chain as it is typed, but for blanks and a decimal comma.
    void TakeText();
    /// Refuses what is no number, what cannot be brought to the system unit, and what is impossible
    /// for the property; asks about what is unlikely. The focus is where it can be mended.
    /// True when the value may be stored; its figures then are in the head of the chain.
    bool Check();

private:
    bool CheckUnit();

    ui::Form& form_;
    ui::TextBox& value_;
    ui::Label& unit_;
    ui::CommandButton& method_;
};

} // namespace vexora
