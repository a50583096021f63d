#pragma once

#include "sources/MakeForm.h"

namespace vexora {

/// Name, number, institution and place of a report.
class frmMakeReport : public MakeForm {
public:
    frmMakeReport();

    Part txtName{*this, "txtName"};
    Part txtNo{*this, "txtNo"};
    Part txtInst{*this, "txtInst"};
    Part txtLoc{*this, "txtLoc"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

protected:
    bool Check() override;
    std::string Compose() const override;
    void TakeApart(std::string_view source) override;
};

} // namespace vexora
