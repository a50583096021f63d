#include "entry/Explanations.h"

#include "globals/KVOGlobal.h"
#include "ui/Desktop.h"

namespace vexora {

void ExplainOnce(const std::string& text) {
    KVOGlobal& globals = Globals();
    if (globals.FirstRun && globals.Explained.insert(text).second) ui::Say(text);
}

} // namespace vexora
