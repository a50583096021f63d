#include "entry/PhaseLists.h"

#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

void ChoosePhase(ui::ComboBox& list, std::string_view code) {
    if (IsBlankField(code)) return;
    std::string name = PhaseName(code);
    if (name.empty()) name = code;
    if (list.Find(name) < 0) list.Add(name);
    list.Choose(name);
}

std::string PhaseChosen(const ui::ComboBox& list) {
    if (list.Chosen() == selectPhase) return {};
    const std::string code = PhaseCode(list.Chosen());
    return code.empty() ? list.Chosen() : code;
}

} // namespace vexora
