#include "records/clsL.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "shell/BioShellFixture.h"

#include <utility>

namespace vexora::test {

namespace {

constexpr const char* Sure = "Are you sure you want to delete the record?";
constexpr const char* DataToo =
    "This record has associated data items.\nDo you want to delete the data?";
constexpr const char* Blocked = "All dependent entries (samples, mixtures, properties)\n"
                                "must be deleted before this entry can be removed";

} // namespace

/// The example, saved once, so that a further save changes no byte by itself.
class DeletionTest : public ShellFixture {
protected:
    DeletionTest() {
        std::filesystem::copy_file(VEXORA_SOURCE_DIR "/examples/water/2002wagpru1.txt", path_);
        EXPECT_TRUE(Start(path_));
        Shell().Save();
        saved_ = FileText(path_);
    }
    ui::TreeNode& Sample() {
        return *Shell().tvwTree.Roots().front()->Children().front()->Children().front();
    }
    static bool HasRows(const ui::TreeNode& node) { return !node.Text().starts_with("^0"); }
    void Click(ui::TreeNode& node) { Shell().tvwTree.UserNodeClick(node); }
    void Delete(ui::TreeNode& node, bool withRows) {
        Click(node);
        desktop.Expect(Sure, ui::Answer::Yes);
        if (withRows) desktop.Expect(DataToo, ui::Answer::Yes);
        Shell().mnuDelete.UserClick();
    }
    std::string SavedAgain() {
        Globals().Saved = false;
        Shell().Save();
        return FileText(path_);
    }

    std::string path_ = folder.Path("water.txt");
    std::string saved_;
};

TEST_F(DeletionTest, EachValueAndSetComesBackToItsPlaceWithTheSameBytes) {
    const std::size_t count = Sample().Children().size();
    ASSERT_EQ(count, 7U);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string label = Sample().Children()[i]->Text();
        Delete(*Sample().Children()[i], HasRows(*Sample().Children()[i]));
        EXPECT_EQ(Sample().Children().size(), count - 1);
        EXPECT_FALSE(Globals().Saved);
        EXPECT_EQ(Globals().CurrentKey, "");
        EXPECT_EQ(LiveButtons(), "");
        Shell().mnuUndoDelete.UserClick();
        EXPECT_TRUE(Globals().Saved) << "nothing else has changed";
        EXPECT_EQ(Sample().Children()[i]->Text(), label);
        EXPECT_EQ(Shell().tvwTree.SelectedNode(), Sample().Children()[i].get());
        EXPECT_EQ(SavedAgain(), saved_) << label;
        EXPECT_FALSE(Shell().mnuUndoDelete.Enabled()) << "a save ends it";
    }
}

TEST_F(DeletionTest, WhatIsLeftIsSavedAndAnotherChangeKeepsTheDocumentUnsaved) {
    Delete(*Sample().Children()[0], false);
    EXPECT_EQ(SavedAgain().find("647.096"), std::string::npos);
    Delete(*Sample().Children()[0], false);
    Globals().CurrentS->recZ.Item(std::size_t{1})->PRPVALUE = "323";
    Shell().mnuUndoDelete.UserClick();
    EXPECT_FALSE(Globals().Saved);
    EXPECT_EQ(Sample().Children().size(), 6U);
}

TEST_F(DeletionTest, NoKeepsTheRecordAndItsRows) {
    ui::TreeNode& table = *Sample().Children()[3];
    Click(table);
    for (const ui::Answer toRows : {ui::Answer::Cancel, ui::Answer::No}) {
        const bool asked = toRows == ui::Answer::No;
        desktop.Expect(Sure, asked ? ui::Answer::Yes : ui::Answer::No);
        if (asked) desktop.Expect(DataToo, ui::Answer::No);
        Shell().mnuDelete.UserClick();
    }
    EXPECT_EQ(Sample().Children().size(), 7U);
    EXPECT_TRUE(Globals().Saved);
}

TEST_F(DeletionTest, NothingGoesWithWhatDependsOnIt) {
    ui::TreeNode& source = *Shell().tvwTree.Roots().front();
    const std::pair<ui::TreeNode*, std::string> nodes[] = {
        {&source, Blocked},
        {source.Children().front().get(),
         "This compound cannot be deleted now\nA sample for this compound is described"},
        {&Sample(), Blocked}};
    for (const auto& [node, reason] : nodes) {
        Click(*node);
        desktop.Expect(reason);
        Shell().mnuDelete.UserClick();
    }
    EXPECT_TRUE(Globals().Saved);
    EXPECT_FALSE(Shell().mnuUndoDelete.Enabled());
}

