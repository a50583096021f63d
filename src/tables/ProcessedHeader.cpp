#include "tables/ProcessedHeader.h"

#include "globals/KVOGlobal.h"
#include "records/clsR.h"
#include "ui/Desktop.h"

namespace vexora {

clsA ProcessedHeader(const clsR* source) {
    const KVOGlobal& globals = Globals();
    const ui::Date today = ui::TheDesktop().Today();
    clsA header;
    if (source) header.SOURCEDOC = source->SOURCEDOC;
    header.EXPPURPOSE = "B";
    header.COMPILER = globals.CompilerCode;
    header.CONTRIBUTOR = globals.ContributorCode;
    header.DATEADDED = std::to_string(today.month) + "/" + std::to_string(today.day) + "/" +
                       std::to_string(today.year);
    header.DATACOMMENT = "::Method:UNKNOWN:";
    return header;
}

} // namespace vexora
