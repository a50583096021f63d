#include "sources/frmMakeDeposited.h"

namespace vexora {

frmMakeDeposited::frmMakeDeposited() : MakeForm("frmMakeDeposited", "Deposited document") {
    Arrangement = ui::Column({ui::Field("Document No:", txtNo), ui::Field("Institution:", txtInst),
                              ui::Field("Page(s):", txtPages), ui::Stretch(),
                              ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel);
}

bool frmMakeDeposited::Check() {
    return Require(txtNo, "Enter document No") && Require(txtInst, "Enter institution name");
}

std::string frmMakeDeposited::Compose() const {
    return "@Deposited Document@ " + txtNo.Entered() + " " + txtInst.Entered() +
           PartText(", pp", txtPages.Entered());
}

void frmMakeDeposited::TakeApart(std::string_view source) {
    SourceReader reader(source);
    reader.Marked('@');
    reader.Skip(" ");
    txtNo.Text(reader.UpTo(" "));
    txtInst.Text(reader.UpToLast(", pp"));
    txtPages.Text(reader.Rest());
}

} // namespace vexora
