#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/SampleList.h"
#include "globals/FormChain.h"
#include "entry/CompoundList.h"
#include "records/clsQ.h"

namespace vexora {

/// A reaction of the source: what takes part in it and by how much, with the equation shown as it
/// is typed, its balancing, and the products of a complete combustion. On an existing reaction
/// (EditReaction) its sets go along with what changes; its compounds are closed then. The samples
/// of a reaction with data are those of its sets: they are open while one of these is edited.
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
    void CompoundClick(int i);
    void OtherClick(CompoundList& list, std::string& rn);
    void CoefficientChanged(int i);
    void SampleClick(int i);
    void Equate();
    void Complete();
    void CheckStoichiometry();

    // What stands on the form (frmReact_fill.cpp). Participants count from 1.
    void Fill();
    void FillClasses();
    void FillCompounds();
    void FillRow(int i);
    void LockRow(int i);
    void SetCompound(int i, const std::string& rn);
    void TakeSample(int i);
    void ShowEquation();
    std::string SurplusLine() const;
    bool IsUsed(int i) const { return !draft_.RN(i).empty(); }
    bool HasData() const { return record_ && record_->HasData(); }
    bool MayChooseSamples() const;
    std::string ParticipantFormula(int i) const;
    std::vector<std::string> Formulas() const;
    void MakeCompound(const struct CombustionCompound& compound);
    void DropUnused();

    // Accepting (frmReact_accept.cpp).
    void Accept();
    bool Check();
    bool CheckCoefficients();
    bool CheckSamples();
    bool CheckFormulas();
    bool CheckEquation() const;
    bool CheckKey();
    bool ConfirmSets();
    bool IsChanged() const;
    void Store();
    void StoreInSets(const std::vector<std::string>& before) const;

    clsQ draft_;                   // what the form says
    std::shared_ptr<clsQ> record_; // that is edited, null for a new reaction
    std::vector<CompoundList> compounds_;
    std::vector<SampleList> samples_;
    CompoundList solvent_{*this, cmbSolvent};
    CompoundList inert_{*this, cmbInert};
    std::vector<std::shared_ptr<clsL>> made_; // for the products of a combustion
    bool accepted_ = false;
};

} // namespace vexora
