// The document is saved on a disk that fails at each of its calls in turn. Whatever happens, the
// file and its ".bak" hold whole versions, nothing is taken for saved that is not, and the document
// in memory is still there.
#include "records/clsR.h"
#include "shell/DocumentText.h"
#include "shell/ShellFixture.h"
#include "support/SimulatedDisk.h"

#include <iostream>

namespace vexora::test {
namespace {

/// Writes over what is there, and notes what it was told.
class NotingDesktop : public StrictDesktop {
public:
    using StrictDesktop::StrictDesktop;
    std::string Chosen, Told;

    ui::Answer Show(const ui::Message& message) override {
        if (message.buttons != ui::MessageButtons::Ok) return ui::Answer::Yes;
        Told += message.text + "\n";
        return ui::Answer::Ok;
    }
    std::optional<std::string> Ask(const ui::Input&) override { return ""; }
    std::optional<std::string> Choose(const ui::FileChoice&) override { return Chosen; }
};

constexpr const char* Paper = "/disk/paper.txt";
const std::string older = "the version before the last one";
const std::string present = "the version that is there";

struct Scene {
    const char* name;
    const char* document;
    const char* file;   // that is saved
    const char* target; // that is replaced: another one behind a link
    bool hasFile;
    std::size_t blocks;
    bool isReadOnly;
};
constexpr const char* source = "\n^R 2002 WAG PRU 1\n";
constexpr const char* water = "\n^R 2002 WAG PRU 1\n^L 7732185 NNNNN &\n^S 1 &\n";
constexpr Scene scenes[] = {
    {"first save", water, "/disk/new.txt", "/disk/new.txt", false, 3, false},
    {"backup there", water, Paper, Paper, true, 3, false},
    {"save as over a file", water, "/disk/other.txt", "/disk/other.txt", true, 3, false},
    {"symbolic link", water, Paper, "/disk/real/paper.txt", true, 3, false},
    {"empty document", source, Paper, Paper, true, 3, false},
    {"one block", water, Paper, Paper, true, 1, false},
    {"64 blocks", water, Paper, Paper, true, 64, false},
    {"read-only file", water, Paper, Paper, true, 3, true},
};

struct Tally {
    int faults = 0, lost = 0, falselySaved = 0, left = 0;
    bool operator==(const Tally&) const = default;
};

/// A workbench with the document of a scene, saved again and again.
class SavedScene {
public:
    SavedScene(const Scene& scene, const std::string& home, bool hasLinks, Tally& tally)
        : scene_(scene), tally_(tally), program_(desktop_, {home, {}}) {
        disk_.Put(Paper, scene.document);
        EXPECT_TRUE(program_.Start(Paper));
        Globals().CurrentR->SOURCEDOC = "O"; // a save asks for it otherwise
        Globals().CurrentR->AUTHOR2 = "NEW";
        next_ = DocumentAsRecords();
        disk_.Block = (next_.size() + scene.blocks - 1) / scene.blocks;
        disk_.HasLinks = hasLinks;
        disk_.Present = {};
        if (std::string(scene.file) != Paper) disk_.Put(Paper, scene.document);
        if (std::string(scene.file) != scene.target) disk_.PutLink(scene.file, scene.target);
        if (scene.hasFile) disk_.Put(scene.target, present);
        if (scene.hasFile) disk_.Put(Backup(), older);
        if (scene.isReadOnly) disk_.ReadOnly = {scene.target};
        start_ = disk_.Present;
    }

    /// The number of calls of a save without a fault.
    int Calls() {
        EXPECT_TRUE(SaveWith({}));
        EXPECT_EQ(Globals().Saved, !scene_.isReadOnly) << desktop_.Told;
        EXPECT_EQ(disk_.Text(scene_.file), scene_.isReadOnly ? present : next_);
        return disk_.Calls();
    }

