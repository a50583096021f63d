// What the tree shows of a record besides its label: an icon of its kind and a tip.
#pragma once

#include <string>

#include "ui/TreeView.h"

namespace vexora {

/// The name of the icon of its kind; empty for what is no record.
std::string IconOfRecord(const ui::TreeTag* record);

/// What the label says in code and in short, in a person's words: "Density, Liquid, kg/m3, set 1,
/// vibrating tube". Empty where the label says it all.
std::string TipOfRecord(const ui::TreeTag* record);

} // namespace vexora
