#include "qt/TextView.h"

#include <utility>

#include <QEvent>

#include "qt/FormWindow.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

/// Asks for a few lines only; where there is room it grows.
class LinesEdit : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;
    QSize sizeHint() const override {
        const QFontMetrics metrics = fontMetrics();
        return {metrics.averageCharWidth() * 50, metrics.lineSpacing() * 5};
    }
};

bool IsMove(const ui::Key& key, bool manyLines) {
    return IsOneOf(key.name, {"Left", "Right", "Home", "End"}) ||
           (manyLines && IsOneOf(key.name, {"Up", "Down", "PageUp", "PageDown"}));
}

bool IsClipboard(const ui::Key& key) {
    return IsOneOf(key.FullName(), {"Ctrl+A", "Ctrl+C", "Ctrl+X", "Ctrl+V", "Ctrl+Z", "Ctrl+Y",
                                    "Ctrl+Shift+Z", "Ctrl+Insert", "Shift+Insert"});
}

} // namespace

TextView::TextView(FormWindow& window, ui::TextBox& box, QWidget* widget)
    : ViewOf(window, box, widget) {
    widget->setFocusPolicy(Qt::StrongFocus);
}

bool TextView::Wants(const ui::Key& key) const {
    if (IsMove(key, model_.IsMultiLine()) || IsClipboard(key)) return true;
    if (model_.Locked()) return false;
    if (key.name == "Backspace" || key.name == "Delete") return true;
    if (key.name == "Enter") return model_.IsMultiLine() && !key.control && !key.alt;
    return key.character >= U' ';
}

void TextView::Draw() {
    const QString text = ShownText(model_);
    const bool isOwn = text == ToQt(model_.Text());
    // What is only read, or not being typed in now, shows its beginning.
    const bool isRead = !isOwn || (model_.Locked() && !model_.HasFocus());
    if (WidgetText() != text) {
        PutText(text);
        if (isRead) PutSelection(0, 0);
    }
    if (!isRead) DrawSelection();
    Shade(*Widget(), !model_.IsUsable() || (model_.Locked() && !model_.OnClick));
    Widget()->setCursor(model_.Locked() && model_.OnClick ? Qt::PointingHandCursor
                                                          : Qt::IBeamCursor);
}

void TextView::DrawSelection() {
    const QString text = WidgetText();
    const int start = PositionAfter(text, model_.SelectionStart());
    const int end = PositionAfter(text, model_.Caret());
    const bool same =
        end > start ? WidgetSelectionStart() == start && WidgetSelectionLength() == end - start
                    : WidgetCaret() == start && WidgetSelectionLength() == 0;
    if (!same) PutSelection(start, end - start);
}

void TextView::Edited() {
    if (IsDrawing()) return;
    ActAndRefresh([this] {
        const QString text = WidgetText();
        model_.UserEdited(FromQt(text), PointsBefore(text, WidgetCaret()));
    });
}

void TextView::Moved() {
    if (IsDrawing() || Window().IsDetached()) return;
    const QString text = WidgetText();
    if (text != ToQt(model_.Text())) return; // an edit under way tells the caret itself
    const int length = WidgetSelectionLength();
    const int start = length > 0 ? WidgetSelectionStart() : WidgetCaret();
    const std::size_t from = PointsBefore(text, start);
    model_.Select(from, PointsBefore(text, start + length) - from);
}

// A field that answers to clicks does so when the button comes up.
bool TextView::MouseEvent(QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress && !model_.OnClick) {
        Act([this] { model_.UserClick(); });
    } else if (event.type() == QEvent::MouseButtonRelease && model_.OnClick) {
        if (!std::exchange(afterDouble_, false)) Act([this] { model_.UserClick(); });
    } else if (event.type() == QEvent::MouseButtonDblClick && model_.OnDoubleClick) {
        afterDouble_ = true;
        Act([this] { model_.UserDoubleClick(); });
        return true;
    }
    return false;
}

LineView::LineView(FormWindow& window, ui::TextBox& box)
    : EditView(window, box, new QLineEdit(&window)) {
    own_->setMinimumWidth(own_->fontMetrics().averageCharWidth() * 12);
}

void LineView::PutSelection(int start, int length) {
    if (length > 0) {
        own_->setSelection(start, length);
    } else {
        own_->deselect();
        own_->setCursorPosition(start);
    }
}

void LineView::ReplaceAll(const QString& text) {
    own_->selectAll();
    own_->insert(text);
}

LinesView::LinesView(FormWindow& window, ui::TextBox& box)
    : EditView(window, box, new LinesEdit(&window)) {
    Watch(own_->viewport());
    own_->setTabChangesFocus(true);
    own_->setMinimumHeight(own_->fontMetrics().lineSpacing() * 4);
    own_->setMinimumWidth(own_->fontMetrics().averageCharWidth() * 28);
}

void LinesView::PutSelection(int start, int length) {
    QTextCursor cursor = own_->textCursor();
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    own_->setTextCursor(cursor);
}

void LinesView::ReplaceAll(const QString& text) {
    QTextCursor cursor = own_->textCursor();
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    own_->setTextCursor(cursor);
}

} // namespace vexora::qt
