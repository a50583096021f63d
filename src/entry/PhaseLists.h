// Lists of phases on a form: entries are names, records keep codes. A code that no table knows, as
// a file may have it, is its own name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/Lists.h"

namespace vexora {

/// The first entry of a list in which nothing is chosen at first.
inline constexpr const char* SelectPhase = "SELECT PHASE";

/// Offers the phases of these codes; the one chosen is kept where it is still offered, one alone is
/// chosen by itself, and a list without any is closed.
void FillPhaseList(ui::ComboBox& list, const std::vector<std::string>& codes);
/// The same behind the prompt; the one chosen is kept even where it is not offered any more, and
/// the list stays open.
void FillPromptedPhaseList(ui::ComboBox& list, const std::vector<std::string>& codes);

/// Chooses the entry of a code, which joins the list where it is not offered; a blank code changes
/// nothing.
void ChoosePhase(ui::ComboBox& list, std::string_view code);
/// Code of the chosen entry, empty for none and for the prompt.
std::string PhaseChosen(const ui::ComboBox& list);

} // namespace vexora
