#include "qt/CellDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include "grid/ColumnShape.h"
#include "qt/GridView.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

/// The editor of a cell keeps Enter, which else would go on to the default button of the form.
class CellEditor : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QLineEdit::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) event->accept();
    }
};

} // namespace

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex&) const {
    auto* editor = new CellEditor(parent);
    editor->setFrame(false);
    return editor;
}

// The style draws ground and frame; it would cut the room behind a number into dots.
void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const bool isStated = item.text.isEmpty();
    const QString text = isStated ? view_.StatedIn(index) : item.text;
    const NumberShape number = ShapeOf(FromQt(text));
    if (text.isEmpty() || (!number.isNumber && !isStated))
        return QStyledItemDelegate::paint(painter, option, index);
    QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    item.text = text;
    QRect place = style->subElementRect(QStyle::SE_ItemViewItemText, &item, item.widget);
    item.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &item, item.widget) + 1;
    place.adjust(margin, 0, -margin - view_.RoomBehind(index.column(), number), 0);
    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setFont(item.font);
    painter->setPen(item.palette.color(QPalette::Normal, isSelected ? QPalette::HighlightedText
                                                         : isStated ? QPalette::PlaceholderText
                                                                    : QPalette::Text));
    painter->drawText(place, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, text);
    painter->restore();
}

} // namespace vexora::qt
