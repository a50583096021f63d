#pragma once

#include "sources/MakeForm.h"

namespace vexora {

/// Degree, institution and place of a thesis or a dissertation.
class frmMakeThesis : public MakeForm {
public:
    frmMakeThesis();

    Part txtDegree{*this, "txtDegree"};
    ui::OptionButton optT{*this, "optT", "Thesis"};
    ui::OptionButton optD{*this, "optD", "Dissertation"};
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
