#include "compounds/frmSubst.h"

#include "chem/clsAtom.h"
#include "compounds/BioIdentifiers.h"
#include "globals/KVOGlobal.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

#include <algorithm>
#include <utility>

namespace vexora {

namespace {

constexpr int HelpEnter = 240;
constexpr int HelpDisplay = 140;
constexpr int HelpBio = 145;

bool Writes(const ui::Key& key) {
    return key.character >= U' ' && !key.control && !key.alt;
}

bool IsDigitKey(const ui::Key& key) {
    return key.character >= U'0' && key.character <= U'9';
}

bool IsSeparatorKey(const ui::Key& key) {
    return key.character == U' ' || key.character == U'-';
}

/// Characters that stay when the selection is typed over.
std::size_t KeptCharacters(const ui::TextBox& box) {
    return CodePointCount(box.Text()) - box.SelectionLength();
}

bool OpenedByBioDialog() {
    const KVOGlobal& globals = Globals();
    const auto& openers = globals.OpenForms;
    return globals.EditBioReact || globals.EditBioProp || // a set that is edited notes no opener
           (!openers.empty() && openers.back().starts_with("frmBio"));
}

bool StandsInBioData(const clsL& compound) {
    const auto uses = [&](const auto& set) { return set->Uses(compound.RN); };
    const clsR& source = *Globals().CurrentR;
    return std::ranges::any_of(source.recBR, uses) || std::ranges::any_of(source.recBP, uses);
}

} // namespace

frmSubst::frmSubst() : ChainForm("frmSubst", "Substance") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
    HelpContext = HelpEnter;
    cmdFind.ToolTip("Find a substance in the database by a formula and/or name (fragment of the "
                    "name) and/or CAS Registry Number");
    cmdUseRN.ToolTip("Take the registry number of the database instead of a made-up one");
    txtMMass.Locked(true);
    cmdUseRN.Enabled(false);
}

void frmSubst::ArrangeControls() {
    using namespace ui;
    Arrangement = Column(
        {Field("Name:", txtName),
         Note("Use % or * symbols to indicate variable fragments of the name, for example: "
              "*qiunone"),
         Field("CAS Registry Number:",
               Row({Narrow(txtRN2, 8), lblDash1, Narrow(txtRN1, 3), lblDash2, Narrow(txtCASD, 2)})),
         Field("Empirical  formula (Case sensitive):", Row({txtFormula, cmdFind})),
         Note("Upper and lower case matter: type CHBr3, not Chbr3"),
         Field("Molar Mass:", Narrow(txtMMass, 14)),
         Group(fraBio, {Field("Charge:", Row({Narrow(thtCharge, 14), Stretch()})),
                        Field("EC Number:", Row({Narrow(txtEC, 14), lblEC})),
                        Field("PDB Number:", Row({Narrow(txtPDB, 14), lblPDB}))}),
         Field("Search results:", lstNames),
         Field("CAS Registry Number of the entry:", Row({lblRN, cmdUseRN})),
         ButtonRow({cmdSample, cmdAccept, cmdCancel})});
    PreferredColumns = 76;
}

void frmSubst::WireEvents() {
    txtName.OnChange = [this] { NameChanged(); };
    txtName.OnDropDown = [this] { OfferNames(); };
    txtName.OnClick = [this] { NamePicked(); };
    txtName.OnKey = [this](const ui::Key& key) { NameKey(key); };
    txtName.OnLostFocus = [this] { DefaultButton = &cmdAccept; };
    txtRN2.OnChange = [this] { FrontChanged(); };
    txtRN1.OnChange = [this] { RegistryNumberChanged(); };
    txtCASD.OnChange = [this] { CheckDigitChanged(); };
    txtFormula.OnChange = [this] { FormulaChanged(); };
    for (ui::TextBox* box : {&thtCharge, &txtEC, &txtPDB})
        box->OnChange = [this] {
            ShowHints();
            Touch();
        };
    txtRN2.OnKey = [this](ui::Key& key) { FrontKey(key); };
    txtRN1.OnKey = [this](ui::Key& key) { MiddleKey(key); };
    txtCASD.OnKey = [this](ui::Key& key) { CheckDigitKey(key); };
    txtCASD.OnGotFocus = [this] { txtCASD.SelectAll(); };
    cmdFind.OnClick = [this] { FindSubstance(); };
    lstNames.OnClick = [this] { NamesClick(); };
    lstNames.OnGotFocus = [this] { byKey_ = false; };
    lstNames.OnKey = [this](ui::Key& key) { NamesKey(key); };
    cmdUseRN.OnClick = [this] { UseRegistryNumber(); };
    cmdSample.OnClick = [this] { GoOnToSample(); };
    mnuHelpEnter.OnClick = [] { ui::TheDesktop().ShowHelp(HelpEnter); };
    mnuHelpDisplay.OnClick = [] { ui::TheDesktop().ShowHelp(HelpDisplay); };
    mnuHelpBio.OnClick = [] { ui::TheDesktop().ShowHelp(HelpBio); };
}

void frmSubst::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    editing_ = globals.EditCompound && CurrentCompound() != nullptr;
    forBioData_ = !editing_ && OpenedByBioDialog();
    fraBio.Visible(globals.BioEnabled || forBioData_);
    cmdSample.Visible(!editing_ && !IsGuided() && ui::Forms::Current().Knows("frmSample"));
    if (editing_) PrepareEdit();
}