/// Deletes by label and boxes: the two questions are answered with Yes.
template <class Fixture>
class LabelDeletion : public Fixture {
protected:
    void Delete(const std::string& node, const std::vector<std::string>& boxes) {
        this->ClickNode(node);
        for (const std::string& box : boxes)
            this->desktop.Expect(box,
                                 box == Sure || box == DataToo ? ui::Answer::Yes : ui::Answer::Ok);
        this->Shell().mnuDelete.UserClick();
    }
};

/// A reaction before it has data, and one with some, of compounds that nothing else needs.
using ReactionDeletionTest = LabelDeletion<ShellFixture>;
using BioDeletionTest = LabelDeletion<BioShellFixture>;

TEST_F(ReactionDeletionTest, ReactionsKeepTheirCompoundsAndSamples) {
    const std::string head = "^A & O & & & & & &\n";
    const std::string path = WriteDocument(
        "^L 64175 NNNNN &\n^S 1 ns\n^L 10544726 NNNNN &\n^S 1 cm\n^S 2 ns\n^S 3 rs\n"
        "^L 10102440 NNNNN &\n"
        "^Q OTH 64175 7732185 999999994 999999994 N N & & & & 124389 &\n"
        "^q -1 1 & & & & & & 1 & & & & & & &\n"
        "^Q OTH 10544726 10102440 999999994 999999994 Y Y & & & & & &\n" +
        head +
        "^C -1 2 0 0 0 0 0 0 HR S S 1 & & & & & & & & 1 & & & & & & & & & & & & & & & 0 0 0 "
        "0 0 0 0 0 & & & & & & 57 & & &\n" +
        head + "^E -1 2 0 0 0 0 2 & & & & & KP S 1 Y & & & T S\n^D 298.15 0.146 &\n^M 0\n");
    ASSERT_TRUE(Start(path));
    Shell().Save();
    const std::string saved = FileText(path);
    const std::string inData = "You cannot delete this record because properties of reactions "
                               "involving this sample are present";
    Delete("nitrogen dioxide", {Blocked});
    Delete("carbon dioxide", {Blocked});
    Delete("Sample 1 (ns)", {Blocked});
    Delete("Sample 1 (cm)", {inData});
    Delete("Sample 2 (ns)", {inData});
    Delete("dinitrogen tetroxide = 2 nitrogen dioxide", {Blocked});
    EXPECT_TRUE(Globals().Saved);
    const std::pair<const char*, std::vector<std::string>> goes[] = {
        {"Sample 3 (rs)", {Sure}},
        {"^C: Molar enthalpy of reaction (kJ/mol, Set 1)", {Sure}},
        {"^E: Equilibrium constant in terms of partial pressure (1, Set 1)", {Sure, DataToo}},
        {"ethanol = water", {Sure}}};
    for (const auto& [node, boxes] : goes) {
        Delete(node, boxes);
        EXPECT_FALSE(Globals().Saved) << node;
        Shell().mnuUndoDelete.UserClick();
        EXPECT_TRUE(Globals().Saved) << node;
        Shell().Save();
        EXPECT_EQ(FileText(path), saved) << node;
    }
    Delete(goes[1].first, goes[1].second);
    Delete("Sample 1 (cm)", {Blocked}); // the reaction goes on naming it
}

TEST_F(BioDeletionTest, BioSetsKeepTheirCompoundsAndSamplesAndComeBack) {
    const std::string path = WriteBio();
    ASSERT_TRUE(Start(path));
    Shell().Save();
    const std::string saved = FileText(path);
    const std::string inData = "You cannot delete this record because properties of reactions "
                               "involving this sample are present";
    Delete("D-fructose", {Blocked});              // a participant without a sample
    Delete("Sample 1 (cm;;99%,gc)", {inData});    // of the glucose
    Delete("Sample 1 (rs;;99%,gc)", {inData});    // of the substance
    Delete("Sample 1 (cm;;99.9m%,gc)", {inData}); // of the solvent
    Delete("Sample 2 (ns)", {Sure});
    Shell().mnuUndoDelete.UserClick();
    EXPECT_TRUE(Globals().Saved);
    const std::string reaction = "BioReaction 1 (D-glucose = D-fructose)",
                      transition = "BioProperty Set # 1 (lysozyme) from DSC (Native, Denatured)";
    for (const std::string& node : {reaction, transition}) {
        Delete(node, {Sure, DataToo});
        EXPECT_FALSE(Globals().Saved) << node;
        Shell().mnuUndoDelete.UserClick();
        EXPECT_TRUE(Globals().Saved) << node;
        Shell().Save();
        EXPECT_EQ(FileText(path), saved) << node;
    }
    Delete(reaction, {Sure, DataToo});
    Delete("D-fructose", {Sure});
}

