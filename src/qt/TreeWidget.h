#pragma once

#include <optional>
#include <unordered_map>

#include <QElapsedTimer>
#include <QIcon>
#include <QMenu>
#include <QTreeWidget>

#include "qt/View.h"

namespace vexora::ui {
class DocumentForm;
}

namespace vexora::qt {

/// The tree on the screen; files can be dropped on it.
class DropTree : public QTreeWidget {
public:
    using QTreeWidget::QTreeWidget;
    /// Changes that follow are laid out together.
    void LayOutLater() { scheduleDelayedItemsLayout(); }
    QTreeWidgetItem* ItemAt(const QModelIndex& index) const { return itemFromIndex(index); }
    /// Letters go on to the next line with a word that begins so: labels begin alike.
    void keyboardSearch(const QString& typed) override;
    std::function<void(const QString& path)> OnFile;
    std::function<bool(const QModelIndex&)> IsMarked; // as new
    std::function<void()> OnKeyMoved;                 // the keyboard has left the current line
    /// The menu is asked for at a place on the viewport, by the mouse or by a key of the desktop.
    std::function<void(QPoint at, bool byMouse)> OnMenu;

protected:
    /// The line of the selection, and of what is marked, goes to the edge.
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QString sought_; // the letters typed one soon after the other
    QElapsedTimer typed_;
};

/// Shows a ui::TreeView: an item a node, kept in step by the signals of the tree.
class TreeWidgetView : public ViewOf<ui::TreeView, DropTree> {
public:
    TreeWidgetView(FormWindow& window, ui::TreeView& tree);
    QWidget* ClickTarget() const override { return own_->viewport(); }
    bool Wants(const ui::Key& key) const override;
    QTreeWidgetItem* ItemOf(const ui::TreeNode& node) const;
    /// A point on the label of the node, scrolled into sight.
    QPointF PlaceOf(const ui::TreeNode& node) const;
    /// Goes to the node with an arrow key from the line above or below it.
    void ReachByKey(ui::TreeNode& node);

protected:
    void Draw() override;
    bool MouseEvent(QEvent& event) override;

private:
    void Listen();
    void DressRows();
    void DrawNewNode();
    QIcon IconOf(const QModelIndex& index);
    QString TipOf(const QModelIndex& index) const;
    void Rebuild();
    void Add(ui::TreeNode& node, std::size_t place);
    void Forget(const ui::TreeNode& node);
    void DrawNode(ui::TreeNode& node);
    void DrawFilter();
    void AskForMenu(QPoint at, bool byMouse);
    void ShowMenu();
    void AddToMenu(ui::Captioned& entry);
    ui::TreeNode* NodeOf(QTreeWidgetItem* item) const;
    void Expanded(QTreeWidgetItem* item, bool expanded);

    std::unordered_map<const ui::TreeNode*, QTreeWidgetItem*> items_;
    std::unordered_map<std::string, QIcon> icons_; // by name, in the colours of the palette
    qint64 paletteOfIcons_ = 0;
    const ui::DocumentForm* document_ = nullptr; // the form, where it holds the document
    const ui::TreeNode* new_ = nullptr;          // marked; only compared
    const ui::TreeNode* pressed_ = nullptr;      // where the mouse button went down
    QPointer<QMenu> menu_;
    std::optional<QPoint> menuAt_; // where the mouse asked for the menu, on the screen
    bool following_ = false;       // the tree is being drawn node by node
};

} // namespace vexora::qt
