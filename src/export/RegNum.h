#pragma once

#include <optional>

#include "reference/StructureIdentifiers.h"

namespace vexora {

class Substance;
class clsL;
class XmlWriter;

/// The number by which data refer to a compound: its place among the compounds of the source, from
/// 1. Complexes count on behind them. 0 for one without a source.
void ExportRegNum(XmlWriter& xml, const Substance& substance);
/// The structure by which public readers know the compound; nothing where no table has it.
std::optional<StructureIdentifiers> PublicStructure(const clsL& compound);

} // namespace vexora
