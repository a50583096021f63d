#include "ui/StepButton.h"

#include <algorithm>

#include "ui/Form.h"
#include "ui/Key.h"

namespace vexora::ui {

void StepBar::Add(StepButton& button) {
    Toolbar::Add(button);
    steps_.push_back(&button);
    button.bar_ = this;
}

StepButton* StepBar::Stop() const {
    if (reached_ != nullptr && reached_->IsUsable()) return reached_;
    StepButton* first = nullptr;
    for (StepButton* step : steps_) {
        if (!step->IsUsable()) continue;
        if (step->IsNext()) return step;
        if (first == nullptr) first = step;
    }
    return first;
}

void StepButton::UserClick() {
    if (IsUsable()) Fire(OnClick);
}

bool StepButton::UserKey(Key& key) {
    if (Control::UserKey(key)) return true;
    const std::string name = key.FullName();
    if (name != "Enter" && name != "Space") return GoAlong(name);
    UserClick();
    return true;
}

/// To the next button that can be pressed on that side; at the end of the bar it stays.
bool StepButton::GoAlong(const std::string& key) {
    const bool back = key == "Left" || key == "End";
    if (bar_ == nullptr || (!back && key != "Right" && key != "Home")) return false;
    std::vector<StepButton*> ahead = bar_->steps_;
    if (back) std::ranges::reverse(ahead);
    const bool fromHere = key == "Left" || key == "Right";
    const auto from = fromHere ? std::ranges::find(ahead, this) : ahead.begin();
    const auto next = std::find_if(from, ahead.end(), [this](const StepButton* step) {
        return step != this && step->IsUsable();
    });
    if (next == ahead.end()) return true;
    bar_->reached_ = *next;
    (*next)->SetFocus();
    return true;
}

/// Whoever comes back to the bar begins with the next step again.
void StepButton::FocusLost() {
    ToolButton::FocusLost();
    if (bar_ == nullptr) return;
    const Control* active = Owner().ActiveControl();
    const bool inBar = std::ranges::find(bar_->steps_, active) != bar_->steps_.end();
    if (!inBar) bar_->reached_ = nullptr;
}

} // namespace vexora::ui
