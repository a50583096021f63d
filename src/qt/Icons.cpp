#include "qt/Icons.h"

#include <array>
#include <string>

#include <QPainter>
#include <QPixmap>

#include "qt/Text.h"
#include "reference/Text.h"

namespace vexora::qt {

namespace {

// All shapes stand on a field of 32 by 32; accent is the fill, the pen is the text colour.
struct Brush {
    QPainter& painter;
    QColor accent;

    void Fill(bool on) { painter.setBrush(on ? QBrush(accent) : QBrush(Qt::NoBrush)); }
};

void Page(Brush& brush) {
    brush.painter.drawPolygon(QPolygonF{{7, 3}, {20, 3}, {25, 8}, {25, 29}, {7, 29}});
    for (const int y : {12, 17, 22})
        brush.painter.drawLine(11, y, 21, y);
}

void Triangle(Brush& brush) {
    brush.Fill(true);
    brush.painter.drawPolygon(QPolygonF{{9, 5}, {26, 16}, {9, 27}});
}

void Ring(Brush& brush) {
    QPolygonF hexagon{{16, 3}, {27, 9.5}, {27, 22.5}, {16, 29}, {5, 22.5}, {5, 9.5}};
    brush.painter.drawPolygon(hexagon);
    brush.Fill(true);
    brush.painter.drawEllipse(QPointF(16, 16), 5, 5);
}

void Bottle(Brush& brush) {
    brush.painter.drawPolygon(QPolygonF{{13, 3}, {19, 3}, {19, 11}, {27, 28}, {5, 28}, {13, 11}});
    brush.Fill(true);
    brush.painter.drawPolygon(QPolygonF{{10, 18}, {22, 18}, {27, 28}, {5, 28}});
}

void Curve(Brush& brush) {
    brush.painter.drawPolyline(QPolygonF{{5, 3}, {5, 28}, {29, 28}});
    brush.painter.drawPolyline(QPolygonF{{9, 24}, {14, 20}, {20, 17}, {27, 7}});
    brush.Fill(true);
    for (const QPointF& at : {QPointF(9, 24), QPointF(14, 20), QPointF(20, 17), QPointF(27, 7)})
        brush.painter.drawEllipse(at, 2.2, 2.2);
}

void Circles(Brush& brush) {
    brush.painter.drawEllipse(QPointF(11, 16), 8, 8);
    brush.Fill(true);
    brush.painter.drawEllipse(QPointF(21, 16), 8, 8);
}

void Arrows(Brush& brush) {
    brush.painter.drawLine(4, 12, 27, 12);
    brush.painter.drawLine(27, 12, 21, 6);
    brush.painter.drawLine(28, 20, 5, 20);
    brush.painter.drawLine(5, 20, 11, 26);
}

void Person(Brush& brush) {
    brush.Fill(true);
    brush.painter.drawEllipse(QPointF(16, 10), 6, 6);
    brush.painter.drawPie(5, 18, 22, 22, 0, 180 * 16);
}

void Sheet(Brush& brush) {
    brush.Fill(true);
    brush.painter.drawRoundedRect(1, 1, 30, 30, 4, 4);
}

void Cross(Brush& brush) {
    brush.painter.drawLine(8, 8, 24, 24);
    brush.painter.drawLine(24, 8, 8, 24);
}

void Lattice(Brush& brush) {
    for (const int at : {6, 16, 26}) {
        brush.painter.drawLine(at, 6, at, 26);
        brush.painter.drawLine(6, at, 26, at);
    }
    brush.Fill(true);
    brush.painter.drawEllipse(QPointF(16, 16), 4, 4);
}

void Table(Brush& brush) {
    brush.Fill(true);
    brush.painter.drawRect(4, 5, 24, 6);
    brush.Fill(false);
    brush.painter.drawRect(4, 11, 24, 16);
    brush.painter.drawLine(12, 11, 12, 27);
    brush.painter.drawLine(20, 11, 20, 27);
    brush.painter.drawLine(4, 19, 28, 19);
}

/// One point with its bar of uncertainty.
void Point(Brush& brush) {
    brush.painter.drawLine(16, 5, 16, 27);
    brush.painter.drawLine(11, 5, 21, 5);
    brush.painter.drawLine(11, 27, 21, 27);
    brush.Fill(true);
    brush.painter.drawEllipse(QPointF(16, 16), 5, 5);
}

void Cage(Brush& brush) {
    brush.painter.drawPolygon(QPolygonF{{16, 3}, {28, 12}, {24, 27}, {8, 27}, {4, 12}});
    brush.painter.drawPolygon(QPolygonF{{16, 29}, {11, 12}, {21, 12}});
    brush.Fill(true);
    brush.painter.drawEllipse(QPointF(16, 18), 4, 4);
}

void Helix(Brush& brush) {
    brush.painter.drawPolyline(QPolygonF{{8, 3}, {24, 11}, {8, 20}, {24, 29}});
    brush.painter.drawPolyline(QPolygonF{{24, 3}, {8, 11}, {24, 20}, {8, 29}});
}

struct Known {
    const char* word; // a part of the key, lower case; the first that fits counts
    void (*draw)(Brush&);
};

constexpr std::array<Known, 19> KnownIcons{{{"start", Triangle},
                                            {"author", Person},
                                            {"complex", Cage},
                                            {"comp", Ring},
                                            {"subst", Ring},
                                            {"sample", Bottle},
                                            {"mix", Circles},
                                            {"bio", Helix},
                                            {"react", Arrows},
                                            {"table", Table},
                                            {"struct", Lattice},
                                            {"sheet", Sheet},
                                            {"prop", Curve},
                                            {"del", Cross},
                                            {"doc", Page},
                                            {"source", Page},
                                            {"value", Point},
                                            {"set", Curve},
                                            {"ref", Page}}};

void Letter(Brush& brush, std::string_view key) {
    brush.Fill(true);
    brush.painter.drawRoundedRect(4, 4, 24, 24, 5, 5);
    QFont font = brush.painter.font();
    font.setPixelSize(17);
    brush.painter.setFont(font);
    brush.painter.drawText(QRect(4, 4, 24, 24), Qt::AlignCenter, ToQt(key.substr(0, 1)));
}

void DrawIcon(Brush& brush, std::string_view key) {
    const std::string lower = LowerAscii(key);
    for (const Known& entry : KnownIcons) {
        if (lower.find(entry.word) != std::string::npos) return entry.draw(brush);
    }
    Letter(brush, key);
}

QPixmap Drawn(std::string_view key, const QColor& line, const QColor& accent) {
    constexpr int field = 32;
    constexpr int fine = 3; // sharp up to three times the usual resolution
    QPixmap pixmap(field * fine, field * fine);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(fine, fine);
    painter.setPen(QPen(line, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    Brush brush{painter, accent};
    DrawIcon(brush, key);
    return pixmap;
}

} // namespace

QIcon ApplicationIcon() {
    QPixmap pixmap = Drawn("sheet", QColor(0x2F, 0x6F, 0xB5), Qt::white);
    QPainter(&pixmap).drawPixmap(0, 0,
                                 Drawn("prop", QColor(0x1B, 0x1B, 0x1B), QColor(0xD8, 0x6A, 0x00)));
    return QIcon(pixmap);
}

QIcon IconFor(std::string_view key, const QPalette& palette) {
    constexpr int faint = 120; // of 255
    QIcon icon(Drawn(key, palette.color(QPalette::Active, QPalette::ButtonText),
                     palette.color(QPalette::Active, QPalette::Highlight)));
    icon.addPixmap(Drawn(key, palette.color(QPalette::Disabled, QPalette::ButtonText),
                         palette.color(QPalette::Active, QPalette::Mid)),
                   QIcon::Disabled);
    const QColor onMark = palette.color(QPalette::Active, QPalette::HighlightedText);
    icon.addPixmap(Drawn(key, onMark, QColor(onMark.red(), onMark.green(), onMark.blue(), faint)),
                   QIcon::Selected);
    return icon;
}

} // namespace vexora::qt
