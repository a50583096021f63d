#pragma once

#include "globals/KVOGlobal.h"

namespace vexora::fuzz {

/// The state of the program with the installed databases, and an empty document in it.
struct Room {
    Room() {
        const std::string share = VEXORA_SHARE_DIR;
        globals.Databases.OpenBoth(share + "/VXRLocal.mdb", share + "/VXR.mdb");
    }
    KVOGlobal globals;
};

} // namespace vexora::fuzz
