#include "sources/frmMakePatent.h"

namespace vexora {

frmMakePatent::frmMakePatent() : MakeForm("frmMakePatent", "Patent") {
    Arrangement = ui::Column({ui::Field("Country:", txtCountry), ui::Field("Patent No:", txtNo),
                              ui::Field("Owner:", txtOwner), ui::Field("Date:", txtDate),
                              ui::Stretch(), ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel);
}

bool frmMakePatent::Check() {
    return Require(txtCountry, "Enter country") && Require(txtNo, "Enter patent No");
}

std::string frmMakePatent::Compose() const {
    return txtCountry.Entered() + " Patent " + txtNo.Entered() +
           PartText(", ", txtOwner.Entered()) + PartText(", ", txtDate.Entered());
}

void frmMakePatent::TakeApart(std::string_view source) {
    SourceReader reader(source);
    txtCountry.Text(reader.UpTo(" Patent "));
    txtNo.Text(reader.UpTo(", "));
    const std::string first = reader.UpToLast(", ");
    // Of owner and date one may be missing; only a date has figures.
    const bool dateAlone = reader.AtEnd() && first.find_first_of("0123456789") != first.npos;
    txtOwner.Text(dateAlone ? "" : first);
    txtDate.Text(dateAlone ? first : reader.Rest());
}

} // namespace vexora
