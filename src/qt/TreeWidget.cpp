#include "qt/TreeWidget.h"

#include <utility>

#include <QApplication>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScopedValueRollback>

#include "qt/FileDrop.h"
#include "qt/FormWindow.h"
#include "qt/Icons.h"
#include "qt/Text.h"
#include "qt/TreeRows.h"
#include "ui/DocumentForm.h"

namespace vexora::qt {

namespace {

constexpr int NodeRole = Qt::UserRole;

/// A pale ground, with a bar at its left.
void MarkAsNew(QPainter& painter, const QRect& row, const QPalette& palette) {
    constexpr int pale = 50; // of 255
    constexpr int bar = 4;   // [pixels]
    QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    painter.fillRect(QRect(row.topLeft(), QSize(bar, row.height())), accent);
    accent.setAlpha(pale);
    painter.fillRect(row, accent);
}

} // namespace

void DropTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    const QRect row(0, option.rect.top(), viewport()->width(), option.rect.height());
    const auto group = isActiveWindow() ? QPalette::Active : QPalette::Inactive;
    if (selectionModel()->isSelected(index))
        painter->fillRect(row, palette().brush(group, QPalette::Highlight));
    else if (IsMarked && IsMarked(index))
        MarkAsNew(*painter, row, palette());
    QTreeWidget::drawRow(painter, option, index);
}

void DropTree::keyboardSearch(const QString& typed) {
    const bool soon = typed_.isValid() && typed_.elapsed() < QApplication::keyboardInputInterval();
    typed_.start();
    const bool again = soon && typed == sought_; // the same letter goes on to the next one
    sought_ = soon && !again ? sought_ + typed : typed;
    const QRegularExpression word("\\b" + QRegularExpression::escape(sought_),
                                  QRegularExpression::CaseInsensitiveOption |
                                      QRegularExpression::UseUnicodePropertiesOption);
    const auto next = [this](QTreeWidgetItem* item) {
        QTreeWidgetItem* below = item ? itemBelow(item) : nullptr;
        return below ? below : topLevelItem(0);
    };
    QTreeWidgetItem* const from = currentItem();
    QTreeWidgetItem* item = from && sought_.size() > 1 ? from : next(from);
    for (QTreeWidgetItem* const first = item; item && !item->text(0).contains(word);)
        if ((item = next(item)) == first) return;
    if (item && !item->isHidden()) setCurrentItem(item);
}

void DropTree::keyPressEvent(QKeyEvent* event) {
    QPointer<DropTree> self(this);
    const QTreeWidgetItem* before = currentItem();
    QTreeWidget::keyPressEvent(event);
    if (self && currentItem() != before && OnKeyMoved) OnKeyMoved();
}

void DropTree::contextMenuEvent(QContextMenuEvent* event) {
    if (OnMenu) OnMenu(event->pos(), event->reason() == QContextMenuEvent::Mouse);
    event->accept();
}

void DropTree::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedFile(*event).isEmpty()) event->acceptProposedAction();
}

void DropTree::dragMoveEvent(QDragMoveEvent* event) {
    if (!DroppedFile(*event).isEmpty()) event->acceptProposedAction();
}

void DropTree::dropEvent(QDropEvent* event) {
    const QString path = DroppedFile(*event);
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    if (OnFile) OnFile(path);
}

TreeWidgetView::TreeWidgetView(FormWindow& window, ui::TreeView& tree)
    : ViewOf(window, tree, new DropTree(&window)) {
    Watch(own_->viewport());
    own_->setHeaderHidden(true);
    own_->setExpandsOnDoubleClick(false); // a double click opens the record
    own_->setAcceptDrops(true);
    own_->setUniformRowHeights(true);
    document_ = dynamic_cast<const ui::DocumentForm*>(&tree.Owner());
    DressRows();
    own_->setMinimumWidth(own_->fontMetrics().averageCharWidth() * 32);
    own_->header()->setStretchLastSection(false);
    own_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    Rebuild();
    Listen();
}

