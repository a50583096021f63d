#include "sources/frmCitation.h"

#include "records/SourceText.h"
#include "records/clsAuthor.h"
#include "sources/CitedSource.h"
#include "sources/frmDocument.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

frmCitation::frmCitation() : Form("frmCitation", "Citation") {
    Arrangement =
        ui::Column({ui::Field("Type of document:", txtType), ui::Field("Title:", txtTitle),
                    ui::Field("Authors:", lstAuthors), ui::Field("Year:", ui::Narrow(txtYear, 6)),
                    ui::Field("Found:", lstDetails), ui::Field("Source:", txtSource),
                    ui::Field("Key words:", txtKeyWords), ui::Field("Abstract:", txtAbstract),
                    ui::Field("To look at:", lstRemarks), ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel, [this] { cmdAccept_Click(); });
    HelpContext = 226;
    PreferredColumns = 110;
    mnuHelp.OnClick = [this] { ui::TheDesktop().ShowHelp(HelpContext); };
    for (ui::TextBox* box :
         {static_cast<ui::TextBox*>(&txtTitle), &txtType, &txtYear,
          static_cast<ui::TextBox*>(&txtSource), static_cast<ui::TextBox*>(&txtKeyWords),
          static_cast<ui::TextBox*>(&txtAbstract)})
        box->Locked(true);
}

void frmCitation::Load() {
    if (Document() && Document()->Pasted()) Fill(*Document()->Pasted());
    cmdAccept.SetFocus();
}

/// One that holds no citation leaves the one that is shown.
void frmCitation::TakeFile(const std::string& path) {
    if (Document() && Document()->PasteFile(path)) Fill(*Document()->Pasted());
}

void frmCitation::Fill(const CitedSource& cited) {
    Caption("Citation (" + cited.citation.format + ")");
    txtType.Text(cited.citation.type);
    txtTitle.Text(cited.citation.title);
    std::vector<std::string> names;
    for (const CitedAuthor& author : cited.authors)
        names.push_back(author.known ? author.known->FULLNM + " (known)"
                                     : author.Typed().FULLNM + " (new)");
    lstAuthors.Assign(names);
    txtYear.Text(cited.citation.year);
    lstDetails.Assign(cited.Details());
    txtSource.Text(cited.source);
    txtSource.Readable(PublicationInWords(cited.source));
    txtKeyWords.Text(cited.citation.keyWords);
    txtAbstract.Text(cited.citation.abstract);
    lstRemarks.Assign(cited.remarks);
}

void frmCitation::cmdAccept_Click() {
    if (Document()) Document()->TakePasted();
    Close();
}

frmDocument* frmCitation::Document() {
    return ui::Forms::Current().Find<frmDocument>("frmDocument");
}

} // namespace vexora
