// A document made by nothing but keys: they go to the windows as a keyboard sends them, to whatever
// has the focus.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include <QClipboard>
#include <QDialog>
#include <QElapsedTimer>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/Keys.h"
#include "qt/QtDesktop.h"
#include "qt/Text.h"
#include "shell/Places.h"
#include "shell/Workbench.h"

namespace vexora::qt::test {

namespace {

namespace fs = std::filesystem;

/// Plays lines of keys, one stroke for each turn of the event loop, nested loops of boxes and
/// choosers included. A line holds keys by their names, texts in double quotes, `at NAME` for the
/// form or the class of box that must be in front, `to NAME` for Tab until a control has the focus,
/// `pick NAME` for Down in a menu until an entry is the current one and Enter, and remarks behind
/// "#". The focus on a combo box is on it, whatever part of it has the keyboard.
class Typist {
public:
    Typist(Windows& windows, std::string script, const std::string& out)
        : windows_(windows), lines_(std::move(script)), out_(out) {
        NextTurn();
    }
    bool IsDone() const { return done_; }
    std::string fault;
    std::size_t strokes = 0;

private:
    /// A screen answers in its own time.
    static constexpr int Patience = 3000; // [ms]

    /// A timer of its own each time: one that is being served does not fire in a nested loop.
    void NextTurn() {
        QTimer::singleShot(0, &context_, [this] { Turn(); });
    }
    void Turn() {
        NextTurn();
        if (done_) return Unwind();
        if (keys_.empty() && word_.empty() && !NextWord()) return;
        if (!keys_.empty())
            Strike();
        else if (pending_.empty())
            Begin();
        else
            Look();
    }
    /// After a fault nobody answers the boxes that are open.
    void Unwind() const {
        if (fault.empty()) return;
        if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
        if (auto* box = dynamic_cast<QDialog*>(QApplication::activeModalWidget())) box->reject();
        ui::Forms::Current().CloseAll();
    }
    bool NextWord() {
        while (word_.empty()) {
            if (!(line_ >> std::ws).eof() && line_.peek() == '"') {
                std::getline(line_.ignore(), word_, '"');
                if (const auto at = word_.find("OUT/"); at == 0) word_.replace(0, 3, out_);
                word_.insert(0, "\"");
                return true;
            }
            if (line_ >> word_ && word_[0] != '#') return true;
            word_.clear();
            std::string next;
            if (!std::getline(lines_, next)) return done_ = true, false;
            ++number_;
            line_ = std::istringstream(next);
        }
        return true;
    }
    void Begin() {
        if (word_[0] == '"') {
            for (const char32_t letter : ToQt(word_.substr(1)).toUcs4())
                keys_.push_back(StrokeOf(ui::CharacterKey(letter)));
            word_.clear();
        } else if (word_ == "at" || word_ == "to" || word_ == "pick") {
            line_ >> pending_;
            tries_ = 0;
            passed_.clear();
            clock_.start();
        } else {
            keys_ = {StrokeOf(ui::ParseKey(word_))};
            word_.clear();
        }
    }
    /// Whether what is waited for is there; if not, the key that may bring it.
    void Look() {
        constexpr int most = 80; // controls of a form
        const std::string seen = Seen();
        if (seen == pending_) {
            if (word_ == "pick") keys_ = {StrokeOf(ui::ParseKey("Enter"))};
            pending_.clear();
            word_.clear();
        } else if (word_ == "at" ? clock_.elapsed() > Patience : tries_++ > most) {
            const auto* box = dynamic_cast<const QMessageBox*>(QApplication::activeModalWidget());
            fault = "line " + std::to_string(number_) + ": " + word_ + " " + pending_ +
                    ", but found " + seen + " behind" + passed_ +
                    (box ? ": " + FromQt(box->text()) : "");
            done_ = true;
        } else if (word_ != "at") {
            if (tries_ < 20) passed_ += " " + seen;
            keys_ = {StrokeOf(ui::ParseKey(word_ == "to" ? "Tab" : "Down"))};
        }
    }
    std::string Seen() const {
        const QWidget* const popup = QApplication::activePopupWidget();
        if (word_ == "pick") {
            const auto* menu = dynamic_cast<const QMenu*>(popup);
            const QAction* action = menu ? menu->activeAction() : nullptr;
            return action ? FromQt(action->objectName()) : "no entry";
        }
        if (word_ == "to") {
            const QWidget* focus = QApplication::focusWidget();
            while (focus && (focus->objectName().isEmpty() ||
                             focus->objectName().startsWith(QStringLiteral("qt_"))))
                focus = focus->parentWidget();
            return focus ? FromQt(focus->objectName()) : "nothing";
        }
        if (popup) return popup->metaObject()->className();
        if (const QWidget* modal = QApplication::activeModalWidget();
            modal && !dynamic_cast<const FormWindow*>(modal))
            return modal->metaObject()->className();
        const ui::Form* front = ui::Forms::Current().Front();
        if (!front) return "nothing";
        FormWindow* const window = windows_.WindowOf(*front);
        // Without a manager of windows nobody turns to the one below a box that has closed.
        if (window && !QApplication::activeWindow()) window->activateWindow();
        return window && window->isActiveWindow() ? front->Name()
                                                  : "no active window of " + front->Name();
    }
    void Strike() {
        const KeyStroke stroke = keys_.front();
        QWidget* target = QApplication::activePopupWidget();
        if (!target) target = QApplication::focusWidget();
        if (!target) target = QApplication::activeModalWidget();
        if (!target) target = QApplication::activeWindow();
        if (!target) return;
        keys_.erase(keys_.begin());
        ++strokes;
        QTest::sendKeyEvent(QTest::Click, target, static_cast<Qt::Key>(stroke.key), stroke.text,
                            stroke.modifiers);
    }

