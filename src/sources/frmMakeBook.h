#pragma once

#include "sources/MakeForm.h"

namespace vexora {

/// A book or a portion of one.
class frmMakeBook : public MakeForm {
public:
    frmMakeBook();

    Part txtTitle{*this, "txtTitle"};
    Part txtEdition{*this, "txtEdition"};
    Part txtVolume{*this, "txtVolume"};
    Part txtChapter{*this, "txtChapter"};
    Part txtPages{*this, "txtPages"};
    Part txtEditor{*this, "txtEditor"};
    CompletingCombo cboPublisher{*this, "cboPublisher", "SELECT OR TYPE THE PUBLISHER HERE",
                                 "Publishers", "Publisher"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

protected:
    void Prepare() override { cboPublisher.Fill(); }
    bool Check() override;
    std::string Compose() const override;
    void TakeApart(std::string_view source) override;

private:
    bool TakeLabelled(std::string_view part);
};

} // namespace vexora
