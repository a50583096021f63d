#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "compounds/RegistryNumber.h"
#include "globals/FormChain.h"
#include "reference/Vocabulary.h"

namespace vexora {

class clsL;

/// Finds a compound in the reference database or registers a new one, and puts it into the source;
/// or edits the compound in hand. Opened from the shell it stays open for the next compound; opened
/// by another dialog it closes after one.
class frmSubst : public ChainForm {
public:
    frmSubst();

    ui::ComboBox txtName{*this, "txtName", ui::ComboBox::Style::Editable};
    ui::TextBox txtRN2{*this, "txtRN2"};
    ui::TextBox txtRN1{*this, "txtRN1"};
    ui::TextBox txtCASD{*this, "txtCASD"};
    ui::TextBox txtFormula{*this, "txtFormula"};
    ui::TextBox txtMMass{*this, "txtMMass"};
    ui::Frame fraBio{*this, "fraBio", "Bio compound"};
    ui::TextBox thtCharge{*this, "thtCharge"};
    ui::TextBox txtEC{*this, "txtEC"};
    ui::Label lblEC{*this, "lblEC"};
    ui::TextBox txtPDB{*this, "txtPDB"};
    ui::Label lblPDB{*this, "lblPDB"};
    ui::CommandButton cmdFind{*this, "cmdFind", "Find"};
    ui::ListBox lstNames{*this, "lstNames"};
    ui::Label lblRN{*this, "lblRN"};
    ui::CommandButton cmdUseRN{*this, "cmdUseRN", "Use this registry number"};
    ui::CommandButton cmdSample{*this, "cmdSample", "Accept, then its sample"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
    ui::Label lblDash1{*this, "lblDash1", "-"};
    ui::Label lblDash2{*this, "lblDash2", "-"};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuHelpEnter{*this, "mnuHelpEnter", "How to enter a compound", &mnuHelp};
    ui::MenuItem mnuHelpDisplay{*this, "mnuHelpDisplay", "Compound Display Option", &mnuHelp};
    ui::MenuItem mnuHelpBio{*this, "mnuHelpBio", "Bio compound specification", &mnuHelp};

    void Load() override;

private:
    void ArrangeControls();
    void WireEvents();
    void PrepareEdit();
    void Fill(const clsL& compound);

    void NameChanged();
    void FrontChanged();
    void RegistryNumberChanged();
    void CheckDigitChanged();
    void FormulaChanged();
    void ShowHints();
    void Touch();
    void FrontKey(ui::Key& key);
    void MiddleKey(ui::Key& key);
    void CheckDigitKey(ui::Key& key);
    void NamesClick();
    void NamesKey(ui::Key& key);
    void UseRegistryNumber();
    void TakeNumber(std::int64_t rn);

    // The names below what is typed (frmSubst_names.cpp).
    void OfferNames();
    void UnfoldNames();
    void NamePicked();
    void NameKey(const ui::Key& key);

    // The search (frmSubst_search.cpp).
    void FindSubstance();
    void AskAboutHydrate();
    bool RNCheck();
    void ShowRows(std::vector<CompoundRow> rows);
    void TakeRow(const CompoundRow& row);
    bool HasMadeUpNumber() const;
    void NewSubstance();
    void AddNewSubstance();
    RegistryParts TypedParts() const;
    void ShowParts(const RegistryParts& parts);
    void ShowMass();
    void ShowEntryNumber(const std::string& number);

    // Accepting (frmSubst_accept.cpp).
    void Accept();
    void AcceptNew();
    void GoOnToSample();
    void OfferItsNumber();
    void AcceptEdit();
    bool IsMended(const clsL& compound) const;
    bool StoreMended(clsL& compound);
    bool IdentifySubstance();
    bool AgreesWithNumber();
    bool AgreesWithName();
    bool RegisterSubstance();
    bool CheckKept();
    bool CheckFree();
    bool CheckCharge();
    void CorrectBy(std::vector<CompoundRow> rows);
    void Store();
    void StoreBio(clsL& compound) const;
    void Finish();
    void ClearBoxes();

    std::weak_ptr<clsL> stored_; // the compound accepted last
    bool editing_ = false;
    bool mendable_ = false;   // of the edited compound name and formula are not the database's
    bool forBioData_ = false; // opened by a dialog for bio data
    // Marks of the boxes since the last search or store.
    bool rnEdited_ = false;
    bool nameEdited_ = false;
    bool formulaEdited_ = false;
    bool typedRN_ = false;           // the number in the boxes is the operator's own
    bool isNew_ = false;             // the compound in the boxes is not in the reference database
    bool changed_ = true;            // anything changed since the last store
    std::vector<CompoundRow> rows_;  // behind the entries of lstNames
    std::optional<CompoundRow> row_; // the row that was picked; its number is on offer
    /// Canonical text of a formula with a point that is meant as it stands.
    std::string settledFormula_;
    bool offered_ = false; // its number has been asked about
    bool byKey_ = false;   // a key of the list is being followed
};

} // namespace vexora
