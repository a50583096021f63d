#include "records/clsBP.h"

namespace vexora {

void clsBP::ExportAll(XmlWriter&) const {}

} // namespace vexora
