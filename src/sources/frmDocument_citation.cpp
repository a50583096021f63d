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
    if (isOther) sources_.clear();
    if (replaces(pasted_->source)) Source(pasted_->source);
    if (!pasted_->parts.empty()) KeepParts(pasted_->detailForm, pasted_->parts);
    if (replaces(citation.title)) txtTitle.Enter(citation.title);
    if (replaces(citation.year)) txtYear.Text(citation.year);
    if (isOther || !pasted_->authors.empty())
        TakeAuthors(pasted_->authors, isOther ? frmAuthor::Authors() : authors_);
    if (replaces(citation.keyWords)) txtKeyWords.Enter(citation.keyWords);
    if (replaces(citation.abstract)) txtAbstract.Enter(citation.abstract);
    cmdAccept.SetFocus(); // Enter at the button of pasting would paste again
}

/// Of authors who are new to the table, those whom the description of this paper has stay who they
/// are; the marks of the others differ from theirs.
void frmDocument::TakeAuthors(const std::vector<CitedAuthor>& cited,
                              std::vector<std::shared_ptr<clsAuthor>> own) {
    std::vector<std::shared_ptr<clsAuthor>> authors;
    authors.reserve(cited.size());
    auto others = own;
    const auto fresh = [&own, &others](const CitedAuthor& author) {
        const clsAuthor typed = author.Typed();
        const auto same = std::ranges::find_if(
            own, [&typed](const auto& one) { return typed.CompareName(one->FULLNM); });
        if (same == own.end())
            return others.emplace_back(frmAuthor::NewAuthor(author.last, author.first, others));
        auto taken = *same;
        own.erase(same);
        return taken;
    };
    for (const CitedAuthor& author : cited)
        authors.push_back(author.known ? author.known : fresh(author));
    Authors(authors);
}

} // namespace vexora
