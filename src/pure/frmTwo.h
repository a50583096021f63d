#pragma once

#include <memory>
#include <string>
#include <vector>

#include "entry/SampleChoice.h"
#include "globals/FormChain.h"
#include "pure/TwoRules.h"
#include "reference/Vocabulary.h"

namespace vexora {

class CommentTags;
class clsTwo;

/// Defines a set of a property against one or two state variables and leads to its table
/// (frmData2). The set joins the tree, or an edited one is changed (EditTwo), only when the table
/// has been accepted. The property in hand stands in the globals, or comes from a set that is to be
/// repeated (SetToRepeat).
class frmTwo : public ChainForm {
public:
    frmTwo();

    ui::ComboBox cboSubst{*this, "cboSubst"};
    ui::ComboBox cboSample{*this, "cboSample"};
    ui::TextBox txtPrpSetNo{*this, "txtPrpSetNo"};
    ui::Label lblVar1{*this, "lblVar1", "Independent variable 1"};
    ui::ComboBox cboVar1{*this, "cboVar1"};
    ui::ComboBox lstVariable_Unit{*this, "lstVariable_Unit"};
    ui::Label lblVar2{*this, "lblVar2", "Independent variable 2"};
    ui::ComboBox cboVar2{*this, "cboVar2"};
    ui::ComboBox lstVar2_Unit{*this, "lstVar2_Unit"};
    ui::Label lblVar3{*this, "lblVar3"};
    ui::TextBox txtVar3{*this, "txtVar3"};
    ui::Label lblUnit3{*this, "lblUnit3"};
    ui::ComboBox lstCONSTRAINT{*this, "lstCONSTRAINT"};
    ui::ComboBox lstPhase1{*this, "lstPhase1"};
    ui::Label lblPhase2{*this, "lblPhase2", "Phase 2:"};
    ui::ComboBox lstPhase2{*this, "lstPhase2"};
    ui::Frame fraDefinition{*this, "fraDefinition",
                            "Definition of Measurement Results (Absolute vs Relative)"};
    ui::ComboBox lstPROPERTY_FUNCT{*this, "lstPROPERTY_FUNCT"};
    ui::ComboBox lstRelation{*this, "lstRelation"};
    ui::TextBox txtREF_TEMP{*this, "txtREF_TEMP"};
    ui::TextBox txtREF_PRESSURE{*this, "txtREF_PRESSURE"};
    ui::ComboBox lstREF_PHASE{*this, "lstREF_PHASE"};
    ui::Frame fraPresentation{*this, "fraPresentation", "Data presentation"};
    ui::ComboBox lstNumerical{*this, "lstNumerical"};
    ui::CheckBox chkCalc{*this, "chkCalc", "Calculated"};
    ui::CheckBox chkEqu{*this, "chkEqu", "Equation"};
    ui::CheckBox chkGraph{*this, "chkGraph", "Graph"};
    ui::CheckBox chkIncludeDigit{*this, "chkIncludeDigit", "Store number of significant digits"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};
    ui::CommandButton cmdMethod{*this, "cmdMethod", "Property and method"};
    ui::CommandButton cmdAsLast{*this, "cmdAsLast", "As the last set"};
    ui::CommandButton cmdOK{*this, "cmdOK", "Numerical Data"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;

private:
    void ArrangeControls();
    void WireEvents();

    void VariableClick(int n);
    void ConstraintClick();
    void PhaseClick();
    void NumericalClick();
    void Method();
    void AsLast();

    // What stands on the form (frmTwo_fill.cpp).
    void FillLists();
    void UseSample();
    void ShowProperty();
    void ShowCaption();
    void OfferVariables(ui::ComboBox& list) const;
    void ShowUnits(int n);
    void ShowPhases();
    void ShowVar3();
    void ShowDigits();
    void ShowDefinition();
    void PreSet();
    void ProposeSetNumber();
    void OfferLast();
    std::shared_ptr<const clsTwo> LastSet() const;
    void ShowRecord(const clsTwo& record);
    void ShowVariables(const clsTwo& record);
    std::string UnitShown(const clsTwo& record, int n) const;
    void ShowDefinitionOf(const clsTwo& record);
    void ShowPresentation(const clsTwo& record);
    std::string VariableOf(const ui::ComboBox& list) const;
    TwoDraft Draft() const;

    // Accepting (frmTwo_accept.cpp).
    void Accept();
    bool Check();
    void NormalizeNumbers();
    ui::Control& FieldOf(TwoField field);
    std::shared_ptr<clsTwo> MakeSet();
    void WriteDefinition(clsTwo& set) const;
    void WriteVariables(clsTwo& set) const;
    void WriteResults(clsTwo& set) const;
    void WriteComment(clsTwo& set);
    void DropConstants(CommentTags& tags) const;
    void BuildPropertyChain();
    bool TurnsRows() const;
    bool DropNumbers(clsTwo& set);
    bool EnterNumbers(const std::shared_ptr<clsTwo>& set);
    void Store(const std::shared_ptr<clsTwo>& set);
    bool CheckUnits();
    std::vector<int> ReplacedItems() const;
    bool MayDropStatements();
    bool MayLackPressure(const clsTwo& set);
    std::string UnitCodeOf(int n) const;

    SampleChoice choice_{*this, cboSubst, cboSample, [this] { UseSample(); }, "SELECT SAMPLE"};
    PropertyRow row_; // the property in hand
    std::vector<VariableRow> variables_;
    bool mayLackPressure_ = false;   // it has been asked, or the edited set never stated one
    std::string openAtFirst_;        // the variable whose constant value was shown at the beginning
    std::shared_ptr<clsTwo> record_; // the set that is being edited, null for a new one
    std::shared_ptr<const clsTwo> as_; // the set that the form began with: that one, or its pattern
};

} // namespace vexora
