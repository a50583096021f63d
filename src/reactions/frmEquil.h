#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "entry/SampleList.h"
#include "globals/FormChain.h"
#include "reactions/EquilRules.h"
#include "records/clsE.h"
#include "reference/Vocabulary.h"

namespace vexora {

class CommentTags;

/// Defines a set of an equilibrium of a reaction: the phases with the participants in them, what is
/// held constant and what varies, and leads to its table (frmData2). The set joins the tree, or an
/// edited one is changed (EditEquilibrium), only when the table has been accepted. The property in
/// hand stands in the globals, or comes from a set that is to be repeated (SetToRepeat).
class frmEquil : public ChainForm {
public:
    static constexpr int Participants = clsE::Participants;
    static constexpr int Places = clsE::Places; // for phases and fixed conditions
    static constexpr int MostVariables = clsE::MostVariables;

    frmEquil();

    ui::Label lblReaction{*this, "lblReaction"};
    ui::TextBox txtPrpSetNo{*this, "txtPrpSetNo"};
    ui::ControlArray<ui::Label> lblPart{*this, "lblPart", Participants};
    ui::ControlArray<ui::ComboBox> cboSample{*this, "cboSample", Participants};
    ui::ControlArray<ui::ComboBox> cboPhase{*this, "cboPhase", Places};
    /// Participant j in phase i, both from 0, is chkPart(6 * i + j).
    ui::ControlArray<ui::CheckBox> chkPart{*this, "chkPart", Places* Participants, ""};
    ui::ComboBox cboSolventPhase{*this, "cboSolventPhase"};
    ui::ComboBox cboStandardState{*this, "cboStandardState"};
    ui::Frame fraConstants{*this, "fraConstants", "Fixed condition"};
    ui::ControlArray<ui::ComboBox> cboConst{*this, "cboConst", Places};
    ui::ControlArray<ui::TextBox> txtConst{*this, "txtConst", Places};
    ui::ControlArray<ui::Label> lblConstUnit{*this, "lblConstUnit", Places};
    ui::Frame fraVariables{*this, "fraVariables", "Independent variable"};
    ui::ControlArray<ui::Label> lblVar{*this, "lblVar", MostVariables};
    ui::ControlArray<ui::ComboBox> cboVar{*this, "cboVar", MostVariables};
    ui::ControlArray<ui::ComboBox> cboVarUnit{*this, "cboVarUnit", MostVariables};
    ui::ControlArray<ui::Label> lblSystemUnit{*this, "lblSystemUnit", MostVariables};
    ui::Frame fraPresentation{*this, "fraPresentation", "Data presentation"};
    ui::ComboBox lstNumerical{*this, "lstNumerical"};
    ui::CheckBox chkCalc{*this, "chkCalc", "Calculated"};
    ui::CheckBox chkEqu{*this, "chkEqu", "Equation"};
    ui::CheckBox chkGraph{*this, "chkGraph", "Graph"};
    ui::CheckBox chkIncludeDigit{*this, "chkIncludeDigit", "Store number of significant digits"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};
    ui::CommandButton cmdMethod{*this, "cmdMethod", "Property and method"};
    ui::CommandButton cmdUnc{*this, "cmdUnc", "Uncertainty..."};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Numerical Data"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};

    void Load() override;

private:
    void ArrangeControls();
    ui::Layout ParticipantsLayout();
    ui::Layout PhasesLayout();
    ui::Layout ConstantsLayout();
    ui::Layout VariablesLayout();
    void WireEvents();

    void SampleClick(int i);
    void ConstantClick(int row);
    void NumericalClick();
    void Method();
    void Uncertainty();

    // What stands on the form (frmEquil_fill.cpp). Participants count from 1, rows from 0.
    void FillReaction();
    void FillParticipant(int i);
    void FillSample(int i, const std::string& number);
    void FillLists();
    void ShowProperty();
    void ShowCaption();
    void ShowSolvent();
    void ShowConstants();
    void ShowUnits();
    void ProposeSetNumber();
    void Fill(const clsE& record);
    void FillPhases(const clsE& record);
    void FillQuantities(const clsE& record);
    void FillPresentation(const clsE& record);
    std::string UnitShown(const clsE& record, int n) const;
    int VariableCount() const;
    bool IsUsed(int i) const { return !reaction_->RN(i).empty(); }
    ui::CheckBox& Part(int row, int i) const { return chkPart(Participants * row + i - 1); }
    std::string ShownDigits() const;
    std::string TickedDigits(int row) const;
    void ChooseQuantity(ui::ComboBox& list, const std::string& code);
    std::string QuantityOf(const ui::ComboBox& list) const;
    std::string SampleNumber(int i) const;
    std::string Coefficient(int i) const;
    EquilDraft Draft() const;

    // Accepting (frmEquil_accept.cpp).
    void Accept();
    bool Check();
    bool CheckSetNumber();
    bool CheckUnits();
    ui::Control& FieldOf(const EquilFault& fault);
    bool TurnsRows() const;
    std::vector<int> ReplacedItems() const;
    bool MayDropStatements();
    bool DropNumbers(clsE& set);
    bool EnterNumbers(const std::shared_ptr<clsE>& set);
    void Store(const std::shared_ptr<clsE>& set);

    // What the form says, in a set (frmEquil_write.cpp).
    std::shared_ptr<clsE> MakeSet();
    std::shared_ptr<clsE> DefineSet() const;
    void WriteProperty(clsE& set) const;
    void WriteParticipants(clsE& set) const;
    void WriteQuantities(clsE& set) const;
    void WriteStatements(clsE& set) const;
    void WriteComment(clsE& set);
    void DropConstants(CommentTags& tags) const;
    void BuildPropertyChain();
    std::string UnitCodeOf(int n) const;

    std::shared_ptr<clsQ> reaction_;
    std::vector<SampleList> samples_;
    std::vector<std::string> quantities_;       // codes of the entries behind the first one
    std::array<std::string, Places> constants_; // codes that the values were typed for
    PropertyRow row_;                           // the property in hand
    clsE stated_;                    // what is stated of the whole set, and of which quantities
    std::shared_ptr<clsE> record_;   // the set that is being edited, null for a new one
    std::shared_ptr<const clsE> as_; // the set that the form began with: that one, or its pattern
};

} // namespace vexora
