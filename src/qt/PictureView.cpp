#include "qt/PictureView.h"

#include <cmath>

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "qt/FormWindow.h"
#include "qt/PicturePainter.h"

namespace vexora::qt {

namespace {

// A way to pixels and back must not show in the digits.
double Rounded(double value) {
    constexpr double steps = 1e6;
    return std::round(value * steps) / steps;
}

} // namespace

Canvas::Canvas(ui::Picture& picture, QWidget* parent) : QWidget(parent), picture_(picture) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(fontMetrics().averageCharWidth() * 70, fontMetrics().lineSpacing() * 20);
}

QSize Canvas::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 90, fontMetrics().lineSpacing() * 28};
}

QPointF Canvas::ToUnits(QPointF place) const {
    return {Rounded(place.x() * picture_.Width() / width()),
            Rounded(place.y() * picture_.Height() / height())};
}

QPointF Canvas::FromUnits(double x, double y) const {
    return {x * width() / picture_.Width(), y * height() / picture_.Height()};
}

// What lies below the overlay is painted once and kept.
void Canvas::paintEvent(QPaintEvent*) {
    if (Detached) return;
    const QSize pixels = size() * devicePixelRatio();
    if (painted_ != picture_.Revision() || ground_.size() != pixels || ofPalette_ != palette()) {
        ground_ = QPixmap(pixels);
        ground_.setDevicePixelRatio(devicePixelRatio());
        ground_.fill(palette().color(QPalette::Base));
        QPainter painter(&ground_);
        painter.setFont(font());
        PaintStrokes(painter, picture_, picture_.Strokes(), size(), palette());
        painted_ = picture_.Revision();
        ofPalette_ = palette();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, ground_);
    PaintStrokes(painter, picture_, picture_.Overlay(), size(), palette());
    if (!hasFocus()) return;
    QStyleOptionFocusRect mark;
    mark.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &mark, &painter, this);
}

PictureView::PictureView(FormWindow& window, ui::Picture& picture)
    : ViewOf(window, picture, new Canvas(picture, &window)) {}

bool PictureView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) own_->Detached = Window().IsDetached();
    if (event->type() == QEvent::MouseMove && !Window().IsDetached()) return MouseEvent(*event);
    return View::eventFilter(watched, event);
}

bool PictureView::MouseEvent(QEvent& event) {
    const auto& mouse = static_cast<QMouseEvent&>(event);
    const bool isMove = event.type() == QEvent::MouseMove;
    if (!isMove && mouse.button() != Qt::LeftButton) return true;
    const QPointF at = own_->ToUnits(mouse.position());
    if (event.type() == QEvent::MouseButtonDblClick) {
        Act([this] { model_.UserDoubleClick(); });
        return true;
    }
    const auto& handler = event.type() == QEvent::MouseButtonPress     ? model_.OnPress
                          : event.type() == QEvent::MouseButtonRelease ? model_.OnRelease
                                                                       : model_.OnMove;
    Act([&] {
        if (model_.IsUsable() && handler) handler(at.x(), at.y());
    });
    const bool draws = model_.OnPress || model_.OnRelease;
    if (event.type() == QEvent::MouseButtonRelease && !draws) {
        Act([this] { model_.UserClick(); });
    }
    return true;
}

} // namespace vexora::qt
