#pragma once

#include <memory>

#include "ui/Control.h"

namespace vexora {

class BioSet;

/// Opens the table on the rows of a bio set, as a link of the chain behind the form; true when it
/// was accepted, otherwise rows and statements are as they were. The set need not stand in the
/// document yet: who defines it stores it afterwards.
bool EnterBioRows(ui::Control& field, const std::shared_ptr<BioSet>& set);

} // namespace vexora
