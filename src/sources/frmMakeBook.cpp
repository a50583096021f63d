#include "sources/frmMakeBook.h"

#include <utility>

namespace vexora {

frmMakeBook::frmMakeBook() : MakeForm("frmMakeBook", "Book or portion of a book") {
    Arrangement = ui::Column({ui::Field("Book title:", txtTitle), ui::Field("Edition:", txtEdition),
                              ui::Field("Volume:", txtVolume), ui::Field("Chapter:", txtChapter),
                              ui::Field("Page(s):", txtPages), ui::Field("Editor(s):", txtEditor),
                              ui::Field("Publisher:", cboPublisher), ui::Stretch(),
                              ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel);
}

bool frmMakeBook::Check() {
    return Require(txtTitle, "Enter book title") &&
           Require(cboPublisher, "Select or type the publisher");
}

std::string frmMakeBook::Compose() const {
    return "@" + txtTitle.Entered() + "@" + PartText(", ", txtEdition.Entered(), " ed.") +
           PartText(", Vol. ", txtVolume.Entered()) + PartText(", Ch. ", txtChapter.Entered()) +
           PartText(", Pg. ", txtPages.Entered()) + PartText(", ", txtEditor.Entered(), ", Ed.") +
           PartText(", ", WithoutMarks(cboPublisher.Entered()));
}

void frmMakeBook::TakeApart(std::string_view source) {
    SourceReader reader(source);
    txtTitle.Text(reader.Marked('@'));
    reader.Skip(", ");
    std::string unmarked; // parts that bear no word of their own: the editors, then the publisher
    while (!reader.AtEnd()) {
        const std::string part = reader.UpTo(", ");
        if (part == "Ed.")
            txtEditor.Text(std::exchange(unmarked, {}));
        else if (!TakeLabelled(part))
            unmarked += PartText(unmarked.empty() ? "" : ", ", part);
    }
    cboPublisher.Enter(unmarked);
}

bool frmMakeBook::TakeLabelled(std::string_view part) {
    if (part.ends_with(" ed.") && txtEdition.IsEmpty()) {
        txtEdition.Text(std::string(part.substr(0, part.size() - 4)));
        return true;
    }
    const std::pair<std::string_view, Part*> labelled[] = {
        {"Vol. ", &txtVolume}, {"Ch. ", &txtChapter}, {"Pg. ", &txtPages}};
    for (const auto& [label, field] : labelled) {
        if (!part.starts_with(label) || !field->IsEmpty()) continue;
        field->Text(std::string(part.substr(label.size())));
        return true;
    }
    return false;
}

} // namespace vexora
