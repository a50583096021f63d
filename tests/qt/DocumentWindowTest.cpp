#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QToolTip>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/Events.h"
#include "qt/Keys.h"
#include "qt/Picture.h"
#include "qt/QtDesktop.h"
#include "qt/RecentFiles.h"
#include "qt/Text.h"
#include "qt/TreeWidget.h"
#include "ui/DocumentForm.h"
#include "ui/StepButton.h"

namespace vexora::qt::test {

namespace {

/// The least form that holds a document.
class frmDesk : public ui::Form, public ui::DocumentForm {
public:
    frmDesk() : Form("frmDesk", "Desk") {
        Toolbar1.Add(AddOne);
        Toolbar1.Add(AddTwo);
        mnuDead.Enabled(false);
        mnuGrey.OnClick = [] {};
        mnuGrey.Enabled(false);
        mnuGrey.WhyDisabled("Select a node first");
        tvwTree.OnDrop = [](const std::string&) {};
        Arrangement = ui::Column({ui::Split(tvwTree, rtfReading)});
    }
    ui::MenuItem mnuFile{*this, "mnuFile", "&File"};
    ui::MenuItem mnuDead{*this, "mnuDead", "Dead", &mnuFile};
    ui::MenuItem mnuGrey{*this, "mnuGrey", "Grey", &mnuFile};
    ui::MenuItem mnuExit{*this, "mnuExit", "E&xit", &mnuFile};
    ui::StepBar Toolbar1{*this, "Toolbar1"};
    ui::StepButton AddOne{*this, "AddOne", "One", "First"};
    ui::StepButton AddTwo{*this, "AddTwo", "Two", "Second"};
    ui::TreeView tvwTree{*this, "tvwTree"};
    ui::RichText rtfReading{*this, "rtfReading"};

    std::string DocumentName() const override { return name; }
    bool IsChanged() const override { return !name.empty(); }
    std::string AskedAbout() const override { return name; }
    const ui::TreeNode* NewNode() const override { return added; }
    std::string WelcomePage(const std::vector<std::string>& recent) const override {
        if (!name.empty()) return {};
        std::string page = "<p><a href=\"start\">Start</a> or <a href=\"help:120\">Help</a></p>";
        for (const std::string& file : recent)
            page += "<p>" + file + "</p>";
        return page;
    }
    void FollowLink(const std::string& link) override { followed += link + "; "; }

    std::string name, followed;
    const ui::TreeNode* added = nullptr;
};

class DocumentWindow : public testing::Test {
protected:
    DocumentWindow() : settings_(folder_.filePath("windows.ini"), QSettings::IniFormat) {
        windows_.Follow();
        windows_.Recent = &recent_;
        forms_.Register<frmDesk>("frmDesk");
        Form().Show();
        windows_.Flush();
    }
    ~DocumentWindow() override { forms_.CloseAll(); }

    frmDesk& Form() { return forms_.Get<frmDesk>("frmDesk"); }
    FormWindow& Window() { return *windows_.WindowOf(Form()); }
    QWidget* WidgetOf(const ui::Control& control) { return Window().ViewFor(control)->Widget(); }
    void Press(const ui::Control& control, const char* key) {
        PressAndRelease(WidgetOf(control), StrokeOf(ui::ParseKey(key)));
        QCoreApplication::processEvents();
    }
    void Alter(const std::string& name) {
        Form().name = name;
        Form().DocumentAltered.Emit();
        windows_.Flush();
    }
    QString Page() {
        return static_cast<QTextBrowser*>(WidgetOf(Form().rtfReading))->toPlainText();
    }

