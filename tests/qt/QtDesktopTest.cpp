#include "qt/QtDesktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/EveryKind.h"
#include "qt/Text.h"

namespace vexora::qt::test {

namespace {

class OnTheScreen : public testing::Test {
protected:
    OnTheScreen() { windows_.Follow(); }

    /// Does something once the message box is up.
    static void WhenAsked(const std::function<void(QMessageBox&)>& action) {
        QTimer::singleShot(0, qApp, [action] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            action(*box);
        });
    }

    host::PosixFileSystem files_;
    Windows windows_;
    QtDesktop desktop_{windows_, files_, {"/nonexistent"}};
    ui::Forms forms_{desktop_};
};

} // namespace

TEST_F(OnTheScreen, EnterAndEscapeGiveTheAnswerThatLosesNothing) {
    WhenAsked([](QMessageBox& box) { static_cast<QPushButton*>(box.defaultButton())->click(); });
    EXPECT_FALSE(ui::AskYesNo("Drop all data?"));
    WhenAsked([](QMessageBox& box) { box.reject(); });
    EXPECT_FALSE(ui::AskYesNo("Drop all data?"));
    WhenAsked([](QMessageBox& box) { box.reject(); });
    EXPECT_EQ(ui::AskYesNoCancel("Save?"), ui::Answer::Cancel);
    WhenAsked([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(ui::AskYesNo("Go on?"));
}

TEST_F(OnTheScreen, AMissingPageOfHelpIsOneMessage) {
    QString told;
    WhenAsked([&told](QMessageBox& box) {
        told = box.text();
        box.accept();
    });
    desktop_.ShowHelp(4711);
    EXPECT_EQ(told, "There is no page of help for this topic (4711).");
}

TEST_F(OnTheScreen, AModalFormReturnsWhenItHides) {
    windows_.Follow();
    forms_.Register<EveryKind>("frmEveryKind");
    auto& form = forms_.Get<EveryKind>("frmEveryKind");
    bool wasModal = false;
    QTimer::singleShot(0, qApp, [&] {
        const FormWindow* window = windows_.WindowOf(form);
        wasModal = window && window->isVisible() && window->isModal();
        form.Hide();
    });
    form.ShowModal();
    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(windows_.WindowOf(form)->isVisible());
}

TEST_F(OnTheScreen, WindowsGoWithTheirProgram) {
    auto other = std::make_unique<ui::Forms>(desktop_);
    Windows windows;
    windows.Follow();
    QPointer<FormWindow> window(windows.WindowOf(OpenEveryKind()));
    ASSERT_FALSE(window.isNull());
    other.reset();
    EXPECT_TRUE(window.isNull() || (window->IsDetached() && !window->isVisible()));
}

TEST(Text, PositionsCountCodePointsOutsideTheBasicPlane) {
    const QString text = ToQt("a\xF0\x9D\x9B\xBC"
                              "b");
    EXPECT_EQ(PointsBefore(text, 3), 2u);
    EXPECT_EQ(PositionAfter(text, 2), 3);
    EXPECT_EQ(PositionAfter(text, 9), 4);
}

} // namespace vexora::qt::test
