#pragma once

#include <string>

namespace vexora::ui {

/// One key as a control sees it. A key that writes has its character; others have only a name:
/// "Enter", "Escape", "Tab", "Delete", "Backspace", "F1", "Left", "Right", "Up", "Down", "Home",
/// "End", "PageUp", "PageDown", "Space"; keys of the number pad begin with "Num" ("Num*"). A letter
/// with Ctrl has the upper-case letter as its name.
struct Key {
    std::string name;
    char32_t character = 0;
    bool control = false;
    bool shift = false;
    bool alt = false;
    bool swallowed = false; // set by a handler: the control does nothing further with the key

    /// The name with its modifiers, as scripts write it: "Ctrl+V", "Ctrl+Shift+Z", "F1".
    std::string FullName() const;
};

/// The key for a script's name of it, such as "Enter", "Ctrl+V", "a" or "Num*".
Key ParseKey(const std::string& fullName);

/// The key that writes a character; those of a line feed and a tab are Enter and Tab.
Key CharacterKey(char32_t character);

} // namespace vexora::ui
