// What happens when there is no memory left: the first, second, third, ... request of a load, a
// save and an export fails, that one alone or all that follow. It is an exception that the fronts
// tell of; the open document stays, and no file is half written. A program of its own, for the
// requests of the whole program go through here.
#include "records/clsR.h"
#include "shell/DocumentText.h"
#include "shell/ShellFixture.h"

#include <cstdlib>
#include <iostream>
#include <new>

namespace {

long requestsLeft = 0; // until one fails; 0 for none
bool failsOn = false;
bool hasFailed = false;

bool Refuses() {
    if (requestsLeft == 0 || --requestsLeft > 0) return false;
    hasFailed = true;
    requestsLeft = failsOn ? 1 : 0;
    return true;
}

} // namespace

void* operator new(std::size_t size) {
    void* place = Refuses() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (place == nullptr) throw std::bad_alloc();
    return place;
}
/// Who asks so can do without.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return std::malloc(size);
}
void operator delete(void* place, const std::nothrow_t&) noexcept {
    std::free(place);
}
void operator delete(void* place) noexcept {
    std::free(place);
}
void operator delete(void* place, std::size_t) noexcept {
    std::free(place);
}

namespace vexora::test {
namespace {

/// Notes that something was told; questions get the answer that loses nothing.
class NotingDesktop : public StrictDesktop {
public:
    using StrictDesktop::StrictDesktop;
    std::string Chosen;
    bool HasTold = false;

    ui::Answer Show(const ui::Message& message) override {
        HasTold = true;
        // Whether to save over what the test has put back.
        const bool asksToSave = message.buttons == ui::MessageButtons::YesNoCancel;
        return asksToSave ? ui::Answer::Yes : message.safe;
    }
    std::optional<std::string> Ask(const ui::Input&) override { return ""; }
    std::optional<std::string> Choose(const ui::FileChoice&) override { return Chosen; }
};

class Memory : public testing::Test {
protected:
    Memory() {
        for (const char* name : {"VXRLocal.mdb", "VXR.mdb"})
            std::filesystem::copy_file(std::filesystem::path(VEXORA_SHARE_DIR) / name,
                                       folder.Path(name));
        WriteText(folder.Path("VXR.ini"), "COMPILER ABC\nXMLCOMPILER Ann\nORGANIZATION Lab\n");
        const std::string text = "\n^R 2002 WAG PRU 1\n^L 7732185 DNNNN P\n^S 1 cm;;99.9m%,gc\n"
                                 "^A & O & & AB CD & &\n^z 1 TC S 1 L G & 647.096 & 0.1 &\n"
                                 "^A & O & & AB CD & &\n^1 1 VDN S DIR 1\tC L G PB S & & &\n"
                                 "^d 275 999.887406 &\n^d 450 890.341250 &\n";
        WriteText(path, text);
        WriteText(other, Replaced(text, "2002", "2003"));
        EXPECT_TRUE(workbench.Start(path));
        Globals().CurrentR->SOURCEDOC = "O"; // a save asks for it otherwise
        document = DocumentAsRecords();
    }
    static std::string Replaced(std::string text, const std::string& what, const std::string& by) {
        return text.replace(text.find(what), what.size(), by);
    }

    /// Does it with the n-th request failing, for each n until all are had, and looks afterwards.
    /// Every request is tried of what takes no time; else ever fewer of the later ones.
    void ForEachRequest(const std::function<void()>& act, const std::function<void()>& look,
                        bool tryAll = false) {
        int tried = 0;
        for (const bool allThatFollow : {false, true}) {
            bool isWhole = false;
            for (long n = 1; !isWhole && !HasFailure(); n += tryAll ? 1 : 1 + n / 40, ++tried) {
                SCOPED_TRACE(std::to_string(n) + (allThatFollow ? " and on" : ""));
                bool isTold = true;
                hasFailed = desktop.HasTold = false;
                failsOn = allThatFollow;
                requestsLeft = n;
                try {
                    act();
                    isTold = false;
                } catch (const std::bad_alloc&) {
                }
                requestsLeft = 0;
                isWhole = !hasFailed;
                EXPECT_TRUE(isWhole || isTold || desktop.HasTold);
                look();
            }
        }
        std::cout << tried << " requests of memory refused\n";
        EXPECT_GT(tried, 100);
    }

    frmMain& Shell() { return workbench.Forms().Get<frmMain>("frmMain"); }

    ScratchFolder folder;
    host::PosixFileSystem files;
    NotingDesktop desktop{&files};
    Workbench workbench{desktop, {folder.Path(), {}}};
    std::string path = folder.Path("a.txt");
    std::string other = folder.Path("b.txt");
    std::string document;
};

TEST_F(Memory, ALoadThatBreaksOffLeavesTheOpenDocument) {
    ForEachRequest([this] { Shell().tvwTree.UserDrop(other); },
                   [this] {
                       const std::string now = DocumentAsRecords();
                       EXPECT_TRUE(now == document || now == Replaced(document, "2002", "2003"))
                           << now;
                       EXPECT_EQ(Shell().FileName, now == document ? path : other);
                       EXPECT_FALSE(Shell().tvwTree.IsEmpty());
                       if (now != document) Shell().tvwTree.UserDrop(path);
                   },
                   true);
}

TEST_F(Memory, ASaveThatBreaksOffLeavesFileAndDocument) {
    Globals().CurrentR->AUTHOR2 = "NEW";
    const std::string changed = DocumentAsRecords();
    const std::string present = FileText(path);
    ForEachRequest(
        [this] {
            Globals().Saved = false;
            Shell().Save();
        },
        [&] {
            const std::string now = FileText(path);
            EXPECT_TRUE(now == present || now == changed);
            EXPECT_TRUE(now == changed || !Globals().Saved);
            EXPECT_TRUE(hasFailed || Globals().Saved);
            EXPECT_EQ(DocumentAsRecords(), changed);
            WriteText(path, present);
        });
}

TEST_F(Memory, AnExportThatBreaksOffLeavesFileAndDocument) {
    const std::string target = folder.Path("a.xml");
    std::string whole;
    ForEachRequest(
        [&] {
            desktop.Chosen = target;
            Shell().mnuExportXML.UserClick();
        },
        [&] {
            const std::string now = FileText(target);
            EXPECT_TRUE(now.empty() || now.ends_with("</DataReport>\n"));
            EXPECT_EQ(DocumentAsRecords(), document);
            EXPECT_FALSE(Globals().ShellLocked);
            std::filesystem::remove(target);
        });
}

} // namespace
} // namespace vexora::test
