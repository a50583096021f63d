#pragma once

#include <string>
#include <vector>

#include "records/Differences.h"
#include "ui/Form.h"

namespace vexora {

/// What the open document says differently from another one, a line a difference. Choosing a line
/// selects its node in the tree. It is always modal, so the document stays what was compared.
class frmCompare : public ui::Form {
public:
    frmCompare();

    ui::Label lblFile{*this, "lblFile"};
    ui::ListBox lstDifferences{*this, "lstDifferences"};
    ui::TextBox txtDifference{*this, "txtDifference", ui::TextBox::Lines::Many};
    ui::Label lblPlace{*this, "lblPlace"};
    ui::CommandButton cmdGo{*this, "cmdGo", "&Go to node"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Close"};

    /// What is to be shown, before the form is: the differences from the file at path to the open
    /// document.
    void Take(const std::string& path, std::vector<Difference> differences);

    /// The last line chosen that has a node has selected it.
    bool HasLed() const { return hasLed_; }

    void Load() override;
    void Activate() override;

private:
    void lstDifferences_Click();
    void GoToNode();

    std::vector<Difference> differences_;
    bool hasLed_ = false;
};

} // namespace vexora
