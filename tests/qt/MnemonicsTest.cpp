#include "qt/Mnemonics.h"

#include <gtest/gtest.h>

#include "qt/Text.h"
#include "ui/Form.h"
#include "ui/Menus.h"

namespace vexora::qt::test {

namespace {

class FormOfButtons : public ui::Form {
public:
    FormOfButtons() : ui::Form("frmButtons", "Buttons") {
        DefaultButton = &Find;
        CancelButton = &Cancel;
    }
    ui::MenuItem File{*this, "File", "&File"};
    ui::CommandButton Find{*this, "Find", "Find"};
    ui::CommandButton Fill{*this, "Fill", "Fill in"};
    ui::CommandButton Look{*this, "Look", "Look for an ion"};
    ui::CommandButton Own{*this, "Own", "C&lear"};
    ui::CommandButton If{*this, "If", "If"};
    ui::CommandButton Cancel{*this, "Cancel", "Cancel"};
};

} // namespace

TEST(Mnemonics, EachButtonGetsALetterOfItsOwn) {
    FormOfButtons form;
    const auto marked = [](const ui::CommandButton& button) {
        return FromQt(WithMnemonic(button));
    };
    EXPECT_EQ(marked(form.Find), "Find");
    EXPECT_EQ(marked(form.Fill), "Fill &in");
    EXPECT_EQ(marked(form.Look), "Look for &an ion");
    EXPECT_EQ(marked(form.Own), "C&lear");
    EXPECT_EQ(marked(form.If), "If");
    EXPECT_EQ(marked(form.Cancel), "Cancel");
    form.Fill.Caption("Store");
    EXPECT_EQ(marked(form.If), "&If");
}

} // namespace vexora::qt::test
