#include "entry/CodeLists.h"

#include "reference/Text.h"

namespace vexora {

std::vector<std::string> Texts(CodeTexts table) {
    std::vector<std::string> texts;
    for (const CodeText& entry : table)
        texts.emplace_back(entry.text);
    return texts;
}

void ChooseCode(ui::ComboBox& list, CodeTexts table, std::string_view code) {
    // A blank code chooses nothing, not even the blank first entry that some tables have.
    if (IsBlankField(code)) {
        list.Index(-1);
        return;
    }
    std::string text = TextOfCode(table, code);
    if (text.empty()) text = code;
    if (list.Find(text) < 0) list.Add(text);
    list.Choose(text);
}

std::string CodeChosen(const ui::ComboBox& list, CodeTexts table) {
    const std::string code = CodeOfText(table, list.Chosen());
    return code.empty() ? list.Chosen() : code;
}

} // namespace vexora
