#include "records/clsBP.h"
#include "records/clsComplexSample.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsTwo.h"
#include "shell/BioShellFixture.h"

namespace vexora::test {

/// Stands for a dialog of the chain; helpers like frmSelect take no part in it.
class FakeDialog : public ui::Form {
public:
    FakeDialog(std::string name, bool inChain) : Form(std::move(name), ""), inChain_(inChain) {}
    void Unload() override {
        if (inChain_) CloseForm();
    }

private:
    bool inChain_;
};

class ToolbarTest : public ShellFixture {
protected:
    void Fake(const std::string& name, bool inChain = true) {
        workbench.Forms().Register(
            name, [name, inChain] { return std::make_unique<FakeDialog>(name, inChain); });
    }
    void FakeAll() {
        for (const char* name :
             {"frmDocument", "frmSubst", "frmComplex", "frmSample", "frmComplexSample", "frmMixt",
              "frmReact", "frmProperty", "frmSingle", "frmProcess", "frmMixtSingle", "frmChanged",
              "frmCrStruct", "frmTwo", "frmBioProp", "frmBioReact", "frmGH"})
            Fake(name);
        Fake("frmSelect", false);
    }
    std::string LiveAt(const std::string& key) {
        Globals().CurrentKey = key;
        Shell().Enable();
        return LiveButtons();
    }
    bool IsOpen(const std::string& name) { return workbench.Forms().Find(name) != nullptr; }
};

TEST_F(ToolbarTest, EachNodeOffersItsButtons) {
    FakeAll();
    ASSERT_TRUE(Start(WriteDocument()));
    Globals().GHEnabled = true;
    Shell().AddComplex.Visible(true);
    Shell().AddBio.Visible(true);
    EXPECT_EQ(LiveAt("R"), "AddComp AddComplex AddMixt AddReact AddBio ");
    EXPECT_EQ(LiveAt("RL"), "AddSample AddMixt AddReact AddBio ");
    EXPECT_EQ(LiveAt("RX"), "AddSample AddReact AddBio ");
    EXPECT_EQ(LiveAt("RM"), "AddProp AddTable AddBio ");
    EXPECT_EQ(LiveAt("RLS"), "AddProp AddTable AddBio ");
    EXPECT_EQ(LiveAt("RQ"), "AddProp AddBio ");
    EXPECT_EQ(LiveAt("RXS"), "AddProp AddBio ");
    EXPECT_EQ(LiveAt("RLSZ"), "AddBio ");
    EXPECT_EQ(LiveAt(""), "AddBio ");
    Globals().CurrentR->recL.Clear();
    EXPECT_EQ(LiveAt("R"), "AddComp AddBio ");
    Shell().NewProc();
    EXPECT_EQ(LiveButtons(), "AddRef ");
}

TEST_F(ToolbarTest, TheToolsThatAreSwitchedOffStayOff) {
    ASSERT_TRUE(Start(WriteDocument()));
    Shell().DisableShell();
    Shell().Enable();
    EXPECT_TRUE(Shell().mnuToolsConfigure.IsReachable());
    EXPECT_FALSE(Shell().mnuDetect.Enabled()) << "without a mixture";
    EXPECT_FALSE(Shell().mnuMerge.Enabled() || Shell().mnuInvert.Enabled() ||
                 Shell().mnuBio.Enabled() || Shell().mnuPreLoad.Enabled());
    EXPECT_FALSE(Shell().AddBio.Visible() || Shell().AddComplex.Visible());
}

TEST_F(ToolbarTest, TheKeyboardLeavesTheToolbarDeadUntilAMouseClick) {
    FakeAll();
    ASSERT_TRUE(Start(WriteDocument()));
    ui::TreeNode& compound = *Shell().tvwTree.Roots().front()->Children().front();
    Shell().tvwTree.UserNodeReached(compound);
    EXPECT_EQ(LiveButtons(), "");
    desktop.Expect("Please select the node with a mouse before editing");
    Shell().mnuEditNode.UserClick();
    Shell().tvwTree.UserNodeClick(compound);
    EXPECT_EQ(Globals().CurrentKey, "RL");
    EXPECT_EQ(LiveButtons(), "AddSample AddMixt AddReact ");
}

TEST_F(ToolbarTest, ACancelledDialogLeavesSelectionAndToolbarAsBefore) {
    FakeAll();
    ASSERT_TRUE(Start(WriteDocument()));
    Shell().AddComp.UserClick();
    EXPECT_TRUE(IsOpen("frmSubst") && Globals().ShellLocked);
    EXPECT_EQ(LiveButtons(), "");
    EXPECT_FALSE(Shell().New.IsReachable());
    workbench.Forms().Get("frmSubst").Close();
    EXPECT_EQ(Globals().CurrentKey, "R");
    EXPECT_EQ(LiveButtons(), "AddComp AddMixt AddReact ");
    EXPECT_TRUE(Globals().Saved && Globals().OpenForms.empty());
}

TEST_F(ToolbarTest, AnAcceptedDialogMakesTheDocumentUnsavedOnce) {
    FakeAll();
    const std::string path = WriteDocument();
    ASSERT_TRUE(Start(path));
    Shell().AddComp.UserClick();
    Globals().DialogAccepted = true;
    workbench.Forms().Get("frmSubst").Close();
    EXPECT_FALSE(Globals().Saved);
    Shell().Save();
    Shell().Activate();
    EXPECT_TRUE(Globals().Saved);
}

TEST_F(ToolbarTest, AChainEndsWithALiveShellInBothModes) {
    FakeAll();
    ASSERT_TRUE(Start(WriteDocument()));
    for (const bool advanced : {false, true}) {
        Globals().AdvancedMode = advanced;
        Shell().AddComp.UserClick();
        LeadOn("frmSubst", "frmSample");
        EXPECT_TRUE(IsOpen("frmSample") && Globals().ShellLocked);
        workbench.Forms().Get("frmSample").Close();
        EXPECT_EQ(IsOpen("frmSubst"), advanced);
        if (advanced) workbench.Forms().Get("frmSubst").Close();
        EXPECT_TRUE(Globals().OpenForms.empty());
        EXPECT_FALSE(Globals().ShellLocked);
        EXPECT_EQ(LiveButtons(), "AddComp AddMixt AddReact ");
    }
}

TEST_F(ToolbarTest, EveryStopLeavesTheShellLive) {
    FakeAll();
    ASSERT_TRUE(Start(WriteDocument("^L 64175 NNNNN &\n")));
    Shell().tvwTree.UserNodeClick(*Shell().tvwTree.Roots().front()->Children().back());
    desktop.Expect("A SAMPLE description for a reaction participant must be provided first | "
                   "SAMPLE description needed");
    Shell().AddReact.UserClick();
    EXPECT_FALSE(Globals().ShellLocked);
    EXPECT_EQ(Globals().CurrentKey, "RL");

    auto& compound = *Shell().tvwTree.Roots().front()->Children().front();
    Shell().tvwTree.UserNodeClick(*compound.Children().front());
    desktop.InModal = [](ui::Form& form) { form.Close(); };
    Shell().AddTable.UserClick();
    EXPECT_FALSE(Globals().ShellLocked || IsOpen("frmProcess"));
    EXPECT_EQ(Globals().CurrentKey, "RLS");

    desktop.InModal = [](ui::Form& form) {
        Globals().DialogAccepted = true;
        form.Close();
    };
    Shell().AddTable.UserClick();
    EXPECT_TRUE(IsOpen("frmProcess") && Globals().ShellLocked);
}

TEST_F(ToolbarTest, TheChosenKindOfBioDataOpensItsDialogAndNoChoiceLeavesTheSelection) {
    FakeAll();
    Globals().BioEnabled = true;
    ASSERT_TRUE(Start(WriteDocument()));
    Shell().AddBio.Visible(true);
    ClickNode("water");
    std::string key;
    int kind = -1;
    desktop.InModal = [&](ui::Form& form) {
        key = Globals().CurrentKey;
        constexpr const char* kinds[] = {"Bio Property from DSC (in solution)",
                                         "Bio Substance Solubility", "Bio Reaction"};
        Globals().DialogAccepted = kind >= 0;
        if (kind >= 0) Globals().TableKind = kinds[kind];
        form.Close();
    };
    Shell().AddBio.UserClick();
    EXPECT_EQ(key, "");
    EXPECT_EQ(Globals().CurrentKey + " " + Globals().DataContext, "RL Pure");
    EXPECT_TRUE(Globals().Saved && !Globals().ShellLocked);
    const std::pair<const char*, const char*> opened[] = {
        {"frmBioProp", "D"}, {"frmBioProp", "S"}, {"frmBioReact", ""}};
    for (const auto& [dialog, type] : opened) {
        ++kind;
        Shell().AddBio.UserClick();
        ASSERT_TRUE(IsOpen(dialog) && Globals().ShellLocked);
        EXPECT_EQ(Globals().BioType + Globals().DataContext, std::string(type) + "Bio");
        EXPECT_EQ(Globals().CurrentKey, "");
        workbench.Forms().Get(dialog).Close();
        EXPECT_EQ(Globals().CurrentKey, "RL") << "the selection stays";
        EXPECT_TRUE(Globals().Saved);
    }
}

TEST_F(ToolbarTest, TheChosenKindOfDataOfAHydrateOpensItsDialog) {
    FakeAll();
    const std::string path = folder.Path("hydrate.txt");
    WriteText(path, HydrateDocument());
    ASSERT_TRUE(Start(path));
    auto& sample = *Globals().CurrentR->recComplex.Item(std::size_t{1})->recS.Item(1);
    ui::TreeNode& node = *sample.tNode;
    std::string kind;
    desktop.InModal = [&](ui::Form& form) {
        Globals().DialogAccepted = true;
        Globals().TableKind = kind;
        form.Close();
    };
    const std::tuple<const char*, const char*, const char*> opened[] = {
        {"Bulk property", "frmProperty", ""},
        {"Phase equilibrium", "frmGH", "G"},
        {"Crystal structure", "frmCrStruct", ""},
        {"Decomposition thermodynamics", "frmReact", ""}};
    for (const auto& [chosen, dialog, type] : opened) {
        kind = chosen;
        Shell().tvwTree.UserNodeClick(node);
        Shell().AddProp.UserClick();
        ASSERT_TRUE(IsOpen(dialog)) << chosen;
        EXPECT_EQ(Globals().BioType + " " + Globals().DataContext, std::string(type) + " Complex");
        workbench.Forms().Get(dialog).Close();
        EXPECT_EQ(Globals().CurrentKey, "RXS");
    }
    sample.Components[0].content.value.clear();
    desktop.Expect("Please set the composition");
    Shell().AddProp.UserClick();
    EXPECT_FALSE(IsOpen("frmReact") || Globals().ShellLocked);
    EXPECT_EQ(Globals().CurrentKey, "RXS");
}

TEST_F(ToolbarTest, ASetOfAHydrateIsBegunAnewInItsDialog) {
    FakeAll();
    const std::string path = folder.Path("hydrate.txt");
    WriteText(path, HydrateDocument());
    ASSERT_TRUE(Start(path));
    auto& sample = *Globals().CurrentR->recComplex.Item(std::size_t{1})->recS.Item(1);
    Shell().tvwTree.UserNodeClick(*sample.recTwo.Item(std::size_t{1})->tNode);
    Shell().mnuNewLike.UserClick();
    EXPECT_TRUE(IsOpen("frmTwo"));
    EXPECT_EQ(Globals().SetToRepeat, sample.recTwo.Item(std::size_t{1}));
    EXPECT_EQ(Globals().BioSetToRepeat, nullptr);
    workbench.Forms().Get("frmTwo").Close();
    Globals().BioType.clear();
    Shell().tvwTree.UserNodeClick(*sample.recBP.Item(std::size_t{1})->tNode);
    Shell().mnuNewLike.UserClick();
    EXPECT_TRUE(IsOpen("frmGH"));
    EXPECT_EQ(Globals().BioSetToRepeat, sample.recBP.Item(std::size_t{1}));
    EXPECT_EQ(Globals().BioType, "G");
}

TEST_F(ToolbarTest, AnEditRunsModallyUnderItsFlagAndRefreshesTheNode) {
    FakeAll();
    ASSERT_TRUE(Start(WriteDocument()));
    ui::TreeNode& compound = *Shell().tvwTree.Roots().front()->Children().front();
    std::string seen;
    desktop.InModal = [&seen](ui::Form& form) {
        seen = form.Name() + (Globals().EditCompound ? " editing" : "");
        CurrentCompound()->Name = "ice"; // accepted unchanged it would stay saved
        Globals().DialogAccepted = true;
        form.Close();
    };
    compound.Text("stale");
    Shell().tvwTree.UserNodeDoubleClick(compound);
    EXPECT_EQ(seen, "frmSubst editing");
    EXPECT_NE(compound.Text(), "stale");
    EXPECT_FALSE(Globals().EditCompound || Globals().Saved || Globals().DialogAccepted);
}

TEST_F(ToolbarTest, ASourceFromTheReferenceDatabaseIsNotEdited) {
    FakeAll();
    ASSERT_TRUE(Start(WriteDocument()));
    Shell().tvwTree.UserNodeDoubleClick(*Shell().tvwTree.Roots().front());
    EXPECT_FALSE(IsOpen("frmDocument"));
    EXPECT_FALSE(Globals().ShellLocked);
}

} // namespace vexora::test
