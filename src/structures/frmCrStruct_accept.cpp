#include <algorithm>

#include "globals/KVOGlobal.h"
#include "records/clsComplexSample.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "structures/frmCrStruct.h"
#include "ui/Desktop.h"

namespace vexora {

bool frmCrStruct::Check() {
    for (TableEditor* table : {&atomEditor_, &distanceEditor_})
        table->EndTyping();
    if (Trim(cboGroup.Text()).empty()) return Refuse(cboGroup, "Please select the space group");
    return CheckNumbers() && CheckCell() && CheckTable(distanceEditor_, distances_, tblRaw) &&
           CheckTable(atomEditor_, atoms_, tblFinal);
}

/// No length, angle or uncertainty is 0 or less: such a figure stands for none.
bool frmCrStruct::CheckNumbers() {
    for (const Constant& constant : constants_) {
        PartOff(constant);
        for (ui::TextBox* box : {&constant.value, &constant.uncertainty}) {
            box->Text(NormalizeNumber(box->Text()));
            if (box->IsEmpty()) continue;
            if (!IsNumeric(box->Text())) return Refuse(*box, "Invalid number");
            if (Val(box->Text()) <= 0) box->Text("");
        }
    }
    return true;
}

/// A cell has six constants or none.
bool frmCrStruct::CheckCell() {
    const auto isEmpty = [](const Constant& constant) { return constant.value.IsEmpty(); };
    if (!std::ranges::all_of(constants_, isEmpty))
        for (std::size_t n = constants_.size(); n-- > 0;)
            if (isEmpty(constants_[n]))
                return Refuse(constants_[n].value, "Incomplete cell definition");
    for (const Constant& constant : constants_)
        if (isEmpty(constant) && !constant.uncertainty.IsEmpty())
            return Refuse(constant.uncertainty, "uncertainty is given to a missing value");
    return true;
}

bool frmCrStruct::CheckTable(TableEditor& table, const CrystalTable& rules, const ui::Grid& grid) {
    rules.CleanCells(table.History());
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row)
        for (const Finding& finding : rules.FindingsOf(row)) {
            table.Findings().GoTo(finding);
            if (finding.isFault) {
                ui::Say(finding.text);
                return false;
            }
            if (!ui::AskYesNo(finding.text)) return false;
        }
    return true;
}

void frmCrStruct::Save() {
    if (!Check()) return;
    Store();
    stored_ = true;
    Close();
}

void frmCrStruct::Store() {
    KVOGlobal& globals = Globals();
    const CrystalContent content = Typed();
    globals.DialogAccepted = true;
    const CrystalContent* before = record_.get();
    if (before && content == *before) return;
    globals.Saved = false;
    if (record_) return record_->Replace(content);
    record_ = std::make_shared<clsCrS>();
    record_->SetNo = NextStructureNumber(*sample_);
    record_->Replace(content);
    record_->AttachTo(*sample_);
    globals.CurrentCrS = record_;
}

} // namespace vexora
