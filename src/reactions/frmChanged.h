#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "entry/SampleList.h"
#include "entry/StatementMemory.h"
#include "globals/FormChain.h"
#include "records/clsQ.h"
#include "records/clsX.h"
#include "reference/Vocabulary.h"

namespace vexora {

class clsC;

/// One value of a property change of a reaction between an initial and a final state. Behind
/// frmProperty it takes value after value until it is closed; on an existing record (EditChanged)
/// it closes after the one. The property in hand stands in the globals.
class frmChanged : public ChainForm {
public:
    frmChanged();

    ui::TextBox txtPrpSetNo{*this, "txtPrpSetNo"};
    ui::ControlArray<ui::Label> lblPart{*this, "lblPart", clsQ::MostParticipants};
    ui::ControlArray<ui::ComboBox> cboPhase{*this, "cboPhase", clsQ::MostParticipants};
    ui::ControlArray<ui::ComboBox> cboSample{*this, "cboSample", clsQ::MostParticipants};
    ui::ControlArray<ui::ComboBox> cboComposition{*this, "cboComposition", clsQ::MostParticipants};
    ui::ControlArray<ui::TextBox> txtComposition{*this, "txtComposition", clsQ::MostParticipants};
    ui::Label lblSolvent{*this, "lblSolvent"};
    ui::ComboBox cboSolventPhase{*this, "cboSolventPhase"};
    ui::ComboBox cboStandardState{*this, "cboStandardState"};
    ui::TextBox txtInitialT{*this, "txtInitialT"};
    ui::TextBox txtInitialP{*this, "txtInitialP"};
    ui::TextBox txtFinalT{*this, "txtFinalT"};
    ui::TextBox txtFinalP{*this, "txtFinalP"};
    ui::TextBox txtValue{*this, "txtValue"};
    ui::ComboBox cboUnit{*this, "cboUnit"};
    ui::Label lblMassOf{*this, "lblMassOf", "per mass of:"};
    ui::ComboBox cboMassOf{*this, "cboMassOf"};
    ui::Label lblStated{*this, "lblStated"};
    ui::CommandButton cmdLastUnc{*this, "cmdLastUnc", "Use &last"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};
    ui::CommandButton cmdMethod{*this, "cmdMethod", "Property and method"};
    ui::CommandButton cmdUnc{*this, "cmdUnc", "Uncertainty..."};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Next"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;

private:
    /// A unit that the list shows beside those of the property: that of the context.
    struct Unit {
        std::string text, code;
        double factor = 0;
    };
    /// One field of a state, as its messages name it.
    struct StateField {
        ui::TextBox& box;
        std::string name;
        bool isTemperature;
    };

    void ArrangeControls();
    void WireEvents();

    void PhaseClick(int i);
    void SampleClick(int i);
    void UnitClick();
    void MassOfClick();
    void CopyStates();
    void Method();
    void Uncertainty();
    void Touch();

    // What stands on the form (frmChanged_fill.cpp). Participants count from 1.
    void FillReaction();
    void FillRow(int i);
    void FillSample(int i, const std::string& number);
    void FillProperty();
    void FillUnits();
    void UseUnit();
    void UsePhases();
    void ShowSolvent();
    void SetSet();
    void TakeRecord(const clsC& record) const;
    void Fill(const clsC& record);
    bool IsUsed(int i) const { return !reaction_->RN(i).empty(); }
    bool IsDissolved(int i) const;
    bool HasSolution() const;
    bool AsksForMassOf() const;

    // Accepting (frmChanged_accept.cpp).
    void Accept();
    bool Check();
    bool CheckPhases();
    bool CheckSolvent();
    bool AskForSolvent(ui::Control& field);
    bool CheckState(const StateField& field);
    bool CheckNumber();
    bool CheckSolventPhase();
    bool CheckSamples();
    bool CheckComposition(int i);
    bool CheckValue();
    void Store();
    void StoreSolvent();
    void StoreParticipants(clsC& record) const;
    void StoreValue(clsC& record) const;
    void StoreUnit(clsC& record) const;
    void StoreStatement(clsC& record) const;
    std::vector<clsX> Statements() const;
    void TakeStatement(const std::vector<clsX>& items);

    std::vector<SampleList> samples_;
    /// Initial ones first.
    std::array<StateField, 4> states_{{{txtInitialT, "initial temperature", true},
                                       {txtInitialP, "initial pressure", false},
                                       {txtFinalT, "final temperature", true},
                                       {txtFinalP, "final pressure", false}}};
    std::shared_ptr<clsQ> reaction_;
    std::shared_ptr<clsC> record_; // that is edited, null for a new value
    PropertyRow row_;              // the property in hand
    Unit unit_;                    // that it came with
    std::string massOf_;           // registry number, "" where it is not said
    std::string solvent_;          // the same of the solvent
    clsX statement_;               // of the value in hand
    StatementOffer offer_{lblStated, cmdLastUnc, [this] { return Statements(); },
                          [this](const std::vector<clsX>& items) {
                              TakeStatement(items);
                              txtValue.SetFocus();
                          }};
    bool stored_ = false; // nothing has changed since the last store
};

} // namespace vexora
