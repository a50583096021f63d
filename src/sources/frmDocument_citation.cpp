#include "sources/frmDocument.h"

#include <algorithm>

#include "records/clsAuthor.h"
#include "reference/Text.h"
#include "reference/Transliteration.h"
#include "sources/frmAuthor.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

void frmDocument::cmdPasteCitation_Click() {
    if (Paste(CitedSourceIn(ui::TheDesktop().ClipboardText()))) ReviewPasted();
}

void frmDocument::TakeFile(const std::string& path) {
    if (PasteFile(path)) ReviewPasted();
}

bool frmDocument::PasteFile(const std::string& path) {
    return Paste(CitedSourceInFile(path));
}

/// A reading that failed leaves the one before, which may still be under review.
bool frmDocument::Paste(std::optional<CitedSource> cited) {
    if (!cited) return false;
    pasted_ = std::move(cited);
    return true;
}

void frmDocument::ReviewPasted() {
    ui::Forms::Current().Get("frmCitation").ShowModal();
}

/// What a citation of the same paper does not tell stays as it stands here; what belongs to another
/// paper goes.
void frmDocument::TakePasted() {
    if (!pasted_) return;
    const Citation& citation = pasted_->citation;
    const std::string before = txtTitle.Entered();
    const bool isOther = !before.empty() && !EqualNoCase(before, Transliterate(citation.title));
    const auto replaces = [isOther](const std::string& text) { return isOther || !text.empty(); };
    if (replaces(citation.type)) cboTypeDoc.Index(std::max(0, cboTypeDoc.Find(citation.type)));
    if (replaces(pasted_->source)) Source(pasted_->source);
    if (!pasted_->parts.empty()) KeepParts(pasted_->detailForm, pasted_->parts);
    if (replaces(citation.title)) txtTitle.Enter(citation.title);
    if (replaces(citation.year)) txtYear.Text(citation.year);
    if (isOther || !pasted_->authors.empty()) TakeAuthors(pasted_->authors);
    if (replaces(citation.keyWords)) txtKeyWords.Enter(citation.keyWords);
    if (replaces(citation.abstract)) txtAbstract.Enter(citation.abstract);
}

void frmDocument::TakeAuthors(const std::vector<CitedAuthor>& cited) {
    std::vector<std::shared_ptr<clsAuthor>> authors;
    authors.reserve(cited.size());
    for (const CitedAuthor& author : cited)
        authors.push_back(author.known ? author.known
                                       : frmAuthor::NewAuthor(author.last, author.first, authors));
    Authors(authors);
}

} // namespace vexora
