#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "qt/Prompts.h"
#include "qt/Text.h"
#include "qt/View.h"

namespace vexora::qt {

/// A text field. The widget edits; text, caret and selection go to the model after every change,
/// and what a handler corrected comes back at once.
class TextView : public ViewOf<ui::TextBox, QWidget> {
public:
    TextView(FormWindow& window, ui::TextBox& box, QWidget* widget);
    bool Wants(const ui::Key& key) const override;

    /// Puts a text in the place of all that stands there, as pasting over everything does.
    virtual void ReplaceAll(const QString& text) = 0;

protected:
    virtual QString WidgetText() const = 0;
    virtual int WidgetCaret() const = 0;
    virtual int WidgetSelectionStart() const = 0;
    virtual int WidgetSelectionLength() const = 0;
    virtual void PutText(const QString& text) = 0;
    virtual void PutSelection(int start, int length) = 0;

    void Draw() override;
    void DrawSelection();
    bool MouseEvent(QEvent& event) override;
    void Edited();
    void Moved();

private:
    bool afterDouble_ = false; // the release that ends a double click is no click
};

/// What the fields of one and of many lines have alike.
template <class TEdit>
class EditView : public TextView {
public:
    EditView(FormWindow& window, ui::TextBox& box, TEdit* edit)
        : TextView(window, box, edit), own_(edit) {
        QObject::connect(own_, &TEdit::textChanged, this, [this] { Edited(); });
        QObject::connect(own_, &TEdit::cursorPositionChanged, this, [this] { Moved(); });
        QObject::connect(own_, &TEdit::selectionChanged, this, [this] { Moved(); });
    }

protected:
    void Draw() override {
        own_->setReadOnly(model_.Locked());
        const QString hint = PromptInWords(ToQt(model_.Hint()));
        if (own_->placeholderText() != hint) own_->setPlaceholderText(hint);
        TextView::Draw();
    }

    TEdit* own_;
};

class LineView : public EditView<QLineEdit> {
public:
    LineView(FormWindow& window, ui::TextBox& box);
    void ReplaceAll(const QString& text) override;

protected:
    QString WidgetText() const override { return own_->text(); }
    int WidgetCaret() const override { return own_->cursorPosition(); }
    int WidgetSelectionStart() const override { return own_->selectionStart(); }
    int WidgetSelectionLength() const override { return own_->selectionLength(); }
    void PutText(const QString& text) override { own_->setText(text); }
    void PutSelection(int start, int length) override;
};

class LinesView : public EditView<QPlainTextEdit> {
public:
    LinesView(FormWindow& window, ui::TextBox& box);
    QWidget* ClickTarget() const override { return own_->viewport(); }
    void ReplaceAll(const QString& text) override;

protected:
    QString WidgetText() const override { return own_->toPlainText(); }
    int WidgetCaret() const override { return own_->textCursor().position(); }
    int WidgetSelectionStart() const override { return own_->textCursor().selectionStart(); }
    int WidgetSelectionLength() const override {
        return static_cast<int>(own_->textCursor().selectedText().size());
    }
    void PutText(const QString& text) override { own_->setPlainText(text); }
    void PutSelection(int start, int length) override;
};

} // namespace vexora::qt
