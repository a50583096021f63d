#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/HostClock.h"
#include "qt/Windows.h"
#include "ui/Desktop.h"

namespace vexora::qt {

/// The desktop of a person in front of a screen: real boxes, choosers, clipboard, printer. Used by
/// the interactive program; scripts bring their own.
class QtDesktop : public ui::Desktop {
public:
    /// The windows and the files outlive the desktop; help pages are looked for in the folders in
    /// their order.
    QtDesktop(Windows& windows, ui::FileSystem& files, std::vector<std::string> helpFolders);

    ui::Answer Show(const ui::Message& message) override;
    std::optional<std::string> Ask(const ui::Input& input) override;
    std::optional<std::string> Choose(const ui::FileChoice& choice) override;
    std::string ClipboardText() override;
    void ClipboardText(const std::string& text) override;
    void Hourglass(bool on) override;
    std::unique_ptr<ui::Progress> Begin(const ui::LongWork& work) override;
    void ShowHelp(int context) override;
    void Print(const std::string& title, const std::string& text) override;
    void PrintPicture(const std::string& title, const ui::Picture& picture) override;
    std::optional<std::string> PngOf(const ui::Picture& picture) override;
    ui::Date Today() override { return host::ClockToday(); }
    ui::FileSystem& Files() override { return files_; }
    void RunModal(ui::Form& form) override;
    void EndProgram() override;

private:
    QWidget* Parent() const;

    Windows& windows_;
    ui::FileSystem& files_;
    std::vector<std::string> helpFolders_;
};

} // namespace vexora::qt
