#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/Forms.h"

namespace vexora {

/// Makes the forms for the details of a publication known. Each asks for the parts of one kind of
/// publication, and on Accept builds from them the one source text of the description of the
/// document, which stands open below it. Opened again it shows the parts of the present text.
void RegisterMakeForms(ui::Forms& forms);

/// Texts for the fields of such a form, by their names.
using DetailTexts = std::vector<std::pair<std::string_view, std::string>>;

struct SourceText {
    std::string text;
    std::string missing; // what the form says of the first part that it cannot do without, or ""
    std::vector<std::string> parts; // of the text, as such a form keeps them
};
/// What the form builds from these texts, cleaned as typed ones are. No such form gives nothing.
SourceText ComposeSource(std::string_view form, const DetailTexts& details);

} // namespace vexora
