#pragma once

#include "grid/TablePaste.h"
#include "ui/Form.h"

namespace vexora {

/// Shows a block of the clipboard as it will stand in a table, with what the cleaning had to guess.
/// Whoever shows it fills it first and then asks whether it was accepted. A helper: it takes no
/// part in the chain of dialogs.
class frmPasteView : public ui::Form {
public:
    frmPasteView();

    ui::Grid tblBlock{*this, "tblBlock", 1, 1, 0};
    ui::ListBox lstNotices{*this, "lstNotices"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Paste"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Fill(const PastedTable& block);
    bool IsAccepted() const { return accepted_; }

private:
    bool accepted_ = false;
};

/// Shows the block; false when a person does not want it pasted.
bool IsWantedAsShown(const PastedTable& block);

} // namespace vexora
