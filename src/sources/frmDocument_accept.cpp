#include "sources/frmDocument.h"

#include "globals/KVOGlobal.h"
#include "records/clsAuthor.h"
#include "records/clsR.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Transliteration.h"
#include "sources/DocumentTypes.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

/// The first three letters of a last name in lower case, as far as its first "," or ";".
std::string AuthorCode(std::string_view lastName) {
    std::string code;
    for (const char c : LowerAscii(lastName.substr(0, lastName.find_first_of(",;")))) {
        if (c != ' ' && c != '-' && code.size() < 3) code += c;
    }
    return code;
}

bool HasLettersOnly(std::string_view code) {
    return !code.empty() && code.find_first_not_of("abcdefghijklmnopqrstuvwxyz") == code.npos;
}

/// As the record file can keep it, so that the database and the file agree at the next reading.
std::string Plain(const std::string& text) {
    return Replace(Transliterate(SingleLine(text)), "#", " ");
}

std::string StoredCode(const std::string& author2) {
    return author2 == "&" ? std::string() : author2;
}

/// A database that cannot be used is told of, and the work goes on without it.
template <class Action>
void OrTell(Action action) {
    try {
        action();
    } catch (const DatabaseError& error) {
        ui::Say(error.what());
    }
}

} // namespace

bool frmDocument::CheckFields() {
    if (!CheckCitation() || !CheckYear()) return false;
    if (authors_.empty()) return Refuse(txtAuthors, "Enter the author(s)");
    if (!CheckAuthorCodes()) return false;
    txtKeyWords.Text(txtKeyWords.Entered());
    txtAbstract.Text(txtAbstract.Entered());
    return true;
}

bool frmDocument::CheckCitation() {
    if (cboTypeDoc.Index() <= 0) return Refuse(cboTypeDoc, "Select type of document");
    if (txtTitle.Entered().empty()) return Refuse(txtTitle, "Please enter the title");
    if (Source().empty()) return Refuse(txtSource, "Please enter source details");
    return true;
}

bool frmDocument::CheckYear() {
    const auto year = ParseInteger(txtYear.Text());
    // The words of a source's identity are parted by blanks, so a year is four digits, no more.
    const bool fourDigits =
        TrimBlanks(txtYear.Text()).size() == 4 && year.has_value() && *year >= 1000;
    if (fourDigits && *year >= 1700 && *year <= ui::TheDesktop().Today().year + 1) return true;
    return Refuse(txtYear, "Year between 1700 and the current year is allowed", "Incorrect year");
}

bool frmDocument::CheckAuthorCodes() {
    code1_ = AuthorCode(authors_[0]->LASTNM);
    code2_ = authors_.size() > 1 ? AuthorCode(authors_[1]->LASTNM) : "&";
    if (!HasLettersOnly(code1_))
        return Refuse(txtAuthors, "Illegal character in the 1st author name", "Error");
    if (authors_.size() > 1 && !HasLettersOnly(code2_))
        return Refuse(txtAuthors, "Illegal character in the 2nd author name", "Error");
    return true;
}

void frmDocument::cmdAccept_Click() {
    if (!CheckFields()) return;
    if (Globals().EditSource && Globals().CurrentR)
        StoreEdited(*Globals().CurrentR);
    else
        StoreNew();
    Globals().Saved = false;
    Globals().DialogAccepted = true;
    Close();
}

std::string frmDocument::ChosenSourceKind(const std::string& before) const {
    if (lstSourceDoc.Index() > 0) return CodeOfText(SourceKinds, lstSourceDoc.Chosen());
    const bool unlisted = !IsBlankField(before) && TextOfCode(SourceKinds, before).empty();
    return unlisted ? before : "O";
}

void frmDocument::Store(clsR& source) {
    source.YEARPUB = std::string(TrimBlanks(txtYear.Text()));
    source.AUTHOR1 = code1_;
    source.AUTHOR2 = code2_;
    source.TYPDOC = DocumentTypes[static_cast<std::size_t>(cboTypeDoc.Index() - 1)].code;
    source.SOURCEDOC = ChosenSourceKind(source.SOURCEDOC);
    source.SSOURCE = Plain(Source());
    source.TTITLE = Plain(txtTitle.Entered());
    source.KEYWORDS = Plain(txtKeyWords.Entered());
    source.ABSTRACT = Plain(txtAbstract.Entered());
    const std::size_t last = source.SSOURCE.rfind(", ");
    source.ManuscriptID =
        IsManuscript() && last != std::string::npos ? source.SSOURCE.substr(last + 2) : "";
    source.isNew = true;
    StoreAuthors(source);
}

void frmDocument::StoreAuthors(clsR& source) const {
    source.recAuthor.Clear();
    for (const auto& author : authors_) {
        author->AUTHSEQNO = std::to_string(source.recAuthor.Count() + 1);
        source.recAuthor.Add(author, author->Key());
    }
}

void frmDocument::StoreNew() {
    const auto source = std::make_shared<clsR>();
    Store(*source);
    source->AUTHORN = "1";
    OrTell([&source] {
        source->AUTHORN = std::to_string(
            NextNumberOfNewSource(source->YEARPUB, source->AUTHOR1, source->AUTHOR2));
    });
    source->AttachTo();
}

void frmDocument::StoreEdited(clsR& source) {
    const bool same = IsSameIdentity(source);
    Store(source);
    if (!same) OrTell([&source] { source.Renumber(); });
    source.Synchronize();
}

bool frmDocument::IsSameIdentity(const clsR& source) const {
    return source.YEARPUB == TrimBlanks(txtYear.Text()) && source.AUTHOR1 == code1_ &&
           StoredCode(source.AUTHOR2) == StoredCode(code2_);
}

} // namespace vexora
