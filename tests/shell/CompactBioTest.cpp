// Bio sets that differ in a constant only become one, from the Tools menu.
#include "records/clsBP.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "shell/ShellFixture.h"

namespace vexora::test {

/// Solubilities of a protein (here water) at one temperature a set.
class CompactBioTest : public ShellFixture {
protected:
    CompactBioTest() { Open({"298.15", "303.15", "308.15", "313.15", "318.15", "323.15"}); }

    void Open(const std::vector<std::string>& temperatures) {
        std::string text;
        for (std::size_t n = 0; n < temperatures.size(); ++n)
            text += "BN " + std::to_string(n + 1) +
                    "\nBP 7732185 0 1 & water 7732185 H2O 18.0153 0 & &\n"
                    "BH S 1 & & S1 C & &\nBV W 1 S1 7732185 & P &\nBV pH 1 & & & V &\n"
                    "BV T K & & & C " +
                    temperatures[n] + "\nBV P kPa & & & C 101.325\nBE\nBM gravimetry\nBD 0.0" +
                    std::to_string(n + 1) + "0 7.0\nBD 0.0" + std::to_string(n + 1) + "5 7.5\n";
        path_ = WriteDocument("^L 71432 NNNNN &\n^S 1 ns\n" + text);
        EXPECT_TRUE(Start(path_));
        saved_ = SavedAgain();
        Shell().Activate();
    }
    std::string SavedAgain() {
        Globals().Saved = false;
        Shell().Save();
        return FileText(path_);
    }
    void Compact(const std::string& told) {
        desktop.Expect(told);
        Shell().mnuBio.UserClick();
    }
    static auto& Sets() { return Globals().recR.Item(std::size_t{1})->recBP; }
    std::size_t Nodes() { return Shell().tvwTree.Roots().front()->Children().size(); }

    std::string path_, saved_;
};

TEST_F(CompactBioTest, SixTemperaturesBecomeOneVariableAndASecondRunChangesNoByte) {
    const std::size_t nodes = Nodes();
    Shell().tvwTree.UserNodeClick(*Sets().Item(std::size_t{4})->tNode);
    Compact("6 bio sets became 1");
    EXPECT_EQ(Nodes() + 5, nodes);
    EXPECT_EQ(Globals().CurrentKey, "R"); // the node that was selected is gone
    EXPECT_FALSE(Globals().Saved);
    const std::string compacted = SavedAgain();
    EXPECT_EQ(
        compacted.substr(compacted.find("BV ")),
        "BV W 1 S1 7732185 & P &\nBV pH 1 & & & V &\nBV T K & & & V &\n"
        "BV P kPa & & & C 101.325\nBE\nBM gravimetry\n"
        "BD 0.010 7.0 298.15\nBD 0.015 7.5 298.15\nBD 0.020 7.0 303.15\nBD 0.025 7.5 303.15\n"
        "BD 0.030 7.0 308.15\nBD 0.035 7.5 308.15\nBD 0.040 7.0 313.15\nBD 0.045 7.5 313.15\n"
        "BD 0.050 7.0 318.15\nBD 0.055 7.5 318.15\nBD 0.060 7.0 323.15\nBD 0.065 7.5 323.15\n");
    Globals().Saved = true;
    Compact("There is nothing to compact in the bio sets of this document");
    EXPECT_TRUE(Globals().Saved);
    EXPECT_EQ(SavedAgain(), compacted);
}

TEST_F(CompactBioTest, OneInvalidSetStopsAllBeforeAnythingChanges) {
    const auto fifth = Sets().Item(std::size_t{5});
    const BioCell last = fifth->recD[1].Cells.back();
    fifth->recD[1].Cells.pop_back();
    Globals().Saved = true;
    Compact("Invalid data set found\nPlease edit that data set and repeat the action");
    EXPECT_EQ(Shell().tvwTree.SelectedNode(), fifth->tNode);
    EXPECT_EQ(Globals().CurrentKey, "RBP");
    EXPECT_TRUE(Globals().Saved);
    fifth->recD[1].Cells.push_back(last);
    EXPECT_EQ(SavedAgain(), saved_);
}

TEST_F(CompactBioTest, WhatWasDeletedBeforeComesBackToItsPlace) {
    const auto benzene = Globals().recR.Item(std::size_t{1})->FindL("71432");
    Shell().tvwTree.UserNodeClick(*benzene->tNode->Children().front());
    desktop.Expect("Are you sure you want to delete the record?", ui::Answer::Yes);
    Shell().mnuDelete.UserClick();
    Compact("6 bio sets became 1");
    EXPECT_TRUE(benzene->recS.IsEmpty());
    Shell().mnuUndoDelete.UserClick();
    EXPECT_EQ(benzene->tNode->Children().size(), 1U);
    EXPECT_FALSE(Globals().Saved);
    EXPECT_EQ(Sets().Count(), 1U);
}

TEST_F(CompactBioTest, TheEntryIsLiveWhereThereAreBioSets) {
    EXPECT_TRUE(Shell().mnuBio.Enabled());
    Shell().EmptyDocument();
    Shell().Activate();
    EXPECT_FALSE(Shell().mnuBio.Enabled());
}

} // namespace vexora::test
