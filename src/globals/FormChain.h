#pragma once

#include <string_view>

#include "ui/Form.h"

namespace vexora {

/// The chain of dialogs opened from the shell. Each dialog in the chain has one entry in OpenForms,
/// the name of the form that opened it; helper dialogs (a list of authors, the details of a
/// journal, a question) have none and do not call CloseForm.

/// Opens a dialog without blocking and notes the opener.
void OpenInChain(std::string_view opener, std::string_view dialog);

/// A dialog leads on to the next: the next opens, and the opener hides (advanced mode) or closes.
void LeadOn(std::string_view opener, std::string_view next);

/// The same from a form that the user may want to come back to: it hides in both modes.
void LeadOnAndWait(std::string_view opener, std::string_view next);

/// A dialog whose record is in the document makes room for the next one on the road: it closes, the
/// node is selected and the button of the main form pressed, as a person would.
void GoOn(ui::Form& dialog, ui::TreeNode& node, std::string_view button);

/// The closing step of a dialog in the chain; called from its Unload. It does nothing while a
/// record is edited in place. An opener that has hidden is shown again. When the chain becomes
/// empty the main form runs its activation step.
void CloseForm();

/// A dialog of the chain has been accepted and stays open; the main form hears of it.
void NoteAccepted();

/// A dialog that is always a link of the chain.
class ChainForm : public ui::Form {
public:
    using Form::Form;
    void Unload() override { CloseForm(); }

protected:
    /// Another dialog than the shell waits for one entry of this one.
    bool IsGuided() const;
};

} // namespace vexora
