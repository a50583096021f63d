#pragma once

#include <string>

#include "sources/EntryFields.h"
#include "ui/FileTarget.h"

namespace vexora {

struct CitedSource;
class frmDocument;

/// "Citation": shows all that was read from a pasted citation, for review. Accept hands it to the
/// description of the document below, which read it; Cancel leaves that as it was. Another file
/// that is dropped here takes the place of what is shown.
class frmCitation : public ui::Form, public ui::FileTarget {
public:
    frmCitation();

    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::TextBox txtType{*this, "txtType"};
    PlainTextBox txtTitle{*this, "txtTitle", ui::TextBox::Lines::Many};
    ui::ListBox lstAuthors{*this, "lstAuthors"};
    ui::TextBox txtYear{*this, "txtYear"};
    ui::ListBox lstDetails{*this, "lstDetails"};
    PlainTextBox txtSource{*this, "txtSource"};
    PlainTextBox txtKeyWords{*this, "txtKeyWords", ui::TextBox::Lines::Many};
    PlainTextBox txtAbstract{*this, "txtAbstract", ui::TextBox::Lines::Many};
    ui::ListBox lstRemarks{*this, "lstRemarks"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void TakeFile(const std::string& path) override;

private:
    void cmdAccept_Click();
    void Fill(const CitedSource& cited);
    static frmDocument* Document();
};

} // namespace vexora
