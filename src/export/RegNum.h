#pragma once

#include <optional>

#include "reference/StructureIdentifiers.h"

namespace vexora {

class clsL;
class XmlWriter;

/// The number by which data refer to a compound: its place among the compounds of the source.
/// Places count from 1 and are those of this file only; 0 for a compound without a source.
void ExportRegNum(XmlWriter& xml, const clsL& compound);
/// The structure by which public readers know the compound; nothing where no table has it.
std::optional<StructureIdentifiers> PublicStructure(const clsL& compound);

} // namespace vexora
