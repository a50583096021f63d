#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/Dialogs.h"
#include "qt/Events.h"
#include "qt/FoldBox.h"
#include "qt/FormWindow.h"
#include "qt/QtDesktop.h"
#include "qt/Text.h"

namespace vexora::qt::test {

namespace {

/// Fields with prompts, and two groups of statements of which one is in use.
class frmFields : public ui::Form {
public:
    frmFields() : Form("frmFields", "Fields") {
        using namespace ui;
        Arrangement = Column({Field("Journal:", cboJournal), Field("Title:", txtTitle),
                              Field("Source:", txtSource), Field("Type:", lstType), lstFound,
                              Group(fraOne, {Field(chkOne, txtOne)}),
                              Group(fraTwo, {Field(chkTwo, txtTwo)}), ButtonRow({cmdCreate})});
        cboJournal.Hint("SELECT OR TYPE JOURNAL TITLE HERE");
        cboJournal.Text(cboJournal.Hint());
        txtTitle.Hint("ENTER OR PASTE TITLE HERE");
        txtTitle.Text(txtTitle.Hint());
        txtSource.Locked(true);
        txtSource.Text("@J. Phys.@ $31$, 7");
        txtSource.Readable("J. Phys. 31, 7");
        lstType.FirstIsPrompt = true;
        lstType.Assign({"CLICK \"Create\" BUTTON", "Article"});
        lstType.Index(0);
        lstFound.Assign({"SELECT ONE", "@Fluid@ $2$"});
        lstFound.FirstIsPrompt = true;
        lstFound.Readable("SELECT ONE\nFluid 2");
        chkTwo.Value(true);
    }
    ui::ComboBox cboJournal{*this, "cboJournal", ui::ComboBox::Style::Editable};
    ui::TextBox txtTitle{*this, "txtTitle"};
    ui::TextBox txtSource{*this, "txtSource"};
    ui::ComboBox lstType{*this, "lstType"};
    ui::ListBox lstFound{*this, "lstFound"};
    ui::Frame fraOne{*this, "fraOne", "One"};
    ui::CheckBox chkOne{*this, "chkOne", "Device"};
    ui::TextBox txtOne{*this, "txtOne"};
    ui::Frame fraTwo{*this, "fraTwo", "Two"};
    ui::CheckBox chkTwo{*this, "chkTwo", "Author"};
    ui::TextBox txtTwo{*this, "txtTwo"};
    ui::CommandButton cmdCreate{*this, "cmdCreate", "Create new description"};
};

class FieldsTest : public testing::Test {
protected:
    FieldsTest() : form_(Registered()) {
        windows_.Follow();
        form_.Show();
        QApplication::processEvents();
    }
    ~FieldsTest() override { forms_.CloseAll(); }

    frmFields& Registered() {
        forms_.Register<frmFields>("frmFields");
        return forms_.Get<frmFields>("frmFields");
    }
    template <class TWidget>
    TWidget& Widget(const ui::Control& control) {
        return dynamic_cast<TWidget&>(*windows_.WindowOf(form_)->ViewFor(control)->Widget());
    }

    host::PosixFileSystem files_;
    Windows windows_;
    QtDesktop desktop_{windows_, files_, {}};
    ui::Forms forms_{desktop_};
    frmFields& form_;
};

} // namespace

TEST_F(FieldsTest, PromptsAreHintsAndMarksAreNotRead) {
    const auto shown = [this] {
        const auto& journal = *Widget<QComboBox>(form_.cboJournal).lineEdit();
        const auto& title = Widget<QLineEdit>(form_.txtTitle);
        const QStringList texts = {journal.text(),
                                   journal.placeholderText(),
                                   title.text(),
                                   title.placeholderText(),
                                   Widget<QLineEdit>(form_.txtSource).text(),
                                   Widget<QComboBox>(form_.lstType).currentText(),
                                   Widget<QListWidget>(form_.lstFound).item(1)->text()};
        return FromQt(texts.join(u'|'));
    };
    EXPECT_EQ(shown(), "|Select or type journal title here||Enter or paste title here|"
                       "J. Phys. 31, 7|Click \"Create new description\" button|Fluid 2");
    EXPECT_TRUE(form_.cboJournal.HasFocus()) << "nothing has been entered there";
    PressAndRelease(&Widget<QComboBox>(form_.cboJournal), {Qt::Key_A, Qt::NoModifier, "a"});
    form_.txtTitle.Text("Densities");
    form_.txtSource.Readable("");
    form_.lstType.Index(1);
    windows_.Flush();
    EXPECT_EQ(form_.cboJournal.Text(), "a");
    EXPECT_EQ(shown(), "a|Select or type journal title here|Densities|Enter or paste title here|"
                       "@J. Phys.@ $31$, 7|Article|Fluid 2");
    const auto box = MakeMessageBox({"Click \"Create\" button", ""}, windows_.WindowOf(form_));
    EXPECT_EQ(FromQt(box->text()), "Click \"Create new description\" button");
}

TEST_F(FieldsTest, AGroupFoldsWhileNothingInItIsInUse) {
    auto& one = Widget<FoldBox>(form_.fraOne);
    const auto& two = Widget<FoldBox>(form_.fraTwo);
    EXPECT_TRUE(one.IsFolded());
    EXPECT_FALSE(two.IsFolded());
    MouseClick(&one, {20, 6});
    EXPECT_FALSE(one.IsFolded());
    MouseClick(&one, {20, 6});
    EXPECT_TRUE(one.IsFolded());
    form_.txtOne.SetFocus();
    EXPECT_FALSE(one.IsFolded()) << "the keyboard has gone there";
    form_.txtTitle.SetFocus();
    one.Fold(true);
    form_.chkOne.Value(true);
    windows_.Flush();
    EXPECT_FALSE(one.IsFolded());
    EXPECT_EQ(FromQt(Widget<QWidget>(form_.txtOne).accessibleName()), "Device");
}

} // namespace vexora::qt::test
