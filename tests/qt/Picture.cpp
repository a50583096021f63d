#include "qt/Picture.h"

#include <cstdlib>

namespace vexora::qt::test {

namespace {

bool IsOther(QRgb a, QRgb b) {
    constexpr int seen = 60; // of three times 255
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
               std::abs(qBlue(a) - qBlue(b)) >=
           seen;
}

} // namespace

QImage PictureOf(const Windows& windows, const ui::Control& control) {
    FormWindow* window = windows.WindowOf(control.Owner());
    QWidget* widget = window->ViewFor(control)->Widget();
    const QRect place(widget->mapTo(window, QPoint()), widget->size());
    return window->grab(place).toImage();
}

bool IsMarked(const QImage& before, const QImage& after) {
    if (before.size() != after.size()) return false;
    QRect changed;
    int pixels = 0;
    for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x)
            if (IsOther(before.pixel(x, y), after.pixel(x, y))) {
                changed |= QRect(x, y, 1, 1);
                ++pixels;
            }
    const int around = 2 * (changed.width() + changed.height());
    return changed.width() >= 10 && changed.height() >= 10 && pixels >= around * 3 / 4;
}

} // namespace vexora::qt::test
