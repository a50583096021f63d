#pragma once

#include <memory>
#include <string>

#include "entry/BioPages.h"
#include "entry/CompoundList.h"
#include "entry/SampleList.h"
#include "globals/FormChain.h"
#include "records/clsBP.h"

namespace vexora {

/// Defines a set of a property of a biological substance: its transition between two states
/// (BioType "D") or its solubility ("S"), with the solution, what is measured, varied and held
/// constant; and leads to its table. The set joins the tree, or an edited one is changed
/// (EditBioProp), only when the table has been accepted. A new one may begin with the definition of
/// another (BioSetToRepeat).
class frmBioProp : public ChainForm {
public:
    frmBioProp();

    ui::TabStrip TabStrip1{*this, "TabStrip1"};

    ui::ComboBox cmbSubst{*this, "cmbSubst"};
    ui::ComboBox cboSubstSample{*this, "cboSubstSample"};
    ui::Label lblState1{*this, "lblState1", "Initial state:"};
    ui::ComboBox cboState1{*this, "cboState1", ui::ComboBox::Style::Editable};
    ui::ComboBox cboPhase1{*this, "cboPhase1"};
    ui::CommandButton Next1{*this, "Next1", "Next"};

    ui::Label lblState2{*this, "lblState2", "Final state:"};
    ui::ComboBox cboState2{*this, "cboState2", ui::ComboBox::Style::Editable};
    ui::ComboBox cboPhase2{*this, "cboPhase2"};
    ui::CommandButton Next2{*this, "Next2", "Next"};

    ui::ControlArray<ui::ComboBox> cmbComp{*this, "cmbComp", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboFunction{*this, "cboFunction", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboCompPhase{*this, "cboCompPhase", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboCompSample{*this, "cboCompSample", ComponentCount()};
    ui::ControlArray<ui::TextBox> txtContent{*this, "txtContent", ComponentCount()};
    ui::CommandButton Next3{*this, "Next3", "Next"};

    ui::ControlArray<ui::ComboBox> cboProp{*this, "cboProp", PropertyCount()};
    ui::ControlArray<ui::ComboBox> cmbPropComp{*this, "cmbPropComp", PropertyCount()};
    ui::ControlArray<ui::ComboBox> cboPropUnit{*this, "cboPropUnit", PropertyCount()};
    ui::ControlArray<ui::CheckBox> chkPropUnc{*this, "chkPropUnc", PropertyCount(), "Uncertainty"};
    ui::ControlArray<ui::TextBox> txtPropUnc{*this, "txtPropUnc", PropertyCount()};
    ui::CommandButton Next4{*this, "Next4", "Next"};

    ui::ControlArray<ui::ComboBox> cboVar{*this, "cboVar", VariableCount()};
    ui::ControlArray<ui::ComboBox> cmbVarComp{*this, "cmbVarComp", VariableCount()};
    ui::ControlArray<ui::ComboBox> cboVarUnit{*this, "cboVarUnit", VariableCount()};
    ui::ControlArray<ui::CheckBox> chkVarUnc{*this, "chkVarUnc", VariableCount(), "Uncertainty"};
    ui::ControlArray<ui::TextBox> txtVarUnc{*this, "txtVarUnc", VariableCount()};
    ui::CommandButton Next5{*this, "Next5", "Next"};

    ui::ControlArray<ui::ComboBox> cboConst{*this, "cboConst", ConstraintCount()};
    ui::ControlArray<ui::ComboBox> cmbConstrComp{*this, "cmbConstrComp", ConstraintCount()};
    ui::ControlArray<ui::TextBox> txtConst{*this, "txtConst", ConstraintCount()};
    ui::ControlArray<ui::ComboBox> cboConstUnit{*this, "cboConstUnit", ConstraintCount()};
    ui::ControlArray<ui::CheckBox> chkConstrUnc{*this, "chkConstrUnc", ConstraintCount(),
                                                "Uncertainty"};
    ui::ControlArray<ui::TextBox> txtConstrUnc{*this, "txtConstrUnc", ConstraintCount()};
    ui::CommandButton Next6{*this, "Next6", "Next"};

    ui::Label lblSetNo{*this, "lblSetNo"};
    ui::TextBox txtMethod{*this, "txtMethod"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};

    ui::CommandButton cmdAccept{*this, "cmdAccept", "Numerical Data"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void Unload() override;

private:
    enum Page { First, Second, Composition, Property, Variables, Constraints, Description };

    // Rows of each kind; a set with more has more.
    static std::shared_ptr<clsBP> Pattern();
    static int ComponentCount();
    static int PropertyCount();
    static int VariableCount();
    static int ConstraintCount();

    void ArrangeControls();
    void WireEvents();
    bool IsTransition() const { return base_->PrpType != "S"; }

    void SubstanceClick();
    void SampleClick();
    void Follow();
    void OfferSubjects();
    void Next(Page page);

    // What stands on the form (frmBioProp_fill.cpp).
    std::shared_ptr<clsBP> Base() const;
    void Fill();
    void FillStates();
    void FillPhases();
    void FillSubstance();
    void WriteSubstance(clsBP& set) const;
    std::shared_ptr<clsBP> MakeSet() const;
    BioEntries Entries() const;
    std::string StateIn(const ui::ComboBox& list) const;

    // Accepting (frmBioProp_accept.cpp).
    void Accept();
    bool CheckPage(Page page);
    BioFaults FaultsOf(Page page);
    BioFaults CheckFirst();
    BioFaults CheckSecond();
    BioFaults CheckDescription();
    void CheckSolvents(BioFaults& faults);
    bool HasPropertyAmongVariables() const;
    bool ConfirmSubstance();
    void Store(const std::shared_ptr<clsBP>& set);

    CompoundList substances_{*this, cmbSubst};
    SampleList samples_{*this, cboSubstSample, "None"};
    BioComponentPage components_{
        *this, {cmbComp, cboFunction, cboCompPhase, cboCompSample, txtContent}, false};
    BioQuantityPage properties_{
        *this, BioRole::Property, {cboProp, cmbPropComp, cboPropUnit, chkPropUnc, txtPropUnc}};
    BioQuantityPage variables_{
        *this, BioRole::Variable, {cboVar, cmbVarComp, cboVarUnit, chkVarUnc, txtVarUnc}};
    BioQuantityPage constraints_{
        *this,
        BioRole::Constraint,
        {cboConst, cmbConstrComp, cboConstUnit, chkConstrUnc, txtConstrUnc, &txtConst}};
    std::string rn_, sample_;       // of the substance
    std::shared_ptr<clsBP> record_; // the set that is being edited, null for a new one
    std::shared_ptr<clsBP> base_;   // what the form began with; no part of the document
    bool accepted_ = false;
};

} // namespace vexora
