#include "shell/ShellFixture.h"

namespace vexora::test {

class LongWorkTest : public ShellFixture {
protected:
    LongWorkTest() {
        std::string samples;
        for (int n = 2; n <= 1200; ++n) // more lines than pass between two words
            samples += "^S " + std::to_string(n) + " &\n";
        paper_ = WriteDocument(samples);
        other_ = folder.Path("other.txt");
        WriteText(other_, FileText(paper_));
    }
    std::string paper_, other_;
};

TEST_F(LongWorkTest, AReadThatIsStoppedLeavesTheDocumentThatWasOpen) {
    ASSERT_TRUE(Start(paper_));
    Globals().Saved = false;
    const clsR* const source = Globals().CurrentR.get();
    desktop.Stops = "Reading other.txt";
    desktop.Choices = {other_};
    desktop.Expect("Do you want to save your work?", ui::Answer::No);
    Shell().OpenDocument();
    EXPECT_EQ(Globals().CurrentR.get(), source);
    EXPECT_EQ(Shell().FileTitle(), "paper.txt");
    EXPECT_FALSE(Globals().Saved);
    EXPECT_EQ(Shell().tvwTree.Roots().front()->Children().front()->Children().size(), 1200U);
    EXPECT_EQ(desktop.Works, (std::vector<std::string>{"Reading paper.txt", "Reading other.txt"}));
}

TEST_F(LongWorkTest, WhatIsStoppedWritesNothing) {
    ASSERT_TRUE(Start(paper_));
    const std::string before = FileText(paper_);
    Globals().Saved = false;
    desktop.Stops = "Saving";
    Shell().Save();
    EXPECT_FALSE(Globals().Saved);
    EXPECT_EQ(FileText(paper_), before);
    EXPECT_FALSE(std::filesystem::exists(paper_ + ".bak"));

    const std::string target = folder.Path("paper.xml");
    WriteText(target, "as it was");
    desktop.Stops = "Exporting";
    desktop.Choices = {target};
    desktop.Expect("File paper.xml exists\nDo you want to re-write paper.xml?", ui::Answer::Yes);
    Shell().ExportDocument();
    EXPECT_EQ(FileText(target), "as it was");
    EXPECT_TRUE(Shell().mnuFile.Enabled());

    desktop.Stops = "Checking";
    Shell().mnuCheck.UserClick(); // its report, a modal form, is not announced
    EXPECT_EQ(desktop.Works.back(), "Checking the document");

    desktop.Stops.clear();
    Shell().Save();
    EXPECT_TRUE(Globals().Saved);
    EXPECT_EQ(FileText(paper_ + ".bak"), before);
}

} // namespace vexora::test
