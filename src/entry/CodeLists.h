// Lists on a form whose entries are the texts of a table of codes: the form shows texts, the record
// keeps codes. A code that no table knows, as a file may have it, is its own text.
// They change nothing but the list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/KVODefinitions.h"
#include "ui/Lists.h"

namespace vexora {

/// The entries of a list of the table, in its order.
/// For a list that is to be filled once; ChooseCode may add to it later.
std::vector<std::string> Texts(CodeTexts table);

/// Chooses the entry of a code, which joins the list where it is not offered; none for a blank one.
/// What a file holds is never lost by opening a form and accepting it unchanged.
void ChooseCode(ui::ComboBox& list, CodeTexts table, std::string_view code);
/// Code of the chosen entry, empty for none.
/// The text itself where the table has no code for it, as ChooseCode has put it in.
std::string CodeChosen(const ui::ComboBox& list, CodeTexts table);

} // namespace vexora
