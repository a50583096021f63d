#include "qt/LabelEdges.h"

#include <algorithm>
#include <functional>
#include <vector>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

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

/// The field that stands at a place of a row, with its label; nothing where something else stands.
struct FieldInRow {
    QLabel* label = nullptr;
    QWidget* content = nullptr;
};

FieldInRow FieldAt(const QGridLayout& column, int row, int place) {
    const auto inside = [](const QWidget* widget, int at) -> QWidget* {
        const QLayoutItem* item =
            widget && widget->layout() ? widget->layout()->itemAt(at) : nullptr;
        return item ? item->widget() : nullptr;
    };
    const QLayoutItem* item = column.itemAtPosition(row, 1);
    const QWidget* field = inside(item ? item->widget() : nullptr, place);
    return {qobject_cast<QLabel*>(inside(field, 0)), inside(field, 1)};
}

/// Gives all widgets the width of the widest.
void ShareWidth(const std::vector<QWidget*>& widgets) {
    int widest = 0;
    for (const QWidget* widget : widgets)
        widest = std::max(widest, widget->sizeHint().width());
    for (QWidget* widget : widgets)
        widget->setMinimumWidth(widest);
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

void LineUpRows(const QGridLayout& column) {
    for (int place = 0; place < 2; ++place) {
        std::vector<QWidget*> labels;
        std::vector<QWidget*> contents;
        for (int row = 0; row < column.rowCount(); ++row) {
            const FieldInRow field = FieldAt(column, row, place);
            if (!field.label || !field.content) continue;
            field.label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            labels.push_back(field.label);
            if (place == 0) contents.push_back(field.content);
        }
        ShareWidth(labels);
        ShareWidth(contents);
    }
}

} // namespace vexora::qt
