#pragma once

#include <string>

namespace vexora {

/// What keeps a form from being accepted, and the field that mends it. Field is the form's own list
/// of its fields.
/// A check returns the first of them, in the order of the fields on the screen or of the rules, and
/// the form shows the text and puts the focus there. So a check can be tested without a form.
template <class Field>
struct FieldFault {
    Field field;
    std::string text;
};

} // namespace vexora
