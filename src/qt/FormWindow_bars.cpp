#include "qt/FormWindow.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "qt/Text.h"

namespace vexora::qt {

void FormWindow::MakeMenus() {
    for (ui::Control* control : form_.Controls()) {
        if (control->Kind() != ui::ControlKind::MenuItem) continue;
        AddMenuItem(static_cast<ui::MenuItem&>(*control));
    }
}

// A parent is declared before its entries, so its action stands already.
void FormWindow::AddMenuItem(ui::MenuItem& item) {
    auto* action = new QAction(this);
    actions_[&item] = action;
    if (!item.Children().empty()) action->setMenu(new QMenu(this));
    if (item.Parent()) {
        QMenu* menu = MenuFor(*item.Parent());
        if (item.BeginsGroup) menu->addSeparator();
        menu->addAction(action);
    } else {
        menuBar()->addAction(action);
    }
    connect(action, &QAction::triggered, this, [this, &item] {
        Perform([&item] { item.UserClick(); });
        if (!detached_) DrawMenuItem(item);
    });
    item.Redraw.Connect([self = QPointer<FormWindow>(this), &item] {
        if (self && !self->detached_) self->DrawMenuItem(item);
    });
    DrawMenuItem(item);
}

// The shortcut is only shown here: keys reach the entry through the rules of the form.
void FormWindow::DrawMenuItem(ui::MenuItem& item) {
    QAction* action = actions_.at(&item);
    QString text = ToQt(item.Caption());
    if (!item.Shortcut().empty()) text += '\t' + ToQt(item.Shortcut());
    action->setText(text);
    action->setEnabled(item.Enabled());
    action->setVisible(item.Visible());
    action->setCheckable(item.Checked());
    action->setChecked(item.Checked());
    if (!item.ToolTip().empty()) action->setStatusTip(ToQt(item.ToolTip()));
}

QAction* FormWindow::ActionFor(const ui::Control& control) const {
    const auto found = actions_.find(&control);
    return found == actions_.end() ? nullptr : found->second;
}

QMenu* FormWindow::MenuFor(const ui::Control& control) const {
    QAction* action = ActionFor(control);
    return action ? action->menu<QMenu*>() : nullptr;
}

void FormWindow::MakeToolbars() {
    for (ui::Control* control : form_.Controls()) {
        if (control->Kind() != ui::ControlKind::Toolbar) continue;
        auto* bar = qobject_cast<QToolBar*>(ViewFor(*control)->Widget());
        for (const ui::ToolButton* button : static_cast<ui::Toolbar*>(control)->Buttons()) {
            if (View* view = ViewFor(*button)) bar->addWidget(view->Widget());
        }
        addToolBar(bar);
    }
}

} // namespace vexora::qt
