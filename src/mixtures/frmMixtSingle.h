#pragma once

#include <array>
#include <memory>
#include <string>

#include "entry/AverageForm.h"
#include "entry/SampleList.h"
#include "entry/StatementMemory.h"
#include "entry/ValueEntry.h"
#include "globals/FormChain.h"
#include "mixtures/MixtValueRules.h"
#include "records/clsX.h"

namespace vexora {

class CommentTags;
class clsM;
class clsMZ;

/// One value of a property of a mixture: of a critical, azeotropic, eutectic or otherwise stated
/// state. Behind frmProperty it takes value after value until it is closed; on an existing record
/// (EditMixtSingle) it closes after the one. The property in hand stands in the globals.
class frmMixtSingle : public ChainForm {
public:
    frmMixtSingle();

    ui::ComboBox cboMixt{*this, "cboMixt"};
    ui::ControlArray<ui::Label> lblSample{*this, "lblSample", 3};
    ui::ControlArray<ui::ComboBox> cboSample{*this, "cboSample", 3};
    ui::TextBox txtPrpSetNo{*this, "txtPrpSetNo"};
    ui::Label lblReminder{*this, "lblReminder",
                          "PHASE 1 AND PHASE 2 ARE THOSE FORMING THE CRITICAL STATE"};
    ui::ControlArray<ui::Label> lblPhase{*this, "lblPhase", MostMixturePhases};
    ui::ControlArray<ui::ComboBox> lstPhase{*this, "lstPhase", MostMixturePhases};
    ui::TextBox txtValue{*this, "txtValue"};
    ui::Label lblUnit{*this, "lblUnit"};
    ui::Label lblStated{*this, "lblStated"};
    ui::CommandButton cmdLastUnc{*this, "cmdLastUnc", "Use &last"};
    ui::Frame fraState{*this, "fraState", "The value holds at (optional)"};
    ui::Label lblT{*this, "lblT", "Temperature:"};
    ui::TextBox txtT{*this, "txtT"};
    ui::ComboBox cboTUnit{*this, "cboTUnit"};
    ui::Label lblP{*this, "lblP", "Pressure:"};
    ui::TextBox txtP{*this, "txtP"};
    ui::ComboBox cboPUnit{*this, "cboPUnit"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};
    ui::CommandButton cmdMethod{*this, "cmdMethod", "Property and method"};
    ui::CommandButton cmdUnc{*this, "cmdUnc", "Uncertainty..."};
    ui::CommandButton cmdCheck{*this, "cmdCheck", "Check the average"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Next"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;

private:
    /// Temperature or pressure at which the value holds. It is entered in a unit of choice and
    /// stands in the comment in the system unit.
    struct State {
        std::string code, name;
        ui::Label& label;
        ui::TextBox& box;
        ui::ComboBox& units;
        std::string shownText, shownUnit; // as the record gave them
    };

    void ArrangeControls();
    void WireEvents();

    void MixtureClick();
    void SampleClick(std::size_t n);
    void Method();
    void Uncertainty();
    void CheckAverage();
    void Touch();

    // What stands on the form (frmMixtSingle_fill.cpp).
    void FillMixtures();
    void UseMixture();
    void UseSamples();
    void FillProperty();
    void RestrictPhases();
    void ShowStates();
    void ProposeSetNumber();
    void Fill(const clsMZ& record);
    void ChooseSamples(const clsMZ& record);
    void TakeRecord(const clsMZ& record) const;
    ComponentSamples Samples() const;
    bool IsSampleOf(const clsMZ& record, int n) const;
    void StoreSamples(clsMZ& record) const;

    // Accepting (frmMixtSingle_accept.cpp).
    void Accept();
    bool Check();
    bool CheckSamples();
    bool CheckPhases();
    bool CheckState(const State& state);
    void Store();
    void StoreValues(clsMZ& record) const;
    void StoreStates(CommentTags& tags) const;
    std::string TagOf(const State& state) const;
    void StoreStatement(clsMZ& record) const;
    std::vector<clsX> Statements() const;
    void TakeStatement(const std::vector<clsX>& items);
    void KeepStatement() const;

    std::array<SampleList, 3> samples_{SampleList{*this, cboSample(0)},
                                       SampleList{*this, cboSample(1)},
                                       SampleList{*this, cboSample(2)}};
    ValueEntry value_{*this, txtValue, lblUnit, cmdMethod};
    AverageEntry average_{*this, txtValue};
    std::array<State, 2> states_{{{"T", "temperature", lblT, txtT, cboTUnit, {}, {}},
                                  {"P", "pressure", lblP, txtP, cboPUnit, {}, {}}}};
    std::shared_ptr<clsM> mixture_; // the chosen one
    std::shared_ptr<clsMZ> record_; // that is edited, null for a new value
    PropertyRow row_;               // the property in hand
    std::string phasesOf_;          // context and property that the phases are offered for
    clsX statement_;                // of the value in hand
    std::string stateTag_;          // of the record: "FP" or "PB", which are not asked here
    StatementOffer offer_{lblStated, cmdLastUnc, [this] { return Statements(); },
                          [this](const std::vector<clsX>& items) {
                              TakeStatement(items);
                              txtValue.SetFocus();
                          }};
    bool stored_ = false; // nothing has changed since the last store
};

} // namespace vexora