    /// Saves with a fault, counts what it has done, and saves again without.
    void Try(const DiskFault& fault) {
        ++tally_.faults;
        const bool isAlive = SaveWith(fault);
        const bool isSaved = Globals().Saved;
        const auto file = disk_.Text(scene_.file);
        const auto backup = disk_.Text(Backup());
        const auto before = scene_.hasFile ? std::optional(present) : std::nullopt;
        const auto beforeThat = scene_.hasFile ? std::optional(older) : std::nullopt;
        const bool isWhole = (file == next_ || file == before) &&
                             (backup == beforeThat || (file == next_ && backup == before));
        const bool isThere = DocumentAsRecords() == next_ && !Main().tvwTree.IsEmpty();
        Count(tally_.lost, isWhole && isThere, fault);
        // All is as it should be, or it was told; and what was told as not saved has not happened.
        const bool isRight = isSaved
                                 ? file == next_ && (backup == before || !desktop_.Told.empty())
                                 : file == before && backup == beforeThat && !desktop_.Told.empty();
        Count(tally_.falselySaved, !isAlive || isRight, fault);
        const bool mayRemove = isAlive && fault.kind != DiskFault::Ever;
        Count(tally_.left, !mayRemove || AllAreTold(disk_.Temporaries()), fault);
        // What a killed program has left goes with the next save.
        Save({}, disk_.Present);
        Count(tally_.lost, Globals().Saved && disk_.Text(scene_.file) == next_, fault);
        Count(tally_.left, disk_.Temporaries().empty(), fault);
    }

private:
    std::string Backup() const { return std::string(scene_.file) + ".bak"; }
    frmMain& Main() { return program_.Forms().Get<frmMain>("frmMain"); }
    bool SaveWith(const DiskFault& fault) { return Save(fault, start_); }

    /// True when the program lived to see the end of it.
    bool Save(const DiskFault& fault, const SimulatedDisk::Content& from) {
        disk_.Present = from;
        desktop_.Told.clear();
        desktop_.Chosen = scene_.file;
        Main().FileName = Paper;
        Globals().Saved = false;
        disk_.Begin(fault);
        try {
            if (std::string(scene_.file) == Paper)
                Main().Save();
            else
                Main().SaveAs();
        } catch (const Killed&) {
            return false;
        }
        return true;
    }
    /// The version before has to stay under such a name when it gets no other one.
    bool AllAreTold(const std::vector<std::string>& paths) const {
        return std::ranges::all_of(paths, [this](const std::string& path) {
            return desktop_.Told.find("The version before is " + path + "\n") != path.npos;
        });
    }
    void Count(int& count, bool isWell, const DiskFault& fault) const {
        if (isWell) return;
        ++count;
        ADD_FAILURE() << scene_.name << ": kind " << fault.kind << " at call " << fault.call << ' '
                      << desktop_.Told;
    }

    const Scene& scene_;
    Tally& tally_;
    SimulatedDisk disk_;
    NotingDesktop desktop_{&disk_};
    Workbench program_;
    std::string next_;
    SimulatedDisk::Content start_;
};

TEST(SaveFaults, NoFaultOfTheDiskLosesADocument) {
    ScratchFolder home;
    for (const char* name : {"VXRLocal.mdb", "VXR.mdb"})
        std::filesystem::copy_file(std::filesystem::path(VEXORA_SHARE_DIR) / name, home.Path(name));
    WriteText(home.Path("VXR.ini"), "COMPILER ABC\nXMLCOMPILER Ann\nORGANIZATION Lab\n");
    Tally tally;
    for (const Scene& scene : scenes) {
        for (const bool hasLinks : {true, false}) {
            SavedScene saved(scene, home.Path(), hasLinks, tally);
            const int calls = saved.Calls();
            EXPECT_EQ(calls == 0, scene.isReadOnly) << scene.name;
            for (int call = 1; call <= calls; ++call) {
                for (const auto kind :
                     {DiskFault::KillBefore, DiskFault::KillAfter, DiskFault::Once, DiskFault::Ever,
                      DiskFault::Full, DiskFault::Short, DiskFault::OnceAfterwards})
                    saved.Try({kind, call});
            }
        }
    }
    std::cout << tally.faults << " faults: " << tally.lost << " lost, " << tally.falselySaved
              << " false success, " << tally.left << " temporaries left\n";
    EXPECT_GE(tally.faults, 1000);
    EXPECT_EQ(tally, (Tally{tally.faults, 0, 0, 0}));
}

} // namespace
} // namespace vexora::test
