#include "sources/frmMakeConf.h"

namespace vexora {

frmMakeConf::frmMakeConf() : MakeForm("frmMakeConf", "Conference proceedings") {
    Arrangement =
        ui::Column({ui::Field("Conference name:", txtName), ui::Field("Location:", txtLoc),
                    ui::Field("Date:", txtDate), ui::Field("Page(s):", txtPages), ui::Stretch(),
                    ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel);
}

bool frmMakeConf::Check() {
    return Require(txtName, "Enter conference name");
}

std::string frmMakeConf::Compose() const {
    return "@" + txtName.Entered() + "@" + PartText(", ", txtLoc.Entered()) +
           PartText(", ", txtDate.Entered()) + PartText(", pp ", txtPages.Entered());
}

void frmMakeConf::TakeApart(std::string_view source) {
    SourceReader reader(source);
    txtName.Text(reader.Marked('@'));
    SourceReader place(reader.UpToLast(", pp "));
    txtPages.Text(reader.Rest());
    place.Skip(", ");
    const std::string first = place.UpToLast(", ");
    // Of place and date one may be missing; only a date has figures.
    const bool dateAlone = place.AtEnd() && first.find_first_of("0123456789") != first.npos;
    txtLoc.Text(dateAlone ? "" : first);
    txtDate.Text(dateAlone ? first : place.Rest());
}

} // namespace vexora
