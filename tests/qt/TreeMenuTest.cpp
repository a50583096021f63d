#include <QContextMenuEvent>
#include <QMenu>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/Events.h"
#include "qt/EveryKind.h"
#include "qt/QtDesktop.h"
#include "qt/TreeWidget.h"

namespace vexora::qt::test {

/// A tree on its window, worked by events of mouse and keyboard.
class TreeMenu : public testing::Test {
protected:
    TreeMenu() {
        windows_.Follow();
        forms_.Register<EveryKind>("frmEveryKind");
        form_ = &OpenEveryKind();
        form_->tvwTree.Offers = [this] {
            return std::vector<ui::Captioned*>{&form_->AddComp, nullptr, &form_->Save};
        };
        windows_.Flush();
        view_ = dynamic_cast<TreeWidgetView*>(windows_.WindowOf(*form_)->ViewFor(form_->tvwTree));
    }
    ~TreeMenu() override { forms_.CloseAll(); }

    QTreeWidget& Tree() { return static_cast<QTreeWidget&>(*view_->Widget()); }
    ui::TreeNode& Node(const char* key) { return *form_->tvwTree.Find(key); }
    void Press(const char* key) {
        PressAndRelease(view_->Widget(), StrokeOf(ui::ParseKey(key)));
        QCoreApplication::processEvents();
    }
    void AskForMenu(QContextMenuEvent::Reason reason, QPoint at) {
        QContextMenuEvent event(reason, at, Tree().viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(Tree().viewport(), &event);
    }
    /// The menu that has popped up, null for none.
    QMenu* Menu() {
        for (auto* menu : Tree().findChildren<QMenu*>())
            if (menu->isVisible()) return menu;
        return nullptr;
    }
    /// What has happened since, by the tree's own events.
    std::string Told() {
        std::string told;
        for (const std::string& event : form_->Events)
            if (event.starts_with("node ") || event.ends_with(" click")) told += event + "; ";
        form_->Events.clear();
        return told;
    }

    host::PosixFileSystem files_;
    Windows windows_;
    QtDesktop desktop_{windows_, files_, {}};
    ui::Forms forms_{desktop_};
    EveryKind* form_ = nullptr;
    TreeWidgetView* view_ = nullptr;
};

TEST_F(TreeMenu, TheRightButtonAndTheMenuKeyOfferWhatTheNodeAllows) {
    AskForMenu(QContextMenuEvent::Mouse, view_->PlaceOf(Node("L2")).toPoint());
    ASSERT_NE(Menu(), nullptr);
    EXPECT_EQ(Told(), "node L2; ");
    QStringList texts;
    for (const QAction* action : Menu()->actions())
        texts << action->text();
    EXPECT_EQ(texts, QStringList({"Compound", "", "&Save\tCtrl+S"}));
    PressAndRelease(Menu(), StrokeOf(ui::ParseKey("Down")));
    PressAndRelease(Menu(), StrokeOf(ui::ParseKey("Enter")));
    EXPECT_EQ(Told(), "AddComp click; ");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Menu(), nullptr);

    // A node that the arrow keys reached becomes the clicked one; the desktop may tell of the key
    // once more.
    Press("Up");
    EXPECT_EQ(Told(), "");
    for (const char* key : {"Menu", "Shift+F10"}) {
        Press(key);
        ASSERT_NE(Menu(), nullptr) << key;
        AskForMenu(QContextMenuEvent::Keyboard, {});
        EXPECT_EQ(Told(), "node S1; ") << key;
        delete Menu();
    }
    form_->tvwTree.Enabled(false);
    AskForMenu(QContextMenuEvent::Mouse, view_->PlaceOf(Node("L2")).toPoint());
    EXPECT_EQ(Menu(), nullptr);
}

TEST_F(TreeMenu, EnterAndSpaceClickTheNodeThatTheArrowsReached) {
    form_->tvwTree.UserNodeClick(Node("R"));
    for (const char* key : {"Enter", "Space"}) {
        Told();
        Press("Down");
        EXPECT_EQ(Told(), "") << key;
        Press(key);
        EXPECT_EQ(Told(), "node " + form_->tvwTree.SelectedNode()->Key() + "; ") << key;
    }
    EXPECT_EQ(form_->tvwTree.SelectedNode(), &Node("S1"));
}

TEST_F(TreeMenu, LettersGoOnToAWordOfALabel) {
    form_->tvwTree.UserNodeClick(Node("L1")); // below "2004 smith": water, sample 1, ethanol
    std::string reached;
    for (const char* letter : {"s", "s", "a", "x"}) {
        Press(letter);
        reached += form_->tvwTree.SelectedNode()->Text() + "; ";
    }
    EXPECT_EQ(reached, "sample 1; 2004 smith; sample 1; sample 1; ");
}

TEST_F(TreeMenu, TheFilterHidesLinesAndTheArrowsPassThemOver) {
    Node("L1").Expanded(false);
    form_->tvwTree.UserNodeClick(Node("R"));
    form_->tvwTree.Filter([](const ui::TreeNode& node) { return node.Key() == "S1"; });
    windows_.Flush();
    EXPECT_TRUE(view_->ItemOf(Node("L2"))->isHidden());
    EXPECT_TRUE(view_->ItemOf(Node("L1"))->isExpanded());
    for (const char* key : {"Down", "Down", "Down"})
        Press(key);
    EXPECT_EQ(form_->tvwTree.SelectedNode(), &Node("S1"));
    form_->tvwTree.UserNodeClick(Node("R"));
    form_->tvwTree.EndFilter();
    windows_.Flush();
    EXPECT_FALSE(view_->ItemOf(Node("L2"))->isHidden());
    EXPECT_FALSE(view_->ItemOf(Node("L1"))->isExpanded());
}

} // namespace vexora::qt::test
