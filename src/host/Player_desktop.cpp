#include <algorithm>

#include "host/HostClock.h"
#include "host/Player.h"
#include "ui/OneLine.h"

namespace vexora::host {

namespace {

// In the order of ui::Answer and of ui::MessageButtons.
constexpr const char* AnswerWords[] = {"OK", "Yes", "No", "Cancel", "YesToAll"};
constexpr const char* ButtonTexts[] = {"OK", "Yes/No", "Yes/No/Cancel", "Yes/No/YesToAll"};

std::string Word(ui::Answer answer) {
    return AnswerWords[static_cast<std::size_t>(answer)];
}

std::string ButtonsText(ui::MessageButtons buttons) {
    return ButtonTexts[static_cast<std::size_t>(buttons)];
}

/// The answer that a button with this word gives, nothing when the message has no such button.
std::optional<ui::Answer> AnswerOf(const ui::Message& message, const std::string& word) {
    const std::string buttons = "/" + ButtonsText(message.buttons) + "/";
    if (buttons.find("/" + word + "/") == buttons.npos) return {};
    const auto* found = std::ranges::find(AnswerWords, word);
    return static_cast<ui::Answer>(found - std::begin(AnswerWords));
}

std::string Told(const ui::Message& message) {
    return "[message] " + Quoted(message.title) + ' ' + Quoted(message.text) + " (" +
           ButtonsText(message.buttons) + ")";
}

const ScriptLine& LineBefore(const Script& script, std::size_t at) {
    return script[at > 0 ? at - 1 : 0];
}

} // namespace

const ScriptLine* Player::NextIf(std::string_view command) {
    while (at_ < script_.size() && script_[at_].Is(0, "include"))
        Echo(script_[at_++]);
    const bool fits = at_ < script_.size() && script_[at_].Is(0, command);
    return fits ? &script_[at_++] : nullptr;
}

ui::Answer Player::Show(const ui::Message& message) {
    if (stopped_) return message.safe;
    lastMessage_ = message;
    ui::Answer answer = message.safe;
    const bool isQuestion = message.buttons != ui::MessageButtons::Ok;
    const ScriptLine* line = NextIf("answer");
    std::optional<ui::Answer> pressed;
    if (line) pressed = AnswerOf(message, line->Text(1));
    if (pressed) answer = *pressed;
    out_ << Told(message) << " -> " << Word(answer) << '\n';
    if (line) Echo(*line);

    const std::string shown = Quoted(message.text) + ' ' + Quoted(message.title) + " (" +
                              ButtonsText(message.buttons) + ")";
    if (!line && isQuestion) {
        Report(LineBefore(script_, at_), "no question, or an answer to it", shown, true);
    } else if (line && !pressed) {
        Report(*line, "a message with the button " + line->Text(1), shown, true);
    } else if (line && ((line->Has(2) && line->Text(2) != message.text) ||
                        (line->Has(3) && line->Text(3) != message.title))) {
        Report(*line, Quoted(line->Text(2)) + (line->Has(3) ? ' ' + Quoted(line->Text(3)) : ""),
               shown, true);
    }
    actor_.Answer(message, answer);
    return answer;
}

template <class TQuestion>
std::optional<std::string> Player::AnswerNext(const TQuestion& question, std::string_view command,
                                              const std::string& shown, const char* wanted) {
    if (stopped_) return {};
    const ScriptLine* line = NextIf(command);
    std::optional<std::string> answer;
    if (line && !line->Is(1, "cancel")) answer = line->Text(1);
    out_ << '[' << command << "] " << shown << " -> " << (answer ? Quoted(*answer) : "cancel")
         << '\n';
    if (line)
        Echo(*line);
    else
        Report(LineBefore(script_, at_), wanted, shown, true);
    actor_.Answer(question, answer);
    return answer;
}

std::optional<std::string> Player::Ask(const ui::Input& input) {
    const auto typed = AnswerNext(
        input, "input", Quoted(input.title) + ' ' + Quoted(input.prompt) + ' ' + Quoted(input.text),
        "no question, or input for it");
    return typed ? std::optional(ui::OneLine(*typed)) : std::nullopt;
}

std::optional<std::string> Player::Choose(const ui::FileChoice& choice) {
    auto path =
        AnswerNext(choice, "file", (choice.save ? "save " : "open ") + Quoted(choice.proposed),
                   "no question, or a file for it");
    if (path && !choice.save) reach_.AllowFolderOf(*path);
    return path;
}

void Player::Hourglass(bool on) {
    hourglasses_ += on ? 1 : -1;
    const bool turns = hourglasses_ == (on ? 1 : 0);
    if (!turns || quiet_) return;
    out_ << "[hourglass] " << (on ? "on" : "off") << '\n';
    actor_.Hourglass(on);
}

void Player::ShowHelp(int context) {
    out_ << "[help] " << context << '\n';
}

void Player::Print(const std::string& title, const std::string& text) {
    out_ << "[print] " << Quoted(title) << ' ' << Quoted(text) << '\n';
}

void Player::PrintPicture(const std::string& title, const ui::Picture& picture) {
    out_ << "[print] " << Quoted(title) << " a picture of " << picture.Strokes().size()
         << " strokes\n";
}

ui::Date Player::Today() {
    return options_.today ? *options_.today : ClockToday();
}

} // namespace vexora::host
