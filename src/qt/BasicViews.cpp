#include "qt/BasicViews.h"

#include <utility>

#include <QAction>
#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextBrowser>

#include "qt/FormWindow.h"
#include "qt/Icons.h"
#include "qt/Mnemonics.h"
#include "qt/Text.h"
#include "ui/StepButton.h"

namespace vexora::qt {

namespace {

/// A tool button with a line below when it is the step that comes next.
class StepToolButton : public QToolButton {
public:
    using QToolButton::QToolButton;
    void MarkAsNext(bool on) {
        if (on == next_) return;
        next_ = on;
        setAccessibleDescription(on ? tr("comes next") : QString());
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QToolButton::paintEvent(event);
        if (!next_) return;
        constexpr int inset = 5;
        constexpr int thick = 3;
        const QRect line(inset, height() - inset - thick + 2, width() - 2 * inset, thick);
        QPainter(this).fillRect(line, palette().brush(QPalette::Active, QPalette::Highlight));
    }

private:
    bool next_ = false;
};

} // namespace

LabelView::LabelView(FormWindow& window, ui::Label& label)
    : ViewOf(window, label, new QLabel(&window)) {
    own_->setTextFormat(Qt::PlainText);
}

void LabelView::Draw() {
    constexpr std::size_t longText = 60;
    own_->setWordWrap(model_.Caption().size() > longText);
    own_->setText(ToQt(model_.Caption()));
    const bool clicks = model_.OnClick || model_.OnDoubleClick;
    own_->setCursor(clicks ? Qt::PointingHandCursor : Qt::ArrowCursor);
    own_->setForegroundRole(clicks ? QPalette::Link : QPalette::WindowText);
}

bool LabelView::MouseEvent(QEvent& event) {
    if (event.type() == QEvent::MouseButtonRelease) Act([this] { model_.UserClick(); });
    if (event.type() == QEvent::MouseButtonDblClick) Act([this] { model_.UserDoubleClick(); });
    return static_cast<bool>(model_.OnClick);
}

ButtonView::ButtonView(FormWindow& window, ui::CommandButton& button)
    : ViewOf(window, button, new QPushButton(&window)) {
    own_->setFocusPolicy(Qt::TabFocus); // a press takes the focus through the model
    own_->setAutoDefault(false);
    QObject::connect(own_, &QPushButton::clicked, this,
                     [this] { Act([this] { model_.UserClick(); }); });
}

void ButtonView::Draw() {
    own_->setText(WithMnemonic(model_));
    own_->setDefault(model_.Owner().DefaultButton == &model_);
}

ToggleView::ToggleView(FormWindow& window, ui::CheckBox& box, QAbstractButton* button)
    : ViewOf(window, box, button) {
    own_->setParent(&window);
    own_->setFocusPolicy(Qt::TabFocus);
    own_->setAutoExclusive(false); // the model knows which belong together
    QObject::connect(own_, &QAbstractButton::clicked, this,
                     [this] { ActAndRefresh([this] { model_.UserClick(); }); });
}

// The words may be shorter than the widget: aim at the mark itself.
QPoint ToggleView::ClickPoint() const {
    return {own_->style()->pixelMetric(QStyle::PM_IndicatorWidth) / 2, own_->height() / 2};
}

void ToggleView::Draw() {
    own_->setText(ToQt(model_.Caption()));
    own_->setChecked(model_.Value());
}

FrameView::FrameView(FormWindow& window, ui::Frame& frame)
    : ViewOf(window, frame, new FoldBox(&window)) {}

void FrameView::Draw() {
    own_->Caption(Literal(model_.Caption()));
}

RichTextView::RichTextView(FormWindow& window, ui::RichText& text)
    : ViewOf(window, text, new QTextBrowser(&window)) {
    own_->setOpenLinks(false);
    own_->document()->setDefaultStyleSheet("p { margin-top: 3px; margin-bottom: 3px }");
}

bool RichTextView::Wants(const ui::Key& key) const {
    return IsOneOf(key.name, {"Up", "Down", "PageUp", "PageDown", "Home", "End"}) ||
           IsOneOf(key.FullName(), {"Ctrl+C", "Ctrl+A"});
}

// A text is set only when it is another, so that the place being read does not jump.
void RichTextView::Draw() {
    std::string page = Page();
    if (shown_ == page) return;
    shown_ = std::move(page);
    own_->setHtml(ToQt(shown_));
}

ToolButtonView::ToolButtonView(FormWindow& window, ui::ToolButton& button)
    : ViewOf(window, button, new StepToolButton(&window)) {
    own_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    own_->setAutoRaise(true);
    const bool isStep = dynamic_cast<ui::StepButton*>(&button) != nullptr;
    own_->setFocusPolicy(isStep ? Qt::TabFocus : Qt::NoFocus);
    QObject::connect(own_, &QToolButton::clicked, this,
                     [this] { Act([this] { model_.UserClick(); }); });
}

void ToolButtonView::Draw() {
    const std::string& caption = model_.Caption();
    own_->setText(Literal(caption.empty() ? model_.Name() : caption));
    own_->setIcon(IconFor(model_.Name(), own_->palette()));
    const auto* step = dynamic_cast<const ui::StepButton*>(&model_);
    static_cast<StepToolButton*>(own_)->MarkAsNext(step && step->IsNext());
    // In a bar it is the action around the button that shows or hides it.
    if (auto* bar = qobject_cast<QToolBar*>(own_->parentWidget())) {
        for (QAction* action : bar->actions()) {
            if (bar->widgetForAction(action) == own_) action->setVisible(model_.Visible());
        }
    }
}

ToolbarView::ToolbarView(FormWindow& window, ui::Toolbar& toolbar)
    : ViewOf(window, toolbar, new QToolBar(&window)) {
    own_->setMovable(false);
    own_->setIconSize({28, 28});
}

} // namespace vexora::qt
