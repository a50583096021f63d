#include "qt/HeadView.h"

#include <algorithm>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "qt/GridView.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

constexpr int Margin = 4;
constexpr int Grip = 4; // where a drag makes a column wider

} // namespace

HeadView::HeadView(GridView& view, ui::Grid& grid, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), view_(view), grid_(grid) {
    setSectionsClickable(true);
}

int HeadView::LineHeight() const {
    return fontMetrics().height() + 8;
}

int HeadView::LabelWidth() const {
    int wide = 0;
    for (int row = 0; !view_.HasLostGrid() && row < grid_.FixedRows(); ++row)
        wide = std::max(wide, fontMetrics().horizontalAdvance(ToQt(grid_.Cell(row, 0))));
    return wide + 3 * Margin;
}

QRect HeadView::CellRect(int row, int column) const {
    const int section = column - grid_.FixedColumns();
    return {sectionViewportPosition(section), row * LineHeight(), sectionSize(section),
            LineHeight()};
}

HeadView::Shown HeadView::TextOf(int row, int column) const {
    const std::string& text = grid_.Cell(row, column);
    if (!text.empty()) return {ToQt(text)};
    const auto found = grid_.Proposed().find({row, column});
    if (found != grid_.Proposed().end()) return {ToQt(found->second), true};
    if (row == 0) return {QString::number(column - grid_.FixedColumns() + 1), false, true};
    return {};
}

QSize HeadView::sectionSizeFromContents(int section) const {
    int wide = 0;
    if (view_.HasLostGrid()) return {wide, LineHeight()};
    for (int row = 0; row < grid_.FixedRows(); ++row) {
        const Shown shown = TextOf(row, section + grid_.FixedColumns());
        wide = std::max(wide, fontMetrics().horizontalAdvance(shown.text));
    }
    return {wide + 3 * Margin, grid_.FixedRows() * LineHeight()};
}

// Proposals are told apart by slant as well as by colour; a tint of the ground fits light and dark.
void HeadView::PaintCell(QPainter& painter, const QRect& place, int row, int column) const {
    const QPalette& colours = palette();
    const Shown shown = TextOf(row, column);
    QColor ground = colours.color(QPalette::Button);
    if (shown.isProposed) {
        const QColor tint(240, 228, 66);
        const auto mix = [](int a, int b) { return (7 * a + 3 * b) / 10; };
        ground = QColor(mix(ground.red(), tint.red()), mix(ground.green(), tint.green()),
                        mix(ground.blue(), tint.blue()));
    }
    painter.fillRect(place, ground);
    painter.setPen(colours.color(QPalette::Mid));
    painter.drawLine(place.topRight(), place.bottomRight());
    painter.drawLine(place.bottomLeft(), place.bottomRight());
    const ui::Grid::Block& block = grid_.Selection();
    if (grid_.IsInHeads() && row >= block.top && row <= block.bottom && column >= block.left &&
        column <= block.right) {
        painter.setPen(QPen(colours.color(QPalette::Highlight), 2));
        painter.drawRect(place.adjusted(1, 1, -2, -2));
    }
    QFont font = this->font();
    font.setItalic(shown.isProposed);
    painter.setFont(font);
    painter.setPen(
        colours.color(shown.isNumber ? QPalette::PlaceholderText : QPalette::ButtonText));
    const QRect inside = place.adjusted(Margin, 0, -Margin, 0);
    const QString text = QFontMetrics(font).elidedText(shown.text, Qt::ElideRight, inside.width());
    painter.drawText(inside, Qt::AlignVCenter | Qt::AlignHCenter, text);
}

void HeadView::paintSection(QPainter* painter, const QRect& rect, int section) const {
    if (view_.HasLostGrid()) return;
    painter->save();
    for (int row = 0; row < grid_.FixedRows(); ++row)
        PaintCell(*painter,
                  QRect(rect.left(), rect.top() + row * LineHeight(), rect.width(), LineHeight()),
                  row, section + grid_.FixedColumns());
    painter->restore();
}

void HeadView::PaintLabels(QPainter& painter, const QRect& corner) const {
    if (view_.HasLostGrid()) return;
    painter.fillRect(corner, palette().color(QPalette::Button));
    for (int row = 0; row < grid_.FixedRows(); ++row) {
        const QRect place(corner.left(), row * LineHeight(), corner.width(), LineHeight());
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(place.topRight(), place.bottomRight());
        painter.drawLine(place.bottomLeft(), place.bottomRight());
        painter.setPen(palette().color(QPalette::ButtonText));
        painter.drawText(place.adjusted(Margin, 0, -Margin, 0), Qt::AlignVCenter | Qt::AlignLeft,
                         ToQt(grid_.Cell(row, 0)));
    }
}

// Between two columns the mouse drags their border, as everywhere.
void HeadView::mousePressEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const int section = logicalIndexAt(at);
    const int row = at.y() / LineHeight();
    const bool isCell = event->button() == Qt::LeftButton && section >= 0 && !view_.HasLostGrid() &&
                        row < grid_.FixedRows();
    const int left = isCell ? at.x() - sectionViewportPosition(section) : 0;
    if (!isCell || left < Grip || left > sectionSize(section) - Grip)
        return QHeaderView::mousePressEvent(event);
    if (OnPressed) OnPressed(row, section + grid_.FixedColumns());
}

// A long name is cut in a narrow column.
bool HeadView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip || view_.HasLostGrid())
        return QHeaderView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int section = logicalIndexAt(help->pos());
    const int row = help->pos().y() / LineHeight();
    const QString text = section < 0 ? QString() : TextOf(row, section + grid_.FixedColumns()).text;
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

void CornerView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    heads_.PaintLabels(painter, rect());
}

} // namespace vexora::qt
