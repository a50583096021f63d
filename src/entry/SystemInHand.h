#pragma once

#include <string>

namespace vexora::ui {
class Form;
}

namespace vexora {

/// The mixture, reaction or compound that the data in hand are of; empty for none.
std::string SystemInHand();

/// What the window of a form says at its head: the caption, and what its figures are of where the
/// caption does not name it. Only for forms in which that cannot be changed.
std::string TitleOf(const ui::Form& form);

} // namespace vexora
