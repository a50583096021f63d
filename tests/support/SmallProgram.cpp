#include "support/SmallProgram.h"

#include "support/PasteByTabs.h"
#include "ui/Forms.h"

namespace vexora::test {

namespace {

/// Lets the script work on a modal form; what it finds afterwards goes into the result.
void OpenModal(frmSmall& small) {
    auto& modal = ui::Forms::Current().Get<frmSmallModal>("frmSmallModal");
    modal.ShowModal();
    AfterModal() = ui::TheDesktop().Files().Link("/no/such/file", "/no/such/name");
    small.lblResult.Caption("modal said " + modal.txtAnswer.Text());
}

class SmallProgram : public host::Program {
public:
    explicit SmallProgram(ui::Desktop& desktop) : forms_(desktop) {
        forms_.Register<frmSmall>("frmSmall");
        forms_.Register<frmSmallModal>("frmSmallModal");
    }
    bool Start(const std::string& commandLine) override {
        auto& form = forms_.Get<frmSmall>("frmSmall");
        form.Show();
        if (!commandLine.empty()) form.Caption(commandLine);
        return true;
    }
    ui::Form* MainForm() override { return forms_.Find("frmSmall"); }
    ui::Forms& Forms() override { return forms_; }

private:
    ui::Forms forms_;
};

} // namespace

std::string& AfterModal() {
    static std::string error;
    return error;
}

frmSmall::frmSmall() : Form("frmSmall", "Small") {
    Arrangement =
        ui::Column({ui::Pages(tabPages, {ui::Column({txtName}), ui::Column({txtSecondPage})})});
    tabPages.Assign({"First", "Second"});
    tabPages.Index(0);
    cboKind.Assign({"solid", "liquid"});
    lstMany.Assign({"red", "green", "blue"});
    txtLocked.Text("fixed");
    txtLocked.Locked(true);
    grdData.Cell(0, 0, "T");
    PasteByTabs(grdData);
    HelpContext = 110;
    auto& root = treDocument.Add(nullptr, "S", "Source");
    treDocument.Add(&root, "C1", "water / ice");
    treDocument.Add(&root, "C2", "benzene");
    treDocument.OnNodeClick = [this](ui::TreeNode& node) { lblResult.Caption(node.Key()); };
    cboUnit.OnDropDown = [this] { cboUnit.Assign({"K", "C"}); };
    mnuSave.OnClick = [this] { lblResult.Caption("saved"); };
    picPlot.OnRelease = [this](double x, double) { lblResult.Caption(x > 50 ? "right" : "left"); };
    cmdAsk.OnClick = [this] { lblResult.Caption(ui::AskYesNo("Really?", "Small") ? "yes" : "no"); };
    cmdTell.OnClick = [] { ui::Say("Two\nlines", "Small"); };
    cmdOpen.OnClick = [this] { OpenModal(*this); };
    cmdFile.OnClick = [this] {
        ui::FileChoice choice;
        choice.save = true;
        choice.proposed = "new.txt";
        lblResult.Caption(ui::TheDesktop().Choose(choice).value_or("no file"));
    };
    cmdInput.OnClick = [this] {
        const auto text = ui::TheDesktop().Ask({"Which?", "Small", "first"});
        lblResult.Caption(text.value_or("no input"));
    };
    WatchName();
}

void frmSmall::WatchName() {
    txtName.OnGotFocus = [this] { Log += "got "; };
    txtName.OnChange = [this] { Log += "change "; };
    txtName.OnLostFocus = [this] {
        Log += "lost";
        lblResult.Caption(Log);
    };
    txtName.OnKey = [this](ui::Key& key) {
        if (key.name == "*") key.swallowed = true;
        if (key.name == ">") {
            key.swallowed = true;
            txtNotes.SetFocus();
        }
    };
}

bool frmSmall::QueryUnload() {
    return ui::AskYesNo("Close it?");
}

frmSmallModal::frmSmallModal() : Form("frmSmallModal", "Modal") {
    DefaultButton = &cmdAccept;
    cmdAccept.OnClick = [this] {
        if (txtAnswer.IsEmpty())
            ui::Say("It is empty.");
        else
            Close();
    };
    cmdAgain.OnClick = [this] { Hide(); };
}

std::unique_ptr<host::Program> MakeSmallProgram(ui::Desktop& desktop) {
    return std::make_unique<SmallProgram>(desktop);
}

SmallPlay PlaySmall(const std::string& lines, host::PlayOptions options) {
    host::Actor actor;
    return PlaySmall(lines, std::move(options), actor);
}

SmallPlay PlaySmall(const std::string& lines, host::PlayOptions options, host::Actor& actor) {
    std::ostringstream out;
    std::ostringstream err;
    host::PosixFileSystem files;
    host::Player player(actor, files, MakeSmallProgram, std::move(options), out, err);
    const bool held = player.Play(host::ParseScript("start\n" + lines, "small.vxs", {}));
    return {held, out.str(), err.str()};
}

} // namespace vexora::test
