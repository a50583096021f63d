#include <algorithm>
#include <limits>

#include "chem/clsAtom.h"
#include "compounds/SubstanceSearch.h"
#include "compounds/frmSubst.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/CompoundTable.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

std::string Trimmed(const ui::TextBox& box) {
    return std::string(TrimBlanks(box.Text()));
}

std::string Trimmed(const ui::ComboBox& box) {
    return std::string(TrimBlanks(box.Text()));
}

} // namespace

void frmSubst::Accept() {
    if (editing_)
        AcceptEdit();
    else if (!changed_)
        Close();
    else
        AcceptNew();
}

void frmSubst::AcceptNew() {
    if (!CheckCharge() || !RNCheck()) return;
    AskAboutHydrate();
    OfferItsNumber();
    if (!rnEdited_ && (nameEdited_ || formulaEdited_)) FindSubstance();
    if (HasMadeUpNumber() ? !CheckKept() : !IdentifySubstance()) return;
    if (!CheckFree()) return;
    Store();
    Finish();
}

/// What stands in the boxes is accepted first; with nothing in them the sample is that of the
/// compound accepted last.
void frmSubst::GoOnToSample() {
    if (changed_) AcceptNew();
    const auto compound = stored_.lock();
    if (!changed_ && compound && compound->tNode) GoOn(*this, *compound->tNode, "AddSample");
}

/// A compound that is as the database gives it should not go under a made-up number by oversight.
void frmSubst::OfferItsNumber() {
    if (!row_ || offered_ || !HasMadeUpNumber()) return;
    if (Trimmed(txtName) != row_->NAME || Trimmed(txtFormula) != row_->FORMULA) return;
    offered_ = true;
    const std::string number = DashedRegistryNumber(std::to_string(row_->RN));
    const ui::Message question{"The database knows this compound as " + number +
                                   ".\nUse this registry number?",
                               {},
                               ui::MessageButtons::YesNo,
                               ui::Answer::Yes};
    if (ui::TheDesktop().Show(question) == ui::Answer::Yes) TakeNumber(row_->RN);
}

bool frmSubst::CheckKept() {
    if (Trimmed(txtName).empty()) return Refuse(txtName, "Enter the substance name");
    const bool asPicked = std::any_of(rows_.begin(), rows_.end(), [this](const CompoundRow& row) {
        return row.FORMULA == Trimmed(txtFormula);
    });
    if (!asPicked && CanonicalFormula(Trimmed(txtFormula)).empty())
        return Refuse(txtFormula, "Enter a valid empirical formula");
    return true;
}

/// Compares what was typed with the reference database; false stops the acceptance.
bool frmSubst::IdentifySubstance() {
    {
        const ui::FillingScope filling(*this);
        const std::string canonical = CanonicalFormula(Trimmed(txtFormula));
        if (!canonical.empty()) txtFormula.Text(canonical);
        txtName.Text(Trimmed(txtName));
        ShowMass();
    }
    if (!AgreesWithNumber()) return false;
    if (txtName.Text().empty()) return Refuse(txtName, "Enter the substance name");
    return CompoundsNamed(txtName.Text()).empty() ? RegisterSubstance() : AgreesWithName();
}

bool frmSubst::AgreesWithNumber() {
    const RegistryParts parts = TypedParts();
    if (parts.IsEmpty()) return true;
    const std::vector<CompoundRow> rows = CompoundsOf(ParseInteger(parts.Joined()).value_or(0));
    const bool agrees = std::any_of(rows.begin(), rows.end(), [this](const CompoundRow& row) {
        return row.NAME == txtName.Text() && row.FORMULA == txtFormula.Text();
    });
    if (rows.empty() || agrees) return true;
    CorrectBy(rows);
    return false;
}

/// Several compounds may share a name (isomers): one that agrees in all is enough.
bool frmSubst::AgreesWithName() {
    const std::vector<CompoundRow> rows = CompoundsNamed(txtName.Text());
    const std::string rn = TypedParts().Joined();
    const bool agrees = std::any_of(rows.begin(), rows.end(), [&](const CompoundRow& row) {
        return std::to_string(row.RN) == rn && row.FORMULA == txtFormula.Text();
    });
    if (agrees) {
        // What was added here other workplaces may not know: the document carries it.
        isNew_ =
            IsAddedHere(Globals().CompoundDb(), {ParseInteger(rn).value_or(0), txtName.Text(), {}});
        return true;
    }
    CorrectBy(rows);
    return false;
}

bool frmSubst::RegisterSubstance() {
    if (!ui::AskYesNo("Do you want to add a new substance not registered in the database?"))
        return false;
    if (CanonicalFormula(txtFormula.Text()).empty())
        return Refuse(txtFormula, "Enter a valid empirical formula");
    AddNewSubstance();
    return true;
}

