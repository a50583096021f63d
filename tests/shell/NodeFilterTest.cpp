#include "shell/ShellFixture.h"

#include <utility>

namespace vexora::test {

class NodeFilterTest : public ShellFixture {
protected:
    /// The labels of nodes shown below which none is, in short.
    std::string Found(const std::string& words) {
        Shell().txtFind.Text(words);
        std::string found;
        for (const auto& root : Shell().tvwTree.Roots())
            Gather(*root, found);
        return found;
    }

private:
    bool Gather(const ui::TreeNode& node, std::string& found) {
        if (node.Hidden()) return false;
        bool below = false;
        for (const auto& child : node.Children())
            below = Gather(*child, found) || below;
        if (!below) found += (found.empty() ? "" : "|") + node.Text().substr(0, 12);
        return true;
    }
};

TEST_F(NodeFilterTest, WordsFindWhatLabelsAndRecordsHold) {
    ASSERT_TRUE(Start(WriteDocument("^A & O C & AB CD 1/15/2026 ::Method:CALCEOS:\n"
                                    "^z 1 TC S 1 L G & 647.096 & & &\n"
                                    "^A & O C & AB CD 1/15/2026 :: \n"
                                    "^1 1 VDN S DIR 1\tC L & FP S & & &\n"
                                    "^d 275 999.9 &\n^d 300 996.6 &\n^M 0\n"
                                    "^L 64175 NNNNN &\n^S 1 &\n")));
    const std::string whole = Found("");
    const std::string critical = "^0: Critical", density = "^1: Density ";
    const std::pair<const char*, std::string> cases[] = {
        {"ETHANOL", "ethanol"},
        {"7732-18-5", "water"},
        {"64175", "ethanol"},
        {"h2o", "water"},
        {"critical", critical},
        {"equation", critical}, // of state, its method
        {"kg/m3", density},
        {"temperature 275", density}, // a variable and its value
        {"647.096", critical},
        {"647", critical},
        {"647.0960", critical}, // the same number
        {"47.096", ""},         // no other number is
        {"298..300", density},
        {"276..299", ""},
        {">996.6", density},
        {">=647.096 critical", critical},
        {">999.9", ""},
        {"<275", ""},
        {"<=275", density},
        {"..275", density},
        {"water density", density}, // the water stands above
        {"ethanol density", ""},
        {"water", "water"},
        {"nothing", ""},
        {"sample", "Sample 1 ()|Sample 1 ()"},
        // One that is still being typed asks for nothing yet.
        {">", whole},
        {"density >", density},
        {"  ", whole},
        {"a..b", ""},
    };
    for (const auto& [words, found] : cases)
        EXPECT_EQ(Found(words), found) << words;
}

TEST_F(NodeFilterTest, WhatTheFilterHidesIsNotCurrent) {
    ASSERT_TRUE(Start(WriteDocument()));
    ClickNode("water");
    EXPECT_EQ(LiveButtons(), "AddSample AddMixt AddReact ");
    Shell().txtFind.Text("sample");
    EXPECT_EQ(LiveButtons(), "AddSample AddMixt AddReact "); // it leads to what was found
    Shell().txtFind.Text("nothing");
    EXPECT_EQ(LiveButtons(), "");
    desktop.Expect("Please select the node with a mouse before editing");
    Shell().mnuDelete.UserClick();
    Shell().txtFind.Text("");
    EXPECT_EQ(LiveButtons(), "AddSample AddMixt AddReact ");
    Shell().txtFind.Text("nothing"); // another document is shown whole
    Globals().Saved = true;
    EXPECT_TRUE(Shell().NewProc());
    EXPECT_EQ(Shell().txtFind.Text(), "");
    EXPECT_FALSE(Shell().tvwTree.IsFiltered());
}

TEST_F(NodeFilterTest, TheMenuOfANodeRepeatsWhatIsOfferedForIt) {
    ASSERT_TRUE(Start(WriteDocument("^A & O C & AB CD 1/15/2026 :: \n"
                                    "^1 1 VDN S DIR 1\tC L & FP S & & &\n^d 275 999.9 &\n^M 0\n")));
    const auto offers = [this](const std::string& label) {
        ClickNode(label);
        std::string names;
        for (const ui::Captioned* offer : Shell().tvwTree.Offers())
            names += offer == nullptr ? "- " : offer->Name() + " ";
        return names;
    };
    EXPECT_EQ(offers("water"), "AddSample AddMixt AddReact - mnuEditNode mnuExpandNode mnuDelete ");
    const std::string set =
        Shell().tvwTree.Roots()[0]->Children()[0]->Children()[0]->Children()[0]->Text();
    EXPECT_EQ(offers(set), "mnuEditNode mnuNewLike mnuExpandNode mnuDelete ");
    Globals().Saved = true;
    Shell().NewProc();
    EXPECT_EQ(offers("water"), "AddRef ");
}

} // namespace vexora::test
