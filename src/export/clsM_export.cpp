#include "records/clsMV.h"
#include "records/clsMZ.h"

namespace vexora {

void clsMV::ExportAll(XmlWriter&) const {}

void clsMZ::ExportMZ(XmlWriter&) const {}

} // namespace vexora
