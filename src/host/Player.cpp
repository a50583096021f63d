#include "host/Player.h"

#include <algorithm>
#include <exception>

#include "host/PlayFailure.h"

namespace vexora::host {

namespace {

/// Thrown through the handlers that wait for a modal form when the script is over. No
/// std::exception, so that nobody takes it for a fault.
struct WorkbenchGone {};

std::string OpenFormsText(ui::Forms& forms) {
    std::string text;
    for (const ui::Form* form : forms.OpenForms()) {
        if (!text.empty()) text += ", ";
        text += form->Name();
        if (form->IsModal()) text += " (modal)";
        if (!form->IsVisible()) text += " (hidden)";
    }
    return text.empty() ? "none" : text;
}

} // namespace

const Player::Row Player::commands[] = {
    {"start", &Player::Start},
    {"quit", &Player::Quit},
    {"click", &Player::Click},
    {"dblclick", &Player::DoubleClick},
    {"set", &Player::Enter},
    {"type", &Player::Enter},
    {"key", &Player::PressKey},
    {"choose", &Player::ChooseEntry},
    {"select", &Player::SelectEntry},
    {"check", &Player::Check},
    {"tab", &Player::Tab},
    {"node", &Player::Node},
    {"dblnode", &Player::Node},
    {"keynode", &Player::Node},
    {"cell", &Player::Cell},
    {"cells", &Player::Cell},
    {"block", &Player::Block},
    {"clipboard", &Player::Clipboard},
    {"drag", &Player::Drag},
    {"hover", &Player::Hover},
    {"drop", &Player::Drop},
    {"close", &Player::Close},
    {"answer", &Player::StrayAnswer},
    {"input", &Player::StrayAnswer},
    {"file", &Player::StrayAnswer},
    {"expect", &Player::Expect},
    {"print", &Player::PrintState},
    {"shot", &Player::Shot},
    {"copyfile", &Player::CopyFile},
    {"deletefile", &Player::DeleteFile},
    {"include", &Player::Nothing},
    {"note", &Player::Nothing},
};

Player::Player(Actor& actor, ui::FileSystem& files, MakeProgram make, PlayOptions options,
               std::ostream& out, std::ostream& err)
    : actor_(actor), files_(files), goneFiles_(files), reach_(files), reachedFiles_(files, reach_),
      make_(std::move(make)), options_(std::move(options)), out_(out), err_(err) {
    if (!options_.reach) reach_.AllowAll();
    for (const std::string& folder : options_.reach.value_or(std::vector<std::string>()))
        reach_.AllowFolder(folder);
}

Player::~Player() {
    DropProgram();
}

bool Player::Play(const Script& script) {
    script_ = script;
    at_ = 0;
    try {
        while (PlayNext()) {
        }
    } catch (const WorkbenchGone&) {
        modalDepth_ = 0;
    }
    stopped_ = true;
    DropProgram();
    out_.flush();
    return held_;
}

bool Player::PlayNext() {
    if (stopped_ || at_ >= script_.size()) return false;
    const ScriptLine& line = script_[at_++];
    Echo(line);
    try {
        Execute(line);
        Settle();
    } catch (const PlayFailure& failure) {
        Report(line, failure.Wanted, failure.Found, failure.IsExpectation);
    } catch (const std::exception& fault) {
        Report(line, "the command carried out", fault.what(), false);
    }
    return !stopped_;
}

void Player::Execute(const ScriptLine& line) {
    const std::string& name = line.Text(0);
    const auto* row = std::ranges::find(commands, name, &Row::name);
    if (row == std::end(commands)) CannotDo("a known command", name);
    const bool looksOnly = name == "expect" || name == "print" || name == "note" ||
                           name == "shot" || name == "include";
    if (!looksOnly) lastMessage_.reset();
    (this->*row->run)(line);
}

void Player::Echo(const ScriptLine& line) {
    for (const std::string& text : line.source)
        out_ << "> " << text << '\n';
}

void Player::Settle() {
    if (!program_) return;
    actor_.Settle();
    if (ending_) {
        ending_ = false;
        program_->Forms().CloseAll();
    }
    // Below a modal form the handlers of closed forms may still be waiting.
    if (modalDepth_ == 0) program_->Forms().DropClosed();
}

void Player::RunModal(ui::Form& form) {
    ++modalDepth_;
    actor_.Settle(); // it is seen before anything in it is touched
    while (form.IsVisible() && PlayNext()) {
    }
    --modalDepth_;
    if (form.IsVisible()) LeaveModal();
}

ui::FileSystem& Player::Files() {
    if (quiet_) return goneFiles_;
    return reachedFiles_;
}

void Player::LeaveModal() {
    stopped_ = true;
    quiet_ = true;
    if (actor_.LetsExceptionsThrough()) throw WorkbenchGone();
    program_->Forms().CloseAll();
}

void Player::Follow(ui::Forms& forms) {
    forms.Opened.Connect([this](ui::Form& form) {
        if (!quiet_) out_ << "[open] " << form.Name() << ' ' << Quoted(form.Caption()) << '\n';
    });
    forms.Closed.Connect([this](ui::Form& form) {
        if (!quiet_) out_ << "[close] " << form.Name() << '\n';
    });
}

void Player::DropProgram() {
    if (!program_) return;
    quiet_ = true;
    actor_.Detach(program_->Forms());
    program_.reset();
    quiet_ = false;
    ending_ = false;
    hourglasses_ = 0;
}

void Player::Report(const ScriptLine& line, const std::string& wanted, const std::string& found,
                    bool expectation) {
    held_ = false;
    if (!expectation || !options_.keepGoing) stopped_ = true;
    out_.flush();
    err_ << line.file << ':' << line.number << ": error: " << line.source.front() << '\n'
         << "  wanted: " << wanted << '\n'
         << "  found: " << found << '\n'
         << "  open forms: " << (program_ ? OpenFormsText(program_->Forms()) : "none") << '\n';
}

} // namespace vexora::host
