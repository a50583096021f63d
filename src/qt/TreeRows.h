#pragma once

#include <functional>

#include <QIcon>
#include <QStyledItemDelegate>

namespace vexora::qt {

/// Draws the lines of a tree: labels are long and alike, so there is air between the lines for the
/// eye, and an icon in front. Icon and tip are asked for when they are to be shown.
class TreeRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    std::function<QIcon(const QModelIndex&)> IconOf;
    std::function<QString(const QModelIndex&)> TipOf;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace vexora::qt
