// The last processed table is taken back from the Edit menu.
#include "records/ProcessedSets.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "shell/ShellFixture.h"

namespace vexora::test {

class UndoProcessTest : public ShellFixture {
protected:
    UndoProcessTest() {
        std::filesystem::copy_file(VEXORA_SOURCE_DIR "/examples/ethanol_water/1932carlew1.txt",
                                   path_);
        EXPECT_TRUE(Start(path_));
        saved_ = SavedAgain();
    }
    std::string SavedAgain() {
        Globals().Saved = false;
        Shell().Save();
        return FileText(path_);
    }
    static clsM& Mixture() {
        return *Globals().recR.Item(std::size_t{1})->recM.Item(std::size_t{1});
    }
    /// A table whose one set takes the place of the first, which goes with all others.
    void Process() {
        const auto& sets = Mixture().recMV;
        const auto made = std::static_pointer_cast<clsMV>(sets.Item(std::size_t{1})->Copy());
        made->recData.Clear();
        made->LoadRow("^d 1 2 & &");
        Globals().Processed = ProcessedSets::Attach(Mixture(), {made}, {sets.begin(), sets.end()},
                                                    [](clsMV&) { return true; });
        Globals().DialogAccepted = true;
        Shell().Activate();
    }

    std::string path_ = folder.Path("mixtures.txt");
    std::string saved_;
};

TEST_F(UndoProcessTest, TheStepGoesBackToTheByteOnce) {
    EXPECT_FALSE(Shell().mnuUndoProcess.Enabled());
    const std::size_t count = Mixture().recMV.Count();
    ASSERT_GT(count, 1U);
    Process();
    EXPECT_EQ(Mixture().recMV.Count(), 1U);
    Shell().mnuUndoProcess.UserClick();
    EXPECT_EQ(Mixture().recMV.Count(), count);
    EXPECT_EQ(Shell().tvwTree.SelectedNode(), Mixture().tNode);
    EXPECT_EQ(Globals().CurrentKey, "RM");
    EXPECT_FALSE(Globals().Saved);
    EXPECT_FALSE(Shell().mnuUndoProcess.Enabled());
    EXPECT_EQ(SavedAgain(), saved_);
}

TEST_F(UndoProcessTest, ItIsRefusedAfterAChangeAndForgottenWithASave) {
    Process();
    Mixture().recMV.Item(std::size_t{1})->recData.Item(1)->Values[0] = "3";
    desktop.Expect("The last table cannot be taken back: data sets that were made of it have been "
                   "changed or deleted since.");
    Shell().mnuUndoProcess.UserClick();
    EXPECT_EQ(Mixture().recMV.Count(), 1U);
    EXPECT_NE(SavedAgain(), saved_);
    EXPECT_FALSE(Shell().mnuUndoProcess.Enabled());
    Process();
    EXPECT_TRUE(Shell().mnuUndoProcess.Enabled());
    Globals().Saved = true;
    EXPECT_TRUE(Shell().NewProc());
    EXPECT_FALSE(Shell().mnuUndoProcess.Enabled());
}

} // namespace vexora::test