void TreeWidgetView::DressRows() {
    auto* rows = new TreeRows(own_);
    rows->IconOf = [this](const QModelIndex& index) { return IconOf(index); };
    rows->TipOf = [this](const QModelIndex& index) { return TipOf(index); };
    own_->setItemDelegate(rows);
    const int high = own_->fontMetrics().height();
    own_->setIconSize({high, high});
    own_->IsMarked = [this](const QModelIndex& index) {
        return new_ && !Window().IsDetached() && NodeOf(own_->ItemAt(index)) == new_;
    };
    // A line is drawn beyond its label, which is all that the toolkit renews.
    QObject::connect(own_, &QTreeWidget::currentItemChanged, own_->viewport(),
                     qOverload<>(&QWidget::update));
}

QIcon TreeWidgetView::IconOf(const QModelIndex& index) {
    const ui::TreeNode* node = Window().IsDetached() ? nullptr : NodeOf(own_->ItemAt(index));
    if (!node || !model_.IconOf) return {};
    const std::string name = model_.IconOf(*node);
    if (name.empty()) return {};
    if (std::exchange(paletteOfIcons_, own_->palette().cacheKey()) != own_->palette().cacheKey())
        icons_.clear();
    QIcon& icon = icons_[name];
    if (icon.isNull()) icon = IconFor(name, own_->palette());
    return icon;
}

QString TreeWidgetView::TipOf(const QModelIndex& index) const {
    const ui::TreeNode* node = Window().IsDetached() ? nullptr : NodeOf(own_->ItemAt(index));
    return node && model_.TipOf ? ToQt(model_.TipOf(*node)) : QString();
}

void TreeWidgetView::Listen() {
    const QPointer<TreeWidgetView> self(this);
    if (auto* document = dynamic_cast<ui::DocumentForm*>(&model_.Owner())) {
        document->DocumentAltered.Connect([self] {
            if (self && !self->Window().IsDetached()) self->DrawNewNode();
        });
    }
    model_.NodeAdded.Connect([self](ui::TreeNode* node) {
        if (self && !self->Window().IsDetached()) self->Add(*node, self->model_.PlaceOf(*node));
    });
    model_.NodeRemoved.Connect([self](ui::TreeNode* node) {
        if (!self || self->Window().IsDetached()) return;
        QScopedValueRollback guard(self->following_, true);
        self->pressed_ = nullptr;
        self->new_ = nullptr;
        delete self->ItemOf(*node);
        self->Forget(*node);
    });
    model_.NodeChanged.Connect([self](ui::TreeNode* node) {
        if (!self || self->Window().IsDetached()) return;
        if (node)
            self->DrawNode(*node);
        else
            self->Rebuild();
    });
    model_.Filtered.Connect([self] {
        if (self && !self->Window().IsDetached()) self->DrawFilter();
    });
    model_.MenuAsked.Connect([self] {
        if (self && !self->Window().IsDetached()) self->ShowMenu();
    });
    own_->OnMenu = [this](QPoint at, bool byMouse) { AskForMenu(at, byMouse); };
    own_->OnFile = [this](const QString& path) {
        Act([this, &path] { model_.UserDrop(FromQt(path)); });
    };
    own_->OnKeyMoved = [this] {
        ui::TreeNode* node = NodeOf(own_->currentItem());
        if (node && node != model_.SelectedNode()) {
            Act([this, node] { model_.UserNodeReached(*node); });
        }
    };
    QObject::connect(own_, &QTreeWidget::itemExpanded, this,
                     [this](QTreeWidgetItem* item) { Expanded(item, true); });
    QObject::connect(own_, &QTreeWidget::itemCollapsed, this,
                     [this](QTreeWidgetItem* item) { Expanded(item, false); });
}

