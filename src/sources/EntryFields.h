#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ui/Form.h"

namespace vexora {

/// A text field for texts that reach the export: whatever is typed or pasted is turned into plain
/// one-line text at once, the caret staying behind the same character. Characters that mean
/// something in the stored text can be kept out altogether.
class PlainTextBox : public ui::TextBox {
public:
    PlainTextBox(ui::Form& form, std::string name, Lines lines = Lines::One,
                 std::string_view dropped = {});

    /// The text without blanks around it.
    std::string Entered() const;

    /// Follows every change, after the text has been made plain.
    std::function<void()> AfterChange;

private:
    void MakePlain();

    std::string_view dropped_;
};

/// A plain text field that shows a prompt while nothing has been entered: the prompt goes when the
/// field is entered and comes back when it is left empty.
class PromptedTextBox : public PlainTextBox {
public:
    PromptedTextBox(ui::Form& form, std::string name, std::string prompt, Lines lines);

    /// The text without blanks around it, "" while the prompt stands.
    std::string Entered() const;
    /// Shows the text, or the prompt for an empty one.
    void Enter(std::string_view text);

private:
    std::string prompt_;
};

/// An editable list of one column of the local database. Every character typed at the end is
/// completed by the first row that begins with the text, the completion standing selected; an empty
/// field shows a prompt. Blanks, points and case do not count, rows that have them as typed go
/// first; a text that differs from a row only in these becomes the row when the field is left.
class CompletingCombo : public ui::ComboBox {
public:
    CompletingCombo(ui::Form& form, std::string name, std::string prompt, std::string table,
                    std::string column);

    /// Lists the rows of the table and shows the prompt.
    void Fill();
    /// The text without blanks around it, "" while the prompt stands.
    std::string Entered() const;
    void Enter(std::string_view text);

private:
    void DropPrompt();
    void Complete();
    void TakeKnown();
    void Offer();

    std::string prompt_;
    std::string table_;
    std::string column_;
    std::vector<std::string> titles_; // all rows of the table
    std::string typed_;               // as typed last, without its completion
    std::string onEntry_;             // what stood there when the field was entered
    bool prompting_ = false;          // the prompt stood before the change
    bool completing_ = false;         // the field itself changes its text
};

} // namespace vexora
