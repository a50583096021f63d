#include "chem/clsAtom.h"
#include "compounds/SubstanceSearch.h"
#include "compounds/frmSubst.h"
#include "records/clsL.h"
#include "reference/Numbers.h"
#include "reference/StructureIdentifiers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

/// Searches by name and formula. A registry number takes part only when it is all that was given.
void frmSubst::FindSubstance() {
    AskAboutHydrate();
    std::string formula(TrimBlanks(txtFormula.Text()));
    const std::string pattern = NamePattern(TrimBlanks(txtName.Text()));
    {
        const ui::FillingScope filling(*this);
        // A text that is no formula stays to be mended; it finds nothing.
        if (const std::string canonical = CanonicalFormula(formula); !canonical.empty()) {
            formula = canonical;
            txtFormula.Text(formula);
        }
        if (pattern.empty()) txtName.Text("");
    }
    const RegistryParts parts = TypedParts();
    if (pattern.empty() && formula.empty() && parts.IsEmpty()) return;
    if (!editing_ && !RNCheck()) return; // in edit mode the number is locked

    const bool onlyNumber = pattern.empty() && formula.empty();
    ShowRows(onlyNumber ? CompoundsOf(ParseInteger(parts.Joined()).value_or(0))
                        : FindCompounds(pattern, formula));
    // No name is spelled so; a short line notation ("O") may well be, and names go first.
    if (rows_.empty()) ShowRows(CompoundsOf(NumberOfStructure(TrimBlanks(txtName.Text()))));
    if (!rows_.empty()) {
        lstNames.SetFocus();
        rnEdited_ = nameEdited_ = formulaEdited_ = false;
    } else if (!editing_) {
        ui::Say("Substance not found in the database");
    }
}

/// The point of "CuSO4.5H2O" reads as a fractional count, which is another compound.
void frmSubst::AskAboutHydrate() {
    if (txtFormula.Locked()) return;
    const std::string typed(TrimBlanks(txtFormula.Text()));
    const std::string meant = HydrateReading(typed);
    const std::string asTyped = CanonicalFormula(typed);
    if (meant.empty() || (!asTyped.empty() && asTyped == settledFormula_)) return;
    const ui::Message question{"Is this a hydrate?", typed, ui::MessageButtons::YesNo,
                               ui::Answer::Yes};
    const bool isHydrate = ui::TheDesktop().Show(question) == ui::Answer::Yes;
    const ui::FillingScope filling(*this);
    settledFormula_ = isHydrate ? meant : asTyped;
    if (!isHydrate) return;
    txtFormula.Text(meant);
    ShowMass();
}

bool frmSubst::RNCheck() {
    const auto fault = CheckRegistryNumber(TypedParts());
    if (!fault) return true;
    ui::TextBox& box = fault->Part == 0 ? txtRN2 : txtRN1;
    Refuse(box, fault->Text, "Invalid RN");
    box.Select(fault->Start, fault->Length);
    return false;
}

void frmSubst::ShowRows(std::vector<CompoundRow> rows) {
    const ui::FillingScope filling(*this);
    rows_ = std::move(rows);
    std::vector<std::string> names;
    for (const CompoundRow& row : rows_)
        names.push_back(row.NAME);
    lstNames.Assign(std::move(names));
    ShowEntryNumber("");
    cmdUseRN.Enabled(false);
}

/// An edited compound keeps its number; only a picked entry has one to show.
void frmSubst::ShowEntryNumber(const std::string& number) {
    lblRN.Caption(number);
    lblRN.Visible(!editing_ || !number.empty());
}

/// A picked row fills name and formula. It brings no number with it but a made-up one, unless the
/// operator has typed one or asks for the row's own (cmdUseRN).
void frmSubst::TakeRow(const CompoundRow& row) {
    {
        const ui::FillingScope filling(*this);
        txtName.Text(row.NAME);
        txtFormula.Text(row.FORMULA);
        settledFormula_ = CanonicalFormula(row.FORMULA);
        ShowMass();
    }
    row_ = row;
    offered_ = false;
    const std::string rn = std::to_string(row.RN);
    ShowEntryNumber(DashedRegistryNumber(rn));
    cmdUseRN.Enabled(TypedParts().Joined() != rn);
    nameEdited_ = true;
    rnEdited_ = typedRN_;
    if (!typedRN_ && !editing_) NewSubstance();
    Touch();
}

/// Nobody typed a number, but one was made up for the row that was picked.
bool frmSubst::HasMadeUpNumber() const {
    return !rnEdited_ && !typedRN_ && !TypedParts().IsEmpty();
}

void frmSubst::NewSubstance() {
    ShowParts(SplitRegistryNumber(NewSubstanceRN()));
    isNew_ = true;
}

/// A number that the operator typed stands, with its check digit computed.
void frmSubst::AddNewSubstance() {
    const RegistryParts typed = TypedParts();
    if (typed.IsEmpty()) return NewSubstance();
    ShowParts({typed.Front, typed.Middle, CheckDigitText(typed.Front, typed.Middle)});
    isNew_ = true;
}

RegistryParts frmSubst::TypedParts() const {
    return {txtRN2.Text(), txtRN1.Text(), txtCASD.Text()};
}

void frmSubst::ShowParts(const RegistryParts& parts) {
    const ui::FillingScope filling(*this);
    txtRN2.Text(parts.Front);
    txtRN1.Text(parts.Middle);
    txtCASD.Text(parts.Check);
}

/// Shown to six decimals, so that sums of atomic masses show no noise of the arithmetic.
void frmSubst::ShowMass() {
    const double mass = MolarMassOfFormula(txtFormula.Text());
    txtMMass.Text(mass > 0 ? NumberText(Val(FormatFixed(mass, 6))) : std::string());
}

} // namespace vexora
