#pragma once

#include <functional>

#include "host/HostClock.h"
#include "host/PosixFileSystem.h"
#include "ui/Desktop.h"

namespace vexora {

/// The desktop of a command that runs by itself: messages go to the one who listens, questions get
/// the answer that loses nothing, nothing else is shown.
class QuietDesktop : public ui::Desktop {
public:
    using Listener = std::function<void(const ui::Message&)>;
    explicit QuietDesktop(Listener listener) : listener_(std::move(listener)) {}

    ui::Answer Show(const ui::Message& message) override {
        listener_(message);
        return message.buttons == ui::MessageButtons::Ok ? ui::Answer::Ok : message.safe;
    }
    std::optional<std::string> Ask(const ui::Input&) override { return std::nullopt; }
    std::optional<std::string> Choose(const ui::FileChoice&) override { return std::nullopt; }
    std::string ClipboardText() override { return {}; }
    void ClipboardText(const std::string&) override {}
    void Hourglass(bool) override {}
    void ShowHelp(int) override {}
    void Print(const std::string&, const std::string&) override {}
    ui::Date Today() override { return host::ClockToday(); }
    ui::FileSystem& Files() override { return files_; }
    void RunModal(ui::Form&) override {}
    void EndProgram() override {}

private:
    Listener listener_;
    host::PosixFileSystem files_;
};

} // namespace vexora