/// The registry number is what mixtures, reactions and data know a compound by, so it stays. Name
/// and formula are the database's, unless it has none of them.
void frmSubst::PrepareEdit() {
    const clsL& compound = *CurrentCompound();
    mendable_ = compound.isNew || compound.Name.empty() || compound.Formula.empty();
    cmdAccept.Caption("OK");
    cmdUseRN.Visible(false);
    ShowEntryNumber("");
    for (ui::TextBox* box : {&txtRN2, &txtRN1, &txtCASD})
        box->Locked(true);
    txtName.Enabled(mendable_);
    txtFormula.Locked(!mendable_);
    cmdFind.Enabled(mendable_);
    lstNames.Enabled(mendable_);
    if (compound.isBio || StandsInBioData(compound)) fraBio.Visible(true);
    Fill(compound);
    if (compound.isNew) FindSubstance();
}

void frmSubst::Fill(const clsL& compound) {
    const ui::FillingScope filling(*this);
    ShowParts(SplitRegistryNumber(compound.RN));
    txtName.Text(compound.Name);
    txtFormula.Text(compound.Formula);
    settledFormula_ = CanonicalFormula(compound.Formula);
    if (compound.MMass > 0) txtMMass.Text(NumberText(compound.MMass));
    if (compound.Charge != 0) thtCharge.Text(std::to_string(compound.Charge));
    if (compound.EC != "&") txtEC.Text(compound.EC);
    if (compound.PDB != "&") txtPDB.Text(compound.PDB);
    isNew_ = compound.isNew;
}

void frmSubst::NameChanged() {
    if (Filling) return;
    UnfoldNames();
    nameEdited_ = true;
    Touch();
}

/// A whole number that is pasted into the first box is spread over the three, its check digit left
/// as it is: a slip in the number then shows against the database.
void frmSubst::FrontChanged() {
    const auto pasted = Filling ? std::nullopt : PrintedRegistryNumber(txtRN2.Text());
    if (!pasted) return RegistryNumberChanged();
    ShowParts(*pasted);
    CheckDigitChanged();
}

void frmSubst::RegistryNumberChanged() {
    {
        const ui::FillingScope filling(*this);
        txtCASD.Text(CheckDigitText(txtRN2.Text(), txtRN1.Text()));
    }
    CheckDigitChanged();
}

void frmSubst::CheckDigitChanged() {
    if (Filling) return;
    rnEdited_ = true;
    typedRN_ = !TypedParts().IsEmpty();
    isNew_ = false;
    Touch();
}

void frmSubst::FormulaChanged() {
    if (Filling) return;
    formulaEdited_ = true;
    settledFormula_.clear();
    ShowMass();
    Touch();
}

/// A code of another form may be meant: it is told and taken.
void frmSubst::ShowHints() {
    lblEC.Caption(std::string(EnzymeNumberHint(txtEC.Text())));
    lblPDB.Caption(std::string(ProteinCodeHint(txtPDB.Text())));
}

void frmSubst::Touch() {
    if (Filling) return;
    changed_ = true;
    cmdAccept.Caption(editing_ ? "OK" : "Accept");
    cmdCancel.Caption("Cancel");
    cmdFind.Enabled(true);
    lstNames.Enabled(true);
}

void frmSubst::FrontKey(ui::Key& key) {
    if (!Writes(key)) return;
    const std::size_t kept = KeptCharacters(txtRN2);
    if (IsSeparatorKey(key) || kept >= 6) txtRN1.SetFocus();
    key.swallowed = !IsDigitKey(key) || kept >= 7;
}

void frmSubst::MiddleKey(ui::Key& key) {
    if (!Writes(key) || !IsSeparatorKey(key)) return;
    txtCASD.SetFocus();
    key.swallowed = true;
}

void frmSubst::CheckDigitKey(ui::Key& key) {
    if (Writes(key)) key.swallowed = !IsDigitKey(key) || KeptCharacters(txtCASD) >= 1;
}

/// Whoever walks the list by keys stays in it; a click leads on to the number of the entry.
void frmSubst::NamesClick() {
    const int index = lstNames.Index();
    if (Filling || index < 0) return;
    const bool byKey = std::exchange(byKey_, false);
    TakeRow(rows_.at(static_cast<std::size_t>(index)));
    if (cmdUseRN.IsUsable() && !byKey) cmdUseRN.SetFocus();
}

void frmSubst::NamesKey(ui::Key& key) {
    byKey_ = key.name != "Enter";
    if (byKey_ || !cmdUseRN.IsUsable()) return;
    key.swallowed = true;
    UseRegistryNumber();
}

void frmSubst::UseRegistryNumber() {
    if (!row_) return;
    TakeNumber(row_->RN);
    cmdUseRN.Enabled(false);
    cmdAccept.SetFocus();
}

/// As if it had been typed, so that it is compared with the database.
void frmSubst::TakeNumber(std::int64_t rn) {
    ShowParts(SplitRegistryNumber(std::to_string(rn)));
    RegistryNumberChanged();
}

} // namespace vexora
