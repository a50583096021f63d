#pragma once

namespace vexora {

class clsL;
class XmlWriter;

/// The number by which data refer to a compound: its place among the compounds of the source.
/// Places count from 1 and are those of this file only; 0 for a compound without a source.
void ExportRegNum(XmlWriter& xml, const clsL& compound);

} // namespace vexora
