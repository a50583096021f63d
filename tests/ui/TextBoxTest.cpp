#include "ui/TextBox.h"

#include <gtest/gtest.h>

#include "support/StrictDesktop.h"
#include "ui/Form.h"
#include "ui/Forms.h"

namespace vexora::test {
namespace {

class TextBoxTest : public ::testing::Test {
protected:
    void Press(ui::TextBox& box, const std::string& name) {
        ui::Key key = ui::ParseKey(name);
        box.UserKey(key);
    }

    StrictDesktop desktop_;
    ui::Forms forms_{desktop_};
    ui::Form form_{"frmText", "Text"};
    ui::TextBox box_{form_, "txtOne"};
    ui::TextBox many_{form_, "txtMany", ui::TextBox::Lines::Many};
};

TEST_F(TextBoxTest, ChangeIsToldOnceAndOnlyWhenTheTextChanges) {
    int changes = 0;
    box_.OnChange = [&changes] { ++changes; };
    box_.Text("a");
    box_.Text("a");
    box_.UserReplaceAll("a");
    box_.TextAndCaret("a", 0);
    EXPECT_EQ(changes, 1);
    box_.UserReplaceAll("b");
    EXPECT_EQ(changes, 2);
}

TEST_F(TextBoxTest, KeysEditAtTheCaretInCodePoints) {
    box_.Text("a\xC3\xA9z");
    Press(box_, "Left");
    Press(box_, "Backspace");
    EXPECT_EQ(box_.Text(), "az");
    Press(box_, "\xC2\xB0");
    EXPECT_EQ(box_.Text(), "a\xC2\xB0z");
    EXPECT_EQ(box_.Caret(), 2U);
    Press(box_, "Home");
    Press(box_, "Delete");
    EXPECT_EQ(box_.Text(), "\xC2\xB0z");
    Press(box_, "End");
    Press(box_, "Delete");
    EXPECT_EQ(box_.Text(), "\xC2\xB0z");
    Press(box_, "Ctrl+A");
    Press(box_, "Num5");
    EXPECT_EQ(box_.Text(), "5");
}

TEST_F(TextBoxTest, AHandlerMayCorrectWhatIsTyped) {
    box_.OnChange = [this] {
        if (box_.Text() == "1,") box_.TextAndCaret("1.", 2);
    };
    for (const char* key : {"1", ",", "5"})
        Press(box_, key);
    EXPECT_EQ(box_.Text(), "1.5");
}

TEST_F(TextBoxTest, OnlyAFieldOfManyLinesTakesLineBreaks) {
    Press(box_, "Enter");
    Press(many_, "Enter");
    EXPECT_EQ(box_.Text(), "");
    EXPECT_EQ(many_.Text(), "\n");
    box_.UserPaste("a\r\nb");
    EXPECT_EQ(box_.Text(), "a b");
    box_.UserReplaceAll("c\nd");
    EXPECT_EQ(box_.Text(), "c d");
}

TEST_F(TextBoxTest, OneLineComesOutOfWhateverIsPutInOnEveryRoad) {
    const std::pair<const char*, const char*> cases[] = {{"12.5\t", "12.5"},
                                                         {"12.5 \r\n", "12.5"},
                                                         {"\n\t x", "x"},
                                                         {"a\n\n b\tc", "a b c"},
                                                         {"\xE2\x80\xA8z", "z"},
                                                         {"\r\n", ""},
                                                         {" two  blanks ", " two  blanks "}};
    for (const auto& [brought, line] : cases) {
        box_.Text("");
        box_.UserPaste(brought);
        EXPECT_EQ(box_.Text(), line) << brought;
        box_.UserReplaceAll(brought);
        EXPECT_EQ(box_.Text(), line) << brought;
        box_.Text("<old>"); // a widget tells the whole text after a paste over the selection
        box_.Select(1, 3);
        box_.UserEdited("<" + std::string(brought) + ">", 0);
        EXPECT_EQ(box_.Text(), "<" + std::string(line) + ">") << brought;
    }
    many_.UserReplaceAll("a\tb\r\nc\rd\n");
    EXPECT_EQ(many_.Text(), "a\tb\nc\nd\n");
    box_.Text("<old>");
    box_.UserEdited("dropped\n elsewhere\n", 3);
    EXPECT_EQ(box_.Text(), "dropped elsewhere");
}

TEST_F(TextBoxTest, ClipboardKeysCopyCutAndPaste) {
    box_.Text("abc");
    box_.Select(1, 1);
    Press(box_, "Ctrl+X");
    EXPECT_EQ(box_.Text(), "ac");
    Press(box_, "End");
    Press(box_, "Ctrl+V");
    EXPECT_EQ(box_.Text(), "acb");
    Press(box_, "Ctrl+C");
    EXPECT_EQ(desktop_.ClipboardText(), "b");
}

TEST_F(TextBoxTest, ALockedOrDisabledFieldIsReadOnlyForAPerson) {
    box_.Text("abc");
    box_.Locked(true);
    box_.SelectAll();
    for (const char* key : {"x", "Delete", "Backspace", "Ctrl+X", "Ctrl+V"})
        Press(box_, key);
    box_.UserReplaceAll("x");
    EXPECT_EQ(box_.Text(), "abc");
    EXPECT_EQ(desktop_.ClipboardText(), "abc");
    box_.Locked(false);
    box_.Enabled(false);
    box_.UserReplaceAll("x");
    Press(box_, "x");
    EXPECT_EQ(box_.Text(), "abc");
    box_.Text("code may");
    EXPECT_EQ(box_.Text(), "code may");
}

} // namespace
} // namespace vexora::test
