#include "ui/Lists.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>

#include "ui/Form.h"

namespace vexora::test {
namespace {

class ListsTest : public ::testing::Test {
protected:
    ListsTest() {
        for (ui::ItemList* list : std::initializer_list<ui::ItemList*>{&drop_, &edit_, &many_})
            list->Assign({"a", "b", "c"});
    }

    ui::Form form_{"frmLists", "Lists"};
    ui::ComboBox drop_{form_, "cboDrop"};
    ui::ComboBox edit_{form_, "cboEdit", ui::ComboBox::Style::Editable};
    ui::ListBox many_{form_, "lstMany", ui::ListBox::Mode::Multi};
};

TEST_F(ListsTest, ChoosingFiresForCodeOnAChangeAndForAPersonAlways) {
    int clicks = 0;
    drop_.OnClick = [&clicks] { ++clicks; };
    drop_.Index(1);
    drop_.Index(1);
    EXPECT_EQ(clicks, 1);
    drop_.UserChoose(1);
    EXPECT_EQ(clicks, 2);
    drop_.UserChoose(3);
    EXPECT_EQ(clicks, 2);
    EXPECT_FALSE(drop_.Choose("B"));
    EXPECT_EQ(drop_.Index(), -1);
}

TEST_F(ListsTest, TheChosenEntryFollowsInsertionsAndRemovals) {
    drop_.Choose("b");
    drop_.Insert(0, "new");
    EXPECT_EQ(drop_.Chosen(), "b");
    drop_.Remove(1);
    EXPECT_EQ(drop_.Chosen(), "b");
    drop_.Remove(drop_.Index());
    EXPECT_EQ(drop_.Index(), -1);
    EXPECT_EQ(drop_.Chosen(), "");
}

TEST_F(ListsTest, EditableComboTakesTextBesideItsEntries) {
    std::string told;
    edit_.OnChange = [&] { told += edit_.Text() + ";"; };
    edit_.UserEdited("bx");
    EXPECT_EQ(edit_.Index(), -1);
    edit_.UserEdited("b");
    EXPECT_EQ(edit_.Index(), 1);
    edit_.UserChoose(2);
    EXPECT_EQ(edit_.Text(), "c");
    drop_.Text("bx");
    EXPECT_EQ(drop_.Text(), "");
    EXPECT_EQ(told, "bx;b;");
}

TEST_F(ListsTest, OpenEntriesAreLeftByEscapeByTakingOneAndByLeavingTheField) {
    const auto press = [this](const char* name) {
        ui::Key key = ui::ParseKey(name);
        return edit_.UserKey(key);
    };
    edit_.Unfolded(true);
    EXPECT_FALSE(edit_.IsUnfolded()) << "it has not the focus";
    edit_.SetFocus();
    edit_.Unfolded(true);
    EXPECT_TRUE(press("Escape"));
    EXPECT_FALSE(press("Escape")) << "a key of the form again";
    edit_.Unfolded(true);
    EXPECT_FALSE(press("Enter")) << "no entry was reached";
    edit_.Unfolded(true);
    EXPECT_TRUE(press("Down") && press("Down") && edit_.IsUnfolded());
    EXPECT_TRUE(press("Enter"));
    EXPECT_EQ(edit_.Text(), "b");
    for (const auto& leave : std::initializer_list<std::function<void()>>{
             [this] { many_.SetFocus(); }, [this] { edit_.UserChoose(2); },
             [this] { edit_.UserDropDown(); }}) {
        edit_.SetFocus();
        edit_.Unfolded(true);
        leave();
        EXPECT_FALSE(edit_.IsUnfolded());
    }
}

TEST_F(ListsTest, MarksOfAMultiListStayWithTheirEntries) {
    many_.UserSelect(0, true);
    many_.UserSelect(2, true);
    many_.Remove(1);
    many_.Insert(0, "new");
    EXPECT_FALSE(many_.Selected(0));
    EXPECT_TRUE(many_.Selected(1));
    EXPECT_TRUE(many_.Selected(2));
    EXPECT_EQ(many_.SelectedCount(), 2);
    many_.Clear();
    EXPECT_EQ(many_.SelectedCount(), 0);
}

} // namespace
} // namespace vexora::test