bool TreeWidgetView::Wants(const ui::Key& key) const {
    if (key.control || key.alt) return false;
    return key.character > U' ' || key.name.starts_with("Page") ||
           IsOneOf(key.name, {"Up", "Down", "Left", "Right", "Home", "End"});
}

QTreeWidgetItem* TreeWidgetView::ItemOf(const ui::TreeNode& node) const {
    const auto found = items_.find(&node);
    return found == items_.end() ? nullptr : found->second;
}

ui::TreeNode* TreeWidgetView::NodeOf(QTreeWidgetItem* item) const {
    if (!item) return nullptr;
    return static_cast<ui::TreeNode*>(item->data(0, NodeRole).value<void*>());
}

void TreeWidgetView::Rebuild() {
    QScopedValueRollback guard(following_, true);
    own_->clear();
    items_.clear();
    std::size_t place = 0;
    for (const auto& root : model_.Roots())
        Add(*root, place++);
}

void TreeWidgetView::Add(ui::TreeNode& node, std::size_t place) {
    QScopedValueRollback guard(following_, true);
    QTreeWidgetItem* parent = node.Parent() ? ItemOf(*node.Parent()) : nullptr;
    auto* item = new QTreeWidgetItem;
    if (parent)
        parent->insertChild(static_cast<int>(place), item);
    else
        own_->insertTopLevelItem(static_cast<int>(place), item);
    item->setData(0, NodeRole, QVariant::fromValue(static_cast<void*>(&node)));
    items_[&node] = item;
    std::size_t below = 0;
    for (const auto& child : node.Children())
        Add(*child, below++);
    DrawNode(node);
    if (parent && parent->childCount() == 1) parent->setExpanded(node.Parent()->Expanded());
}

void TreeWidgetView::Forget(const ui::TreeNode& node) {
    for (const auto& child : node.Children())
        Forget(*child);
    items_.erase(&node);
}

void TreeWidgetView::DrawNode(ui::TreeNode& node) {
    QTreeWidgetItem* item = ItemOf(node);
    if (!item) return;
    QScopedValueRollback guard(following_, true);
    item->setText(0, ToQt(node.Text()));
    QFont font = own_->font();
    font.setBold(node.Bold());
    item->setFont(0, font);
    item->setForeground(0, node.Bold() ? own_->palette().brush(QPalette::Link) : QBrush());
    item->setExpanded(node.Expanded());
    if (item->isHidden() != node.Hidden()) item->setHidden(node.Hidden());
}

/// One layout at the end stands for all nodes: each by itself would lay out the whole tree.
void TreeWidgetView::DrawFilter() {
    QScopedValueRollback guard(following_, true);
    own_->LayOutLater();
    for (const auto& [node, item] : items_) {
        if (item->isHidden() != node->Hidden()) item->setHidden(node->Hidden());
        if (item->isExpanded() != node->Expanded()) item->setExpanded(node->Expanded());
    }
}

/// A place beside all nodes asks for the menu of the tree as it stands.
void TreeWidgetView::AskForMenu(QPoint at, bool byMouse) {
    if (menu_ && menu_->isVisible()) return; // the key came to the model already
    menuAt_.reset();
    if (byMouse) menuAt_ = own_->viewport()->mapToGlobal(at);
    ui::TreeNode* node = NodeOf(byMouse ? own_->itemAt(at) : own_->currentItem());
    Act([this, node] { model_.UserMenu(node); });
    menuAt_.reset();
}

void TreeWidgetView::AddToMenu(ui::Captioned& entry) {
    QString text = ToQt(entry.Caption());
    bool enabled = entry.IsUsable();
    QIcon icon;
    if (entry.Kind() == ui::ControlKind::MenuItem) {
        const auto& item = static_cast<const ui::MenuItem&>(entry);
        if (!item.Shortcut().empty()) text += '\t' + ToQt(item.Shortcut());
        enabled = item.IsReachable();
    } else {
        icon = IconFor(entry.Name(), own_->palette());
    }
    QAction* action = menu_->addAction(icon, text);
    action->setObjectName(ToQt(entry.Name()));
    action->setEnabled(enabled);
    if (!enabled) action->setToolTip(ToQt(entry.WhyDisabled()));
    QObject::connect(action, &QAction::triggered, this,
                     [this, &entry] { Act([&entry] { entry.UserClick(); }); });
}

