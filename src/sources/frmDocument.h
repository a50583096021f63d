#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "globals/FormChain.h"
#include "sources/CitedSource.h"
#include "sources/EntryFields.h"
#include "ui/FileTarget.h"

namespace vexora {

class clsAuthor;
class clsR;

/// "Literature source description": the first dialog of a new document and the edit dialog of its
/// root. It fills the citation fields of the source and derives the author codes and the number
/// that keeps it apart. The details of the publication and the authors come from helper dialogs
/// that hand their result back here. A pasted citation, or a file with one that is dropped here,
/// fills all of it after a review.
class frmDocument : public ChainForm, public ui::FileTarget {
public:
    frmDocument();

    ui::MenuItem mnuHowTo{*this, "mnuHowTo", "&How to use this form"};
    ui::ComboBox cboTypeDoc{*this, "cboTypeDoc"};
    PromptedTextBox txtTitle{*this, "txtTitle", "ENTER OR PASTE TITLE HERE",
                             ui::TextBox::Lines::Many};
    ui::TextBox txtSource{*this, "txtSource"};
    ui::TextBox txtYear{*this, "txtYear"};
    ui::TextBox txtAuthors{*this, "txtAuthors"};
    ui::ListBox lstSourceDoc{*this, "lstSourceDoc"};
    PromptedTextBox txtKeyWords{*this, "txtKeyWords",
                                "ENTER KEYWORDS SEPARATED BY COMMAS OR SEMICOLONS",
                                ui::TextBox::Lines::Many};
    PromptedTextBox txtAbstract{*this, "txtAbstract", "ENTER OR PASTE ABSTRACT HERE",
                                ui::TextBox::Lines::Many};
    ui::CommandButton cmdPasteCitation{*this, "cmdPasteCitation", "Paste citation"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCalcel{*this, "cmdCalcel", "Cancel"};

    void Load() override;

    /// The details of the publication in one text, "" while none are entered.
    std::string Source() const;
    /// Takes the text that a detail form has built.
    void Source(const std::string& text);
    /// The parts from which a detail form has built this text, or null when it did not.
    const std::vector<std::string>* Parts(const std::string& form, const std::string& text) const;
    /// Keeps them for the present text.
    void KeepParts(const std::string& form, const std::vector<std::string>& parts);
    /// The chosen type is a manuscript that is not printed yet.
    bool IsManuscript() const;
    const std::vector<std::shared_ptr<clsAuthor>>& Authors() const { return authors_; }
    /// Takes the list of authors, in place of the one before.
    void Authors(const std::vector<std::shared_ptr<clsAuthor>>& authors);

    /// A file with a citation, to be reviewed; one without is told.
    void TakeFile(const std::string& path) override;
    /// Reads the citation in a file without showing it; false, and told, for a file without.
    bool PasteFile(const std::string& path);
    /// The citation read last.
    const std::optional<CitedSource>& Pasted() const { return pasted_; }
    /// Fills the fields from it, as a person would have typed them. Nothing without one.
    void TakePasted();

private:
    void cboTypeDoc_Click();
    void txtSource_Click();
    void txtAuthors_Click();
    void cmdPasteCitation_Click();
    void cmdAccept_Click();

    void FillLists();
    void Fill(const clsR& source);
    void FillType(const clsR& source);
    void ShowAuthors();

    bool Paste(std::optional<CitedSource> cited);
    static void ReviewPasted();
    void TakeAuthors(const std::vector<CitedAuthor>& cited,
                     std::vector<std::shared_ptr<clsAuthor>> own);

    bool CheckFields();
    bool CheckCitation();
    bool CheckYear();
    bool CheckAuthorCodes();
    void Store(clsR& source);
    void StoreAuthors(clsR& source) const;
    void StoreNew();
    void StoreEdited(clsR& source);
    bool IsSameIdentity(const clsR& source) const;
    std::string ChosenSourceKind(const std::string& before) const;

    std::vector<std::shared_ptr<clsAuthor>> authors_;
    std::optional<CitedSource> pasted_;
    std::map<std::pair<std::string, std::string>, std::vector<std::string>> parts_; // by form, text
    std::string code1_;                  // of the first author: three lower-case letters at most
    std::string code2_;                  // of the second, "&" when there is none
    int type_ = 0;                       // entry of cboTypeDoc for which txtSource was filled
    std::map<int, std::string> sources_; // source texts of the types left, by entry
};

} // namespace vexora
