#pragma once

#include <QString>

#include "ui/Buttons.h"

namespace vexora::qt {

/// The caption of a button with "&" before the letter that Alt takes to it. A letter that the
/// caption marks itself stays; the buttons of Enter and Escape need none. The others get, in the
/// order of the form, the first letter that no menu and no button has: beginnings of words go
/// before letters within. A caption all of whose letters are taken stands as it is.
QString WithMnemonic(const ui::CommandButton& button);

} // namespace vexora::qt
