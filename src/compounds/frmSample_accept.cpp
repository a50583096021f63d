#include "compounds/frmSample.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

bool IsImpurity(const ui::ComboBox& unit) {
    for (const PurityUnit& row : PurityUnits())
        if (row.text == unit.Chosen()) return IsImpurityUnit(row.code);
    return false;
}

} // namespace

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

/// Another dialog than the shell waits for one sample.
bool frmSample::IsGuided() const {
    const auto& openers = Globals().OpenForms;
    return IsModal() || (!openers.empty() && openers.back() != "frmMain");
}

void frmSample::Next() {
    if (changed_) {
        NormalizeNumbers();
        if (!Check() || !Store()) return;
    }
    NewSample();
    lstDescAvail.SetFocus();
}

void frmSample::NormalizeNumbers() {
    txtSrcPurity.Text(NormalizeNumber(txtSrcPurity.Text()));
    for (const auto& box : txtFinalPurity)
        box->Text(NormalizeNumber(box->Text()));
}

bool frmSample::Check() {
    if (!CheckChoices()) return false;
    if (!IsDescribed()) return true;
    if (!CheckAnyPurity() || !CheckInitial() || !CheckPurification()) return false;
    for (int i = 0; i < finalRows; ++i)
        if (!CheckFinal(i)) return false;
    return true;
}

bool frmSample::CheckChoices() {
    if (!ChosenCompound()) return Refuse(cboSubst, "Select the compound");
    if (lstDescAvail.Index() < 0) return Refuse(lstDescAvail, "Select description availability");
    if (IsDescribed() && lstSmpSrc.Index() < 0) return Refuse(lstSmpSrc, "Select source of sample");
    return true;
}

bool frmSample::CheckAnyPurity() {
    bool any = !txtSrcPurity.IsEmpty();
    for (const auto& box : txtFinalPurity)
        any = any || !box->IsEmpty();
    return any ||
           Confirm(txtSrcPurity, "No numerical purity assessment was provided.\nIs this correct?",
                   "Purity information missing");
}

bool frmSample::CheckInitial() {
    if (!CheckValue(txtSrcPurity)) return false;
    if (Val(txtSrcPurity.Text()) > 10 && lstSrcPurity.Chosen() == "water mass %" &&
        !Confirm(txtSrcPurity, "Is water content so high?"))
        return false;
    return CheckMethod(txtSrcPurity, lstSrsDetBy);
}

bool frmSample::CheckPurification() {
    const bool none = lstPurify.Selected(lstPurify.Find(PurificationName("none")));
    if (!none || lstPurify.SelectedCount() < 2) return true;
    return Refuse(lstPurify, "Invalid combination of \"None used\" with other options");
}

bool frmSample::CheckFinal(int i) {
    ui::TextBox& box = txtFinalPurity(i);
    if (!CheckValue(box)) return false;
    const double value = Val(box.Text());
    if (IsImpurity(lstFinalPurity(i))) {
        if (value > 10 && !Confirm(box, "Is impurity content so high?")) return false;
    } else if (!box.IsEmpty() && value < 90) {
        if (!Confirm(box, "Is that low purity value correct?")) return false;
    }
    return CheckMethod(box, lstFinalDetBy(i));
}

bool frmSample::CheckValue(ui::TextBox& box) {
    const std::string finding = CheckPurityValue(box.Text());
    if (finding.empty()) return true;
    Refuse(box, finding);
    box.SelectAll();
    return false;
}

bool frmSample::CheckMethod(const ui::TextBox& box, ui::ComboBox& method) {
    return box.IsEmpty() || method.Index() >= 0 ||
           Refuse(method, "Please select the method of purity determination");
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
    return true;
}

} // namespace vexora
