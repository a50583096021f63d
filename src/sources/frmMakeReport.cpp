#include "sources/frmMakeReport.h"

namespace vexora {

frmMakeReport::frmMakeReport() : MakeForm("frmMakeReport", "Report") {
    Arrangement = ui::Column({ui::Field("Report name:", txtName), ui::Field("Report No:", txtNo),
                              ui::Field("Institution:", txtInst), ui::Field("Location:", txtLoc),
                              ui::Stretch(), ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel);
}

bool frmMakeReport::Check() {
    return Require(txtName, "Enter report name") && Require(txtNo, "Enter report No") &&
           Require(txtInst, "Enter institution name");
}

std::string frmMakeReport::Compose() const {
    return "@" + txtName.Entered() + "@ " + txtNo.Entered() + "@ " + txtInst.Entered() +
           PartText(", ", txtLoc.Entered());
}

void frmMakeReport::TakeApart(std::string_view source) {
    SourceReader reader(source);
    txtName.Text(reader.Marked('@'));
    reader.Skip(" ");
    txtNo.Text(reader.UpTo("@ "));
    txtInst.Text(reader.UpTo(", "));
    txtLoc.Text(reader.Rest());
}

} // namespace vexora
