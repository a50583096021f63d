#pragma once

#include <span>

namespace vexora {

class clsX;

/// Opens frmUnc on the statements of a data set (the property first, then its variables); the
/// figures it shows are those of the property chain and the molar mass in force. True when they
/// were accepted; otherwise nothing has changed. DialogAccepted of the globals stays as it was.
bool EditStatements(std::span<clsX> items);

} // namespace vexora
