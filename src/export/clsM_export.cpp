#include "records/clsM.h"

#include "export/DataHead.h"
#include "globals/KVOGlobal.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"

namespace vexora {

void clsM::ExportAll(XmlWriter& xml) {
    // Names of properties depend on the context.
    Globals().DataContext = MixType == 2 ? "Bin" : "Tern";
    for (const auto& set : recMV)
        set->SavedInXML = false;
    for (const auto& value : recMZ)
        ExportRecord(xml, *value);
    for (const auto& set : recMV) {
        if (set->SavedInXML) continue;
        set->SavedInXML = true;
        ExportRecord(xml, *set);
    }
}

} // namespace vexora
