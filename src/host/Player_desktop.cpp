#include "host/HostClock.h"
#include "host/Player.h"

namespace vexora::host {

namespace {

std::string Word(ui::Answer answer) {
    switch (answer) {
    case ui::Answer::Yes:
        return "Yes";
    case ui::Answer::No:
        return "No";
    case ui::Answer::Cancel:
        return "Cancel";
    case ui::Answer::YesToAll:
        return "YesToAll";
    default:
        return "OK";
    }
}

std::string ButtonsText(ui::MessageButtons buttons) {
    switch (buttons) {
    case ui::MessageButtons::YesNo:
        return "Yes/No";
    case ui::MessageButtons::YesNoCancel:
        return "Yes/No/Cancel";
    case ui::MessageButtons::YesNoAll:
        return "Yes/No/YesToAll";
    default:
        return "OK";
    }
}

/// The answer that a button with this word gives, nothing when the message has no such button.
std::optional<ui::Answer> AnswerOf(const ui::Message& message, const std::string& word) {
    const std::string buttons = "/" + ButtonsText(message.buttons) + "/";
    if (buttons.find("/" + word + "/") == buttons.npos) return {};
    for (const ui::Answer answer :
         {ui::Answer::Yes, ui::Answer::No, ui::Answer::Cancel, ui::Answer::YesToAll}) {
        if (Word(answer) == word) return answer;
    }
    return ui::Answer::Ok;
}

std::string Told(const ui::Message& message) {
    return "[message] " + Quoted(message.title) + ' ' + Quoted(message.text) + " (" +
           ButtonsText(message.buttons) + ")";
}

std::string AnswerText(const std::optional<std::string>& answer) {
    return answer ? Quoted(*answer) : "cancel";
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

std::optional<std::string> Player::Ask(const ui::Input& input) {
    if (stopped_) return {};
    const ScriptLine* line = NextIf("input");
    std::optional<std::string> answer;
    if (line && !line->Is(1, "cancel")) answer = line->Text(1);
    const std::string shown =
        Quoted(input.title) + ' ' + Quoted(input.prompt) + ' ' + Quoted(input.text);
    out_ << "[input] " << shown << " -> " << AnswerText(answer) << '\n';
    if (line)
        Echo(*line);
    else
        Report(LineBefore(script_, at_), "no question, or input for it", shown, true);
    actor_.Answer(input, answer);
    return answer;
}

std::optional<std::string> Player::Choose(const ui::FileChoice& choice) {
    if (stopped_) return {};
    const ScriptLine* line = NextIf("file");
    std::optional<std::string> answer;
    if (line && !line->Is(1, "cancel")) answer = line->Text(1);
    const std::string shown = (choice.save ? "save " : "open ") + Quoted(choice.proposed);
    out_ << "[file] " << shown << " -> " << AnswerText(answer) << '\n';
    if (line)
        Echo(*line);
    else
        Report(LineBefore(script_, at_), "no question, or a file for it", shown, true);
    actor_.Answer(choice, answer);
    return answer;
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
