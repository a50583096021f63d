#include <set>

#include "records/RecordReader.h"
#include "shell/ShellFixture.h"

namespace vexora::test {

namespace {

/// A person who accepts what every form shows.
class AcceptingDesktop : public ShellDesktop {
public:
    using ShellDesktop::ShellDesktop;
    std::function<void(ui::Form&)> First; // done in the next form before it is accepted
    std::set<std::string> Accepted;

    ui::Answer Show(const ui::Message& message) override {
        const bool isTied = message.text.find("tied") != std::string::npos;
        return message.buttons == ui::MessageButtons::Ok || isTied ? message.safe : ui::Answer::Yes;
    }
    std::optional<std::string> Ask(const ui::Input&) override { return ""; }
    void RunModal(ui::Form& form) override {
        if (First) std::exchange(First, {})(form);
        for (const char* name : {"cmdAccept", "cmdSave", "cmdOK", "cmdFinish", "cmdCancel"}) {
            auto* const button = dynamic_cast<ui::CommandButton*>(form.Find(name));
            if (button && button->IsUsable() && form.IsVisible()) button->UserClick();
        }
        if (form.IsOpen()) form.Close();
        if (Globals().DialogAccepted && form.Name() != "frmUnc") Accepted.insert(form.Name());
    }
};

struct Example {
    const char* file;
    const char* forms; // accepted in it; a star: the word put in is a change of the record
};

void Gather(const std::vector<std::unique_ptr<ui::TreeNode>>& nodes,
            std::vector<ui::TreeNode*>& into) {
    for (const auto& node : nodes) {
        into.push_back(node.get());
        Gather(node->Children(), into);
    }
}

class UnchangedEdit : public testing::TestWithParam<Example> {
protected:
    UnchangedEdit() {
        for (const char* name : {"VXRLocal.mdb", "VXR.mdb"})
            std::filesystem::copy_file(std::filesystem::path(VEXORA_SHARE_DIR) / name,
                                       folder_.Path(name));
        WriteText(folder_.Path("VXR.ini"),
                  "COMPILER ABC\nXMLCOMPILER Ann\nORGANIZATION Lab\nBio\nGH\n");
        WriteText(folder_.Path("paper.txt"),
                  FileText(std::string(VEXORA_SOURCE_DIR "/examples/") + GetParam().file));
        EXPECT_TRUE(workbench_.Start(folder_.Path("paper.txt")));
    }
    frmMain& Shell() { return workbench_.Forms().Get<frmMain>("frmMain"); }

    ScratchFolder folder_;
    FailingFileSystem files_;
    AcceptingDesktop desktop_{&files_};
    Workbench workbench_{desktop_, {folder_.Path(), {}}};
};

} // namespace

// Every form is looked at and accepted as it stands, then again after a word was put into it.
TEST_P(UnchangedEdit, IsNothingToSave) {
    std::vector<ui::TreeNode*> nodes;
    Gather(Shell().tvwTree.Roots(), nodes);
    ASSERT_TRUE(Globals().Saved);
    std::set<std::string> changing;
    for (ui::TreeNode* node : nodes) {
        const std::string label = node->Text(), before = DocumentInMemory();
        std::string form;
        desktop_.First = [&](ui::Form& opened) { form = opened.Name(); };
        Shell().tvwTree.UserNodeClick(*node);
        Shell().tvwTree.OnNodeDoubleClick(*node);
        workbench_.Forms().DropClosed();
        desktop_.First = {};
        EXPECT_EQ(Globals().Saved, before == DocumentInMemory()) << form << " " << label;
        EXPECT_TRUE(Globals().Saved) << form << " " << label;
        Globals().Saved = true;
        std::string changed;
        desktop_.First = [&](ui::Form& opened) {
            for (const char* name : {"txtTitle", "txtComment", "txtSmplDescription", "txtName"}) {
                auto* const box = dynamic_cast<ui::TextBox*>(opened.Find(name));
                if (!changed.empty() || box == nullptr || !box->IsUsable()) continue;
                changed = name;
                box->UserPaste(" more");
            }
        };
        const std::string present = DocumentInMemory();
        Shell().tvwTree.OnNodeDoubleClick(*node);
        workbench_.Forms().DropClosed();
        desktop_.First = {};
        EXPECT_EQ(Globals().Saved, present == DocumentInMemory())
            << form << " " << label << " " << changed;
        if (!Globals().Saved) changing.insert(form);
        Globals().Saved = true;
        if (HasFailure()) return;
    }
    std::string forms;
    for (const std::string& form : desktop_.Accepted)
        forms += form + (changing.contains(form) ? "* " : " ");
    EXPECT_EQ(forms, GetParam().forms);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, UnchangedEdit,
    testing::Values(
        Example{"water/2002wagpru1.txt",
                "frmData2 frmDocument* frmSample frmSingle* frmSubst frmTwo* "},
        Example{"ethanol_water/1932carlew1.txt",
                "frmData2 frmDocument* frmMixtSingle* frmMixtVar* frmSample frmSubst "},
        Example{"reactions/2026com1.txt",
                "frmChanged frmData2 frmDocument* frmEquil frmReact frmSample frmSubst "},
        Example{"bio/2026com1.txt",
                "frmBioData frmBioProp* frmBioReact* frmDocument* frmSample frmSubst "},
        Example{"hydrates/2026com1.txt",
                "frmBioData frmChanged frmComplex frmComplexSample* frmCrStruct frmDocument* "
                "frmGH* frmReact frmSample frmSubst "}));

} // namespace vexora::test
