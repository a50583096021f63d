#pragma once

#include <functional>
#include <string>
#include <vector>

#include "records/DocumentCheck.h"
#include "ui/Form.h"

namespace vexora {

/// What a check found in the document, errors first, then warnings, then hints; a line leads to its
/// node in the tree. Advice only: whatever it says, the document stays as it is. It is always
/// modal, so that no record that it speaks of can go. Who opens it fills it first.
class frmCheck : public ui::Form {
public:
    frmCheck();

    ui::Label lblCounts{*this, "lblCounts"};
    ui::ListBox lstFindings{*this, "lstFindings"};
    ui::TextBox txtNode{*this, "txtNode"};
    ui::CommandButton cmdGo{*this, "cmdGo", "&Go to the node"};
    ui::CommandButton cmdClose{*this, "cmdClose", "Close"};

    void Show(std::vector<DocumentFinding> findings);
    void Load() override;

    /// The user goes to the node of a record; the form has closed by then.
    std::function<void(ui::TreeNode&)> OnGo;

private:
    const DocumentFinding* Chosen() const;
    void lstFindings_Click();
    void cmdGo_Click();

    std::vector<DocumentFinding> findings_;
};

} // namespace vexora
