#pragma once

#include <span>
#include <string_view>

namespace vexora {

class clsX;

/// Opens frmUnc on the statements of a data set (the properties first, then its variables); the
/// figures it shows are those of the property chain and the molar mass in force. True when they
/// were accepted; otherwise nothing has changed. DialogAccepted of the globals stays as it was.
/// Each item needs its N, and its name and unit for the captions; an item without a name gets no
/// frame.
bool EditStatements(std::span<clsX> items, int properties = 1);

/// The same for a single value in hand, under the key of its kind of record ("RLSZ", "RMZ", "RQC").
/// Precisions of the chain that a file states in system units are brought to the units entered for
/// as long as frmUnc evaluates.
/// The key makes figures obligatory there that the rows of a table may give one by one.
bool EditStatementsOfValue(std::span<clsX> items, std::string_view key, bool inSystemUnits);

} // namespace vexora
