#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "host/Actor.h"
#include "host/Player.h"
#include "host/PosixFileSystem.h"

namespace vexora::test {

/// A form with a control of each kind, for tests of the models and of the player.
class frmSmall : public ui::Form {
public:
    frmSmall();
    bool QueryUnload() override;

    ui::TextBox txtName{*this, "txtName"};
    ui::TextBox txtLocked{*this, "txtLocked"};
    ui::TextBox txtNotes{*this, "txtNotes", ui::TextBox::Lines::Many};
    ui::Label lblResult{*this, "lblResult", "nothing"};
    ui::ComboBox cboKind{*this, "cboKind"};
    ui::ComboBox cboUnit{*this, "cboUnit", ui::ComboBox::Style::Editable};
    ui::ListBox lstMany{*this, "lstMany", ui::ListBox::Mode::Check};
    ui::CheckBox chkAll{*this, "chkAll", "&All"};
    ui::OptionButton optOne{*this, "optOne", "One"};
    ui::OptionButton optTwo{*this, "optTwo", "Two"};
    ui::Grid grdData{*this, "grdData", 3, 2, 1, 0};
    ui::TreeView treDocument{*this, "treDocument"};
    ui::TabStrip tabPages{*this, "tabPages"};
    ui::TextBox txtSecondPage{*this, "txtSecondPage"};
    ui::Picture picPlot{*this, "picPlot", 100, 50};
    ui::ControlArray<ui::TextBox> txtCoeff{*this, "txtCoeff", 2};
    ui::MenuItem mnuFile{*this, "mnuFile", "&File"};
    ui::MenuItem mnuSave{*this, "mnuSave", "&Save", &mnuFile, "Ctrl+S"};
    ui::CommandButton cmdAsk{*this, "cmdAsk", "As&k"};
    ui::CommandButton cmdTell{*this, "cmdTell", "Tell"};
    ui::CommandButton cmdOpen{*this, "cmdOpen", "Open"};
    ui::CommandButton cmdFile{*this, "cmdFile", "File"};
    ui::CommandButton cmdInput{*this, "cmdInput", "Input"};

    std::string Log; // got-focus, change and lost-focus of txtName

private:
    void WatchName();
};

/// A modal form with a field and a button that closes it; closing it by its frame is refused while
/// the field is empty.
class frmSmallModal : public ui::Form {
public:
    frmSmallModal();
    ui::TextBox txtAnswer{*this, "txtAnswer"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdAgain{*this, "cmdAgain", "Again"};
};

/// What the disk said to a change that the small form tried when its modal form had gone.
std::string& AfterModal();

std::unique_ptr<host::Program> MakeSmallProgram(ui::Desktop& desktop);

/// What a play of a script on the small form left behind.
struct SmallPlay {
    bool held = false;
    std::string transcript;
    std::string errors;
};

/// Plays the lines behind `start` on a fresh small form.
SmallPlay PlaySmall(const std::string& lines, host::PlayOptions options = {});
SmallPlay PlaySmall(const std::string& lines, host::PlayOptions options, host::Actor& actor);

} // namespace vexora::test
