#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/CompoundList.h"
#include "entry/ParticipantRows.h"
#include "globals/FormChain.h"
#include "records/clsQ.h"

namespace vexora {

class clsComplexSample;

/// A reaction of the source: what takes part in it and by how much, with the equation shown as it
/// is typed, its balancing, and the products of a complete combustion. On an existing reaction
/// (EditReaction) its sets go along with what changes; its compounds are closed then. The samples
/// of a reaction with data are those of its sets: they are open while one of these is edited. Begun
/// from a sample of a complex (the node in hand) it shows how that falls apart.
class frmReact : public ChainForm {
public:
    frmReact();

    ui::ComboBox cboReactClass{*this, "cboReactClass"};
    ui::ControlArray<ui::ComboBox> cmbComp{*this, "cmbComp", clsQ::MostParticipants};
    ui::ControlArray<ui::TextBox> txtCoeff{*this, "txtCoeff", clsQ::MostParticipants};
    ui::ControlArray<ui::ComboBox> cboSample{*this, "cboSample", clsQ::MostParticipants};
    ui::ComboBox cmbSolvent{*this, "cmbSolvent"};
    ui::ComboBox cmbInert{*this, "cmbInert"};
    ui::Label lblEquation{*this, "lblEquation"};
    ui::Label lblSurplus{*this, "lblSurplus"};
    ui::CommandButton cmdComplete{*this, "cmdComplete", "Complete combustion"};
    ui::CommandButton cmdEquate{*this, "cmdEquate", "Balance reaction"};
    ui::CommandButton cmdCheck{*this, "cmdCheck", "Check stoichiometry"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void Unload() override;

private:
    void ArrangeControls();
    void WireEvents();

    void ClassClick();
    void OtherClick(CompoundList& list, std::string& rn);
    void RowsChanged(bool isOther);
    void TakeDecomposition(const clsComplexSample& sample);
    void Equate();
    void Complete();
    void CheckStoichiometry();

    // What stands on the form (frmReact_fill.cpp). Participants count from 1.
    void Fill();
    void FillClasses();
    void FillCompounds();
    void TakeRows();
    void ShowEquation();
    bool IsUsed(int i) const { return !draft_.RN(i).empty(); }
    bool HasData() const { return record_ && record_->HasData(); }
    bool MayChooseSamples() const;
    std::string ParticipantFormula(int i) const { return rows_.Formula(i - 1); }
    void MakeCompound(const struct CombustionCompound& compound);
    void DropUnused();

    // Accepting (frmReact_accept.cpp).
    void Accept();
    bool Check();
    bool CheckCoefficients();
    bool CheckSamples();
    bool CheckFormulas();
    bool CheckEquation() const { return rows_.IsBalanced(); }
    bool CheckKey();
    bool ConfirmSets();
    bool IsChanged() const;
    void Store();
    void StoreInSets(const std::vector<std::string>& before) const;

    clsQ draft_;                   // what the form says; its participants follow the rows
    std::shared_ptr<clsQ> record_; // that is edited, null for a new reaction
    ParticipantRows rows_{*this,
                          {cmbComp, txtCoeff, cboSample, nullptr, true},
                          [this](bool isOther) { RowsChanged(isOther); }};
    CompoundList solvent_{*this, cmbSolvent};
    CompoundList inert_{*this, cmbInert};
    std::vector<std::shared_ptr<clsL>> made_; // for the products of a combustion
    bool accepted_ = false;
};

} // namespace vexora
