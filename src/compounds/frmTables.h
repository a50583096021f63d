#pragma once

#include "reference/RefdbBuild.h"
#include "ui/Form.h"

namespace vexora {

/// Adds compounds to the reference database of this workplace, one by one or from a file, and
/// writes out what was added here, for a colleague's workplace. Opened from the Tools menu.
class frmTables : public ui::Form {
public:
    frmTables();

    ui::TextBox txtRN{*this, "txtRN"};
    ui::TextBox txtFormula{*this, "txtFormula"};
    ui::Label lblKnown{*this, "lblKnown"};
    ui::TextBox txtNames{*this, "txtNames", ui::TextBox::Lines::Many};
    ui::Label lblResult{*this, "lblResult"};
    ui::ListBox lstRefused{*this, "lstRefused"};
    ui::CommandButton cmdFile{*this, "cmdFile", "Add from a file..."};
    ui::CommandButton cmdSave{*this, "cmdSave", "Save what was added..."};
    ui::CommandButton cmdAdd{*this, "cmdAdd", "Add"};
    ui::CommandButton cmdClose{*this, "cmdClose", "Close"};

    void Load() override;

private:
    void NumberChanged();
    void Add();
    void AddFile();
    void SaveAdded();

    void StoreCompound(std::int64_t rn, const std::string& formula);
    void ShowResult(const std::string& text, std::vector<std::string> refused = {});
};

} // namespace vexora
