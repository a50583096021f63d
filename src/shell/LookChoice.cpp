#include "shell/LookChoice.h"

namespace vexora {

void LookChoice::Take(Look look) {
    if (Chosen == look) return;
    Chosen = look;
    if (OnTaken) OnTaken(look);
}

LookChoice& TheLook() {
    static LookChoice choice;
    return choice;
}

} // namespace vexora
