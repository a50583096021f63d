#pragma once

#include "sources/MakeForm.h"

namespace vexora {

/// Country, number, owner and date of a patent.
class frmMakePatent : public MakeForm {
public:
    frmMakePatent();

    Part txtCountry{*this, "txtCountry"};
    Part txtNo{*this, "txtNo"};
    Part txtOwner{*this, "txtOwner"};
    Part txtDate{*this, "txtDate"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

protected:
    bool Check() override;
    std::string Compose() const override;
    void TakeApart(std::string_view source) override;
};

} // namespace vexora
