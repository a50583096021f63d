#pragma once

#include "sources/MakeForm.h"

namespace vexora {

/// Name, place, date and pages of a contribution to a conference.
class frmMakeConf : public MakeForm {
public:
    frmMakeConf();

    Part txtName{*this, "txtName"};
    Part txtLoc{*this, "txtLoc"};
    Part txtDate{*this, "txtDate"};
    Part txtPages{*this, "txtPages"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

protected:
    bool Check() override;
    std::string Compose() const override;
    void TakeApart(std::string_view source) override;
};

} // namespace vexora
