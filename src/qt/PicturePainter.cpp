#include "qt/PicturePainter.h"

#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <tuple>

#include <QBuffer>
#include <QImage>
#include <QPixmap>
#include <QPolygonF>
#include <QPrinter>

#include "qt/Text.h"

namespace vexora::qt {

namespace {

using Stroke = ui::Picture::Stroke;
using Shape = ui::Picture::Shape;

constexpr std::size_t ManyStrokes = 2000;

/// Nearly the ground, and no darker where many lie over one another.
QColor Faint(const QColor& text, const QColor& ground) {
    constexpr double share = 0.15;
    const auto mixed = [](int of, int with) {
        return static_cast<int>(std::lround(with + share * (of - with)));
    };
    return {mixed(text.red(), ground.red()), mixed(text.green(), ground.green()),
            mixed(text.blue(), ground.blue())};
}

/// A slanting cross, or the four strokes that point at another marker.
void DrawCross(QPainter& painter, QPointF at, bool isReticle, const QColor& colour, double r) {
    const double from = isReticle ? 1.6 * r : 0;
    const double to = isReticle ? 3.2 * r : 1.1 * r;
    const QPointF ways[] = {{1, isReticle ? 0.0 : 1.0}, {isReticle ? 0.0 : -1.0, 1}};
    painter.setPen(QPen(colour, r * (isReticle ? 0.35 : 0.55)));
    for (const QPointF& way : ways)
        for (const double side : {-1.0, 1.0})
            painter.drawLine(at + way * side * from, at + way * side * to);
}

/// The edge of a marker has the colour of the ground, so that those that touch are told apart;
/// among very many it would hide them, and has its own colour.
void DrawMarker(QPainter& painter, QPointF at, int marker, const QColor& colour, const QColor& edge,
                double r) {
    if (marker >= ui::Picture::MarkerCount - 1)
        return DrawCross(painter, at, marker == ui::Picture::Reticle, colour, r);
    const auto polygon = [&](const QList<QPointF>& corners) {
        painter.drawPolygon(QPolygonF(corners).translated(at));
    };
    painter.setPen(edge);
    painter.setBrush(colour);
    switch (marker) {
    case 0:
        return painter.drawEllipse(at, r, r);
    case 1:
        return painter.drawRect(QRectF(at - QPointF(r, r) * 0.9, QSizeF(r, r) * 1.8));
    case 2:
        return polygon({{-r * 1.1, r * 0.9}, {r * 1.1, r * 0.9}, {0, -r * 1.1}});
    case 3:
        return polygon({{-r * 1.1, 0}, {0, -r * 1.3}, {r * 1.1, 0}, {0, r * 1.3}});
    default:
        return polygon({{-r * 1.1, -r * 0.9}, {r * 1.1, -r * 0.9}, {0, r * 1.1}});
    }
}

/// Paints the shapes of one list; it remembers where texts stand that others must not cover.
class StrokePainter {
public:
    StrokePainter(QPainter& painter, const ui::Picture& picture, QSizeF size,
                  const QPalette& palette, bool copiesMarkers)
        : painter_(painter), across_(size.width() / picture.Width()),
          down_(size.height() / picture.Height()), palette_(palette),
          radius_(painter.fontMetrics().height() * 0.28), copiesMarkers_(copiesMarkers) {
        for (std::size_t at = 0; at < colours_.size(); ++at)
            colours_[at] = MakeColour(static_cast<int>(at) - 1);
    }

    void Paint(const Stroke& stroke) {
        const QPointF from(stroke.x * across_, stroke.y * down_);
        const QPointF to(stroke.x2 * across_, stroke.y2 * down_);
        const std::size_t place = PlaceOf(stroke.colour);
        const QColor& colour = colours_[place];
        if (stroke.shape == Shape::Marker) return Marker(from, stroke, place);
        Take(place);
        switch (stroke.shape) {
        case Shape::Line:
            return painter_.drawLine(from, to);
        case Shape::Rectangle:
            return painter_.drawRect(QRectF(from, to).normalized());
        case Shape::Disc:
            painter_.setBrush(colour);
            inHand_.reset();
            return painter_.drawEllipse(QRectF(from, to).normalized());
        case Shape::Text:
            return Text(from, stroke);
        case Shape::Marker:
            return;
        case Shape::Ring:
            inHand_.reset();
            painter_.setPen(QPen(colour, radius_ * 0.4));
            return painter_.drawEllipse(from, radius_ * 2.2, radius_ * 2.2);
        }
    }

private:
    static constexpr std::size_t ColourCount = ui::PictureColours.size() + 2;
    static std::size_t PlaceOf(int index) {
        return index < 1 ? std::size_t{index == 0}
                         : 2 + static_cast<std::size_t>(index - 1) % ui::PictureColours.size();
    }
    /// Pen of a colour and no brush. Setting them costs more than a short line, and most strokes
    /// are drawn as the one before.
    void Take(std::size_t place) {
        if (inHand_ == place) return;
        painter_.setPen(colours_[place]);
        painter_.setBrush(Qt::NoBrush);
        inHand_ = place;
    }
    QColor MakeColour(int index) const {
        const QColor text = palette_.color(QPalette::Text);
        if (index < 0) return Faint(text, palette_.color(QPalette::Base));
        if (index == 0) return text;
        const bool isDark = palette_.color(QPalette::Base).lightness() < 128;
        const auto at = static_cast<std::size_t>(index - 1) % ui::PictureColours.size();
        const ui::PictureColour& colour = ui::PictureColours[at];
        return QColor::fromRgb(isDark ? colour.dark : colour.light);
    }

