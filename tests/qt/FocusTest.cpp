#include <QElapsedTimer>
#include <QTimer>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/Events.h"
#include "qt/EveryKind.h"
#include "qt/Keys.h"
#include "qt/ListViews.h"
#include "qt/Look.h"
#include "qt/Picture.h"
#include "qt/QtDesktop.h"

namespace vexora::qt::test {

namespace {

class frmUnder : public ui::Form {
public:
    frmUnder() : Form("frmUnder", "Under") {}
    ui::TextBox txtFirst{*this, "txtFirst"};
    ui::TextBox txtSecond{*this, "txtSecond"};
    ui::ListBox lstEmpty{*this, "lstEmpty"};
};

class frmHelper : public ui::Form {
public:
    frmHelper() : Form("frmHelper", "Helper") {
        UseButtons(cmdAccept, cmdCancel, [] {});
    }
    ui::TextBox txtName{*this, "txtName"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
};

/// The forms of a program on its windows, worked by keys that go where the keyboard is.
class Focus : public testing::Test {
protected:
    Focus() {
        windows_.Follow();
        forms_.Register<EveryKind>("frmEveryKind");
        forms_.Register<frmUnder>("frmUnder");
        forms_.Register<frmHelper>("frmHelper");
    }
    ~Focus() override {
        forms_.CloseAll();
        QApplication::setPalette(QPalette());
    }

    /// A screen answers in its own time.
    static bool Soon(const std::function<bool()>& holds) {
        constexpr int patience = 3000; // [ms]
        QElapsedTimer clock;
        for (clock.start(); !holds() && clock.elapsed() < patience;)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        QApplication::processEvents();
        return holds();
    }
    bool HasKeyboard(const ui::Control& control) {
        return Soon([&] {
            FormWindow* window = windows_.WindowOf(control.Owner());
            if (!window) return false;
            window->Flush();
            const View* view = window->ViewFor(control);
            return window->isActiveWindow() && view && view->Widget() &&
                   view->Widget() == QApplication::focusWidget();
        });
    }
    static void Press(const std::string& name) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        PressAndRelease(QApplication::focusWidget(), StrokeOf(ui::ParseKey(name)));
        QApplication::processEvents();
    }
    frmUnder& Under() { return forms_.Get<frmUnder>("frmUnder"); }
    frmHelper& Helper() { return forms_.Get<frmHelper>("frmHelper"); }
    /// Opens a helper form, types into it, leaves it by Escape.
    void UseHelper(bool modal) {
        const auto work = [this] {
            ASSERT_TRUE(HasKeyboard(Helper().txtName));
            Press("x");
            EXPECT_EQ(Helper().txtName.Text(), "x");
            Press("Escape");
        };
        if (modal) {
            QTimer::singleShot(0, qApp, work);
            Helper().ShowModal();
        } else {
            Helper().Show();
            work();
        }
        forms_.DropClosed();
    }

