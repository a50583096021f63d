#include "qt/FormWindow.h"

#include <algorithm>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "entry/SystemInHand.h"
#include "qt/RecentFiles.h"
#include "qt/Text.h"
#include "qt/Windows.h"
#include "ui/DocumentForm.h"

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
    if (!windows_.Recent || !DropTarget() || menuBar()->actions().isEmpty()) return;
    QMenu* first = menuBar()->actions().constFirst()->menu();
    if (!first) return;
    auto* menu = new QMenu(tr("Open &recent"), this);
    const QList<QAction*> entries = first->actions();
    first->insertMenu(entries.isEmpty() ? nullptr : entries.constLast(), menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        for (const std::string& file : windows_.RecentDocuments())
            menu->addAction(Literal(file), this, [this, file] { OpenDropped(file); });
        if (menu->isEmpty()) menu->addAction(tr("None"))->setEnabled(false);
    });
}

ui::TreeView* FormWindow::DropTarget() const {
    const auto& controls = form_.Controls();
    const auto tree = std::ranges::find(controls, ui::ControlKind::TreeView, &ui::Control::Kind);
    if (tree == controls.end()) return nullptr;
    auto* target = static_cast<ui::TreeView*>(*tree);
    return target->OnDrop ? target : nullptr;
}

void FormWindow::OpenDropped(const std::string& path) {
    Perform([&] {
        if (ui::TreeView* target = DropTarget()) target->UserDrop(path);
    });
}

void FormWindow::DrawTitle() {
    QString title = ToQt(TitleOf(form_)).replace("[*]", "[*][*]");
    const auto* document = dynamic_cast<const ui::DocumentForm*>(&form_);
    if (document && !document->DocumentName().empty()) {
        const QString name = ToQt(document->DocumentName()).replace("[*]", "[*][*]");
        title = name + QStringLiteral("[*] - ") + title;
    }
    setWindowTitle(title);
    setWindowModified(document && document->IsChanged());
}

void FormWindow::ListenToDocument() {
    auto* document = dynamic_cast<ui::DocumentForm*>(&form_);
    if (!document) return;
    const QPointer<FormWindow> self(this);
    document->DocumentAltered.Connect([self] {
        if (self && !self->detached_) self->DrawTitle();
    });
    document->Taken.Connect([self](const std::string& path) {
        if (self && self->windows_.Recent) self->windows_.Recent->Add(path);
    });
    document->Refused.Connect([self](const std::string& path) {
        if (self && self->windows_.Recent) self->windows_.Recent->Drop(path);
    });
}

// A parent is declared before its entries, so its action stands already.
void FormWindow::AddMenuItem(ui::MenuItem& item) {
    auto* action = new QAction(this);
    actions_[&item] = action;
    if (!item.Children().empty()) {
        action->setMenu(new QMenu(this));
        action->menu()->setToolTipsVisible(true);
    }
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
    // What has no handler can never be pressed: a person need not see it.
    const bool isDead = !item.OnClick && item.Children().empty();
    action->setVisible(item.Visible() && !isDead);
    action->setCheckable(item.Checked());
    action->setChecked(item.Checked());
    action->setToolTip(ToQt(item.Enabled() ? item.ToolTip() : item.WhyDisabled()));
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