    void Text(QPointF at, const Stroke& stroke) {
        using Align = ui::Picture::Align;
        const QString text = ToQt(stroke.text);
        const QFontMetricsF metrics(painter_.font(), painter_.device());
        const double wide = metrics.horizontalAdvance(text);
        if (stroke.align == Align::Centre) at.rx() -= wide / 2;
        if (stroke.align == Align::Right) at.rx() -= wide;
        const QRectF place(at, QSizeF(wide, metrics.height()));
        if (stroke.yields) {
            const QRectF room = place.adjusted(-radius_, 0, radius_, 0);
            for (const QRectF& other : taken_)
                if (other.intersects(room)) return;
            taken_.push_back(room);
        }
        if (stroke.boxed) {
            painter_.setBrush(palette_.base());
            inHand_.reset();
            painter_.drawRect(place.adjusted(-radius_, -1, radius_, 1));
        }
        painter_.drawText(at + QPointF(0, metrics.ascent()), text);
    }

    /// Thousands of markers are copies of a few small pictures.
    void Marker(QPointF at, const Stroke& stroke, std::size_t place) {
        const QColor& colour = colours_[place];
        const QColor edge = stroke.dense ? colour : palette_.color(QPalette::Base);
        const double radius = stroke.dense ? radius_ * 0.6 : radius_;
        if (stroke.hollow || !copiesMarkers_) {
            inHand_.reset();
            return DrawMarker(painter_, at, stroke.marker, stroke.hollow ? edge : colour,
                              stroke.hollow ? colour : edge, radius);
        }
        QPixmap& copy = copies_[{stroke.marker, stroke.dense, place}];
        const double half = std::ceil(radius * 1.5);
        if (copy.isNull()) {
            const double sharpness = painter_.device()->devicePixelRatio();
            copy = QPixmap((QSizeF(2 * half, 2 * half) * sharpness).toSize());
            copy.setDevicePixelRatio(sharpness);
            copy.fill(Qt::transparent);
            QPainter painter(&copy);
            painter.setRenderHint(QPainter::Antialiasing);
            DrawMarker(painter, {half, half}, stroke.marker, colour, edge, radius);
        }
        painter_.drawPixmap(at - QPointF(half, half), copy);
    }

    QPainter& painter_;
    double across_, down_;
    const QPalette& palette_;
    double radius_; // of a marker
    std::vector<QRectF> taken_;
    bool copiesMarkers_;
    std::map<std::tuple<int, bool, std::size_t>, QPixmap> copies_;
    std::array<QColor, ColourCount> colours_; // faint, of texts, and the others
    std::optional<std::size_t> inHand_;       // the colour whose pen the painter has
};

QPalette PaperPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

} // namespace

void PaintStrokes(QPainter& painter, const ui::Picture& picture,
                  const std::vector<ui::Picture::Stroke>& strokes, QSizeF size,
                  const QPalette& palette) {
    painter.setRenderHint(QPainter::Antialiasing);
    const bool onScreen = painter.device()->devType() != QInternal::Printer;
    StrokePainter own(painter, picture, size, palette, onScreen && strokes.size() > ManyStrokes);
    for (const Stroke& stroke : strokes)
        own.Paint(stroke);
}

std::optional<std::string> PngBytes(const ui::Picture& picture) {
    constexpr double sharpness = 2; // pixels a unit
    const QSizeF size(picture.Width(), picture.Height());
    QImage image((size * sharpness).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(sharpness);
    image.fill(Qt::white);
    QPainter painter(&image);
    QFont font = painter.font();
    font.setPixelSize(16);
    painter.setFont(font);
    PaintStrokes(painter, picture, picture.Strokes(), size, PaperPalette());
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, "PNG")) return {};
    return bytes.toStdString();
}

void PrintOn(QPrinter& printer, const ui::Picture& picture) {
    QPainter painter(&printer);
    const QRectF page = painter.viewport();
    const double scale = std::min(page.width() / picture.Width(), page.height() / picture.Height());
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(16 * scale));
    painter.setFont(font);
    PaintStrokes(painter, picture, picture.Strokes(),
                 QSizeF(picture.Width(), picture.Height()) * scale, PaperPalette());
}

} // namespace vexora::qt
