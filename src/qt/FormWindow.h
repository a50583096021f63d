#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QMainWindow>

#include "qt/LayoutBuilder.h"
#include "qt/View.h"

namespace vexora::qt {

class Windows;

/// The one window class: it renders any form, with menu bar and tool bar when the form has such
/// controls. It follows the model by its signals, many changes at a time; Windows owns it. After
/// Detach it never touches the form again.
class FormWindow : public QMainWindow {
public:
    FormWindow(Windows& windows, ui::Form& form, QWidget* parent);
    ~FormWindow() override;

    ui::Form& Model() const { return form_; }
    /// The view of a control, null when it has none (menu entries).
    View* ViewFor(const ui::Control& control) const;
    /// The action of a menu entry, or null.
    QAction* ActionFor(const ui::Control& control) const;
    QMenu* MenuFor(const ui::Control& control) const;

    void MarkDirty(View& view);
    /// Draws all that has changed since the last time.
    void Flush();
    /// The form is going: from now on the window is only a picture.
    void Detach();
    bool IsDetached() const { return detached_; }
    const Windows& All() const { return windows_; }
    /// Runs an action of a person; an exception of a handler ends here and is handed on to Windows.
    void Perform(const std::function<void()>& action);
    /// Opens a file as if it had been dropped on the tree.
    void OpenDropped(const std::string& path);
    /// Puts the keyboard where the form has its focus.
    void FollowFocus();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void MakeViews();
    void MakeMenus();
    void MakeToolbars();
    void AddMenuItem(ui::MenuItem& item);
    void DrawMenuItem(ui::MenuItem& item);
    void AddRecentMenu();
    /// The form's tree that takes dropped files, or null.
    ui::TreeView* DropTarget() const;
    /// Caption and, where the form holds the document, its name with a mark while it is not saved.
    void DrawTitle();
    void ListenToDocument();
    void Place(QWidget& content);
    void TakeFirstSize();
    void Listen();
    /// Files dropped on the window go to a form that takes them.
    void TakeFiles();
    void Schedule();

    Windows& windows_;
    ui::Form& form_;
    LayoutBuilder builder_;
    std::vector<std::unique_ptr<View>> views_;
    std::unordered_map<const ui::Control*, View*> byControl_;
    std::unordered_map<const ui::Control*, QAction*> actions_;
    std::vector<QPointer<View>> dirty_;
    bool scheduled_ = false;
    bool detached_ = false;
};

} // namespace vexora::qt
