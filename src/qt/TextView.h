#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "qt/View.h"

namespace vexora::qt {

/// A text field. The widget edits; text, caret and selection go to the model after every change,
/// and what a handler corrected comes back at once.
class TextView : public View {
public:
    TextView(FormWindow& window, ui::TextBox& box, QWidget* widget);
    QWidget* ClickTarget() const override;
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
    bool MouseEvent(QEvent& event) override;
    void Edited();
    void Moved();

    ui::TextBox& model_;

private:
    bool afterDouble_ = false; // the release that ends a double click is no click
};

class LineView : public TextView {
public:
    LineView(FormWindow& window, ui::TextBox& box);
    void ReplaceAll(const QString& text) override;

protected:
    void Draw() override;
    QString WidgetText() const override { return own_->text(); }
    int WidgetCaret() const override { return own_->cursorPosition(); }
    int WidgetSelectionStart() const override;
    int WidgetSelectionLength() const override { return own_->selectionLength(); }
    void PutText(const QString& text) override { own_->setText(text); }
    void PutSelection(int start, int length) override;

private:
    QLineEdit* own_;
};

class LinesView : public TextView {
public:
    LinesView(FormWindow& window, ui::TextBox& box);
    QWidget* ClickTarget() const override { return own_->viewport(); }
    void ReplaceAll(const QString& text) override;

protected:
    void Draw() override;
    QString WidgetText() const override { return own_->toPlainText(); }
    int WidgetCaret() const override { return own_->textCursor().position(); }
    int WidgetSelectionStart() const override { return own_->textCursor().selectionStart(); }
    int WidgetSelectionLength() const override;
    void PutText(const QString& text) override { own_->setPlainText(text); }
    void PutSelection(int start, int length) override;

private:
    QPlainTextEdit* own_;
};

} // namespace vexora::qt
