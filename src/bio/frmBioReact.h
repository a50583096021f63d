#pragma once

#include <memory>
#include <vector>

#include "entry/BioPages.h"
#include "entry/ParticipantRows.h"
#include "globals/FormChain.h"
#include "records/clsBR.h"

namespace vexora {

/// Defines a set of a bio reaction: who takes part in it and in which notation, what else is in the
/// solution, what is measured, varied and held constant; and leads to its table. The set joins the
/// tree, or an edited one is changed (EditBioReact), only when the table has been accepted. A new
/// one may begin with the definition of another (BioSetToRepeat).
class frmBioReact : public ChainForm {
public:
    static constexpr int UsualParticipants = 8;

    frmBioReact();

    ui::TabStrip TabStrip1{*this, "TabStrip1"};

    ui::OptionButton optBio{*this, "optBio", "Biochemical Reaction"};
    ui::OptionButton optChem{*this, "optChem", "Chemical Reaction"};
    ui::ControlArray<ui::ComboBox> cmbPart{*this, "cmbPart", ParticipantCount()};
    ui::ControlArray<ui::TextBox> txtCoeff{*this, "txtCoeff", ParticipantCount()};
    ui::ControlArray<ui::ComboBox> cboPhase{*this, "cboPhase", ParticipantCount()};
    ui::ControlArray<ui::ComboBox> cboPartSample{*this, "cboPartSample", ParticipantCount()};
    ui::CommandButton cmdEquate{*this, "cmdEquate", "Balance Reaction"};
    ui::CommandButton cmdCheck{*this, "cmdCheck", " Check Stoichiometry"};
    ui::TextBox txtReaction{*this, "txtReaction", ui::TextBox::Lines::Many};
    ui::Label lblSurplus{*this, "lblSurplus"};
    ui::CommandButton Next1{*this, "Next1", "Next"};

    ui::ControlArray<ui::ComboBox> cmbComp{*this, "cmbComp", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboFunction{*this, "cboFunction", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboCompPhase{*this, "cboCompPhase", ComponentCount()};
    ui::ControlArray<ui::ComboBox> cboCompSample{*this, "cboCompSample", ComponentCount()};
    ui::ControlArray<ui::TextBox> txtContent{*this, "txtContent", ComponentCount()};
    ui::CommandButton Next2{*this, "Next2", "Next"};

    ui::ControlArray<ui::ComboBox> cboProp{*this, "cboProp", PropertyCount()};
    ui::ControlArray<ui::ComboBox> cmbPropComp{*this, "cmbPropComp", PropertyCount()};
    ui::ControlArray<ui::ComboBox> cboPropUnit{*this, "cboPropUnit", PropertyCount()};
    ui::ControlArray<ui::CheckBox> chkPropUnc{*this, "chkPropUnc", PropertyCount(), ""};
    ui::ControlArray<ui::TextBox> txtPropUnc{*this, "txtPropUnc", PropertyCount()};
    ui::CommandButton Next3{*this, "Next3", "Next"};

    ui::ControlArray<ui::ComboBox> cboVar{*this, "cboVar", VariableCount()};
    ui::ControlArray<ui::ComboBox> cmbVarComp{*this, "cmbVarComp", VariableCount()};
    ui::ControlArray<ui::ComboBox> cboVarUnit{*this, "cboVarUnit", VariableCount()};
    ui::ControlArray<ui::CheckBox> chkVarUnc{*this, "chkVarUnc", VariableCount(), ""};
    ui::ControlArray<ui::TextBox> txtVarUnc{*this, "txtVarUnc", VariableCount()};
    ui::CommandButton Next4{*this, "Next4", "Next"};

    ui::ControlArray<ui::ComboBox> cboConst{*this, "cboConst", ConstraintCount()};
    ui::ControlArray<ui::ComboBox> cmbConstrComp{*this, "cmbConstrComp", ConstraintCount()};
    ui::ControlArray<ui::TextBox> txtConst{*this, "txtConst", ConstraintCount()};
    ui::ControlArray<ui::ComboBox> cboConstUnit{*this, "cboConstUnit", ConstraintCount()};
    ui::ControlArray<ui::CheckBox> chkConstrUnc{*this, "chkConstrUnc", ConstraintCount(), ""};
    ui::ControlArray<ui::TextBox> txtConstrUnc{*this, "txtConstrUnc", ConstraintCount()};
    ui::CommandButton Next5{*this, "Next5", "Next"};

    ui::TextBox txtMethod{*this, "txtMethod"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Numerical Data"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void Unload() override;

private:
    enum class Page { Reaction, Components, Property, Variables, Constraints };

    // Rows of each kind; a set with more has more.
    static std::shared_ptr<clsBR> Pattern();
    static int ParticipantCount();
    static int ComponentCount();
    static int PropertyCount();
    static int VariableCount();
    static int ConstraintCount();

    void ArrangeControls();
    ui::Layout ReactionLayout();
    ui::Layout PageLayout(ui::Layout rows, ui::CommandButton& next) const;
    void WireEvents();
    void Fill();
    void FillRows();

    void Follow();
    void OfferSubjects();
    void ShowReaction();
    void Next(Page page);
    void Equate();
    void CheckStoichiometry();

    // Accepting (frmBioReact_accept.cpp).
    void Accept();
    bool Check();
    bool CheckPage(Page page);
    BioFaults FaultsOf(Page page);
    BioFaults CheckReaction();
    bool CheckFormulas();
    bool CheckCofactors();
    bool Tell(const BioFaults& faults);
    bool HasPropertyAmongVariables() const;
    BioEntries Entries() const;
    void WriteReaction(clsBR& set) const;
    std::shared_ptr<clsBR> MakeSet();
    void Store(const std::shared_ptr<clsBR>& set);

    ParticipantRows participants_{*this,
                                  {cmbPart, txtCoeff, cboPartSample, &cboPhase},
                                  [this](bool isOther) { isOther ? Follow() : ShowReaction(); }};
    BioComponentPage components_{
        *this, {cmbComp, cboFunction, cboCompPhase, cboCompSample, txtContent}, true};
    BioQuantityPage properties_{
        *this, BioRole::Property, {cboProp, cmbPropComp, cboPropUnit, chkPropUnc, txtPropUnc}};
    BioQuantityPage variables_{
        *this, BioRole::Variable, {cboVar, cmbVarComp, cboVarUnit, chkVarUnc, txtVarUnc}};
    BioQuantityPage constraints_{
        *this,
        BioRole::Constraint,
        {cboConst, cmbConstrComp, cboConstUnit, chkConstrUnc, txtConstrUnc, &txtConst}};
    std::shared_ptr<clsBR> record_;   // the set that is being edited, null for a new one
    std::shared_ptr<const clsBR> as_; // what the form began with: that one, or its pattern
    bool accepted_ = false;
};

} // namespace vexora
