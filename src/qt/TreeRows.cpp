#include "qt/TreeRows.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace vexora::qt {

QSize TreeRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, option.fontMetrics.descent());
}

void TreeRows::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const bool isSelected = option->state.testFlag(QStyle::State_Selected);
    if (const QIcon icon = IconOf ? IconOf(index) : QIcon(); !icon.isNull()) {
        option->icon =
            isSelected ? QIcon(icon.pixmap(option->decorationSize * 2, QIcon::Selected)) : icon;
        option->features |= QStyleOptionViewItem::HasDecoration;
    }
    if (!isSelected) return;
    // The tree has drawn the ground of the whole line already, and a frame around itself.
    option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    option->palette.setColor(QPalette::Text, option->palette.color(QPalette::HighlightedText));
}

bool TreeRows::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                         const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !TipOf)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), index.isValid() ? TipOf(index) : QString(),
                       view->viewport(), option.rect);
    return true;
}

} // namespace vexora::qt
