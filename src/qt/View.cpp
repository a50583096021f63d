#include "qt/View.h"

#include <QApplication>
#include <QKeyEvent>

#include "qt/FormWindow.h"
#include "qt/Keys.h"
#include "qt/Text.h"

namespace vexora::qt {

View::View(FormWindow& window, ui::Control& control, QWidget* widget)
    : window_(window), control_(control), widget_(widget) {
    widget->setObjectName(ToQt(control.Name()));
    Watch(widget);
    // The window, and with it this view, may go before the control or after it.
    control.Redraw.Connect([self = QPointer<View>(this)] {
        if (self) self->window_.MarkDirty(*self);
    });
}

View::~View() = default;

QPoint View::ClickPoint() const {
    return ClickTarget()->rect().center();
}

void View::Refresh() {
    if (drawing_ || !widget_ || window_.IsDetached()) return;
    drawing_ = true;
    const bool usable = control_.IsUsable() || (!control_.Visible() && control_.Enabled());
    if (widget_->isEnabledTo(widget_->parentWidget()) != usable) widget_->setEnabled(usable);
    if (widget_->isHidden() == control_.Visible()) widget_->setVisible(control_.Visible());
    const bool saysWhy = !usable && !control_.WhyDisabled().empty();
    const QString tip = ToQt(saysWhy ? control_.WhyDisabled() : control_.ToolTip());
    if (widget_->toolTip() != tip) widget_->setToolTip(tip);
    const QString called = ToQt(control_.AccessibleName());
    if (!called.isEmpty() && widget_->accessibleName() != called) {
        widget_->setAccessibleName(called);
    }
    Draw();
    drawing_ = false;
}

void View::Act(const std::function<void()>& action) {
    if (!drawing_) window_.Perform(action);
}

void View::ActAndRefresh(const std::function<void()>& action) {
    QPointer<View> self(this);
    Act(action);
    if (self) self->Refresh();
}

bool View::MouseEvent(QEvent& event) {
    if (event.type() != QEvent::MouseButtonDblClick || !control_.OnDoubleClick) return false;
    Act([this] { control_.UserDoubleClick(); });
    return true;
}

bool View::HandleKey(QEvent& event) {
    ui::Key key = KeyOf(static_cast<QKeyEvent&>(event));
    if (key.name.empty()) return false;
    QPointer<View> self(this);
    bool done = true;
    window_.Perform([&] {
        ui::Form& form = control_.Owner();
        if (!form.IsReachable()) return;
        form.FocusTo(&control_);
        if (!Wants(key)) return form.UserKey(key);
        if (control_.IsUsable() && control_.OnKey) control_.OnKey(key);
        if (!self || key.swallowed) return;
        window_.Flush();
        done = false;
    });
    return done;
}

bool View::eventFilter(QObject* watched, QEvent* event) {
    if (window_.IsDetached()) return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        window_.Flush();
        return watched == widget_ && HandleKey(*event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        window_.Flush();
        return MouseEvent(*event);
    case QEvent::FocusIn:
        // Only a mnemonic: the mouse and Tab go through the model first.
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::ShortcutFocusReason) {
            Act([this] { control_.SetFocus(); });
        }
        return false;
    default:
        return false;
    }
}

void Shade(QWidget& widget, bool closed) {
    QPalette palette;
    if (closed) palette.setColor(QPalette::Base, QApplication::palette().color(QPalette::Window));
    if (widget.palette().color(QPalette::Base) != palette.color(QPalette::Base)) {
        widget.setPalette(palette);
    }
}

} // namespace vexora::qt
