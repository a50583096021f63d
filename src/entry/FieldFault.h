#pragma once

#include <string>

namespace vexora {

/// What keeps a form from being accepted, and the field that mends it. Field is the form's own list
/// of its fields.
template <class Field>
struct FieldFault {
    Field field;
    std::string text;
};

} // namespace vexora
