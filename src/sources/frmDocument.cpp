#include "sources/frmDocument.h"

#include "globals/KVOGlobal.h"
#include "records/SourceText.h"
#include "records/clsAuthor.h"
#include "records/clsR.h"
#include "reference/KVODefinitions.h"
#include "reference/Text.h"
#include "sources/DocumentTypes.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

const std::string SourcePrompt = "CLICK HERE TO ENTER SOURCE DETAILS";
const std::string AuthorsPrompt = "CLICK HERE TO ENTER THE AUTHORS";

const DocumentType* TypeAt(int entry) {
    const auto index = static_cast<std::size_t>(entry - 1);
    return entry >= 1 && index < DocumentTypes.size() ? &DocumentTypes[index] : nullptr;
}

/// A field that is filled by a dialog answers to the space bar as it does to a click.
void ClickBySpace(ui::TextBox& field) {
    field.Locked(true);
    field.OnKey = [&field](ui::Key& key) {
        if (key.name != "Space") return;
        key.swallowed = true;
        field.UserClick();
    };
}

} // namespace

frmDocument::frmDocument() : ChainForm("frmDocument", "Literature source description") {
    Arrangement =
        ui::Column({ui::Field("Type of document:", cboTypeDoc), ui::Field("Title:", txtTitle),
                    ui::Field("Source:", txtSource), ui::Field("Year:", ui::Narrow(txtYear, 6)),
                    ui::Field("Authors:", txtAuthors), ui::Field("Source of data:", lstSourceDoc),
                    ui::Field("Key words:", txtKeyWords),
                    ui::Field("    Abstract     (if available):", txtAbstract),
                    ui::ButtonRow({cmdPasteCitation, cmdAccept, cmdCalcel})});
    UseButtons(cmdAccept, cmdCalcel, [this] { cmdAccept_Click(); });
    HelpContext = 225;
    PreferredColumns = 110;
    mnuHowTo.OnClick = [this] { ui::TheDesktop().ShowHelp(HelpContext); };
    cboTypeDoc.OnClick = [this] { cboTypeDoc_Click(); };
    txtSource.OnClick = [this] { txtSource_Click(); };
    txtAuthors.OnClick = [this] { txtAuthors_Click(); };
    cmdPasteCitation.OnClick = [this] { cmdPasteCitation_Click(); };
    cmdPasteCitation.ToolTip("Fill the form from a citation on the clipboard, or drop a file here");
    txtSource.Hint(SourcePrompt);
    txtAuthors.Hint(AuthorsPrompt);
    txtSource.OnChange = [this] { txtSource.Readable(PublicationInWords(txtSource.Text())); };
    ClickBySpace(txtSource);
    ClickBySpace(txtAuthors);
}

void frmDocument::Load() {
    const ui::FillingScope filling(*this);
    Globals().DialogAccepted = false;
    FillLists();
    txtSource.Text(SourcePrompt);
    txtAuthors.Text(AuthorsPrompt);
    if (Globals().EditSource && Globals().CurrentR) Fill(*Globals().CurrentR);
}

void frmDocument::FillLists() {
    cboTypeDoc.FirstIsPrompt = lstSourceDoc.FirstIsPrompt = true;
    cboTypeDoc.Add("SELECT TYPE OF DOCUMENT HERE");
    for (const DocumentType& type : DocumentTypes)
        cboTypeDoc.Add(std::string(type.text));
    cboTypeDoc.Index(0);
    lstSourceDoc.Add("SELECT THE SOURCE OF INFORMATION HERE");
    for (const CodeText& kind : SourceKinds) {
        if (!kind.text.empty()) lstSourceDoc.Add(std::string(kind.text));
    }
    lstSourceDoc.Index(0);
}

void frmDocument::Fill(const clsR& source) {
    FillType(source);
    txtTitle.Enter(source.TTITLE);
    Source(source.SSOURCE);
    txtYear.Text(source.YEARPUB);
    authors_.assign(source.recAuthor.begin(), source.recAuthor.end());
    ShowAuthors();
    lstSourceDoc.Index(0);
    const std::string kind = TextOfCode(SourceKinds, source.SOURCEDOC);
    if (!kind.empty()) lstSourceDoc.Choose(kind);
    txtKeyWords.Enter(source.KEYWORDS);
    txtAbstract.Enter(source.ABSTRACT);
}

void frmDocument::FillType(const clsR& source) {
    for (const DocumentType& type : DocumentTypes) {
        if (type.code != source.TYPDOC) continue;
        if (type.code == "C" && type.text != source.SSOURCE) continue;
        cboTypeDoc.Choose(type.text);
    }
    if (source.TYPDOC == "C" && cboTypeDoc.Index() == 0) cboTypeDoc.Choose(PersonalCommunication);
    type_ = cboTypeDoc.Index();
}

void frmDocument::cboTypeDoc_Click() {
    if (Filling || cboTypeDoc.Index() == type_) return;
    sources_[type_] = Source();
    type_ = cboTypeDoc.Index();
    const auto kept = sources_.find(type_);
    if (kept != sources_.end()) return Source(kept->second);
    const bool personal = cboTypeDoc.Chosen() == PersonalCommunication;
    // A text that came without a type, as the reference database has it, goes with whichever is
    // chosen.
    Source(personal ? std::string(PersonalCommunication) : sources_[0]);
}

void frmDocument::txtSource_Click() {
    const DocumentType* type = TypeAt(cboTypeDoc.Index());
    if (type == nullptr) return ui::Say("Select type of document before");
    if (type->detailForm.empty()) return txtSource.Text(std::string(type->text));
    if (ui::Forms::Current().Find(type->detailForm) == nullptr)
        ui::Forms::Current().Get(type->detailForm).ShowModal();
}

void frmDocument::txtAuthors_Click() {
    if (ui::Forms::Current().Find("frmAuthor") == nullptr)
        ui::Forms::Current().Get("frmAuthor").ShowModal();
}

std::string frmDocument::Source() const {
    return txtSource.Text() == SourcePrompt ? std::string() : txtSource.Text();
}

void frmDocument::Source(const std::string& text) {
    txtSource.Text(text.empty() ? SourcePrompt : text);
}

const std::vector<std::string>* frmDocument::Parts(const std::string& form,
                                                   const std::string& text) const {
    const auto found = parts_.find({form, text});
    return found == parts_.end() ? nullptr : &found->second;
}

void frmDocument::KeepParts(const std::string& form, const std::vector<std::string>& parts) {
    parts_[{form, txtSource.Text()}] = parts;
}

bool frmDocument::IsManuscript() const {
    const DocumentType* type = TypeAt(cboTypeDoc.Index());
    return type != nullptr && type->code == "S";
}

void frmDocument::Authors(const std::vector<std::shared_ptr<clsAuthor>>& authors) {
    authors_ = authors;
    ShowAuthors();
}

void frmDocument::ShowAuthors() {
    std::string names;
    for (const auto& author : authors_)
        names += (names.empty() ? "" : "; ") + author->PrintedName();
    txtAuthors.Text(names.empty() ? AuthorsPrompt : names);
}

} // namespace vexora