void TreeWidgetView::ShowMenu() {
    delete menu_;
    menu_ = new QMenu(own_);
    menu_->setAttribute(Qt::WA_DeleteOnClose);
    menu_->setToolTipsVisible(true);
    for (ui::Captioned* entry : model_.Offers()) {
        if (entry)
            AddToMenu(*entry);
        else
            menu_->addSeparator();
    }
    Window().Flush();
    const QRect line = own_->visualItemRect(own_->currentItem());
    menu_->popup(menuAt_.value_or(own_->viewport()->mapToGlobal(line.bottomLeft())));
}

QPointF TreeWidgetView::PlaceOf(const ui::TreeNode& node) const {
    QTreeWidgetItem* item = ItemOf(node);
    if (!item) return {};
    own_->scrollToItem(item);
    const QRect place = own_->visualItemRect(item);
    return QPointF(place.left() + 4, place.center().y());
}

void TreeWidgetView::ReachByKey(ui::TreeNode& node) {
    QTreeWidgetItem* item = ItemOf(node);
    QTreeWidgetItem* above = own_->itemAbove(item);
    QTreeWidgetItem* below = own_->itemBelow(item);
    if (!above && !below) return Act([&] { model_.UserNodeReached(node); });
    own_->setCurrentItem(above ? above : below);
    const int key = above ? Qt::Key_Down : Qt::Key_Up;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(own_, &press);
}

void TreeWidgetView::Expanded(QTreeWidgetItem* item, bool expanded) {
    ui::TreeNode* node = NodeOf(item);
    if (!following_ && !IsDrawing() && node) node->Expanded(expanded);
}

/// The node that came last is in sight, though another one stays selected.
void TreeWidgetView::DrawNewNode() {
    const ui::TreeNode* node = document_ ? document_->NewNode() : nullptr;
    if (node == new_) return;
    new_ = node;
    own_->viewport()->update();
    if (node && ItemOf(*node)) Window().MarkDirty(*this);
}

void TreeWidgetView::Draw() {
    const ui::TreeNode* selected = model_.SelectedNode();
    QTreeWidgetItem* item = selected && !selected->Hidden() ? ItemOf(*selected) : nullptr;
    if (own_->currentItem() != item) own_->setCurrentItem(item);
    if (item) own_->scrollToItem(item);
    if (QTreeWidgetItem* added = new_ ? ItemOf(*new_) : nullptr) own_->scrollToItem(added);
}

// The second press of a double click repeats no single click.
bool TreeWidgetView::MouseEvent(QEvent& event) {
    const auto& mouse = static_cast<QMouseEvent&>(event);
    if (mouse.button() != Qt::LeftButton) return false;
    QTreeWidgetItem* item = own_->itemAt(mouse.position().toPoint());
    ui::TreeNode* node = NodeOf(item);
    const bool onBranch = item && mouse.position().x() < own_->visualItemRect(item).left();
    if (!node || onBranch) return false;
    if (event.type() == QEvent::MouseButtonRelease) {
        if (node == pressed_) Act([this, node] { model_.UserNodeClick(*node); });
    } else if (event.type() == QEvent::MouseButtonPress) {
        pressed_ = node;
    } else {
        pressed_ = nullptr;
        Act([this, node] {
            if (model_.IsUsable() && model_.OnNodeDoubleClick) model_.OnNodeDoubleClick(*node);
        });
        return true;
    }
    return false;
}

} // namespace vexora::qt