    Windows& windows_;
    std::istringstream lines_, line_;
    std::string out_, word_, pending_, passed_;
    std::vector<KeyStroke> keys_;
    QElapsedTimer clock_;
    QObject context_;
    int number_ = 0, tries_ = 0;
    bool done_ = false;
};

constexpr const char* Citation = R"(@article{some,
  author  = {Carey, J. S. and Lewis, W. K.},
  title   = {Studies in Distillation: Liquid-Vapor Equilibria of Ethyl Alcohol-Water Mixtures},
  journal = {Ind. Eng. Chem.}, volume = {24}, pages = {882-883}, year = {1932}
})";

std::string Content(const fs::path& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

/// The program as a person starts it, in a fresh home.
class KeyboardOnly : public testing::Test {
protected:
    KeyboardOnly() {
        fs::create_directories(root_);
        EXPECT_EQ(PrepareHome(places_, files_), "");
    }
    ~KeyboardOnly() override { fs::remove_all(root_); }

    const fs::path root_ = fs::temp_directory_path() /
                           ("vexora-keys-" + std::to_string(QCoreApplication::applicationPid()));
    const Places places_{(root_ / "home").string(), VEXORA_SHARE_DIR};
    host::PosixFileSystem files_;
};

} // namespace

TEST_F(KeyboardOnly, MakesAWholeDocument) {
    QApplication::setKeyboardInputInterval(5000); // a slow machine does not part the words
    QApplication::clipboard()->setText(ToQt(Citation));
    Windows windows;
    QtDesktop desktop(windows, files_, {places_.Home, places_.Installed});
    Workbench workbench(desktop, places_);
    windows.Follow();
    Typist typist(windows, Content(VEXORA_SOURCE_DIR "/tests/qt/whole_document.keys"),
                  root_.string());
    EXPECT_TRUE(workbench.Start(""));
    while (!typist.IsDone())
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_EQ(typist.fault, "");
    std::cout << "The whole document takes " << typist.strokes << " keys\n";
    const std::string records = Content(root_ / "keys.txt");
    const std::string xml = Content(root_ / "keys.xml");
    for (const char* line : {"^R 1932 car lew 1", "^L 64175 ", "^z 1 TC S 1 L G & 513.9 & & &",
                             "^z 1 1 TA C 1 L G & & 78.15 & & &", " -1366.9 & & &"})
        EXPECT_NE(records.find(line), records.npos) << line << "\n" << records;
    for (const char* element :
         {"<nPropValue>513.9<", "<nPropValue>351.30<", "<nPropValue>-1366.9<"})
        EXPECT_NE(xml.find(element), xml.npos) << element << "\n" << xml;
    workbench.Forms().CloseAll();
}

} // namespace vexora::qt::test
