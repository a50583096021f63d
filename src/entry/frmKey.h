#pragma once

#include <vector>

#include "reference/Vocabulary.h"
#include "ui/Form.h"

namespace vexora {

/// The statements that a method carries, to be ticked; a helper of frmProperty. They become tags in
/// KeyRest. A method without statements closes the form at once. Tags of other origin stay.
/// The registry owns it. It works on the globals: method and context say which statements there
/// are.
class frmKey : public ui::Form {
public:
    frmKey();

    ui::ListBox lstKey{*this, "lstKey", ui::ListBox::Mode::Check};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;

private:
    void Accept();

    std::vector<QuestionRow> rows_;
};

} // namespace vexora
