#include "sources/frmMakeJournal.h"

#include "globals/KVOGlobal.h"
#include "sources/frmDocument.h"

namespace vexora {

frmMakeJournal::frmMakeJournal() : MakeForm("frmMakeJournal", "Journal article") {
    Arrangement = ui::Column({ui::Field("Journal:", cboJournal), ui::Field("Volume:", txtVolume),
                              ui::Field("Issue:", txtIssue), ui::Field(lblPages, txtPages),
                              ui::Stretch(), ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel);
}

bool frmMakeJournal::IsManuscript() {
    return Document() != nullptr && Document()->IsManuscript();
}

void frmMakeJournal::Prepare() {
    cboJournal.Fill();
    if (!IsManuscript()) return;
    Caption("Submitted manuscript");
    const bool knownJournal = Globals().ContributorCode == "JCE";
    lblPages.Caption(knownJournal ? "Manuscript ID: (e.g., je000490a)" : "Manuscript ID:");
    if (knownJournal) cboJournal.Enter("J.Chem.Eng.Data");
}

bool frmMakeJournal::Check() {
    return Require(cboJournal, "Enter journal title") &&
           Require(txtPages, IsManuscript() ? "Enter manucsript ID" : "Enter page(s)");
}

std::string frmMakeJournal::Compose() const {
    const std::string volume = txtVolume.Entered();
    const std::string issue = txtIssue.Entered();
    std::string text = "@" + WithoutMarks(cboJournal.Entered()) + "@";
    if (volume.empty())
        text += PartText(" No. ", issue);
    else
        text += " $" + volume + "$" + PartText("(", issue, ")");
    return text + PartText(", ", txtPages.Entered());
}

void frmMakeJournal::TakeApart(std::string_view source) {
    SourceReader reader(source);
    cboJournal.Enter(reader.Marked('@'));
    reader.Skip(" ");
    txtVolume.Text(reader.Marked('$'));
    if (reader.Skip("("))
        txtIssue.Text(reader.UpTo(")"));
    else if (reader.Skip("No. "))
        txtIssue.Text(reader.UpToLast(", "));
    reader.Skip(", ");
    txtPages.Text(reader.Rest());
}

} // namespace vexora
