// Saving on a disk that loses power: after a cut at any moment, whatever the disk had not flushed
// by then, the name and its ".bak" hold whole versions, and what was told as saved is there.
#include "reference/SafeFile.h"
#include "support/SimulatedDisk.h"

#include <gtest/gtest.h>

#include <iostream>

namespace vexora::test {
namespace {

const std::string before = "before the last save";
const std::string present(60, 'p');
constexpr std::size_t block = 20;

struct Scene {
    const char* name;
    bool hasFile, hasBackup, isLink, hasLinks, isReadOnly;
    std::size_t blocks; // of the new version
};
constexpr Scene scenes[] = {
    {"first save", false, false, false, true, false, 3},
    {"no backup yet", true, false, false, true, false, 3},
    {"backup there", true, true, false, true, false, 3},
    {"backup there, disk without links", true, true, false, false, false, 3},
    {"symbolic link", true, true, true, true, false, 3},
    {"symbolic link, disk without links", true, true, true, false, false, 3},
    {"empty", true, true, false, true, false, 0},
    {"one block", true, true, false, true, false, 1},
    {"64 blocks", true, true, false, true, false, 64},
    {"64 blocks, disk without links", true, true, false, false, false, 64},
    {"read-only", true, true, false, true, true, 3},
};

/// One save on a disk of its own.
class OneSave {
public:
    explicit OneSave(const Scene& scene)
        : scene_(scene), target_(scene.isLink ? "/disk/real/a.txt" : path),
          next_(scene.blocks * block, 'n') {
        Disk.Block = block;
        Disk.HasLinks = scene.hasLinks;
        if (scene.isLink) Disk.PutLink(path, target_);
        if (scene.hasFile) Disk.Put(target_, present);
        if (scene.hasBackup) Disk.Put(backup, before);
        if (scene.isReadOnly) Disk.ReadOnly = {target_};
    }

    /// What is wrong with the disk afterwards, or after a power cut at any moment; else empty.
    std::string Faults(const DiskFault& fault, std::size_t mostContents = 20) {
        const SimulatedDisk::Content start = Disk.Present;
        Disk.Begin(fault);
        const SaveOutcome outcome = WriteSafely(Disk, path, next_, true);
        const bool isTold = outcome.isSaved && outcome.fault.empty();
        std::string wrong = WrongIn({{target_, Disk.Text(target_).value_or(none)},
                                     {backup, Disk.Text(backup).value_or(none)}},
                                    isTold);
        if (wrong.empty() && !Disk.Temporaries().empty()) wrong = "a temporary file is left";
        if (wrong.empty() && outcome.isSaved && scene_.isReadOnly) wrong = "was read-only";
        PowerCut cut(start, Disk.Journal);
        for (std::size_t count = 0; count <= Disk.Journal.size() && wrong.empty(); ++count) {
            cut.ForEach(count, mostContents, [&](const PowerCut::Files& files) {
                ++States;
                const std::string found = WrongIn(files, isTold && count == Disk.Journal.size());
                if (!found.empty()) wrong = "power cut: " + found;
            });
        }
        return wrong;
    }

    SimulatedDisk Disk;
    static inline std::size_t States = 0;

private:
    static constexpr const char* path = "/disk/a.txt";
    static constexpr const char* backup = "/disk/a.txt.bak";
    static constexpr const char* none = "(none)";

    std::string WrongIn(const PowerCut::Files& files, bool isTold) const {
        const auto at = [&](const std::string& name) {
            const auto found = files.find(name);
            return found == files.end() ? std::string(none) : found->second;
        };
        const std::string now = at(target_), kept = at(backup);
        const std::string old = scene_.hasFile ? present : none;
        const std::string older = scene_.hasBackup ? before : none;
        if (now != next_ && (now != old || isTold)) return "the file";
        if (kept != old && (kept != older || (isTold && scene_.hasFile))) return "the backup";
        return {};
    }

    const Scene& scene_;
    std::string target_, next_;
};

TEST(PowerLoss, EveryStateHoldsWholeVersionsAndWhatWasToldAsSaved) {
    OneSave::States = 0;
    int faults = 0;
    for (const Scene& scene : scenes) {
        OneSave whole(scene);
        ASSERT_EQ(whole.Faults({}, 400), "") << scene.name;
        ASSERT_EQ(whole.Disk.Calls() == 0, scene.isReadOnly);
        for (int call = 1; call <= whole.Disk.Calls(); ++call) {
            for (const auto kind : {DiskFault::Once, DiskFault::OnceAfterwards, DiskFault::Short}) {
                ++faults;
                EXPECT_EQ(OneSave(scene).Faults({kind, call}, 5), "") << scene.name << ' ' << call;
            }
        }
    }
    std::cout << OneSave::States << " power-loss states, " << faults
              << " of the saves with a fault: 0 lost\n";
    EXPECT_GE(OneSave::States, 100'000U);
}

/// Each call of a save answers that all is well and has not happened: as if the flush were not
/// there, or the test of its answer. So every one of them is needed, and the check above sees it.
TEST(PowerLoss, WithoutAnyOneFlushOrTestSomethingIsLost) {
    for (const Scene& scene : scenes) {
        if (scene.blocks == 0) continue; // there are no bytes to flush
        OneSave whole(scene);
        whole.Faults({});
        for (int call = 2; call <= whole.Disk.Calls(); ++call) // the first makes the file
            EXPECT_NE(OneSave(scene).Faults({DiskFault::Silent, call}), "")
                << scene.name << ' ' << call;
    }
    OneSave cutShort(scenes[2]);
    cutShort.Disk.Room = 30;
    EXPECT_EQ(cutShort.Faults({}), "");
    OneSave unmeasured(scenes[2]);
    unmeasured.Disk.Room = 30;
    unmeasured.Disk.SizeLies = true;
    EXPECT_EQ(unmeasured.Faults({}), "the file");
    OneSave unasked(scenes[std::size(scenes) - 1]);
    unasked.Disk.TellsReadOnly = false;
    EXPECT_EQ(unasked.Faults({}), "was read-only");
}

} // namespace
} // namespace vexora::test