    QTemporaryDir folder_;
    QSettings settings_;
    RecentFiles recent_{settings_};
    host::PosixFileSystem files_;
    Windows windows_;
    QtDesktop desktop_{windows_, files_, {}};
    ui::Forms forms_{desktop_};
};

} // namespace

TEST_F(DocumentWindow, TitlesNameTheDocumentThatIsNotSaved) {
    EXPECT_EQ(Window().windowTitle(), "Desk");
    Alter("wa[*]ter.txt");
    EXPECT_EQ(Window().windowTitle(), "wa[*][*]ter.txt[*] - Desk");
    EXPECT_TRUE(Window().isWindowModified());
    EXPECT_EQ(Form().Caption(), "Desk");
    QStringList titles;
    for (const char* title : {"", "Own"}) {
        QTimer::singleShot(0, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            titles << box->windowTitle();
            box->reject();
        });
        ui::AskYesNoCancel("Do you want to save your work?", title);
    }
    EXPECT_EQ(titles, QStringList({"wa[*]ter.txt - Vexora", "Own"}));
}

TEST_F(DocumentWindow, TabAndEnterFollowTheLinksOfTheGreeting) {
    Form().rtfReading.Html("<p>No record</p>");
    windows_.Flush();
    EXPECT_EQ(Page(), "Start or Help");
    Form().rtfReading.SetFocus();
    for (const char* key : {"Enter", "Tab", "Enter", "Tab", "Enter", "Shift+Tab", "Enter"})
        Press(Form().rtfReading, key);
    EXPECT_EQ(Form().followed, "start; help:120; start; ");
    EXPECT_TRUE(Form().rtfReading.HasFocus());
    Press(Form().rtfReading, "Tab");
    Press(Form().rtfReading, "Tab");
    EXPECT_TRUE(Form().AddOne.HasFocus());
    Alter("water.txt");
    EXPECT_EQ(Page(), "No record");
    Alter("");
    EXPECT_EQ(Page(), "Start or Help");
}

TEST_F(DocumentWindow, TheReadingPaneOutlivesItsForm) {
    auto other = std::make_unique<ui::Forms>(desktop_);
    other->Register<frmDesk>("frmDesk");
    Windows windows;
    windows.Follow();
    auto& form = other->Get<frmDesk>("frmDesk");
    form.Show();
    form.rtfReading.SetFocus();
    windows.Flush();
    QCoreApplication::processEvents();
    const QPointer<QWidget> pane(windows.WindowOf(form)->ViewFor(form.rtfReading)->Widget());
    ASSERT_TRUE(pane->hasFocus());
    other.reset();
    EXPECT_TRUE(pane.isNull() || !pane->isVisible());
}

TEST_F(DocumentWindow, RecentDocumentsAreThoseOpenedOrSavedThatCanBeRead) {
    QStringList paths;
    for (const char* name : {"a.txt", "b.txt", "c.txt"}) {
        paths << folder_.filePath(name);
        QFile file(paths.back());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        Form().Taken.Emit(FromQt(paths.back()));
    }
    Form().Taken.Emit(FromQt(paths[0]));
    EXPECT_EQ(recent_.Present(), QStringList({paths[0], paths[2], paths[1]}));
    QFile::remove(paths[2]);
    Form().Refused.Emit(FromQt(paths[0]));
    EXPECT_EQ(recent_.Present(), QStringList({paths[1]}));
    Form().Taken.Emit(FromQt(folder_.path())); // no file
    EXPECT_EQ(windows_.RecentDocuments(), std::vector{FromQt(paths[1])});
}

// One that is gone by now is told as such, and no other is opened in its place.
TEST_F(DocumentWindow, ALinkOfTheGreetingOpensTheFileThatItNames) {
    const std::string first = FromQt(folder_.filePath("a.txt")),
                      second = FromQt(folder_.filePath("b.txt"));
    for (const std::string& path : {second, first}) {
        ASSERT_TRUE(QFile(ToQt(path)).open(QIODevice::WriteOnly));
        Form().Taken.Emit(path);
    }
    Alter("");
    std::vector<std::string> opened;
    Form().tvwTree.OnDrop = [&](const std::string& path) { opened.push_back(path); };
    QFile::remove(ToQt(first));
    auto& page = static_cast<QTextBrowser&>(*WidgetOf(Form().rtfReading));
    for (const char* link : {"recent:0", "recent:1", "recent:2"})
        emit page.anchorClicked(QUrl(link));
    EXPECT_EQ(opened, (std::vector{first, second}));
    Form().tvwTree.OnDrop = nullptr;
}

