#include "compounds/frmSample.h"

#include <algorithm>

#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

namespace vexora {

void frmSample::Accept() {
    if (!editing_ && !changed_) {
        Close();
        return;
    }
    NormalizeNumbers();
    if (!Check() || !Store()) return;
    if (editing_ || IsGuided())
        Close();
    else
        cmdAccept.Caption("Done");
}

void frmSample::Next() {
    if (!AcceptChanges()) return;
    NewSample();
    lstDescAvail.SetFocus();
}

bool frmSample::AcceptChanges() {
    if (!changed_) return true;
    NormalizeNumbers();
    return Check() && Store();
}

void frmSample::GoOnToProperty() {
    if (!AcceptChanges() || !stored_ || !stored_->tNode) return;
    const auto sample = stored_; // this form is gone behind its closing
    GoOn(*this, *sample->tNode, "AddProp");
}

void frmSample::NormalizeNumbers() {
    for (const Purity& boxes : purities_)
        boxes.value.Text(NormalizeNumber(boxes.value.Text()));
}

bool frmSample::Check() {
    if (!CheckChoices()) return false;
    if (!IsDescribed()) return true;
    return CheckAnyPurity() && CheckInitial() && CheckPurification() &&
           std::ranges::all_of(final_, [this](const Purity& boxes) { return CheckFinal(boxes); });
}

bool frmSample::CheckChoices() {
    if (!ChosenCompound()) return Refuse(cboSubst, "Select the compound");
    if (lstDescAvail.Index() < 0) return Refuse(lstDescAvail, "Select description availability");
    if (IsDescribed() && lstSmpSrc.Index() < 0) return Refuse(lstSmpSrc, "Select source of sample");
    return true;
}

bool frmSample::CheckAnyPurity() {
    return std::ranges::any_of(purities_,
                               [](const Purity& boxes) { return !boxes.value.IsEmpty(); }) ||
           Confirm(txtSrcPurity, "No numerical purity assessment was provided.\nIs this correct?",
                   "Purity information missing");
}

bool frmSample::CheckInitial() {
    if (!CheckValue(initial_)) return false;
    const PurityStatement stated = ReadPurity(initial_);
    if (Val(stated.Value) > 10 && stated.Unit == "h%" &&
        !Confirm(txtSrcPurity, "Is water content so high?"))
        return false;
    return CheckMethod(initial_);
}

bool frmSample::CheckPurification() {
    const bool none = lstPurify.Selected(lstPurify.Find(PurificationName("none")));
    if (!none || lstPurify.SelectedCount() < 2) return true;
    return Refuse(lstPurify, "Invalid combination of \"None used\" with other options");
}

bool frmSample::CheckFinal(const Purity& boxes) {
    ui::TextBox& box = boxes.value;
    if (!CheckValue(boxes)) return false;
    const PurityStatement stated = ReadPurity(boxes);
    const double value = Val(stated.Value);
    if (IsImpurityUnit(stated.Unit)) {
        if (value > 10 && !Confirm(box, "Is impurity content so high?")) return false;
    } else if (!box.IsEmpty() && value < 90) {
        if (!Confirm(box, "Is that low purity value correct?")) return false;
    }
    return CheckMethod(boxes);
}

bool frmSample::CheckValue(const Purity& boxes) {
    const std::string finding = CheckPurityValue(ReadPurity(boxes).Value);
    if (finding.empty()) return true;
    Refuse(boxes.value, finding);
    boxes.value.SelectAll();
    return false;
}

bool frmSample::CheckMethod(const Purity& boxes) {
    return boxes.value.IsEmpty() || boxes.method.Index() >= 0 ||
           Refuse(boxes.method, "Please select the method of purity determination");
}

/// Puts the sample into the document, or brings the one that is there up to date.
bool frmSample::Store() {
    const auto compound = ChosenCompound();
    if (!compound) return Refuse(cboSubst, "Substance internal error");
    const bool fresh = stored_ == nullptr;
    if (fresh) stored_ = std::make_shared<clsS>();
    stored_->SMPNM = txtSampleNo.Text();
    stored_->SMPDESC = txtSmplDescription.Text();
    stored_->AssessPurity();
    if (fresh)
        stored_->AttachTo(*compound);
    else
        compound->recS.Rekey(stored_.get(), stored_->Key());
    stored_->Refresh();
    changed_ = false;
    Globals().Saved = false;
    Globals().DialogAccepted = true;
    NoteAccepted();
    return true;
}

} // namespace vexora
