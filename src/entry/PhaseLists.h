// Lists of phases on a form: entries are names, records keep codes. A code that no table knows, as
// a file may have it, is its own name.
#pragma once

#include <string>
#include <string_view>

#include "ui/Lists.h"

namespace vexora {

/// The first entry of a list in which nothing is chosen at first.
inline constexpr const char* selectPhase = "SELECT PHASE";

/// Chooses the entry of a code, which joins the list where it is not offered; a blank code changes
/// nothing.
void ChoosePhase(ui::ComboBox& list, std::string_view code);
/// Code of the chosen entry, empty for none and for the prompt.
std::string PhaseChosen(const ui::ComboBox& list);

} // namespace vexora
