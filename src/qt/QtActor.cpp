#include "qt/QtActor.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTabBar>

#include "qt/Events.h"
#include "qt/FoldBox.h"
#include "qt/GridView.h"
#include "qt/ListViews.h"
#include "qt/PicturePainter.h"
#include "qt/PictureView.h"
#include "qt/Text.h"
#include "qt/TextView.h"
#include "qt/TreeWidget.h"
#include "ui/Utf8.h"

namespace vexora::qt {

QtActor::QtActor() {
    windows_.PlaysScripts = true;
    windows_.OnFault = [this](std::exception_ptr fault) {
        if (!fault_) fault_ = std::move(fault);
    };
}

QtActor::~QtActor() {
    while (hourglasses_ > 0)
        Hourglass(false);
}

FormWindow& QtActor::WindowOf(const ui::Control& control) {
    windows_.Follow();
    FormWindow* window = windows_.WindowOf(control.Owner());
    if (!window) throw host::ActorError(control.Owner().Name() + " has no window");
    window->Flush();
    return *window;
}

template <class TView>
TView& QtActor::ViewOf(const ui::Control& control) {
    auto* view = dynamic_cast<TView*>(WindowOf(control).ViewFor(control));
    if (!view || !view->Widget()) throw host::ActorError(control.Name() + " is not on the screen");
    FoldBox::Reveal(*view->Widget());
    return *view;
}

void QtActor::Do(const std::function<void()>& action) {
    action();
    Settle();
    if (fault_) std::rethrow_exception(std::exchange(fault_, nullptr));
}

void QtActor::Settle() {
    windows_.Follow();
    windows_.Flush();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    windows_.Flush();
}

void QtActor::Click(ui::Control& control) {
    Do([&] {
        if (control.Kind() == ui::ControlKind::MenuItem) {
            return ClickMenu(static_cast<ui::MenuItem&>(control));
        }
        // A list or a table has no single place that stands for itself.
        const bool places = control.Kind() == ui::ControlKind::ListBox ||
                            control.Kind() == ui::ControlKind::ComboBox ||
                            control.Kind() == ui::ControlKind::TabStrip ||
                            control.Kind() == ui::ControlKind::Grid ||
                            control.Kind() == ui::ControlKind::TreeView;
        if (places) return control.UserClick();
        View& view = ViewOf<View>(control);
        MouseClick(view.ClickTarget(), view.ClickPoint());
    });
}

void QtActor::ClickMenu(ui::MenuItem& item) {
    FormWindow& window = WindowOf(item);
    QAction* action = window.ActionFor(item);
    QMenu* menu = item.Parent() ? window.MenuFor(*item.Parent()) : nullptr;
    if (!action) throw host::ActorError(item.Name() + " is not in a menu");
    if (!menu) return action->trigger();
    menu->popup(window.mapToGlobal(QPoint(0, 0)));
    const QRect place = menu->actionGeometry(action);
    QPointer<QMenu> alive(menu);
    MouseMove(menu, place.center(), false);
    MouseClick(menu, place.center());
    if (alive && alive->isVisible()) alive->close();
}

void QtActor::DoubleClick(ui::Control& control) {
    Do([&] {
        if (control.TakesFocus()) control.SetFocus();
        View& view = ViewOf<View>(control);
        if (!control.OnDoubleClick) return;
        MouseSecondPress(view.ClickTarget(), view.ClickPoint());
    });
}

void QtActor::Replace(ui::Control& control, const std::string& text) {
    Do([&] {
        Enter(control);
        if (control.Kind() == ui::ControlKind::ComboBox)
            static_cast<DropBox*>(ViewOf<ComboView>(control).Widget())->setEditText(ToQt(text));
        else
            ViewOf<TextView>(control).ReplaceAll(ToQt(text));
    });
}

void QtActor::SendKey(ui::Control& control, const ui::Key& key) {
    WindowOf(control);
    PressAndRelease(ViewOf<View>(control).Widget(), StrokeOf(key));
}

void QtActor::Type(ui::Control& control, const std::string& text) {
    ui::Form& form = control.Owner();
    Do([&] { Enter(control); });
    for (const char32_t character : ui::ToPoints(text)) {
        if (!form.IsReachable() || !form.ActiveControl()) return;
        Do([&] { SendKey(*form.ActiveControl(), ui::CharacterKey(character)); });
    }
}

void QtActor::PressKey(ui::Control& control, const ui::Key& key) {
    Do([&] {
        Enter(control);
        SendKey(control, key);
    });
}

void QtActor::DropDown(ui::ComboBox& combo) {
    Do([&] { static_cast<DropBox*>(ViewOf<ComboView>(combo).Widget())->showPopup(); });
}

void QtActor::Choose(ui::ItemList& list, int index) {
    Do([&] {
        if (list.Kind() == ui::ControlKind::ListBox) {
            auto& view = ViewOf<ListView>(list);
            MouseClick(view.ClickTarget(), view.EntryRect(index).center());
        } else if (list.Kind() == ui::ControlKind::TabStrip) {
            auto* bar = static_cast<QTabBar*>(ViewOf<TabView>(list).Widget());
            MouseClick(bar, bar->tabRect(index).center());
        } else {
            ChooseInPopup(list, index);
        }
    });
}

// Enter in the open list takes the entry that the keyboard has reached there.
void QtActor::ChooseInPopup(ui::ItemList& list, int index) {
    auto* box = static_cast<DropBox*>(ViewOf<ComboView>(list).Widget());
    if (!box->view()->isVisible()) box->showPopup();
    box->view()->setCurrentIndex(box->model()->index(index, box->modelColumn()));
    PressAndRelease(box->view(), StrokeOf(ui::ParseKey("Enter")));
}

void QtActor::Select(ui::ListBox& list, int index, bool on) {
    if (list.Selected(index) == on) {
        list.SetFocus();
        return;
    }
    Do([&] {
        auto& view = ViewOf<ListView>(list);
        const bool isMulti = list.SelectionMode() == ui::ListBox::Mode::Multi;
        MouseClick(view.ClickTarget(),
                   isMulti ? view.EntryRect(index).center() : view.CheckPoint(index));
    });
}

void QtActor::ClickNode(ui::TreeView& tree, ui::TreeNode& node) {
    Do([&] {
        auto& view = ViewOf<TreeWidgetView>(tree);
        MouseClick(view.ClickTarget(), view.PlaceOf(node));
    });
}

void QtActor::DoubleClickNode(ui::TreeView& tree, ui::TreeNode& node) {
    Do([&] {
        auto& view = ViewOf<TreeWidgetView>(tree);
        MouseDoubleClick(view.ClickTarget(), view.PlaceOf(node));
    });
}

// From the node above or below it, by one arrow key.
void QtActor::ReachNode(ui::TreeView& tree, ui::TreeNode& node) {
    Do([&] {
        tree.SetFocus();
        ViewOf<TreeWidgetView>(tree).ReachByKey(node);
    });
}

void QtActor::TypeCell(ui::Grid& grid, int row, int column, const std::string& text) {
    Do([&] {
        auto& view = ViewOf<GridView>(grid);
        const QModelIndex at = view.IndexOf(row, column);
        grid.SetFocus();
        view.SelectAsDragged({row, column, row, column});
        view.Table().edit(at);
        auto* editor = qobject_cast<QLineEdit*>(view.Table().indexWidget(at));
        if (!editor) editor = view.Table().viewport()->findChild<QLineEdit*>();
        if (!editor) throw host::ActorError(grid.Name() + " opened no editor");
        editor->selectAll();
        editor->insert(ToQt(text));
        PressAndRelease(editor, StrokeOf(ui::ParseKey("Enter")));
    });
}

void QtActor::PasteCells(ui::Grid& grid, int row, int column, const std::string& text) {
    ClipboardText(text);
    Do([&] {
        Enter(grid);
        auto& view = ViewOf<GridView>(grid);
        view.SelectAsDragged({row, column, row, column});
        SendKey(grid, ui::ParseKey("Ctrl+V"));
    });
}

void QtActor::SelectBlock(ui::Grid& grid, const ui::Grid::Block& block) {
    Do([&] {
        auto& view = ViewOf<GridView>(grid);
        if (grid.ChoosesHeads() && block.bottom < grid.FixedRows())
            return view.ClickHead(block.top, block.left);
        grid.SetFocus();
        if (!view.SelectAsDragged(block)) grid.UserSelect(block);
    });
}

void QtActor::Drag(ui::Picture& picture, double x, double y, double x2, double y2) {
    Do([&] {
        auto& view = ViewOf<PictureView>(picture);
        QPointer<QWidget> target(view.ClickTarget());
        const QPointF to = view.PlaceOf(x2, y2);
        MousePress(target, view.PlaceOf(x, y));
        if (target) MouseMove(target, to, true);
        if (target) MouseRelease(target, to);
    });
}

void QtActor::Hover(ui::Picture& picture, double x, double y) {
    Do([&] {
        auto& view = ViewOf<PictureView>(picture);
        MouseMove(view.ClickTarget(), view.PlaceOf(x, y), false);
    });
}

void QtActor::Drop(ui::TreeView& tree, const std::string& path) {
    Do([&] { DropFile(ViewOf<TreeWidgetView>(tree).ClickTarget(), ToQt(path)); });
}

void QtActor::Drop(ui::Form& form, const std::string& path) {
    windows_.Follow();
    Do([&] {
        FormWindow* window = windows_.WindowOf(form);
        if (!window) throw host::ActorError(form.Name() + " has no window");
        DropFile(window, ToQt(path));
    });
}

void QtActor::CloseWindow(ui::Form& form) {
    windows_.Follow();
    Do([&] {
        FormWindow* window = windows_.WindowOf(form);
        if (!window) throw host::ActorError(form.Name() + " has no window");
        window->close();
    });
}

std::string QtActor::ClipboardText() {
    return FromQt(QGuiApplication::clipboard()->text());
}

void QtActor::ClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(ToQt(text));
}

void QtActor::Hourglass(bool on) {
    hourglasses_ += on ? 1 : -1;
    if (on)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

std::optional<std::string> QtActor::PngOf(const ui::Picture& picture) {
    return PngBytes(picture);
}

bool QtActor::Shot(const std::string& path) {
    Settle();
    // Of the form in front and not of the active window, which a window manager may tell late.
    const ui::Form* form = ui::Forms::IsPresent() ? ui::Forms::Current().Front() : nullptr;
    FormWindow* window = form ? windows_.WindowOf(*form) : nullptr;
    return window && window->grab().save(ToQt(path));
}

} // namespace vexora::qt
