// Lists of phases on a form: entries are names, records keep codes. A code that no table knows, as
// a file may have it, is its own name.
// The lists keep the order of the table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/Lists.h"

namespace vexora {

/// The first entry of a list in which nothing is chosen at first.
/// It has no code: while it is chosen the record gets none.
inline constexpr const char* SelectPhase = "SELECT PHASE";

/// Offers the phases of these codes; the one chosen is kept where it is still offered, one alone is
/// chosen by itself, and a list without any is closed.
/// To be called whenever the property, the number of variables or another phase has changed.
void FillPhaseList(ui::ComboBox& list, const std::vector<std::string>& codes);
/// The same behind the prompt; the one chosen is kept even where it is not offered any more, and
/// the list stays open.
/// For forms on which a choice once made must not vanish silently.
void FillPromptedPhaseList(ui::ComboBox& list, const std::vector<std::string>& codes);

/// Chooses the entry of a code, which joins the list where it is not offered; a blank code changes
/// nothing.
/// Call it after the list was filled, for filling drops what is not offered.
void ChoosePhase(ui::ComboBox& list, std::string_view code);
/// Code of the chosen entry, empty for none and for the prompt.
std::string PhaseChosen(const ui::ComboBox& list);

} // namespace vexora
