#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ui/FileSystem.h"

namespace vexora::ui {

class Form;
class Picture;

enum class MessageButtons { Ok, YesNo, YesNoCancel, YesNoAll };
enum class Answer { Ok, Yes, No, Cancel, YesToAll };

struct Message {
    std::string text;
    std::string title;
    MessageButtons buttons = MessageButtons::Ok;
    Answer safe = Answer::Ok; // what Enter gives: the answer that loses nothing
    std::string yes = {};     // what stands on the button Yes in its place, "&" before its letter
    std::string no = {};      // the same of No
};

struct Input {
    std::string prompt;
    std::string title;
    std::string text; // what stands in the box at first
};

struct FileChoice {
    bool save = false;
    std::string folder;   // where the chooser starts
    std::string proposed; // file name or path
    std::string filter;   // "Record files (*.txt)" and the like, empty for all
};

struct Date {
    int year = 0;
    int month = 0; // 1 to 12
    int day = 0;   // 1 to 31
};

/// Long work, as a person sees it.
struct LongWork {
    std::string what;     // "Reading 2002wagpru1.txt"
    bool mayStop = false; // it can be stopped with nothing lost
};

/// How far a long work is; the work holds it as long as it goes on.
class Progress {
public:
    virtual ~Progress() = default;
    /// The work has come to this share, from 0 to 1. False: the person wants it stopped.
    virtual bool Reached(double share) = 0;
};

/// What the workbench asks of the world. The fronts and the tests bring their own; nothing else
/// touches the screen, the clock, the disk or the user.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows a message box and waits for the button.
    virtual Answer Show(const Message& message) = 0;
    /// Asks for a line of text; nothing on Cancel.
    virtual std::optional<std::string> Ask(const Input& input) = 0;
    /// Asks for a path; nothing on Cancel. It does not ask about overwriting.
    virtual std::optional<std::string> Choose(const FileChoice& choice) = 0;

    virtual std::string ClipboardText() = 0;
    virtual void ClipboardText(const std::string& text) = 0;
    virtual void Hourglass(bool on) = 0;
    /// Shows how far the work is, once it takes long enough to be noticed. Without a screen it is
    /// quiet and never stopped.
    virtual std::unique_ptr<Progress> Begin(const LongWork& work);
    /// Shows the page of help with this context number.
    virtual void ShowHelp(int context) = 0;
    virtual void Print(const std::string& title, const std::string& text) = 0;
    virtual void PrintPicture(const std::string&, const Picture&) {}
    /// A picture as the bytes of a PNG file; nothing where no screen is at hand to paint it.
    virtual std::optional<std::string> PngOf(const Picture&) { return {}; }
    virtual Date Today() = 0;
    virtual FileSystem& Files() = 0;

    /// Lets the person work on a modal form until it has closed or hidden itself.
    virtual void RunModal(Form& form) = 0;
    /// Ends the whole program in an orderly way once the present action is over.
    virtual void EndProgram() = 0;
};

/// Shorthands for the desktop in force.
Desktop& TheDesktop();
void Say(const std::string& text, const std::string& title = {});
/// True on Yes. No is the answer that Enter gives.
bool AskYesNo(const std::string& text, const std::string& title = {});
/// Cancel is the answer that Enter gives.
Answer AskYesNoCancel(const std::string& text, const std::string& title = {});

/// Shows the hourglass while it lives.
class HourglassScope {
public:
    HourglassScope();
    ~HourglassScope();
    HourglassScope(const HourglassScope&) = delete;
    HourglassScope& operator=(const HourglassScope&) = delete;
};

} // namespace vexora::ui
