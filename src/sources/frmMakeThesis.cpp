#include "sources/frmMakeThesis.h"

namespace vexora {

frmMakeThesis::frmMakeThesis() : MakeForm("frmMakeThesis", "Thesis/Dissertation") {
    Arrangement = ui::Column({ui::Field("Degree:", txtDegree), ui::Row({optT, optD}),
                              ui::Field("Institution:", txtInst), ui::Field("Location:", txtLoc),
                              ui::Stretch(), ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel);
    optT.Value(true);
}

bool frmMakeThesis::Check() {
    return Require(txtDegree, "Enter degree") && Require(txtInst, "Enter institution name");
}

std::string frmMakeThesis::Compose() const {
    return txtDegree.Entered() + (optD.Value() ? " Dissertation" : " Thesis") +
           PartText(", ", txtInst.Entered()) + PartText(", ", txtLoc.Entered());
}

void frmMakeThesis::TakeApart(std::string_view source) {
    SourceReader reader(source);
    const bool isThesis = source.find(" Thesis") != source.npos;
    txtDegree.Text(reader.UpTo(isThesis ? " Thesis" : " Dissertation"));
    (isThesis ? optT : optD).Value(true);
    reader.Skip(", ");
    txtInst.Text(reader.UpTo(", "));
    txtLoc.Text(reader.Rest());
}

} // namespace vexora
