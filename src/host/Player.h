#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "host/Actor.h"
#include "host/GoneFileSystem.h"
#include "host/Program.h"
#include "host/ScriptParser.h"
#include "host/WriteReach.h"
#include "ui/Desktop.h"

namespace vexora::host {

struct PlayOptions {
    std::optional<ui::Date> today; // the clock's date when absent
    bool keepGoing = false;        // go on behind a failed expectation
    std::string shots;             // folder for pictures, empty for none
    /// The folders in which the script may change files, beside those of the documents that it
    /// opens; absent where it may do so anywhere.
    std::optional<std::vector<std::string>> reach = {};
};

/// Plays one script on one program: finds what a line speaks of, makes sure that a person could do
/// it, lets the actor do it, and is itself the desktop that the program asks, answering with the
/// script's next lines. Writes the transcript to out and failures to err. Owned by who plays; it
/// lasts for one script.
class Player : public ui::Desktop {
public:
    /// The actor, the files and the streams must outlive the player.
    Player(Actor& actor, ui::FileSystem& files, MakeProgram make, PlayOptions options,
           std::ostream& out, std::ostream& err);
    ~Player() override;

    /// Plays to the end, then drops the program; true when every line held.
    bool Play(const Script& script);

    ui::Answer Show(const ui::Message& message) override;
    std::optional<std::string> Ask(const ui::Input& input) override;
    std::optional<std::string> Choose(const ui::FileChoice& choice) override;
    std::string ClipboardText() override { return actor_.ClipboardText(); }
    void ClipboardText(const std::string& text) override { actor_.ClipboardText(text); }
    void Hourglass(bool on) override;
    void ShowHelp(int context) override;
    void Print(const std::string& title, const std::string& text) override;
    void PrintPicture(const std::string& title, const ui::Picture& picture) override;
    std::optional<std::string> PngOf(const ui::Picture& picture) override {
        return actor_.PngOf(picture);
    }
    ui::Date Today() override;
    /// Refuses every change beyond the reach of the script, and every one once it has left the
    /// program below a modal form.
    ui::FileSystem& Files() override;
    void RunModal(ui::Form& form) override;
    void EndProgram() override { ending_ = true; }

private:
    using Command = void (Player::*)(const ScriptLine&);
    struct Row {
        std::string_view name;
        Command run;
    };
    static const Row commands[];

    bool PlayNext();
    void Execute(const ScriptLine& line);
    void Echo(const ScriptLine& line);
    void Settle();
    void Follow(ui::Forms& forms);
    void DropProgram();
    void LeaveModal();
    /// Notes a failure; the script stops unless it may go on.
    void Report(const ScriptLine& line, const std::string& wanted, const std::string& found,
                bool expectation);
    const ScriptLine* NextIf(std::string_view command);
    /// The answer that the next line has for a question, nothing for "cancel" or none.
    template <class TQuestion>
    std::optional<std::string> AnswerNext(const TQuestion& question, std::string_view command,
                                          const std::string& shown, const char* wanted);

    void Start(const ScriptLine& line);
    void Quit(const ScriptLine& line);
    void Click(const ScriptLine& line);
    void DoubleClick(const ScriptLine& line);
    void Enter(const ScriptLine& line);
    void PressKey(const ScriptLine& line);
    void ChooseEntry(const ScriptLine& line);
    void SelectEntry(const ScriptLine& line);
    void Check(const ScriptLine& line);
    void Tab(const ScriptLine& line);
    void Node(const ScriptLine& line);
    void Cell(const ScriptLine& line);
    void Block(const ScriptLine& line);
    void Clipboard(const ScriptLine& line);
    void Drag(const ScriptLine& line);
    void Hover(const ScriptLine& line);
    void Drop(const ScriptLine& line);
    void Close(const ScriptLine& line);
    void StrayAnswer(const ScriptLine& line);
    void Shot(const ScriptLine& line);
    void CopyFile(const ScriptLine& line);
    void DeleteFile(const ScriptLine& line);
    void Nothing(const ScriptLine&) {}

    void Expect(const ScriptLine& line);
    void ExpectControl(const ScriptLine& line);
    void ExpectNo(const ScriptLine& line);
    void ExpectWindow(const ScriptLine& line);
    void ExpectMessage(const ScriptLine& line);
    void ExpectNode(const ScriptLine& line);
    void ExpectFile(const ScriptLine& line);
    void ExpectXml(const ScriptLine& line);
    void PrintState(const ScriptLine& line);

    /// Throws when the script may not change the file.
    static void NeedsReach(const std::string& whyNot);
    ui::Forms& OpenForms() const;
    /// The control that a word names, of an open form; throws when there is none.
    ui::Control& Named(const std::string& word) const;
    /// The same, and a person can use it now.
    template <class T>
    T& Reached(const std::string& word) const;
    ui::Form& NamedForm(const std::string& name) const;
    ui::TreeView& Tree() const;
    /// The same, and a person can use it now.
    ui::TreeView& ReachedTree() const;
    void CloseWindow(ui::Form& form, const std::string& name);

    Actor& actor_;
    ui::FileSystem& files_;
    GoneFileSystem goneFiles_;
    WriteReach reach_;
    ReachedFileSystem reachedFiles_;
    MakeProgram make_;
    PlayOptions options_;
    std::ostream& out_;
    std::ostream& err_;
    std::unique_ptr<Program> program_;
    Script script_;
    std::size_t at_ = 0;   // index of the next line
    int modalDepth_ = 0;   // modal forms that wait for the script
    int hourglasses_ = 0;  // requests for the hourglass that still hold
    bool held_ = true;     // no failure so far
    bool stopped_ = false; // nothing more is played
    bool ending_ = false;  // the program has asked to end
    bool quiet_ = false;   // the program is being dropped: nothing is told any more
    std::optional<ui::Message> lastMessage_; // since the last command that did something
};

} // namespace vexora::host
