#include "qt/HelpWindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/Events.h"
#include "qt/EveryKind.h"
#include "qt/QtDesktop.h"
#include "qt/Text.h"

namespace vexora::qt::test {

class HelpWindowTest : public testing::Test {
protected:
    HelpWindowTest() {
        windows_.Follow();
        forms_.Register<EveryKind>("frmEveryKind");
    }

    /// The viewer that F1 on a field brings up.
    HelpWindow* PressF1(ui::Form& form, int topic) {
        form.HelpContext = topic;
        FormWindow* window = windows_.WindowOf(form);
        form.FocusTo(form.Find("txtName"));
        windows_.Flush();
        PressAndRelease(window->ViewFor(*form.Find("txtName"))->Widget(),
                        {Qt::Key_F1, Qt::NoModifier, {}});
        auto* help = window->findChild<HelpWindow*>();
        if (!help) return nullptr;
        QApplication::processEvents();
        return help;
    }
    static std::string Title(const HelpWindow& help) { return FromQt(help.windowTitle()); }
    static QStringList Entries(const QTreeWidget& list) {
        QStringList entries;
        for (QTreeWidgetItemIterator item(const_cast<QTreeWidget*>(&list)); *item; ++item)
            entries << (*item)->text(0).section('\n', 0, 0);
        return entries;
    }
    /// Synthetic keys do not reach shortcuts, so the action with that one is triggered.
    static void Press(const HelpWindow& help, const QKeySequence& key) {
        for (QAction* action : help.findChildren<QAction*>())
            if (action->shortcut() == key) return action->trigger();
        ADD_FAILURE() << "no action for " << FromQt(key.toString());
    }

    host::PosixFileSystem files_;
    Windows windows_;
    QtDesktop desktop_{windows_, files_, {"/nonexistent", VEXORA_SOURCE_DIR}};
    ui::Forms forms_{desktop_};
};

TEST_F(HelpWindowTest, F1ShowsThePageAmongTheContents) {
    auto& form = forms_.Get<EveryKind>("frmEveryKind");
    form.Show();
    HelpWindow* help = PressF1(form, 325);
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(Title(*help), "Help - Single values");
    const auto* list = help->findChild<QTreeWidget*>();
    EXPECT_EQ(list->currentItem()->text(0), "Single values");
    EXPECT_EQ(list->topLevelItem(0)->child(0)->text(0), "Introduction");
    EXPECT_EQ(PressF1(form, 250), help); // one viewer for all pages
    EXPECT_EQ(Title(*help), "Help - How to describe a sample");
    Press(*help, Qt::ALT | Qt::Key_Left);
    EXPECT_EQ(Title(*help), "Help - Single values");
    EXPECT_EQ(list->currentItem()->text(0), "Single values");
    help->findChild<QTextBrowser*>()->setSource(QUrl("322.html")); // as a link does
    EXPECT_EQ(Title(*help), "Help - Property and method");
    QPointer<HelpWindow> closed(help);
    Press(*help, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(closed.isNull() || !closed->isVisible());
}

TEST_F(HelpWindowTest, ASearchListsPagesAndMarksItsHits) {
    auto& form = forms_.Get<EveryKind>("frmEveryKind");
    form.Show();
    HelpWindow* help = PressF1(form, 10);
    ASSERT_NE(help, nullptr);
    const auto* list = help->findChild<QTreeWidget*>();
    const auto* browser = help->findChild<QTextBrowser*>();
    auto* search = help->findChild<QLineEdit*>();
    const QStringList contents = Entries(*list);
    help->activateWindow();
    Press(*help, QKeySequence::Find);
    EXPECT_EQ(help->focusWidget(), search);
    search->setText("Level of confidence");
    EXPECT_EQ(Entries(*list), QStringList({"Uncertainties of a set", "Uncertainty definitions"}));
    PressAndRelease(search, {Qt::Key_Return, Qt::NoModifier, {}});
    EXPECT_EQ(Title(*help), "Help - Uncertainties of a set");
    const auto marks = browser->extraSelections();
    ASSERT_GT(marks.size(), 3);
    EXPECT_EQ(browser->textCursor().position(), marks[0].cursor.selectionStart());
    Press(*help, Qt::Key_F3);
    EXPECT_EQ(browser->textCursor().position(), marks[1].cursor.selectionStart());
    Press(*help, Qt::SHIFT | Qt::Key_F3);
    Press(*help, Qt::SHIFT | Qt::Key_F3); // round to the last one
    EXPECT_EQ(browser->textCursor().position(), marks.last().cursor.selectionStart());
    search->setText("xyzzy");
    EXPECT_EQ(Entries(*list), QStringList({"No page holds all these words"}));
    EXPECT_TRUE(browser->extraSelections().isEmpty());
    search->clear();
    EXPECT_EQ(Entries(*list), contents);
    EXPECT_EQ(list->currentItem()->text(0), "Uncertainties of a set");
}

TEST_F(HelpWindowTest, AModalFormDoesNotBlockItsHelp) {
    auto& form = forms_.Get<EveryKind>("frmEveryKind");
    QTimer::singleShot(0, qApp, [&] {
        HelpWindow* help = PressF1(form, 30);
        EXPECT_TRUE(help && help->isVisible() && help->parent() == windows_.WindowOf(form));
        form.Hide();
    });
    form.ShowModal();
}

} // namespace vexora::qt::test
