// What records need around them: a strict desktop, the globals, a tree, and the built databases
// (the one that is written to as a copy of its own).
#pragma once

#include "globals/KVOGlobal.h"
#include "reference/ReferenceFixture.h"
#include "support/StrictDesktop.h"
#include "ui/Form.h"
#include "ui/Forms.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace vexora::test {

class DocumentFixture : public testing::Test {
protected:
    DocumentFixture() {
        const std::filesystem::path shared = VEXORA_SHARE_DIR;
        const std::string compounds = folder.File("VXR.mdb");
        std::filesystem::copy_file(shared / "VXR.mdb", compounds);
        const auto error =
            globals.Databases.OpenBoth((shared / "VXRLocal.mdb").string(), compounds);
        EXPECT_EQ(error.value_or(""), "");
        globals.tvwTree = &form.tvwTree;
    }

    /// The texts of all nodes, each indented by its depth.
    std::string Tree() const {
        std::string text;
        for (const auto& root : form.tvwTree.Roots())
            AppendNode(*root, 0, text);
        return text;
    }

    TemporaryFolder folder;
    StrictDesktop desktop;
    ui::Forms forms{desktop};

    struct TreeForm : ui::Form {
        TreeForm() : Form("frmTree", "") {}
        ui::TreeView tvwTree{*this, "tvwTree"};
    } form;

    KVOGlobal globals;

private:
    static void AppendNode(const ui::TreeNode& node, std::size_t depth, std::string& text) {
        text += std::string(2 * depth, ' ') + node.Text() + "\n";
        for (const auto& child : node.Children())
            AppendNode(*child, depth + 1, text);
    }
};

} // namespace vexora::test
