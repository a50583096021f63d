#include "qt/FormAudit.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionComboBox>

#include "qt/Events.h"
#include "qt/Picture.h"
#include "qt/Text.h"

namespace vexora::qt::test {

namespace {

constexpr const char* Seen = "seen"; // property of a window that has been looked at

QWidget* WidgetOf(const FormWindow& window, const ui::Control& control) {
    const View* view = window.ViewFor(control);
    return view ? view->Widget() : nullptr;
}

QRect PlaceIn(const FormWindow& window, const QWidget& widget) {
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

/// The room that the text of the widget needs.
QSize NeededBy(QWidget& widget) {
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
        if (label->wordWrap()) return {0, label->heightForWidth(label->width())};
        return label->sizeHint();
    }
    if (auto* box = qobject_cast<QGroupBox*>(&widget))
        return {box->fontMetrics().horizontalAdvance(box->title()),
                box->minimumSizeHint().height()};
    if (qobject_cast<QAbstractItemView*>(&widget)) return {}; // it scrolls
    return qobject_cast<QAbstractButton*>(&widget) ? widget.sizeHint() : widget.minimumSizeHint();
}

bool Stands(const ui::Control& control, const ui::Layout& layout) {
    return layout.control == &control || layout.label == &control ||
           std::ranges::any_of(layout.parts,
                               [&](const auto& part) { return Stands(control, part); });
}

bool CutsItsEntry(const QComboBox& box) {
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const QRect field = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &box);
    return box.fontMetrics().horizontalAdvance(box.currentText()) > field.width();
}

} // namespace

void FormAudit::Settle() {
    QtActor::Settle();
    if (looking_) return;
    looking_ = true;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = dynamic_cast<FormWindow*>(widget);
        if (!window || window->IsDetached() || !window->isVisible()) continue;
        if (window->property(Seen).toBool()) continue;
        window->setProperty(Seen, true);
        LookAt(*window);
    }
    looking_ = false;
}

void FormAudit::LookAt(FormWindow& window) {
    const auto names = ui::Forms::Current().KnownNames();
    Known.insert(names.begin(), names.end());
    // Controls that have just been shown or hidden wait for their place.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    window.grab(); // brings all to its place
    if (window.isActiveWindow() && !QApplication::focusWidget())
        Fault(window, window, "has the keyboard nowhere");
    LookForCuts(window);
    LookForLetters(window);
    LookForNames(window);
    LookForStrays(window);
    WalkByTab(window);
    AskForHelp(window);
    if (Marked.insert({window.Model().Name(), 0}).second) LookForMarks(window);
}

void FormAudit::Fault(const FormWindow& window, const QWidget& widget, const std::string& what) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    Faults.insert(
        window.Model().Name() + ": " +
        FromQt(label && label->objectName().isEmpty() ? label->text() : widget.objectName()) + " " +
        what);
}

void FormAudit::LookForCuts(FormWindow& window) {
    std::set<QWidget*> widgets;
    for (const ui::Control* control : window.Model().Controls())
        if (QWidget* widget = WidgetOf(window, *control)) widgets.insert(widget);
    for (QLabel* label : window.centralWidget()->findChildren<QLabel*>())
        widgets.insert(label);
    for (QWidget* widget : widgets) {
        if (!widget->isVisible()) continue;
        const QSize needed = NeededBy(*widget);
        if (widget->width() < needed.width() || widget->height() < needed.height())
            Fault(window, *widget, "is cut off");
        if (!window.rect().contains(PlaceIn(window, *widget)))
            Fault(window, *widget, "reaches out of the window");
        const auto* box = qobject_cast<QComboBox*>(widget);
        if (box && CutsItsEntry(*box)) Fault(window, *widget, "cuts its entry");
    }
}

