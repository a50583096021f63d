#pragma once

#include "sources/MakeForm.h"

namespace vexora {

/// Journal, volume, issue and pages of an article, or the identifier of a submitted manuscript.
class frmMakeJournal : public MakeForm {
public:
    frmMakeJournal();

    CompletingCombo cboJournal{*this, "cboJournal", "SELECT OR TYPE JOURNAL TITLE HERE", "Journals",
                               "ShortTitle"};
    Part txtVolume{*this, "txtVolume"};
    Part txtIssue{*this, "txtIssue"};
    ui::Label lblPages{*this, "lblPages", "Page(s): First ( - Last)"};
    Part txtPages{*this, "txtPages"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

protected:
    void Prepare() override;
    bool Check() override;
    std::string Compose() const override;
    void TakeApart(std::string_view source) override;

private:
    static bool IsManuscript();
};

} // namespace vexora
