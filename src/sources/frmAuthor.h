#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sources/EntryFields.h"
#include "ui/Form.h"

namespace vexora {

class clsAuthor;

/// "Author's Name": the list of the document's authors, who are found in the table of known ones or
/// typed anew. It begins with those whom the document has; each change goes to the document at
/// once.
class frmAuthor : public ui::Form {
public:
    frmAuthor();

    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    PlainTextBox txtLast{*this, "txtLast"};
    PlainTextBox txtFirst{*this, "txtFirst"};
    ui::CommandButton cmdVerify{*this, "cmdVerify", "Search"};
    ui::ComboBox cboAuthor{*this, "cboAuthor"};
    ui::ListBox lstAuthors{*this, "lstAuthors"};
    ui::CommandButton cmdChange{*this, "cmdChange", "Change"};
    ui::CommandButton cmdRemove{*this, "cmdRemove", "Remove"};
    ui::CommandButton cmdUp{*this, "cmdUp", "Up"};
    ui::CommandButton cmdDown{*this, "cmdDown", "Down"};
    ui::CommandButton cmdAdd{*this, "cmdAdd", "Add  Author"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;
    bool QueryUnload() override;

    using Authors = std::vector<std::shared_ptr<clsAuthor>>;
    /// Those of the table whose name begins so, in the order of names. Throws DatabaseError.
    static Authors KnownAuthors(const std::string& last, const std::string& first);
    /// One who is new to the table, with a mark that keeps him apart from those in it and from the
    /// others of his document. What hinders the look-up is told.
    static std::shared_ptr<clsAuthor> NewAuthor(const std::string& last, const std::string& first,
                                                const Authors& others);

private:
    void cmdVerify_Click();
    void cmdAdd_Click();
    void cmdChange_Click();
    void cmdRemove_Click();
    void Move(int by);

    void NameChanged(PlainTextBox& field);
    std::shared_ptr<clsAuthor> ChosenKnown() const;
    void AppendOwn();
    std::shared_ptr<clsAuthor> TypedAuthor() const;
    /// The author chosen in the list, or null.
    std::shared_ptr<clsAuthor> Selected() const;

    bool HasTyped() const;
    /// What is typed and stands not in the list yet goes there or is dropped, as the user says;
    /// false when the form is to stay as it is.
    bool SettleTyped();
    bool TakeTyped();
    void ClearTyped();
    void Enter(const std::string& last, const std::string& first);
    void ListChanged(int selected);
    void ShowList(int selected);
    void EnableButtons();

    Authors known_; // behind the first line of cboAuthor, in its order
    Authors recAuthor_;
    std::shared_ptr<clsAuthor> changing_; // whose name stands in the fields to be mended
    std::string shownLast_, shownFirst_;  // as it was put there
    bool changed_ = false;
};

} // namespace vexora
