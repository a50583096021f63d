#include "qt/GridView.h"

#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>

#include <gtest/gtest.h>

#include "qt/QtActor.h"
#include "qt/SilentDesktop.h"

namespace vexora::qt::test {

namespace {

struct TableForm : ui::Form {
    TableForm() : Form("frmTable", "Table") {}
    ui::MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
    ui::MenuItem mnuPaste{*this, "mnuPaste", "&Paste", &mnuEdit, "Ctrl+V"};
    ui::Grid tblData{*this, "tblData", 1001, 3};
};

class GridViewTest : public testing::Test {
protected:
    GridViewTest() {
        actor.Attach(forms);
        forms.Register<TableForm>("frmTable");
        form = &forms.Get<TableForm>("frmTable");
        form->Show();
        actor.Settle();
        for (QWidget* widget : QApplication::allWidgets())
            if (auto* found = qobject_cast<QTableView*>(widget); found && found->isVisible())
                view = found;
    }
    ~GridViewTest() override { forms.CloseAll(); }

    QtActor actor;
    SilentDesktop desktop{actor};
    ui::Forms forms{desktop};
    TableForm* form = nullptr;
    QTableView* view = nullptr;
};

} // namespace

TEST_F(GridViewTest, ChangesLeaveTheTableWhereItWasScrolled) {
    ASSERT_NE(view, nullptr);
    view->verticalScrollBar()->setValue(500);
    view->setColumnWidth(2, 333);
    form->tblData.Cell(510, 1, "999.80");
    actor.Settle();
    EXPECT_EQ(view->verticalScrollBar()->value(), 500);
    {
        const ui::Grid::Batch batch(form->tblData);
        form->tblData.Resize(2001, 3);
        for (int row = 1; row < 2001; ++row)
            form->tblData.Cell(row, 0, "275.15");
    }
    actor.Settle();
    EXPECT_EQ(view->model()->rowCount(), 2000);
    EXPECT_EQ(view->verticalScrollBar()->value(), 500);
    EXPECT_EQ(view->columnWidth(2), 333);
    form->tblData.Resize(301, 3);
    actor.Settle();
    EXPECT_EQ(view->model()->rowCount(), 300);
    EXPECT_EQ(view->model()->index(299, 0).data().toString().toStdString(), "275.15");
}

TEST_F(GridViewTest, NumberFarDownIsNotCutOff) {
    ASSERT_NE(view, nullptr);
    const std::string digits = "0.000698451167123456789";
    form->tblData.Cell(900, 1, digits);
    actor.Settle();
    EXPECT_GT(view->columnWidth(1),
              view->fontMetrics().horizontalAdvance(QString::fromStdString(digits)));
}

TEST_F(GridViewTest, KeysKeepTheirCellInSight) {
    ASSERT_NE(view, nullptr);
    actor.PressKey(form->tblData, ui::ParseKey("Ctrl+End"));
    EXPECT_EQ(form->tblData.Cursor(), (std::pair{1000, 2}));
    EXPECT_TRUE(
        view->viewport()->rect().intersects(view->visualRect(view->model()->index(999, 2))));
    actor.PressKey(form->tblData, ui::ParseKey("Ctrl+Home"));
    actor.PressKey(form->tblData, ui::ParseKey("Ctrl+Shift+Down"));
    EXPECT_EQ(form->tblData.Selection(), (ui::Grid::Block{1, 0, 1000, 0}));
    EXPECT_EQ(view->selectionModel()->selectedIndexes().size(), 1000);
    EXPECT_TRUE(
        view->viewport()->rect().intersects(view->visualRect(view->model()->index(999, 0))));
}

TEST_F(GridViewTest, CellThatIsSelectedAlreadyComesBackIntoSight) {
    ASSERT_NE(view, nullptr);
    actor.PressKey(form->tblData, ui::ParseKey("Ctrl+Home"));
    const auto inSight = [this] {
        return view->viewport()->rect().intersects(view->visualRect(view->model()->index(0, 0)));
    };
    view->verticalScrollBar()->setValue(500);
    ASSERT_FALSE(inSight());
    form->tblData.Show({1, 0, 1, 0}); // a finding is clicked again
    actor.Settle();
    EXPECT_TRUE(inSight());
    view->verticalScrollBar()->setValue(500);
    actor.PressKey(form->tblData, ui::ParseKey("Ctrl+Home"));
    EXPECT_TRUE(inSight());
}

TEST_F(GridViewTest, RightClickOffersTheMenuOfTheCells) {
    ASSERT_NE(view, nullptr);
    emit view->customContextMenuRequested(QPoint(10, 10));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions().front()->text().startsWith(QStringLiteral("&Paste")));
    menu->close();
}

} // namespace vexora::qt::test
