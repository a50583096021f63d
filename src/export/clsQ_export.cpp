#include "records/clsQ.h"

#include "export/DataHead.h"
#include "globals/KVOGlobal.h"
#include "records/clsC.h"
#include "records/clsE.h"

namespace vexora {

void clsQ::ExportAll(XmlWriter& xml) const {
    // Names of properties depend on the context.
    Globals().DataContext = "React";
    for (const auto& value : recC)
        ExportRecord(xml, *value);
    for (const auto& set : recE)
        ExportRecord(xml, *set);
}

} // namespace vexora
