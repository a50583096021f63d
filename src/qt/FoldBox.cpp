#include "qt/FoldBox.h"

#include <QApplication>
#include <QLayout>
#include <QMouseEvent>

namespace vexora::qt {

void FoldBox::Caption(const QString& text) {
    caption_ = text;
    ShowCaption();
}

void FoldBox::FoldAround(QWidget& content) {
    content_ = &content;
    setCursor(Qt::PointingHandCursor);
    content.setCursor(Qt::ArrowCursor);
    ShowCaption();
}

void FoldBox::Fold(bool folded) {
    if (!content_ || folded_ == folded) return;
    folded_ = folded;
    content_->setVisible(!folded);
    setFlat(folded);
    if (folded) margins_ = layout()->contentsMargins();
    layout()->setContentsMargins(folded ? QMargins() : margins_);
    ShowCaption();
}

bool FoldBox::Reveal(QWidget& widget) {
    bool any = false;
    for (QWidget* around = widget.parentWidget(); around; around = around->parentWidget()) {
        auto* box = dynamic_cast<FoldBox*>(around);
        if (!box || !box->IsFolded()) continue;
        box->Fold(false);
        any = true;
    }
    // The places of what has come up are asked for at once.
    if (any) QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    return any;
}

bool FoldBox::HoldsKeyboard() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused && isAncestorOf(focused);
}

// What the keyboard is in stays open.
void FoldBox::mouseReleaseEvent(QMouseEvent* event) {
    const bool onCaption = event->button() == Qt::LeftButton && rect().contains(event->pos()) &&
                           (!content_ || folded_ || event->pos().y() < content_->y());
    if (!content_ || !onCaption || (!folded_ && HoldsKeyboard()))
        return QGroupBox::mouseReleaseEvent(event);
    Fold(!folded_);
}

void FoldBox::ShowCaption() {
    const QString mark = folded_ ? QStringLiteral("\u25B8 ") : QStringLiteral("\u25BE ");
    const QString text = content_ ? mark + caption_ : caption_;
    if (title() != text) setTitle(text);
}

} // namespace vexora::qt
