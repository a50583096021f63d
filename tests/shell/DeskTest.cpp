// What the window tells beside its controls.

#include "shell/NextStep.h"
#include "shell/NodeWords.h"
#include "shell/ShellFixture.h"
#include "shell/WelcomePage.h"

#include "records/Walk.h"

#include <set>

namespace vexora::test {

class DeskTest : public ShellFixture {
protected:
    /// The next step, and why some buttons and entries are dead.
    std::string Told() {
        std::string told;
        for (const ui::ToolButton* button : Shell().Toolbar1.Buttons())
            if (static_cast<const ui::StepButton*>(button)->IsNext()) told += button->Name() + "! ";
        for (const ui::Captioned* one : std::initializer_list<const ui::Captioned*>{
                 &Shell().AddComp, &Shell().AddMixt, &Shell().AddProp, &Shell().mnuBio})
            told += (one->Enabled() ? "-" : one->WhyDisabled().substr(0, 16)) + "|";
        return told;
    }
};

TEST_F(DeskTest, TheNextStepStandsOutAndADeadButtonSaysWhy) {
    ASSERT_TRUE(Start());
    EXPECT_EQ(Told(),
              "AddRef! Start a document|Start a document|Start a document|Start a document|");
    Shell().OpenFromCommandLine(WriteDocument());
    EXPECT_EQ(Told(), "-|-|Select a sample,|The document hol|");
    ClickNode("water");
    EXPECT_EQ(Told(), "Select the sourc|-|Select a sample,|The document hol|");
    ui::TreeNode& source = *Shell().tvwTree.Roots().front();
    Shell().tvwTree.UserNodeClick(*source.Children().front()->Children().front());
    EXPECT_EQ(Told(), "AddProp! Select the sourc|Select the sourc|-|The document hol|");
    Shell().tvwTree.UserNodeReached(source);
    EXPECT_EQ(Told(), "Press Enter on t|Press Enter on t|Press Enter on t|The document hol|");
    Globals().ReadOnly = true;
    Shell().Enable();
    EXPECT_EQ(Told().substr(0, 16), "This document is");
    Shell().DisableShell();
    EXPECT_EQ(Told().substr(0, 16), "A dialog is open");
}

TEST_F(DeskTest, AnExampleOpensAsACopyThatNeverGoesOverIt) {
    ASSERT_TRUE(Start());
    const std::string own = WriteDocument();
    std::filesystem::create_directories(folder.Path("share/examples"));
    const std::string example = folder.Path("share/examples/water.txt");
    std::filesystem::copy_file(own, example);
    WriteText(folder.Path("share/examples/contents.txt"),
              "gone.txt | Gone | not there\nwater.txt | Water & <ice> | one compound\n");
    Globals().InstalledFolder = folder.Path("share");
    std::string taken;
    Shell().Taken.Connect([&](const std::string& path) { taken += SplitPath(path).Title + "; "; });
    Shell().Refused.Connect([&](const std::string& path) { taken += "not " + path + "; "; });
    const std::string page = LinesOf(Shell().WelcomePage({"/data/2001abc.txt"}));
    EXPECT_NE(page.find("2001abc.txt&nbsp; in /data\n"), page.npos) << page;
    EXPECT_NE(page.find("Each opens as a copy.\nWater &amp; &lt;ice&gt;&nbsp; one compound\n"),
              page.npos)
        << page;

    Shell().FollowLink("example:1"); // one that is not on the page
    Shell().FollowLink("example:0");
    EXPECT_EQ(Shell().WelcomePage({}), "");
    EXPECT_EQ(Shell().lblStatus.Caption(), "Copy of water.txt - not changed - next: Compound, "
                                           "Mixture, Reaction");
    Globals().CurrentR->SOURCEDOC = "O";
    desktop.Choices = {std::nullopt, folder.Path("mine")};
    Shell().Save();
    EXPECT_EQ(desktop.Proposed, "2002WAGPRU1.txt");
    EXPECT_EQ(taken, "");
    Shell().Save();
    EXPECT_EQ(taken, "mine.txt; ");
    EXPECT_EQ(Shell().DocumentName(), "mine.txt");
    EXPECT_EQ(FileText(example), FileText(own));
    desktop.Choices = {folder.Path("mine")};
    Shell().ExportDocument();
    desktop.Expect("The file /none.txt cannot be read.\nNo such file or directory");
    Shell().tvwTree.UserDrop("/none.txt");
    Shell().tvwTree.UserDrop(own);
    EXPECT_EQ(taken, "mine.txt; not /none.txt; paper.txt; ");
}

TEST_F(DeskTest, TheListOfExamplesNamesEachDocument) {
    ASSERT_TRUE(Start());
    Globals().InstalledFolder = VEXORA_SOURCE_DIR;
    std::set<std::string> listed, present{VEXORA_SOURCE_DIR "/examples/contents.txt"};
    for (const ExampleDocument& example : InstalledExamples())
        listed.insert(example.path);
    listed.insert(VEXORA_SOURCE_DIR "/examples/contents.txt");
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(VEXORA_SOURCE_DIR "/examples"))
        if (entry.path().extension() == ".txt") present.insert(entry.path().string());
    EXPECT_EQ(listed, present);
}

TEST_F(DeskTest, TipsSayInWordsWhatLabelsSayInShort) {
    ASSERT_TRUE(Start(VEXORA_SOURCE_DIR "/examples/water/2002wagpru1.txt"));
    std::string told;
    WalkDocument([&](const Record& record) {
        told += IconOfRecord(&record) + ": " + TipOfRecord(&record) + "\n";
    });
    const std::string method = ", set 1, Calculated from the authors' equation of state";
    EXPECT_EQ(told, "source: \ncompound: Compound water, H2O, 7732-18-5\nsample: \n"
                    "value: Critical temperature, Liquid + Gas, K" +
                        method + "\nvalue: Critical pressure, Liquid + Gas, MPa" + method +
                        "\nvalue: Critical density, Liquid + Gas, kg/m3" + method +
                        "\nset: Vapor or sublimation pressure, Liquid + Gas, MPa" + method +
                        ", 3 rows\nset: Density, Liquid + Gas, kg/m3" + method +
                        ", 3 rows\nset: Density, Fluid, kg/m3" + method +
                        ", 11 rows\nset: Speed of sound, Fluid, m/s" + method + ", 11 rows\n");
}

TEST(Paths, ANameWithoutAnEndingGetsOne) {
    const std::pair<const char*, const char*> cases[] = {
        {"/a/2002wag", "/a/2002wag.txt"},   {"/a.b/2002wag", "/a.b/2002wag.txt"},
        {"/a/wag v1.2", "/a/wag v1.2.txt"}, {"/a/wag. et al", "/a/wag. et al.txt"},
        {"/a/wag.rec", "/a/wag.rec"},       {"/a/wag.", "/a/wag.txt"},
        {"/a/.hidden", "/a/.hidden.txt"},   {"/a/", "/a/"}};
    for (const auto& [typed, whole] : cases)
        EXPECT_EQ(WithEnding(typed, ".txt"), whole);
}

} // namespace vexora::test
