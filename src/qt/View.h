#pragma once

#include <functional>
#include <memory>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "reference/Text.h"
#include "ui/Form.h"

namespace vexora::qt {

class FormWindow;

/// One control on the screen. It draws the state of its model and hands what a person does back
/// through the "User" functions of the model; it decides nothing. The window of the form owns it.
class View : public QObject {
public:
    View(FormWindow& window, ui::Control& control, QWidget* widget);
    ~View() override;

    ui::Control& Model() const { return control_; }
    /// The widget that takes the focus and the keys.
    QWidget* Widget() const { return widget_; }
    /// Where a click of the mouse has to land.
    virtual QWidget* ClickTarget() const { return widget_; }
    virtual QPoint ClickPoint() const;

    /// Brings the widget to the state of the model.
    void Refresh();

    /// Whether the widget itself has to see the key once the handler of the control has let it
    /// pass; all other keys go by the rules of the form.
    virtual bool Wants(const ui::Key&) const { return false; }

    /// A control that answers to the mouse itself, not by a signal of its widget.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    virtual void Draw() = 0;
    /// A press, a release or the second press of a double click; true when the widget must not see
    /// it. As it stands here a control that listens gets its double clicks.
    virtual bool MouseEvent(QEvent& event);

    void Watch(QWidget* widget) { widget->installEventFilter(this); }
    bool IsDrawing() const { return drawing_; }
    FormWindow& Window() const { return window_; }
    /// Runs what a person did, unless it is only the echo of our own drawing.
    void Act(const std::function<void()>& action);
    /// The same, and then draws, for a handler may have corrected what was done.
    void ActAndRefresh(const std::function<void()>& action);

private:
    bool HandleKey(QEvent& event);

    FormWindow& window_;
    ui::Control& control_;
    QPointer<QWidget> widget_;
    bool drawing_ = false;
};

/// A view whose model and widget have known classes.
template <class TControl, class TWidget>
class ViewOf : public View {
public:
    using OfControl = TControl;
    ViewOf(FormWindow& window, TControl& control, TWidget* widget)
        : View(window, control, widget), model_(control), own_(widget) {}

protected:
    TControl& model_;
    TWidget* own_;
};

/// What cannot be typed into looks like the window around it.
void Shade(QWidget& widget, bool closed);

/// Makes the view for a control; null for kinds that stand in menus and bars.
std::unique_ptr<View> MakeView(FormWindow& window, ui::Control& control);

} // namespace vexora::qt
