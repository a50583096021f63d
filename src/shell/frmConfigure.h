#pragma once

#include <string>

#include "shell/LookChoice.h"
#include "ui/Form.h"
#include "ui/TextBox.h"

namespace vexora {

/// The configuration of the workplace: who compiles, where the databases are, what is offered. It
/// is always modal. A user who gives up without a usable configuration may end the program; then
/// ProgramEnds of the globals is set, and whoever opened the form acts on it.
class frmConfigure : public ui::Form {
public:
    frmConfigure();

    ui::TextBox txtContributor{*this, "txtContributor"};
    ui::TextBox txtCompiler{*this, "txtCompiler"};
    ui::TextBox txtUserName{*this, "txtUserName"};
    ui::TextBox txtOrg{*this, "txtOrg"};
    ui::TextBox txtLocalDB{*this, "txtLocalDB"};
    ui::TextBox txtCompoundDB{*this, "txtCompoundDB"};
    ui::TextBox txtOutDir{*this, "txtOutDir"};
    ui::Frame fraMode{*this, "fraMode", "Mode"};
    ui::OptionButton optSimple{*this, "optSimple", "Standard"};
    ui::OptionButton optAdvanced{*this, "optAdvanced", "Advanced"};
    ui::Frame fraLook{*this, "fraLook", "Look"};
    ui::OptionButton optLookDesktop{*this, "optLookDesktop", "As the desktop", 1};
    ui::OptionButton optLookLight{*this, "optLookLight", "Light", 1};
    ui::OptionButton optLookDark{*this, "optLookDark", "Dark", 1};
    ui::CheckBox chkBio{*this, "chkBio", "Support Bio properties"};
    ui::CheckBox chkGH{*this, "chkGH", "Support Gas hydrate data"};
    ui::CommandButton cmdHelp{*this, "cmdHelp", "&Help"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "&Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    bool QueryUnload() override;

private:
    void LettersOnly(ui::TextBox& box);
    void PlainText(ui::TextBox& box);

    void cmdAccept_Click();
    bool CheckDatabases();
    bool CheckOutputFolder();
    bool OpenBothDatabases();
    bool CheckUser();
    void Store();
    void ShowLook();
    Look ChosenLook() const;
    void WriteDown() const;
    bool HasConfiguredDatabases() const;

    bool accepted_ = false;
    bool hasOpened_ = false;       // databases that may still be dismissed
    std::string shownOutDir_;      // the folder in force, which may hold for now only
    std::string configuredOutDir_; // the one of VXR.ini
};

/// The words by which a user without a usable configuration is asked whether to leave; true on Yes.
bool AskExitWithoutUser();

} // namespace vexora
