#pragma once

#include "sources/MakeForm.h"

namespace vexora {

/// Number, institution and pages of a deposited document.
class frmMakeDeposited : public MakeForm {
public:
    frmMakeDeposited();

    Part txtNo{*this, "txtNo"};
    Part txtInst{*this, "txtInst"};
    Part txtPages{*this, "txtPages"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

protected:
    bool Check() override;
    std::string Compose() const override;
    void TakeApart(std::string_view source) override;
};

} // namespace vexora
