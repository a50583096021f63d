#pragma once

#include <string>

#include "ui/TreeView.h"

namespace vexora {

/// The selected record in plain words, as HTML for the reading pane: what it is, its values with
/// units and uncertainty, what is still missing. Null gives a word on how to begin.
std::string ReadingHtml(const ui::TreeTag* record);

} // namespace vexora
