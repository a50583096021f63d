#pragma once

#include <array>
#include <string>
#include <vector>

#include "entry/AverageForm.h"
#include "entry/PropertyRules.h"
#include "entry/SampleChoice.h"
#include "entry/StatementMemory.h"
#include "entry/ValueEntry.h"
#include "globals/FormChain.h"
#include "records/clsX.h"

namespace vexora {

class clsZ;

/// One value of a property of a sample, by itself or at a fixed value of one variable. Behind
/// frmProperty it takes value after value until it is closed; on an existing record (EditSingle) it
/// closes after the one. The property in hand stands in the globals.
class frmSingle : public ChainForm {
public:
    frmSingle();

    ui::ComboBox cboSubst{*this, "cboSubst"};
    ui::ComboBox cboSample{*this, "cboSample"};
    ui::TextBox txtPrpSetNo{*this, "txtPrpSetNo"};
    ui::ComboBox lstPhase1{*this, "lstPhase1"};
    ui::ComboBox lstPhase2{*this, "lstPhase2"};
    ui::ComboBox lstPhase3{*this, "lstPhase3"};
    ui::Frame frmIndVar{*this, "frmIndVar", "Independent variable:"};
    ui::TextBox txtIndVariable{*this, "txtIndVariable"};
    ui::ComboBox lstVariable_Unit{*this, "lstVariable_Unit"};
    ui::TextBox txtValue{*this, "txtValue"};
    ui::Label lblUnit{*this, "lblUnit"};
    ui::Label lblStated{*this, "lblStated"};
    ui::CommandButton cmdLastUnc{*this, "cmdLastUnc", "Use &last"};
    ui::Frame frmConstraint{*this, "frmConstraint", "The value was obtained:"};
    ui::OptionButton optPB{*this, "optPB", "In equilibrium with gas"};
    ui::OptionButton optFP{*this, "optFP", "At fixed pressure 1 atm"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};
    ui::CommandButton cmdMethod{*this, "cmdMethod", "Property and method"};
    ui::CommandButton cmdUnc{*this, "cmdUnc", "Uncertainty..."};
    ui::CommandButton cmdCheck{*this, "cmdCheck", "Calculate average value..."};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Next"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;

private:
    void ArrangeControls();
    void WireEvents();

    void Phase1Click();
    void Method();
    void Uncertainty();
    void CheckAverage();
    void Touch();

    // What stands on the form.
    void UseSample();
    void ShowProperty();
    void ShowVariable();
    void ShowPhases();
    void ProposeSetNumber();
    void TakeRecord(const clsZ& record);
    void ShowComment(const clsZ& record);
    void ShowRecord(const clsZ& record);
    bool IsFixed() const;
    bool AsksForSurface() const;

    // Accepting.
    void Accept();
    bool Check();
    bool CheckPhases();
    bool CheckVariable();
    void Store();
    void StoreHeader(clsZ& record) const;
    std::string StateTag() const;
    void StoreValues(clsZ& record) const;
    void StoreStatements(clsZ& record) const;
    std::vector<clsX> Statements() const;
    void TakeStatements(const std::vector<clsX>& items);
    void KeepStatements() const;
    std::string UnitOfVariable() const;
    void TakeTexts();

    SampleChoice choice_{*this, cboSubst, cboSample, [this] { UseSample(); }};
    ValueEntry value_{*this, txtValue, lblUnit, cmdMethod};
    AverageEntry average_{*this, txtValue};
    PropertyRow row_;                // the property in hand
    std::string variable_;           // code of the fixed variable
    std::string variableUnit_;       // system unit of it
    std::array<clsX, 2> statements_; // of the property and of the fixed variable
    StatementOffer offer_{lblStated, cmdLastUnc, [this] { return Statements(); },
                          [this](const std::vector<clsX>& items) {
                              TakeStatements(items);
                              txtValue.SetFocus();
                          }};
    bool editing_ = false;
    bool stored_ = false; // nothing has changed since the last store
};

} // namespace vexora
