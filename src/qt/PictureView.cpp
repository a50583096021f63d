#include "qt/PictureView.h"

#include <array>
#include <cmath>

#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>

#include "qt/FormWindow.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

// Readable on dark and on light; 0 is the text colour.
constexpr std::array<QRgb, 7> colours{0x2F7FD6, 0xD6522F, 0x2FA65A, 0xA65AC8,
                                      0xC89A1E, 0x1EA6A6, 0x8A8A8A};

QColor ColourOf(int index, const QPalette& palette) {
    if (index < 0) {
        QColor faint = palette.color(QPalette::Text);
        faint.setAlphaF(0.12F);
        return faint;
    }
    if (index == 0) return palette.color(QPalette::Text);
    return QColor::fromRgb(colours[static_cast<std::size_t>(index - 1) % colours.size()]);
}

// A way to pixels and back must not show in the digits.
double Rounded(double value) {
    constexpr double steps = 1e6;
    return std::round(value * steps) / steps;
}

void DrawMarker(QPainter& painter, QPointF at, int marker, const QColor& colour) {
    const double r = painter.fontMetrics().height() * 0.28;
    const auto polygon = [&](const QPolygonF& corners) {
        painter.drawPolygon(corners.translated(at));
    };
    painter.setBrush(colour);
    switch (marker) {
    case 0:
        painter.drawEllipse(at, r, r);
        break;
    case 1:
        painter.drawRect(QRectF(at - QPointF(r, r) * 0.85, QSizeF(r, r) * 1.7));
        break;
    case 2:
        polygon({{{-r, r * 0.8}, {r, r * 0.8}, {0, -r}}});
        break;
    case 3:
        polygon({{{-r, 0}, {0, -r * 1.2}, {r, 0}, {0, r * 1.2}}});
        break;
    case 4:
        polygon({{{-r, -r * 0.8}, {r, -r * 0.8}, {0, r}}});
        break;
    default:
        painter.setPen(QPen(colour, r * 0.5));
        painter.drawLine(at - QPointF(r, r) * 0.8, at + QPointF(r, r) * 0.8);
        painter.drawLine(at - QPointF(r, -r) * 0.8, at + QPointF(r, -r) * 0.8);
    }
}

void DrawAlignedText(QPainter& painter, QPointF at, const ui::Picture::Stroke& stroke) {
    using Align = ui::Picture::Align;
    const QString text = ToQt(stroke.text);
    const double wide = painter.fontMetrics().horizontalAdvance(text);
    const double back = stroke.align == Align::Left     ? 0
                        : stroke.align == Align::Centre ? wide / 2
                                                        : wide;
    painter.drawText(at + QPointF(-back, painter.fontMetrics().ascent()), text);
}

} // namespace

Canvas::Canvas(ui::Picture& picture, QWidget* parent) : QWidget(parent), picture_(picture) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(fontMetrics().averageCharWidth() * 40, fontMetrics().lineSpacing() * 12);
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

void Canvas::paintEvent(QPaintEvent*) {
    if (Detached) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    for (const ui::Picture::Stroke& stroke : picture_.Strokes()) {
        using Shape = ui::Picture::Shape;
        const QPointF from = FromUnits(stroke.x, stroke.y);
        const QPointF to = FromUnits(stroke.x2, stroke.y2);
        const QColor colour = ColourOf(stroke.colour, palette());
        painter.setPen(colour);
        painter.setBrush(stroke.shape == Shape::Disc ? QBrush(colour) : QBrush(Qt::NoBrush));
        if (stroke.shape == Shape::Line) painter.drawLine(from, to);
        if (stroke.shape == Shape::Rectangle) painter.drawRect(QRectF(from, to).normalized());
        if (stroke.shape == Shape::Disc) painter.drawEllipse(QRectF(from, to).normalized());
        if (stroke.shape == Shape::Text) DrawAlignedText(painter, from, stroke);
        if (stroke.shape == Shape::Marker) DrawMarker(painter, from, stroke.marker, colour);
    }
}

PictureView::PictureView(FormWindow& window, ui::Picture& picture)
    : ViewOf(window, picture, new Canvas(picture, &window)) {}

bool PictureView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) own_->Detached = Window().IsDetached();
    if (event->type() == QEvent::MouseMove && !Window().IsDetached()) return MouseEvent(*event);
    return View::eventFilter(watched, event);
}

bool PictureView::MouseEvent(QEvent& event) {
    const QPointF at = own_->ToUnits(static_cast<QMouseEvent&>(event).position());
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