TEST_F(ReactionDeletionTest, AHydrateGoesFromItsDataUpAndComesBack) {
    const std::string path = folder.Path("hydrate.txt");
    WriteText(path, HydrateDocument());
    ASSERT_TRUE(Start(path));
    Shell().Save();
    Delete("Gas Hydrate (methane + water)", {Blocked});
    const std::pair<const char*, std::vector<std::string>> goes[] = {
        {"Gas Hydrate Data Set # 1: Phase Equilibrium", {Sure, DataToo}},
        {"^1: Density (CS1,kg/m3), Set 1, ::Method NS ", {Sure, DataToo}},
        {"Crystal Structure # 1", {Sure}},
        {"Sample 1", {Sure}},
        {"Gas Hydrate (methane + water)", {Sure}}};
    for (const auto& [node, boxes] : goes) {
        Shell().Save();
        const std::string saved = FileText(path);
        Delete(node, boxes);
        EXPECT_FALSE(Globals().Saved) << node;
        Shell().mnuUndoDelete.UserClick();
        EXPECT_TRUE(Globals().Saved) << node;
        Shell().Save();
        EXPECT_EQ(FileText(path), saved) << node;
        Delete(node, boxes);
    }
    EXPECT_TRUE(Globals().CurrentR->recComplex.IsEmpty());
}

TEST_F(DeletionTest, FromTheLeavesUpToAnEmptyWorkbenchAndTheSourceBackWithItsFile) {
    while (!Sample().Children().empty())
        Delete(*Sample().Children().back(), HasRows(*Sample().Children().back()));
    ui::TreeNode& source = *Shell().tvwTree.Roots().front();
    const auto thereAndBack = [this](ui::TreeNode& node, bool isCompound = false) {
        constexpr const char* noSample =
            "Some compounds do not have samples.\nThey will not be saved!";
        if (isCompound) desktop.Expect(noSample);
        const std::string before = SavedAgain();
        Delete(node, false);
        Shell().mnuUndoDelete.UserClick();
        EXPECT_TRUE(Globals().Saved);
        if (isCompound) desktop.Expect(noSample);
        EXPECT_EQ(SavedAgain(), before);
    };
    thereAndBack(Sample());
    Delete(Sample(), false);
    thereAndBack(*source.Children().front(), true);
    Delete(*source.Children().front(), false);
    thereAndBack(source);
    Globals().Saved = false;
    Delete(source, false);
    EXPECT_TRUE(Globals().recR.IsEmpty());
    EXPECT_EQ(Shell().FileName, "");
    EXPECT_EQ(LiveButtons(), "AddRef ");
    Shell().mnuUndoDelete.UserClick();
    EXPECT_EQ(Globals().recR.Count(), 1U);
    EXPECT_EQ(Shell().FileName, path_);
    EXPECT_EQ(Globals().CurrentKey, "R");
    EXPECT_FALSE(Globals().Saved) << "nor was it before";
    EXPECT_FALSE(SavedAgain().empty());
}

TEST_F(DeletionTest, ANumberThatWasGivenAwayIsToldAndTheRecordIsKept) {
    const std::string label = Sample().Children()[0]->Text();
    Delete(*Sample().Children()[0], false);
    auto value = std::make_shared<clsZ>();
    value->Load("^z 1 TC K 1 L G & 647.1 & & &");
    value->AttachTo(*Globals().CurrentS);
    desktop.Expect("\"" + label +
                   "\" cannot be put back: its number has been given to another record.");
    Shell().mnuUndoDelete.UserClick();
    EXPECT_EQ(Globals().CurrentS->recZ.Count(), 3U);
    EXPECT_TRUE(Shell().mnuUndoDelete.Enabled());
}

TEST_F(DeletionTest, AnotherDocumentEndsIt) {
    Delete(*Sample().Children()[0], false);
    Globals().Saved = true;
    Shell().tvwTree.UserDrop(path_);
    EXPECT_EQ(Sample().Children().size(), 7U);
    EXPECT_FALSE(Shell().mnuUndoDelete.Enabled());
}

} // namespace vexora::test
