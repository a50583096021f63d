#include "entry/PhaseLists.h"

#include <algorithm>
#include <utility>

#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

std::vector<std::string> PhaseNames(const std::vector<std::string>& codes) {
    std::vector<std::string> names;
    names.reserve(codes.size());
    for (const std::string& code : codes)
        names.push_back(PhaseName(code));
    return names;
}

} // namespace

void FillPhaseList(ui::ComboBox& list, const std::vector<std::string>& codes) {
    const std::string chosen = list.Chosen();
    std::vector<std::string> names = PhaseNames(codes);
    list.Enabled(!names.empty());
    list.FirstIsPrompt = false;
    // An equal list is left alone: to assign it would fire its event and lose the choice.
    if (names != list.Items()) {
        list.Assign(std::move(names));
        list.Choose(chosen);
    }
    // What can only be one thing need not be asked.
    if (list.Count() == 1) list.Index(0);
}

void FillPromptedPhaseList(ui::ComboBox& list, const std::vector<std::string>& codes) {
    const std::string chosen = list.Chosen();
    const bool keep = list.Index() > 0;
    std::vector<std::string> names = PhaseNames(codes);
    names.insert(names.begin(), SelectPhase);
    if (keep && std::ranges::find(names, chosen) == names.end()) names.push_back(chosen);
    list.FirstIsPrompt = true;
    if (names != list.Items()) list.Assign(std::move(names));
    // Two entries are the prompt and the only phase.
    list.Index(keep ? list.Find(chosen) : list.Count() == 2 ? 1 : 0);
}

void ChoosePhase(ui::ComboBox& list, std::string_view code) {
    if (IsBlankField(code)) return;
    std::string name = PhaseName(code);
    if (name.empty()) name = code;
    if (list.Find(name) < 0) list.Add(name);
    list.Choose(name);
}

std::string PhaseChosen(const ui::ComboBox& list) {
    if (list.Chosen() == SelectPhase) return {};
    const std::string code = PhaseCode(list.Chosen());
    return code.empty() ? list.Chosen() : code;
}

} // namespace vexora
