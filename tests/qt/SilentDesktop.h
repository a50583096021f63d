#pragma once

#include <stdexcept>

#include "host/Actor.h"
#include "ui/Forms.h"

namespace vexora::qt::test {

/// A desktop for forms that ask nothing; being asked is a fault of the test.
class SilentDesktop : public ui::Desktop {
public:
    ui::Answer Show(const ui::Message& message) override { throw Unasked(message.text); }
    std::optional<std::string> Ask(const ui::Input& input) override { throw Unasked(input.prompt); }
    std::optional<std::string> Choose(const ui::FileChoice&) override { throw Unasked("file"); }
    explicit SilentDesktop(host::Actor& actor) : actor_(actor) {}

    std::string ClipboardText() override { return actor_.ClipboardText(); }
    void ClipboardText(const std::string& text) override { actor_.ClipboardText(text); }
    void Hourglass(bool) override {}
    void ShowHelp(int) override { throw Unasked("help"); }
    void Print(const std::string& title, const std::string&) override { throw Unasked(title); }
    ui::Date Today() override { return {2004, 5, 6}; }
    ui::FileSystem& Files() override { throw Unasked("files"); }
    void RunModal(ui::Form&) override {}
    void EndProgram() override {}

private:
    static std::logic_error Unasked(const std::string& what) {
        return std::logic_error("asked: " + what);
    }
    host::Actor& actor_;
};

} // namespace vexora::qt::test
