#include "qt/QtDesktop.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <thread>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/EveryKind.h"
#include "qt/PicturePainter.h"
#include "qt/ProgressWindow.h"
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

TEST_F(OnTheScreen, ButtonsWithWordsOfTheirOwnGiveTheUsualAnswers) {
    WhenAsked([](QMessageBox& box) {
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Save anyway");
        EXPECT_EQ(static_cast<QAbstractButton*>(box.defaultButton()),
                  box.button(QMessageBox::Cancel));
        box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(desktop_.Show({"The file has been changed by another program since it was opened.",
                             {},
                             ui::MessageButtons::YesNoCancel,
                             ui::Answer::Cancel,
                             "&Save anyway",
                             "Save &as..."}),
              ui::Answer::No);
}

TEST_F(OnTheScreen, LongWorkShowsHowFarItIsAndIsStoppedByCancel) {
    const auto wait = [](int milliseconds) {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    };
    const auto shown = [] { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); };
    forms_.Register<EveryKind>("frmEveryKind");
    forms_.Get("frmEveryKind").Show();
    {
        const auto work = desktop_.Begin({"Reading a.txt", true});
        EXPECT_TRUE(work->Reached(0.1));
        wait(ProgressWindow::Between + 20);
        EXPECT_TRUE(work->Reached(0.2));
        EXPECT_EQ(shown(), nullptr); // short work flashes no window
        wait(ProgressWindow::BeforeShown);
        EXPECT_TRUE(work->Reached(0.4));
        QDialog* const window = shown();
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(window->findChild<QLabel*>()->text(), "Reading a.txt");
        EXPECT_EQ(window->findChild<QProgressBar*>()->value(), 400);
        // A question stands alone.
        WhenAsked([window](QMessageBox& box) {
            EXPECT_FALSE(window->isVisible());
            box.accept();
        });
        desktop_.Show({"Told on the way.", {}});
        wait(ProgressWindow::Between + 20);
        EXPECT_TRUE(work->Reached(0.5));
        ASSERT_EQ(shown(), window);
        QTimer::singleShot(0, window, [window] { window->findChild<QPushButton*>()->click(); });
        wait(ProgressWindow::Between + 20);
        EXPECT_FALSE(work->Reached(0.6));
        EXPECT_FALSE(work->Reached(0.61));
    }
    EXPECT_EQ(shown(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);

    const auto whole = desktop_.Begin({"Putting things in order", false});
    wait(ProgressWindow::BeforeShown + 20);
    EXPECT_TRUE(whole->Reached(0.5));
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(shown()->findChild<QPushButton*>(), nullptr);
    shown()->reject();
    EXPECT_NE(shown(), nullptr);
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

TEST_F(OnTheScreen, APictureBecomesAPngOnWhiteGround) {
    ui::Form form("frmAny", "Any");
    ui::Picture picture(form, "picAny", 200, 100);
    using Shape = ui::Picture::Shape;
    std::vector<ui::Picture::Stroke> strokes{{Shape::Text, 10, 70, 0, 0, 0, "label"},
                                             {Shape::Text, 12, 72, 0, 0, 0, "hidden"},
                                             {Shape::Marker, 100, 50, 0, 0, 1, {}}};
    strokes[0].yields = strokes[1].yields = true;
    picture.Strokes(strokes);
    const std::string bytes = desktop_.PngOf(picture).value_or("");
    strokes.erase(strokes.begin() + 1);
    picture.Strokes(strokes);
    EXPECT_EQ(desktop_.PngOf(picture), bytes); // the label that would cover another is left out
    const QImage image = QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
    ASSERT_EQ(image.size(), QSize(400, 200));
    EXPECT_EQ(image.pixel(2, 2), 0xFFFFFFFFU);
    EXPECT_EQ(image.pixel(200, 100), 0xFF000000U | ui::PictureColours[0].light);
}

TEST_F(OnTheScreen, APictureIsPrintedOnOnePage) {
    ui::Form form("frmAny", "Any");
    ui::Picture picture(form, "picAny", 200, 100);
    picture.Strokes({{ui::Picture::Shape::Text, 10, 70, 0, 0, 0, "label"},
                     {ui::Picture::Shape::Marker, 100, 50, 0, 0, 1, {}}});
    const QTemporaryDir folder;
    const QString path = folder.filePath("plot.pdf");
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFileName(path);
        printer.setPageOrientation(QPageLayout::Landscape);
        PrintOn(printer, picture);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_TRUE(bytes.contains("/Count 1"));
    EXPECT_TRUE(bytes.contains("/Font")); // texts stay texts
}

TEST_F(OnTheScreen, AFullTableIsPainted) {
    ui::Form form("frmAny", "Any");
    ui::Picture picture(form, "picAny", 1000, 700);
    std::vector<ui::Picture::Stroke> strokes;
    for (int i = 0; i < 16384; ++i) {
        strokes.push_back(
            {ui::Picture::Shape::Marker, i % 997 * 1.0, i % 691 * 1.0, 0, 0, 1 + i % 7, {}});
        strokes.back().marker = i % ui::Picture::MarkerCount;
    }
    picture.Strokes(strokes);
    EXPECT_TRUE(desktop_.PngOf(picture).has_value());
}

TEST_F(OnTheScreen, TheLabelOfAClosedFieldGoesGrey) {
    EveryKind& form = OpenEveryKind();
    const auto isGrey = [&](const QString& text) {
        QApplication::processEvents();
        for (const QLabel* label : windows_.WindowOf(form)->findChildren<QLabel*>())
            if (label->text() == text) return !label->isEnabled();
        ADD_FAILURE() << "no label " << FromQt(text);
        return false;
    };
    EXPECT_FALSE(isGrey("Digits"));
    form.txtDigits.Enabled(false);
    EXPECT_TRUE(isGrey("Digits"));
    EXPECT_FALSE(isGrey("Notes"));
    form.txtDigits.Enabled(true);
    EXPECT_FALSE(isGrey("Digits"));
}

TEST(Text, PositionsCountCodePointsOutsideTheBasicPlane) {
    const QString text = ToQt("a\xF0\x9D\x9B\xBC"
                              "b");
    EXPECT_EQ(PointsBefore(text, 3), 2u);
    EXPECT_EQ(PositionAfter(text, 2), 3);
    EXPECT_EQ(PositionAfter(text, 9), 4);
}

} // namespace vexora::qt::test