void frmSubst::CorrectBy(std::vector<CompoundRow> rows) {
    ui::Say("Substance information will be corrected", "Incomplete match to the database");
    ShowRows(std::move(rows));
    lstNames.Index(0);
}

/// A made-up number gives way to a compound that has it already; a typed one is refused.
bool frmSubst::CheckFree() {
    const clsR& source = *Globals().CurrentR;
    const std::string rn = TypedParts().Joined();
    if (!source.FindL(rn)) return true;
    if (typedRN_ || !isNew_)
        return Refuse(txtRN2, "The substance with this RN has already been entered");
    ShowParts(SplitRegistryNumber(FreeSubstanceRN(source, rn)));
    return true;
}

bool frmSubst::CheckCharge() {
    const std::string text = Trimmed(thtCharge);
    const auto charge = ParseInteger(text);
    if (text.empty() || (charge && *charge >= std::numeric_limits<std::int32_t>::min() &&
                         *charge <= std::numeric_limits<std::int32_t>::max()))
        return true;
    return Refuse(thtCharge, "Enter a valid charge");
}

void frmSubst::Store() {
    KVOGlobal& globals = Globals();
    auto compound = std::make_shared<clsL>();
    const std::string formula = Trimmed(txtFormula);
    const std::string canonical = CanonicalFormula(formula);
    compound->RN = TypedParts().Joined();
    compound->Name = Trimmed(txtName);
    compound->Formula = canonical.empty() ? formula : canonical;
    compound->MMass = MolarMassOfFormula(formula);
    compound->isNew = isNew_;
    const auto known = CompoundsOf(ToInteger(Val(compound->RN)));
    compound->isNamed = !isNew_ && !known.empty() && known.front().NAME != compound->Name;
    StoreBio(*compound);
    compound->AttachTo(*globals.CurrentR);
    stored_ = compound;
    globals.Saved = false;
    globals.DialogAccepted = true;
    NoteAccepted();
}

/// Only the line of a bio compound has room for what these boxes hold.
void frmSubst::StoreBio(clsL& compound) const {
    compound.EC = Trimmed(txtEC);
    compound.PDB = Trimmed(txtPDB);
    compound.Charge = static_cast<std::int32_t>(ParseInteger(thtCharge.Text()).value_or(0));
    const bool isStated = !compound.EC.empty() || !compound.PDB.empty() || compound.Charge != 0;
    // What the database knows, water for one, is no bio compound for standing in bio data.
    if (isStated || (forBioData_ && compound.isNew)) compound.isBio = compound.isNew = true;
}

void frmSubst::Finish() {
    if (IsGuided()) {
        Close();
        return;
    }
    ClearBoxes();
    Globals().DataContext = "Pure";
    cmdAccept.Caption("Done");
    txtName.SetFocus();
}

void frmSubst::ClearBoxes() {
    const ui::FillingScope filling(*this);
    txtName.Text("");
    for (ui::TextBox* box :
         {&txtRN2, &txtRN1, &txtCASD, &txtFormula, &txtMMass, &thtCharge, &txtEC, &txtPDB})
        box->Text("");
    ShowRows({});
    row_.reset();
    rnEdited_ = nameEdited_ = formulaEdited_ = false;
    typedRN_ = isNew_ = changed_ = false;
}

void frmSubst::AcceptEdit() {
    clsL& compound = *CurrentCompound();
    if (!CheckCharge()) return;
    AskAboutHydrate();
    // Looking at a compound without identity does not make it a new one.
    if (mendable_ && (compound.isNew || IsMended(compound)) && !StoreMended(compound)) return;
    StoreBio(compound);
    compound.Refresh();
    Globals().Saved = false;
    Globals().DialogAccepted = true;
    Close();
}

bool frmSubst::IsMended(const clsL& compound) const {
    return Trimmed(txtName) != compound.Name || Trimmed(txtFormula) != compound.Formula;
}

bool frmSubst::StoreMended(clsL& compound) {
    const std::string name = Trimmed(txtName);
    if (name.empty() && !compound.isNew) return Refuse(txtName, "Enter the substance name");
    const std::string formula = CanonicalFormula(Trimmed(txtFormula));
    if (formula.empty() && !Confirm(txtFormula, "Formula is empty\nIs that OK?")) return false;
    compound.isNew = true;
    compound.Formula = formula;
    compound.MMass = 0; // else the mass of the formula before would stand
    compound.MMass = MolarMassOfRN(compound.RN);
    if (!name.empty()) compound.Name = name;
    return true;
}

} // namespace vexora
