#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sources/EntryFields.h"
#include "ui/Form.h"

namespace vexora {

class clsAuthor;

/// "Author's Name": finds authors in the table of known ones or registers new ones there. Every
/// opening starts a new list, which takes the place of the document's list with its first author;
/// closing the form without having added one leaves the document's list as it was.
class frmAuthor : public ui::Form {
public:
    frmAuthor();

    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    PlainTextBox txtLast{*this, "txtLast"};
    PlainTextBox txtFirst{*this, "txtFirst"};
    ui::CommandButton cmdVerify{*this, "cmdVerify", "Search"};
    ui::ComboBox cboAuthor{*this, "cboAuthor"};
    ui::CommandButton cmdAdd{*this, "cmdAdd", "Add  Author"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

private:
    void cmdVerify_Click();
    void cmdAdd_Click();

    void NameChanged(PlainTextBox& field);
    void FindKnown();
    std::shared_ptr<clsAuthor> ChosenAuthor() const;
    std::shared_ptr<clsAuthor> NewAuthor() const;
    void AddToList(std::shared_ptr<clsAuthor> author);

    using Authors = std::vector<std::shared_ptr<clsAuthor>>;
    Authors known_; // behind the first line of cboAuthor, in its order
    Authors recAuthor_;
};

} // namespace vexora
