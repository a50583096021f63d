#include "globals/KVOGlobal.h"
#include "records/BioSet.h"
#include "records/DataSet.h"
#include "records/clsE.h"
#include "records/clsMV.h"
#include "records/clsTwo.h"

namespace vexora {

std::shared_ptr<DataSet> CurrentSet() {
    const KVOGlobal& globals = Globals();
    // Bio reactions share the context of reactions, but have rows of their own kind.
    if (globals.DataContext == "Bio" || CurrentBioSet()) return nullptr;
    const bool isMixture = globals.DataContext == "Bin" || globals.DataContext == "Tern";
    if (isMixture) return globals.CurrentMV;
    if (globals.DataContext == "React") return globals.CurrentE;
    return globals.CurrentTwo; // of a compound or a complex
}

} // namespace vexora
