#include "records/clsBR.h"

namespace vexora {

void clsBR::ExportAll(XmlWriter&) const {}

} // namespace vexora