// The letter behind the mark of a menu, a button or a label.
void FormAudit::LookForLetters(FormWindow& window) {
    std::map<QString, const QWidget*> owners;
    const auto claim = [&](const QString& text, const QWidget& widget) {
        const QString letter = QKeySequence::mnemonic(text).toString();
        if (letter.isEmpty()) return;
        if (!owners.emplace(letter, &widget).second)
            Fault(window, widget, "shares " + FromQt(letter));
    };
    for (const QAction* action : window.menuBar()->actions())
        if (action->isVisible()) claim(action->text(), *window.menuBar());
    for (const QAbstractButton* button : window.centralWidget()->findChildren<QAbstractButton*>())
        if (button->isVisible()) claim(button->text(), *button);
    for (const QLabel* label : window.centralWidget()->findChildren<QLabel*>())
        if (label->isVisible() && label->buddy()) claim(label->text(), *label);
}

void FormAudit::LookForNames(FormWindow& window) {
    for (const ui::Control* control : window.Model().Controls()) {
        QWidget* widget = WidgetOf(window, *control);
        const bool isSeen = control->TakesFocus() ||
                            control->Kind() == ui::ControlKind::ToolButton ||
                            control->Kind() == ui::ControlKind::Picture;
        if (!widget || !isSeen || !widget->isVisible()) continue;
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
        if (!spoken || spoken->text(QAccessible::Name).trimmed().isEmpty())
            Fault(window, *widget, "has no name to be spoken");
    }
}

// What the layout forgot comes up all the same, below everything else.
void FormAudit::LookForStrays(FormWindow& window) {
    const ui::Layout& layout = window.Model().Arrangement;
    if (layout.kind == ui::Layout::Kind::Column && layout.parts.empty()) return;
    for (const ui::Control* control : window.Model().Controls()) {
        const QWidget* widget = WidgetOf(window, *control);
        const bool inBar = control->Kind() == ui::ControlKind::Toolbar ||
                           control->Kind() == ui::ControlKind::ToolButton;
        if (!inBar && widget && widget->isVisible() && !Stands(*control, layout))
            Fault(window, *widget, "stands outside of the layout");
    }
}

// The next control is below or to the right; columns side by side are walked one after the other.
void FormAudit::WalkByTab(FormWindow& window) {
    const QWidget* before = nullptr;
    for (const ui::Control* control : window.Model().Controls()) {
        const QWidget* widget = WidgetOf(window, *control);
        if (!widget || !control->TakesFocus() || !control->IsUsable() || !widget->isVisible())
            continue;
        if (before) {
            const QRect from = PlaceIn(window, *before);
            const QRect to = PlaceIn(window, *widget);
            const bool toTheRight = to.left() > from.right();
            const bool below = to.top() > from.bottom();
            if (!toTheRight && !below)
                Fault(window, *widget, "follows " + FromQt(before->objectName()) + " by Tab");
        }
        before = widget;
    }
}

// By the widgets alone: the handlers of the form are not told.
void FormAudit::LookForMarks(FormWindow& window) {
    QWidget* const had = QApplication::focusWidget();
    window.activateWindow();
    QApplication::processEvents();
    window.grab();
    for (const ui::Control* control : window.Model().Controls()) {
        QWidget* widget = WidgetOf(window, *control);
        if (!widget || !control->TakesFocus() || !control->IsUsable() || !widget->isVisible())
            continue;
        if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
        const QImage plain = window.grab(PlaceIn(window, *widget)).toImage();
        widget->setFocus(Qt::OtherFocusReason);
        if (!IsMarked(plain, window.grab(PlaceIn(window, *widget)).toImage()))
            Fault(window, *widget, "shows no mark");
        ++Marked[window.Model().Name()];
    }
    if (had) had->setFocus(Qt::OtherFocusReason);
}

void FormAudit::AskForHelp(FormWindow& window) {
    const ui::Form& form = window.Model();
    QWidget* focused = window.focusWidget();
    if (!form.IsReachable() || !focused) return;
    PressAndRelease(focused, {Qt::Key_F1, Qt::NoModifier, {}});
    Topics.insert({form.Name(), form.HelpContext});
}

} // namespace vexora::qt::test
