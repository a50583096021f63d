#pragma once

#include <string>
#include <vector>

#include "ui/Form.h"

namespace vexora::qt::test {

/// A form with a control of every kind, which notes each event it gets.
class EveryKind : public ui::Form {
public:
    EveryKind();

    ui::MenuItem mnuFile{*this, "mnuFile", "&File"};
    ui::MenuItem Save{*this, "Save", "&Save", &mnuFile, "Ctrl+S"};
    ui::MenuItem More{*this, "More", "&More", &mnuFile};
    ui::MenuItem Deep{*this, "Deep", "&Deep", &More};
    ui::Toolbar Toolbar1{*this, "Toolbar1"};
    ui::ToolButton AddComp{*this, "AddComp", "Compound", "New compound"};
    ui::ToolButton AddReact{*this, "AddReact", "Reaction", "Reaction"};
    ui::TreeView tvwTree{*this, "tvwTree"};
    ui::Label lblName{*this, "lblName", "Name"};
    ui::TextBox txtName{*this, "txtName"};
    ui::TextBox txtDigits{*this, "txtDigits"};
    ui::TextBox txtNotes{*this, "txtNotes", ui::TextBox::Lines::Many};
    ui::TextBox txtPick{*this, "txtPick"};
    ui::ComboBox cboType{*this, "cboType"};
    ui::ComboBox cboUnit{*this, "cboUnit", ui::ComboBox::Style::Editable};
    ui::CheckBox chkDone{*this, "chkDone", "Done"};
    ui::Frame fraPhase{*this, "fraPhase", "Phase"};
    ui::OptionButton optLiquid{*this, "optLiquid", "Liquid"};
    ui::OptionButton optGas{*this, "optGas", "Gas"};
    ui::TabStrip tabPages{*this, "tabPages"};
    ui::ListBox lstOne{*this, "lstOne"};
    ui::ListBox lstMany{*this, "lstMany", ui::ListBox::Mode::Multi};
    ui::ListBox lstMarks{*this, "lstMarks", ui::ListBox::Mode::Check};
    ui::Grid tblData{*this, "tblData", 40, 3, 1, 1};
    ui::Picture picGraph{*this, "picGraph", 1000, 500};
    ui::RichText rtfNote{*this, "rtfNote"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "&Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    bool QueryUnload() override;

    std::vector<std::string> Events;
    /// All that can be seen, a line each: the state of every control, then the events.
    std::string State() const;

private:
    void Arrange();
    void Tell(const std::string& text) { Events.push_back(text); }
    void Listen(ui::Control& control);
    void ListenToSurfaces();
};

/// Registers the form and opens it; the answer lasts while the registry does.
EveryKind& OpenEveryKind();

} // namespace vexora::qt::test
