#include "entry/ValueEntry.h"

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/PropertyContext.h"
#include "entry/ValueQuestions.h"
#include "globals/KVOGlobal.h"
#include "reference/Numbers.h"

namespace vexora {

ValueEntry::ValueEntry(ui::Form& form, ui::TextBox& value, ui::Label& unit,
                       ui::CommandButton& method)
    : form_(form), value_(value), unit_(unit), method_(method) {}

void ValueEntry::ShowUnit() {
    unit_.Caption(Globals().PropertyText);
}

void ValueEntry::TakeText() {
    Globals().CurrentProperty->Text = NormalizeNumber(value_.Text());
}

bool ValueEntry::Check() {
    // What is checked is what will be stored: blanks and decimal comma are mended in sight.
    value_.Text(NormalizeNumber(value_.Text()));
    if (!IsNumeric(value_.Text()))
        return form_.Refuse(value_, "Enter the property value", "Illegal property value");
    if (!CheckUnit()) return false;
    TakeText();
    bool ok = true;
    Globals().CurrentProperty->Convert(ok, Globals().CurrentMethod->MMass, ConfirmInBox);
    return ok || form_.Refuse(value_, "Invalid property value");
}

/// A value whose unit cannot be converted is never stored.
bool ValueEntry::CheckUnit() {
    const std::string fault = UnitFault(*Globals().CurrentProperty);
    if (fault.empty()) return true;
    // The unit is mended behind the button, a missing molar mass only by another compound or unit.
    const bool ofUnit = fault == "Invalid conversion factor";
    return form_.Refuse(ofUnit ? static_cast<ui::Control&>(method_) : value_, fault);
}

} // namespace vexora
