#include "shell/frmConfigure.h"

#include "globals/KVOGlobal.h"
#include "reference/Text.h"
#include "reference/Transliteration.h"
#include "shell/Configuration.h"
#include "shell/Paths.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr int HelpOfBio = 145;

bool AskExitWithoutDatabases() {
    return ui::AskYesNo("Invalid file or directory\n"
                        "Program cannot run without valid databases\n"
                        "Do you want to exit?");
}

} // namespace

bool AskExitWithoutUser() {
    return ui::AskYesNo("User not initialized\n"
                        "Program cannot run without user initialization\n"
                        "Do you want to exit?");
}

frmConfigure::frmConfigure() : Form("frmConfigure", "Vexora Input: Configuration") {
    Arrangement = ui::Column(
        {ui::Column({ui::Field("Contributor:", txtContributor),
                     ui::Field("Your initials:", txtCompiler), ui::Field("User name:", txtUserName),
                     ui::Field("Organization:", txtOrg),
                     ui::Field("VXR local database:", txtLocalDB),
                     ui::Field("Configuration database:", txtCompoundDB),
                     ui::Field("Output folder:", txtOutDir)}),
         ui::Group(fraMode, {ui::Row({optSimple, optAdvanced})}),
         ui::Group(fraLook, {ui::Row({optLookDesktop, optLookLight, optLookDark})}), chkBio, chkGH,
         ui::Stretch(), ui::ButtonRow({cmdHelp, cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel, [this] { cmdAccept_Click(); });
    HelpContext = 610;
    PreferredColumns = 70;
    txtContributor.Visible(false);
    txtCompiler.Visible(false);
    txtContributor.OnChange = [this] { LettersOnly(txtContributor); };
    txtCompiler.OnChange = [this] { LettersOnly(txtCompiler); };
    txtUserName.OnChange = [this] { PlainText(txtUserName); };
    txtOrg.OnChange = [this] { PlainText(txtOrg); };
    cmdHelp.OnClick = [this] { ui::TheDesktop().ShowHelp(HelpContext); };
}

void frmConfigure::Load() {
    const KVOGlobal& globals = Globals();
    FindDatabases();
    shownOutDir_ = globals.OutDir;
    configuredOutDir_ = ConfiguredOutDir();
    const ui::FillingScope filling(*this);
    txtContributor.Text(globals.ContributorCode);
    txtCompiler.Text(globals.CompilerCode);
    txtUserName.Text(globals.UserName);
    txtOrg.Text(globals.Organization);
    txtLocalDB.Text(globals.LocalDbPath);
    txtCompoundDB.Text(globals.CompoundDbPath);
    txtOutDir.Text(globals.OutDir);
    (globals.AdvancedMode ? optAdvanced : optSimple).Value(true);
    chkBio.Value(globals.BioEnabled);
    chkGH.Value(globals.GHEnabled);
    ShowLook();
}

void frmConfigure::ShowLook() {
    const Look look = TheLook().Chosen;
    (look == Look::Dark    ? optLookDark
     : look == Look::Light ? optLookLight
                           : optLookDesktop)
        .Value(true);
}

Look frmConfigure::ChosenLook() const {
    if (optLookDark.Value()) return Look::Dark;
    return optLookLight.Value() ? Look::Light : Look::OfDesktop;
}

void frmConfigure::LettersOnly(ui::TextBox& box) {
    if (Filling) return;
    std::string letters;
    for (const char c : UpperAscii(box.Text())) {
        if (c >= 'A' && c <= 'Z') letters += c;
    }
    const ui::FillingScope filling(*this);
    box.Text(letters);
}

void frmConfigure::PlainText(ui::TextBox& box) {
    if (Filling) return;
    const TextAndCaret plain = TransliterateAt(box.Text(), box.Caret());
    const ui::FillingScope filling(*this);
    box.TextAndCaret(plain.text, plain.caret);
}

bool frmConfigure::CheckDatabases() {
    for (ui::TextBox* box : {&txtLocalDB, &txtCompoundDB}) {
        if (!FileOrFolderExists(WithSlashes(box->Text())))
            return Refuse(*box, "Please specify the database");
    }
    return true;
}

bool frmConfigure::CheckOutputFolder() {
    const std::string folder = WithSlashes(txtOutDir.Text());
    if (folder.empty()) return true;
    if (!IsFullPath(folder))
        return Refuse(txtOutDir,
                      "Please, enter the full path to the output folder, e.g., C:\\TEMP\\VXR");
    if (ui::TheDesktop().Files().IsFolder(folder)) return true;
    const ui::Answer answer = ui::AskYesNoCancel("The output folder " + txtOutDir.Text() +
                                                 " does not exist.\n"
                                                 "Would you like to create it?");
    if (answer == ui::Answer::No) {
        txtOutDir.Text("");
        return true;
    }
    if (answer != ui::Answer::Yes) {
        txtOutDir.SetFocus();
        return false;
    }
    if (ui::TheDesktop().Files().MakeFolder(folder).empty()) return true;
    return Refuse(txtOutDir, "The output folder " + txtOutDir.Text() + " cannot be created.");
}

bool frmConfigure::OpenBothDatabases() {
    const std::string compoundPath = WithSlashes(txtCompoundDB.Text());
    const std::string fault = OpenDatabasesAt(WithSlashes(txtLocalDB.Text()), compoundPath);
    hasOpened_ = hasOpened_ || fault.empty();
    if (fault.empty()) return true;
    const bool isCompounds = fault.find(compoundPath) != fault.npos;
    return Refuse(isCompounds ? txtCompoundDB : txtLocalDB, fault);
}

bool frmConfigure::CheckUser() {
    if (Trim(txtUserName.Text()).empty()) return Refuse(txtUserName, "Please, enter your name");
    if (Trim(txtOrg.Text()).empty()) return Refuse(txtOrg, "Please, enter your organization name");
    return true;
}

void frmConfigure::Store() {
    KVOGlobal& globals = Globals();
    globals.ContributorCode = txtContributor.IsEmpty() ? "XML" : txtContributor.Text();
    globals.CompilerCode = txtCompiler.IsEmpty() ? globals.ContributorCode : txtCompiler.Text();
    globals.UserName = Trim(txtUserName.Text());
    globals.Organization = Trim(txtOrg.Text());
    globals.LocalDbPath = WithSlashes(txtLocalDB.Text());
    globals.CompoundDbPath = WithSlashes(txtCompoundDB.Text());
    globals.OutDir = WithSlashes(txtOutDir.Text());
    globals.AdvancedMode = optAdvanced.Value();
    globals.BioEnabled = chkBio.Value();
    globals.GHEnabled = chkGH.Value();
    TheLook().Take(ChosenLook());
}

/// A folder that came with a document holds for this run; only one that was typed is written.
void frmConfigure::WriteDown() const {
    std::string& folder = Globals().OutDir;
    const std::string inForce = folder;
    if (inForce == shownOutDir_) folder = configuredOutDir_;
    WriteConfiguration();
    folder = inForce;
}

/// Databases that were tried out and dismissed give way to the configured ones.
bool frmConfigure::HasConfiguredDatabases() const {
    const KVOGlobal& globals = Globals();
    if (hasOpened_) return OpenDatabasesAt(globals.LocalDbPath, globals.CompoundDbPath).empty();
    return FileOrFolderExists(globals.LocalDbPath) && FileOrFolderExists(globals.CompoundDbPath);
}

void frmConfigure::cmdAccept_Click() {
    if (!CheckDatabases() || !CheckOutputFolder() || !OpenBothDatabases() || !CheckUser()) return;
    Store();
    WriteDown();
    if (Globals().BioEnabled) ui::TheDesktop().ShowHelp(HelpOfBio);
    accepted_ = true;
    Close();
}

bool frmConfigure::QueryUnload() {
    if (accepted_) return true;
    KVOGlobal& globals = Globals();
    const bool databases = HasConfiguredDatabases();
    const bool user = !globals.UserName.empty() && !globals.Organization.empty();
    if (databases && user) return true;
    globals.ProgramEnds = databases ? AskExitWithoutUser() : AskExitWithoutDatabases();
    return globals.ProgramEnds;
}

} // namespace vexora
