#include "qt/LabelEdges.h"

#include <algorithm>
#include <functional>

#include <QGridLayout>
#include <QGroupBox>

namespace vexora::qt {

namespace {

int WidestLabel(const QGridLayout& grid) {
    int widest = 0;
    for (int row = 0; row < grid.rowCount(); ++row) {
        const QLayoutItem* item = grid.itemAtPosition(row, 0);
        if (!item || !item->widget() || item == grid.itemAtPosition(row, 1)) continue;
        widest = std::max(widest, item->widget()->sizeHint().width()); // also of one not yet shown
    }
    return widest;
}

/// Each group of the column whose fields have labels, and how far its edge stands to the right.
void VisitGroups(const QGridLayout& column, const std::function<void(QGridLayout&, int)>& visit) {
    for (int i = 0; i < column.count(); ++i) {
        const auto* box = qobject_cast<QGroupBox*>(column.itemAt(i)->widget());
        if (!box || !box->layout() || box->layout()->count() != 1) continue;
        const QWidget* content = box->layout()->itemAt(0)->widget();
        auto* inner = content ? qobject_cast<QGridLayout*>(content->layout()) : nullptr;
        if (!inner || WidestLabel(*inner) == 0) continue;
        visit(*inner, box->contentsMargins().left() + box->layout()->contentsMargins().left());
    }
}

} // namespace

void ShareLabelEdge(QGridLayout& column) {
    const int own = WidestLabel(column);
    int edge = own;
    VisitGroups(column, [&](const QGridLayout& inner, int inset) {
        edge = std::max(edge, WidestLabel(inner) + inset);
    });
    VisitGroups(column, [&](QGridLayout& inner, int inset) {
        inner.setColumnMinimumWidth(0, std::max(edge - inset, 0));
    });
    if (own > 0 && edge > own) column.setColumnMinimumWidth(0, edge);
}

} // namespace vexora::qt