TEST_F(DocumentWindow, MenusLeaveOutWhatIsDeadAndSayWhyTheRestIsGrey) {
    const QMenu& menu = *Window().MenuFor(Form().mnuFile);
    EXPECT_TRUE(menu.toolTipsVisible());
    EXPECT_TRUE(Form().mnuDead.Visible());
    EXPECT_FALSE(Window().ActionFor(Form().mnuDead)->isVisible());
    EXPECT_EQ(Window().ActionFor(Form().mnuGrey)->toolTip(), "Select a node first");
    Form().AddOne.WhyDisabled("Not now");
    Form().AddOne.Enabled(false);
    windows_.Flush();
    EXPECT_EQ(WidgetOf(Form().AddOne)->toolTip(), "Not now");
}

TEST_F(DocumentWindow, TheNextStepAndTheNewNodeAreMarkedAndInSight) {
    const QImage plain = PictureOf(windows_, Form().AddTwo);
    Form().AddTwo.IsNext(true);
    windows_.Flush();
    EXPECT_NE(PictureOf(windows_, Form().AddTwo), plain);
    EXPECT_TRUE(Form().AddTwo.TakesFocus());
    EXPECT_FALSE(Form().AddOne.TakesFocus());

    ui::TreeView& tree = Form().tvwTree;
    ui::TreeNode& root = tree.Add(nullptr, "R", "source");
    for (int i = 0; i < 200; ++i)
        tree.Add(&root, "L" + std::to_string(i), "compound");
    tree.UserNodeClick(root);
    windows_.Flush();
    auto& widget = static_cast<QTreeWidget&>(*WidgetOf(tree));
    const auto& view = dynamic_cast<const TreeWidgetView&>(*Window().ViewFor(tree));
    QTreeWidgetItem* last = view.ItemOf(*tree.Find("L199"));
    const auto place = [&] { return widget.visualItemRect(last); };
    EXPECT_FALSE(widget.viewport()->rect().contains(place().center()));
    Form().added = tree.Find("L199");
    Form().DocumentAltered.Emit();
    windows_.Flush();
    QCoreApplication::processEvents();
    EXPECT_TRUE(widget.viewport()->rect().contains(place().center()));
    EXPECT_EQ(tree.SelectedNode(), &root);
    const QPoint edge(widget.viewport()->width() - 3, place().center().y());
    const QColor marked = widget.viewport()->grab().toImage().pixelColor(edge);
    EXPECT_NE(marked, widget.palette().color(QPalette::Base));
    tree.UserNodeClick(*tree.Find("L199"));
    windows_.Flush();
    QCoreApplication::processEvents();
    const QColor selected = widget.viewport()->grab().toImage().pixelColor(edge);
    EXPECT_EQ(selected, widget.palette().color(QPalette::Highlight));
    tree.Clear();
    Form().added = nullptr;
}

TEST_F(DocumentWindow, ANodeShowsItsIconAndItsTipWhenAsked) {
    ui::TreeView& tree = Form().tvwTree;
    ui::TreeNode& node = tree.Add(nullptr, "R", "source");
    windows_.Flush();
    auto& widget = static_cast<QTreeWidget&>(*WidgetOf(tree));
    const QImage plain = PictureOf(windows_, tree);
    tree.IconOf = [](const ui::TreeNode&) { return "sample"; };
    tree.TipOf = [](const ui::TreeNode& of) { return "Tip of " + of.Text(); };
    widget.viewport()->update();
    EXPECT_NE(PictureOf(windows_, tree), plain);
    const auto& view = dynamic_cast<const TreeWidgetView&>(*Window().ViewFor(tree));
    const QPoint at = view.PlaceOf(node).toPoint();
    QHelpEvent event(QEvent::ToolTip, at, widget.viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(widget.viewport(), &event);
    EXPECT_EQ(QToolTip::text(), "Tip of source");
}

} // namespace vexora::qt::test
