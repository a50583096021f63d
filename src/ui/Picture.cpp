#include "ui/Picture.h"

namespace vexora::ui {

void Picture::Strokes(std::vector<Stroke> strokes) {
    strokes_ = std::move(strokes);
    ++revision_;
    Changed();
}

void Picture::KeepsShape(bool keeps) {
    if (keeps == keepsShape_) return;
    keepsShape_ = keeps;
    ++revision_;
    Changed();
}

void Picture::Overlay(std::vector<Stroke> strokes) {
    if (strokes.empty() && overlay_.empty()) return;
    overlay_ = std::move(strokes);
    Changed();
}

void Picture::UserDrag(double x, double y, double x2, double y2) {
    if (!IsUsable()) return;
    if (OnPress) OnPress(x, y);
    if (OnMove) OnMove(x2, y2);
    if (OnRelease) OnRelease(x2, y2);
}

void Picture::UserHover(double x, double y) {
    if (IsUsable() && OnMove) OnMove(x, y);
}

} // namespace vexora::ui