    host::PosixFileSystem files_;
    Windows windows_;
    QtDesktop desktop_{windows_, files_, {}};
    ui::Forms forms_{desktop_};
};

} // namespace

TEST_F(Focus, ReturnsToTheControlThatHadItWhenAHelperHasClosed) {
    EveryKind& main = OpenEveryKind();
    ASSERT_TRUE(HasKeyboard(main.tvwTree));
    Under().Show();
    ASSERT_TRUE(HasKeyboard(Under().txtFirst));
    Press("Tab");
    for (const bool modal : {true, false}) {
        UseHelper(modal);
        EXPECT_TRUE(HasKeyboard(Under().txtSecond)) << modal;
        Press("y");
    }
    EXPECT_EQ(Under().txtSecond.Text(), "yy");
    // A person turns to the window behind and opens the helper from there.
    windows_.WindowOf(main)->activateWindow();
    ASSERT_TRUE(HasKeyboard(main.tvwTree));
    for (const bool modal : {true, false}) {
        UseHelper(modal);
        EXPECT_TRUE(HasKeyboard(main.tvwTree)) << modal;
    }
}

TEST_F(Focus, StaysInAFormThatOutlivesTheOneItWasOpenedFrom) {
    EveryKind& main = OpenEveryKind();
    Under().Show();
    ASSERT_TRUE(HasKeyboard(Under().txtFirst));
    Helper().Show();
    ASSERT_TRUE(HasKeyboard(Helper().txtName));
    Under().Close();
    forms_.DropClosed();
    EXPECT_TRUE(HasKeyboard(Helper().txtName));
    Press("z");
    EXPECT_EQ(Helper().txtName.Text(), "z");
    Press("Escape");
    EXPECT_TRUE(HasKeyboard(main.tvwTree));
}

TEST_F(Focus, StaysInAFieldWhoseEntriesStandOpenBelowIt) {
    EveryKind& form = OpenEveryKind();
    form.cboUnit.OnChange = [&form] { form.cboUnit.Unfolded(true); };
    form.cboUnit.SetFocus();
    ASSERT_TRUE(HasKeyboard(form.cboUnit));
    Press("k");
    FormWindow& window = *windows_.WindowOf(form);
    const auto& combo = dynamic_cast<const ComboView&>(*window.ViewFor(form.cboUnit));
    ASSERT_TRUE(Soon([&] { return combo.Entries() && combo.Entries()->isVisible(); }));
    const QListWidget& entries = *combo.Entries();
    EXPECT_TRUE(window.rect().contains(entries.geometry()));
    EXPECT_GE(entries.y(), combo.Widget()->mapTo(&window, combo.Widget()->rect().bottomLeft()).y());
    Press("P");
    EXPECT_EQ(form.cboUnit.Text(), "kP") << "typing goes on";
    Press("Escape");
    EXPECT_TRUE(Soon([&] { return !entries.isVisible(); }));
    EXPECT_TRUE(form.IsOpen());
    Press("x");
    ASSERT_TRUE(Soon([&] { return entries.isVisible(); }));
    MouseClick(&window, {1, window.height() - 1.0}); // beside all fields
    EXPECT_TRUE(Soon([&] { return !entries.isVisible(); }));
    Press("y");
    ASSERT_TRUE(Soon([&] { return entries.isVisible(); }));
    MouseClick(entries.viewport(), entries.visualItemRect(entries.item(1)).center());
    EXPECT_EQ(form.cboUnit.Text(), "kPa");
    EXPECT_TRUE(Soon([&] { return !entries.isVisible(); }));
    EXPECT_TRUE(HasKeyboard(form.cboUnit));
}

TEST_F(Focus, IsSeenOnEveryKindOfControlInEveryLook) {
    for (const char* look : {"", "light", "dark"}) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // of closed windows
        TakeLook(look);
        EveryKind& form = OpenEveryKind();
        int seen = 0;
        for (ui::Control* control : form.Controls()) {
            if (!control->TakesFocus() || !control->IsUsable()) continue;
            for (int page = 0; page < form.tabPages.Count(); ++page) { // the one it stands on
                form.tabPages.Index(page);
                windows_.Flush();
                if (windows_.WindowOf(form)->ViewFor(*control)->Widget()->isVisible()) break;
            }
            ui::Control& other = control == &form.cmdCancel ? form.cmdAccept : form.cmdCancel;
            const auto isMarked = [&] {
                other.SetFocus();
                if (!HasKeyboard(other)) return false;
                const QImage before = PictureOf(windows_, *control);
                control->SetFocus();
                return HasKeyboard(*control) && IsMarked(before, PictureOf(windows_, *control));
            };
            EXPECT_TRUE(Soon(isMarked)) << look << ' ' << control->Name(); // once all has its place
            ++seen;
        }
        EXPECT_EQ(seen, 19) << look;
        form.chkDone.Value(true); // it may close
        form.Close();
        forms_.DropClosed();
    }
}

} // namespace vexora::qt::test
