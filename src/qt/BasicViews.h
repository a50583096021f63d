#pragma once

#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include "qt/FoldBox.h"
#include "qt/View.h"

class QTextBrowser;

namespace vexora::qt {

// The views that show little more than a caption and answer to a click.

class LabelView : public ViewOf<ui::Label, QLabel> {
public:
    LabelView(FormWindow& window, ui::Label& label);

protected:
    void Draw() override;
    bool MouseEvent(QEvent& event) override;
};

class ButtonView : public ViewOf<ui::CommandButton, QPushButton> {
public:
    ButtonView(FormWindow& window, ui::CommandButton& button);

protected:
    void Draw() override;
};

/// A check box or an option button.
class ToggleView : public ViewOf<ui::CheckBox, QAbstractButton> {
public:
    ToggleView(FormWindow& window, ui::CheckBox& box, QAbstractButton* button);
    QPoint ClickPoint() const override;

protected:
    void Draw() override;
};

class FrameView : public ViewOf<ui::Frame, FoldBox> {
public:
    FrameView(FormWindow& window, ui::Frame& frame);

protected:
    void Draw() override;
};

class RichTextView : public ViewOf<ui::RichText, QTextBrowser> {
public:
    RichTextView(FormWindow& window, ui::RichText& text);
    bool Wants(const ui::Key& key) const override;

protected:
    void Draw() override;
    /// What is to be shown, as HTML.
    virtual std::string Page() const { return model_.Html(); }

private:
    std::string shown_;
};

class ToolButtonView : public ViewOf<ui::ToolButton, QToolButton> {
public:
    ToolButtonView(FormWindow& window, ui::ToolButton& button);

protected:
    void Draw() override;
};

class ToolbarView : public ViewOf<ui::Toolbar, QToolBar> {
public:
    ToolbarView(FormWindow& window, ui::Toolbar& toolbar);

protected:
    void Draw() override {}
};

} // namespace vexora::qt
