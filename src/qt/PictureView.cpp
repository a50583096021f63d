#include "qt/PictureView.h"

#include <cmath>

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStyleOptionFrame>

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
    setFocusPolicy(picture.TakesFocus() ? Qt::StrongFocus : Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(picture.TakesFocus() ? InCharacters(70, 20) : InCharacters(40, 12));
}

QSize Canvas::InCharacters(int columns, int lines) const {
    return {fontMetrics().averageCharWidth() * columns, fontMetrics().lineSpacing() * lines};
}

/// What is only looked at stands beside other things.
QSize Canvas::sizeHint() const {
    // Not asked of the picture: a change of the style reaches windows whose form has gone.
    return focusPolicy() != Qt::NoFocus ? InCharacters(90, 28) : InCharacters(50, 16);
}

/// The whole widget, or the largest part in its middle that has the shape of the picture.
QRectF Canvas::Room() const {
    if (!picture_.KeepsShape()) return rect();
    const QSizeF part =
        QSizeF(picture_.Width(), picture_.Height()).scaled(QSizeF(size()), Qt::KeepAspectRatio);
    return {QPointF((width() - part.width()) / 2, (height() - part.height()) / 2), part};
}

QPointF Canvas::ToUnits(QPointF place) const {
    const QRectF room = Room();
    return {Rounded((place.x() - room.x()) * picture_.Width() / room.width()),
            Rounded((place.y() - room.y()) * picture_.Height() / room.height())};
}

QPointF Canvas::FromUnits(double x, double y) const {
    const QRectF room = Room();
    return room.topLeft() +
           QPointF(x * room.width() / picture_.Width(), y * room.height() / picture_.Height());
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
        painter.translate(Room().topLeft());
        PaintStrokes(painter, picture_, picture_.Strokes(), Room().size(), palette());
        painted_ = picture_.Revision();
        ofPalette_ = palette();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, ground_);
    painter.translate(Room().topLeft());
    PaintStrokes(painter, picture_, picture_.Overlay(), Room().size(), palette());
    painter.resetTransform();
    if (!picture_.TakesFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        QStyleOptionFrame edge;
        edge.initFrom(this);
        edge.lineWidth = 1;
        style()->drawPrimitive(QStyle::PE_Frame, &edge, &painter);
    }
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
