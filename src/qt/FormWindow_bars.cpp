#include "qt/FormWindow.h"

#include <algorithm>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "qt/RecentFiles.h"
#include "qt/Text.h"
#include "qt/Windows.h"

namespace vexora::qt {

void FormWindow::MakeMenus() {
    for (ui::Control* control : form_.Controls()) {
        if (control->Kind() != ui::ControlKind::MenuItem) continue;
        AddMenuItem(static_cast<ui::MenuItem&>(*control));
    }
    AddRecentMenu();
}

// A document picked here is opened as if its file had been dropped on the tree.
void FormWindow::AddRecentMenu() {
    const auto& controls = form_.Controls();
    const auto tree = std::ranges::find(controls, ui::ControlKind::TreeView, &ui::Control::Kind);
    if (!windows_.Recent || tree == controls.end() || menuBar()->actions().isEmpty()) return;
    QMenu* first = menuBar()->actions().constFirst()->menu();
    auto& target = static_cast<ui::TreeView&>(**tree);
    if (!first || !target.OnDrop) return;
    auto* menu = new QMenu(tr("Open &recent"), this);
    const QList<QAction*> entries = first->actions();
    first->insertMenu(entries.isEmpty() ? nullptr : entries.constLast(), menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu, &target] {
        menu->clear();
        for (const QString& file : windows_.Recent->Present()) {
            menu->addAction(Literal(FromQt(file)), this, [this, file, &target] {
                Perform([&] { target.UserDrop(FromQt(file)); });
            });
        }
        if (menu->isEmpty()) menu->addAction(tr("None"))->setEnabled(false);
    });
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
            if (View* view = ViewFor(*button)) {
                bar->addWidget(view->Widget())->setVisible(button->Visible());
            }
        }
        addToolBar(bar);
    }
}

} // namespace vexora::qt
