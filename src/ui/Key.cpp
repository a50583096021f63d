#include "ui/Key.h"

#include "ui/Utf8.h"

namespace vexora::ui {

std::string Key::FullName() const {
    std::string text;
    if (control) text += "Ctrl+";
    if (alt) text += "Alt+";
    if (shift) text += "Shift+";
    return text + name;
}

Key ParseKey(const std::string& fullName) {
    Key key;
    key.name = fullName;
    const auto take = [&key](const std::string& modifier, bool& flag) {
        if (key.name.size() <= modifier.size() || !key.name.starts_with(modifier)) return false;
        key.name.erase(0, modifier.size());
        return flag = true;
    };
    while (take("Ctrl+", key.control) || take("Shift+", key.shift) || take("Alt+", key.alt)) {
    }
    const std::u32string points = ToPoints(key.name);
    if (key.name == "Space") key.character = U' ';
    if (points.size() == 1) key.character = points[0];
    if (points.size() == 4 && key.name.starts_with("Num")) key.character = points[3];
    if (key.control || key.alt) key.character = 0;
    return key;
}

Key CharacterKey(char32_t character) {
    if (character == U'\n') return ParseKey("Enter");
    if (character == U'\t') return ParseKey("Tab");
    Key key;
    key.name = character == U' ' ? "Space" : FromPoints(std::u32string(1, character));
    key.character = character;
    return key;
}

} // namespace vexora::ui
