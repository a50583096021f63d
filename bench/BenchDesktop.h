#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "globals/KVOGlobal.h"
#include "ui/Desktop.h"
#include "ui/Form.h"

namespace vexora {

/// Confirms whatever is asked; the statements are accepted as they are.
class BenchDesktop : public ui::Desktop {
public:
    ui::Answer Show(const ui::Message& message) override {
        return message.buttons == ui::MessageButtons::YesNoAll ? ui::Answer::YesToAll
                                                               : ui::Answer::Yes;
    }
    std::optional<std::string> Ask(const ui::Input&) override { return {}; }
    std::optional<std::string> Choose(const ui::FileChoice&) override { return {}; }
    std::string ClipboardText() override { return {}; }
    void ClipboardText(const std::string&) override {}
    void Hourglass(bool) override {}
    void ShowHelp(int) override {}
    void Print(const std::string&, const std::string&) override {}
    ui::Date Today() override { return {2026, 1, 15}; }
    ui::FileSystem& Files() override { std::abort(); }
    void RunModal(ui::Form& form) override {
        Globals().DialogAccepted = true;
        form.Close();
    }
    void EndProgram() override {}
};

} // namespace vexora
