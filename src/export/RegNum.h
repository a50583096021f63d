#pragma once

namespace vexora {

class clsL;
class XmlWriter;

/// The number by which data refer to a compound: its place among the compounds of the source.
void ExportRegNum(XmlWriter& xml, const clsL& compound);

} // namespace vexora
