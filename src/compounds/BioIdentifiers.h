// The identifiers of bio compounds as a person types them. Nothing here knows a form.
#pragma once

#include <string_view>

namespace vexora {

/// What an enzyme number should look like, empty for one that does, and for an empty text: four
/// parts between points, each of digits, or "-" where it is not known ("3.4.21.-", rules of the
/// IUBMB).
std::string_view EnzymeNumberHint(std::string_view text);

/// The same of a code of the protein data bank: a digit and three more letters or digits.
std::string_view ProteinCodeHint(std::string_view text);

} // namespace vexora
