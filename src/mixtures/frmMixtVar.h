#pragma once

#include <array>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "entry/SampleList.h"
#include "globals/FormChain.h"
#include "mixtures/MixtVarRules.h"
#include "records/MixtureLine.h"

namespace vexora {

class CommentTags;
class clsM;
class clsMV;

/// Defines a set of a property of a mixture: its samples, the phases in equilibrium, what is held
/// constant and what varies, and leads to its table (frmData2). The set joins the tree, or an
/// edited one is changed (EditMixtVar), only when the table has been accepted. Of tied sets
/// (SetsToShow) the table of all of them follows (frmProcess). The property in hand
/// stands in the globals, or comes from a set that is to be repeated (SetToRepeat).
///
/// Phases and constraints leave so many variables as the phase rule says; their rows follow the
/// two numbers.
class frmMixtVar : public ChainForm {
public:
    static constexpr int MostComponents = 3;
    static constexpr int MostPhases = 4;
    static constexpr int MostRows = MixtureLine::MostSlots; // of constraints, and of variables

    frmMixtVar();

    ui::ComboBox cboMixt{*this, "cboMixt"};
    ui::TextBox txtPrpSetNo{*this, "txtPrpSetNo"};
    ui::ControlArray<ui::Label> lblSample{*this, "lblSample", MostComponents};
    ui::ControlArray<ui::ComboBox> cboSample{*this, "cboSample", MostComponents};
    ui::ComboBox cboPhases{*this, "cboPhases"};
    ui::ComboBox cboConstraints{*this, "cboConstraints"};
    ui::Label lblVariables{*this, "lblVariables"};
    ui::ControlArray<ui::Label> lblPhase{*this, "lblPhase", MostPhases};
    ui::ControlArray<ui::ComboBox> lstPhase{*this, "lstPhase", MostPhases};
    ui::Frame fraConstraints{*this, "fraConstraints", "Constraints"};
    ui::ControlArray<ui::Label> lblConstraint{*this, "lblConstraint", MostRows};
    ui::ControlArray<ui::ComboBox> cboConstraint{*this, "cboConstraint", MostRows};
    ui::ControlArray<ui::TextBox> txtConstr{*this, "txtConstr", MostRows};
    ui::ControlArray<ui::ComboBox> cboConstrUnit{*this, "cboConstrUnit", MostRows};
    ui::ControlArray<ui::ComboBox> cboConstrPhase{*this, "cboConstrPhase", MostRows};
    ui::Frame fraVariables{*this, "fraVariables", "Independent variables"};
    ui::ControlArray<ui::Label> lblVar{*this, "lblVar", MostRows};
    ui::ControlArray<ui::ComboBox> cboVar{*this, "cboVar", MostRows};
    ui::ControlArray<ui::ComboBox> cboVarUnit{*this, "cboVarUnit", MostRows};
    ui::ControlArray<ui::ComboBox> cboVarPhase{*this, "cboVarPhase", MostRows};
    ui::Label lblVar5{*this, "lblVar5"};
    ui::TextBox txtVar5{*this, "txtVar5"};
    ui::Label lblUnit5{*this, "lblUnit5"};
    ui::Label lblSolvent{*this, "lblSolvent", "Solvent:"};
    ui::ComboBox cboSolvent{*this, "cboSolvent"};
    ui::Label lblStandardState{*this, "lblStandardState", "Standard state:"};
    ui::ComboBox cboStandardState{*this, "cboStandardState"};
    ui::Frame fraDefinition{*this, "fraDefinition",
                            "Definition of Measurement Results (Absolute vs Relative)"};
    ui::ComboBox lstPROPERTY_FUNCT{*this, "lstPROPERTY_FUNCT"};
    ui::ComboBox lstRelation{*this, "lstRelation"};
    ui::TextBox txtRefT{*this, "txtRefT"};
    ui::TextBox txtRefP{*this, "txtRefP"};
    ui::Label lblRefPhase{*this, "lblRefPhase", "Reference phase:"};
    ui::ComboBox cboRefPhase{*this, "cboRefPhase"};
    ui::Frame fraPresentation{*this, "fraPresentation", "Data presentation"};
    ui::ComboBox lstNumerical{*this, "lstNumerical"};
    ui::CheckBox chkCalc{*this, "chkCalc", "Calculated"};
    ui::CheckBox chkEqu{*this, "chkEqu", "Equation"};
    ui::CheckBox chkGraph{*this, "chkGraph", "Graph"};
    ui::CheckBox chkIncludeDigit{*this, "chkIncludeDigit", "Store number of significant digits"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};
    ui::CommandButton cmdMethod{*this, "cmdMethod", "Property and method"};
    ui::CommandButton cmdOK{*this, "cmdOK", "Numerical Data"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;

private:
    void ArrangeControls();
    void WireEvents();

    void MixtureClick();
    void SampleClick(int component);
    void PhasesClick();
    void ConstraintsClick();
    void PhaseClick();
    void QuantityClick();
    void NumericalClick();
    void Method();

    // What stands on the form (frmMixtVar_fill.cpp).
    void FillHeader();
    void ListMixtures();
    void UseMixture();
    void Fill(const clsMV& record);
    void FillSamples(const clsMV& record);
    void FillSlots(const clsMV& record);
    void FillVariables(const clsMV& record);
    void FillDefinition(const clsMV& record);
    void FillPresentation(const clsMV& record);
    void ProposeSetNumber();
    std::shared_ptr<clsM> Mixture() const;
    MixtVarDraft Draft() const;
    MixtVarQuantity ConstraintShown(int row) const;
    MixtVarQuantity VariableShown(int row) const;
    std::string PhaseShown(const ui::ComboBox& list, const std::string& code,
                           const std::string& before) const;
    std::string CodeOf(const ui::ComboBox& list) const;
    std::vector<ConstraintSlot> ConstraintsOf(const clsMV& record) const;
    std::string SampleNumber(int n) const;

    // What is offered (frmMixtVar_rules.cpp).
    void ShowProperty();
    void ShowCaption();
    void ShowFrames();
    void FillConstraints();
    void OfferQuantities(ui::ComboBox& list, const std::string& prompt,
                         const std::vector<VariableRow>& rows);
    void RestrictPhases();
    void ShowPhasesOfQuantities();
    void ShowPhaseOf(const ui::ComboBox& quantity, ui::ComboBox& list);
    void ShowQuantities();
    void ShowUnits();
    static void OfferUnits(ui::ComboBox& list, const std::string& code, const std::string& own);
    void ShowSolvent();
    void LockSolventForHEX();
    void PresetSolvent();
    void ShowVar5();
    void ShowDefinition();
    void PresetConstraints();
    static std::string UnitShown(const std::string& variable, const std::string& code);

    // Accepting (frmMixtVar_accept.cpp).
    void Accept();
    bool Check();
    bool CheckRules();
    bool CheckUnits();
    void NormalizeNumbers();
    ui::Control& FieldOf(const MixtVarFinding& finding);
    bool TurnsRows() const;
    std::vector<int> ReplacedItems() const;
    bool MayDropStatements();
    bool MayLoseVariables();
    bool DropNumbers(clsMV& set);
    bool EnterNumbers(const std::shared_ptr<clsMV>& set);
    bool EnterTied(const clsMV& set);
    void Store(const std::shared_ptr<clsMV>& set);

    // What the form says, in a set (frmMixtVar_write.cpp).
    std::shared_ptr<clsMV> MakeSet();
    void WriteProperty(clsMV& set) const;
    MixtureLine DefinitionShown() const;
    void WriteResults(clsMV& set) const;
    void WriteRows(clsMV& set) const;
    void WriteStatements(clsMV& set) const;
    void WriteStatementsOfConstants(clsMV& set) const;
    void WriteComment(clsMV& set);
    void TurnPrecisions(clsMV& set) const;
    void DropConstants(CommentTags& tags) const;
    void AdjustPrecisions(CommentTags& tags, const clsMV& set) const;
    void BuildPropertyChain();
    std::string UnitCodeOf(const MixtVarQuantity& shown, const std::string& before,
                           const std::string& unitBefore, bool original) const;

    std::vector<std::shared_ptr<clsM>> mixtures_; // the entries of cboMixt
    std::array<std::unique_ptr<SampleList>, MostComponents> samples_;
    PropertyRow row_; // the property in hand
    std::vector<VariableRow> variables_, constraints_;
    bool constraintsChosen_ = false; // by a person, and so not to be preset
    std::set<std::string> allowed_;  // questions that were answered, or held from the start
    bool keepsSolvent_ = false;      // the set that the form began with names one unasked
    bool keepsState_ = false;        // the same of a standard state
    std::string openAtFirst_;        // the variable whose constant value was shown first
    std::shared_ptr<clsMV> record_;  // the set that is being edited, null for a new one
    std::vector<std::shared_ptr<clsMV>> tied_; // those that its table is to show with it
    std::shared_ptr<const clsMV> as_; // the set that the form began with: that one, or its pattern
};

} // namespace vexora
