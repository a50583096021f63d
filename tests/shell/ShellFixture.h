// A workbench on a home of its own whose user is known already, with a desktop on which every box,
// question, chooser and modal form must have been announced.
#pragma once

#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/clsR.h"
#include "shell/Workbench.h"
#include "shell/frmMain.h"
#include "support/FailingFileSystem.h"
#include "support/ScratchFolder.h"
#include "support/StrictDesktop.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>

namespace vexora::test {

inline std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteText(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

/// The lines of a page without its marks.
inline std::string LinesOf(const std::string& html) {
    std::string text;
    bool isMark = false;
    for (const char c : html) {
        if (c == '<' || c == '>') isMark = c == '<';
        if (!isMark && c != '>') text += c;
    }
    return text;
}

class ShellDesktop : public StrictDesktop {
public:
    using StrictDesktop::StrictDesktop;
    ~ShellDesktop() override {
        if (!Choices.empty()) ADD_FAILURE() << "a chooser was never shown";
    }

    /// Long works that a person stops at once begin with this; none when empty.
    std::string Stops;
    std::vector<std::string> Works; // all that have begun

    std::unique_ptr<ui::Progress> Begin(const ui::LongWork& work) override {
        class Stopping : public ui::Progress {
        public:
            bool Reached(double) override { return false; }
        };
        Works.push_back(work.what + (work.mayStop ? "" : " to its end"));
        if (Stops.empty() || !work.what.starts_with(Stops)) return StrictDesktop::Begin(work);
        EXPECT_TRUE(work.mayStop);
        return std::make_unique<Stopping>();
    }

    std::deque<std::optional<std::string>> Choices;
    std::string Proposed; // what the last chooser proposed
    std::function<void(ui::Form&)> InModal;

    std::optional<std::string> Choose(const ui::FileChoice& choice) override {
        Proposed = choice.proposed;
        if (Choices.empty()) return StrictDesktop::Choose(choice);
        const auto path = Choices.front();
        Choices.pop_front();
        return path;
    }
    void RunModal(ui::Form& form) override {
        if (InModal)
            InModal(form);
        else
            StrictDesktop::RunModal(form);
    }
};

class ShellFixture : public testing::Test {
protected:
    ShellFixture() {
        for (const char* name : {"VXRLocal.mdb", "VXR.mdb"})
            std::filesystem::copy_file(std::filesystem::path(VEXORA_SHARE_DIR) / name,
                                       folder.Path(name));
        WriteText(folder.Path("VXR.ini"), "COMPILER ABC\nXMLCOMPILER Ann\nORGANIZATION Lab\n");
    }

    /// Runs start-up with the question for the name.
    bool Start(const std::string& commandLine = {}) {
        desktop.ExpectInput("Enter your name:", "");
        const bool runs = workbench.Start(commandLine);
        if (Globals().CurrentR) Globals().CurrentR->SOURCEDOC = "O"; // a save asks for it otherwise
        return runs;
    }
    frmMain& Shell() { return workbench.Forms().Get<frmMain>("frmMain"); }

    /// A document of one compound with one sample.
    std::string WriteDocument(const std::string& more = {}) {
        const std::string path = folder.Path("paper.txt");
        WriteText(path, "\n^R 2002 WAG PRU 1\n^L 7732185 NNNNN &\n^S 1 &\n" + more);
        return path;
    }
    void ClickNode(const std::string& text) {
        for (const auto& root : Shell().tvwTree.Roots())
            ClickBelow(*root, text);
    }
    /// The labels of what the search leaves, without those above.
    std::string Found(const std::string& words) {
        Shell().txtFind.Text(words);
        std::string found;
        const std::function<bool(const ui::TreeNode&)> gather = [&](const ui::TreeNode& node) {
            if (node.Hidden()) return false;
            bool below = false;
            for (const auto& child : node.Children())
                below = gather(*child) || below;
            if (!below) found += node.Text().substr(0, 10) + "|";
            return true;
        };
        for (const auto& root : Shell().tvwTree.Roots())
            gather(*root);
        return found;
    }
    /// Keys of the toolbar buttons that can be pressed.
    std::string LiveButtons() {
        std::string keys;
        for (const ui::ToolButton* button : Shell().Toolbar1.Buttons()) {
            if (button->IsUsable()) keys += button->Name() + " ";
        }
        return keys;
    }

    ScratchFolder folder;
    FailingFileSystem files;
    ShellDesktop desktop{&files};
    Workbench workbench{desktop, {folder.Path(), {}}};

private:
    void ClickBelow(ui::TreeNode& node, const std::string& text) {
        if (node.Text() == text) return Shell().tvwTree.UserNodeClick(node);
        for (const auto& child : node.Children())
            ClickBelow(*child, text);
    }
};

} // namespace vexora::test
