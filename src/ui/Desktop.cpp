#include "ui/Desktop.h"

#include "ui/Forms.h"

namespace vexora::ui {

namespace {

class QuietProgress : public Progress {
public:
    bool Reached(double) override { return true; }
};

} // namespace

std::unique_ptr<Progress> Desktop::Begin(const LongWork&) {
    return std::make_unique<QuietProgress>();
}

Desktop& TheDesktop() {
    return Forms::Current().TheDesktop();
}

void Say(const std::string& text, const std::string& title) {
    TheDesktop().Show({text, title, MessageButtons::Ok, Answer::Ok});
}

bool AskYesNo(const std::string& text, const std::string& title) {
    return TheDesktop().Show({text, title, MessageButtons::YesNo, Answer::No}) == Answer::Yes;
}

Answer AskYesNoCancel(const std::string& text, const std::string& title) {
    return TheDesktop().Show({text, title, MessageButtons::YesNoCancel, Answer::Cancel});
}

HourglassScope::HourglassScope() {
    TheDesktop().Hourglass(true);
}
HourglassScope::~HourglassScope() {
    TheDesktop().Hourglass(false);
}

} // namespace vexora::ui
