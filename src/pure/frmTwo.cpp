#include "pure/frmTwo.h"

#include <utility>

#include "chem/clsMethod.h"
#include "entry/CodeLists.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "records/clsTwo.h"
#include "reference/KVODefinitions.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

frmTwo::frmTwo() : ChainForm("frmTwo", "Property as function of state variables") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdOK, cmdFinish, [this] { Accept(); });
    HelpContext = 335;
    txtPrpSetNo.Locked(true);
}

void frmTwo::ArrangeControls() {
    using namespace ui;
    Arrangement = Column(
        {Row({Field("Compound:", cboSubst), Field("Sample #", cboSample),
              Field("Property set #", txtPrpSetNo)}),
         Field(lblVar1, Row({cboVar1, Field("Units:", lstVariable_Unit)})),
         Field(lblVar2, Row({cboVar2, Field("Units:", lstVar2_Unit)})),
         Field(lblVar3, Row({Narrow(txtVar3, 20), lblUnit3})), Field("Constraint:", lstCONSTRAINT),
         Row({Field("Phase 1:", lstPhase1), Field(lblPhase2, lstPhase2)}),
         Group(fraDefinition,
               {Field("Results:", lstPROPERTY_FUNCT), Field("Relation:", lstRelation),
                Row({Field("Reference T:", txtREF_TEMP), Note("K"),
                     Field("Reference pressure:", txtREF_PRESSURE), Note("kPa"),
                     Field("Reference phase:", lstREF_PHASE)})}),
         Group(fraPresentation,
               {Field("Numerical:", lstNumerical), Row({chkCalc, chkEqu, chkGraph})}),
         chkIncludeDigit, Field("Comment:", txtComment),
         ButtonRow({cmdMethod, cmdAsLast, cmdOK, cmdFinish})});
    PreferredColumns = 100;
}

void frmTwo::WireEvents() {
    cboVar1.OnClick = [this] { VariableClick(1); };
    cboVar2.OnClick = [this] { VariableClick(2); };
    lstCONSTRAINT.OnClick = [this] { ConstraintClick(); };
    lstPhase1.OnClick = [this] { PhaseClick(); };
    lstPhase2.OnClick = [this] { PhaseClick(); };
    lstPROPERTY_FUNCT.OnClick = [this] { ShowDefinition(); };
    lstRelation.OnClick = [this] { ShowDefinition(); };
    lstNumerical.OnClick = [this] { NumericalClick(); };
    chkIncludeDigit.OnClick = [this] { ShowDigits(); };
    cmdMethod.OnClick = [this] { Method(); };
    cmdAsLast.OnClick = [this] { AsLast(); };
}

void frmTwo::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    as_ = std::dynamic_pointer_cast<clsTwo>(std::exchange(globals.SetToRepeat, nullptr));
    if (globals.EditTwo) as_ = record_ = globals.CurrentTwo;
    mayLackPressure_ = record_ && record_->LacksPressure();
    if (!globals.CurrentMethod) globals.CurrentMethod = std::make_shared<clsMethod>();
    {
        const ui::FillingScope filling(*this);
        if (as_) {
            TakeProperty(
                {as_->PRPCODE, as_->PROPERTY_UNIT, as_->Factor, as_->isOriginalUnit, as_->nVar},
                as_->Header);
        }
        FillLists();
        choice_.Fill(record_ != nullptr);
        UseSample();
        ShowProperty();
        if (as_)
            ShowRecord(*as_);
        else
            txtComment.Text(globals.PropertyComment);
        openAtFirst_ = OpenVariable(Draft()).code;
    }
    cmdMethod.Enabled(ui::Forms::Current().Knows("frmProperty"));
    ShowCaption();
    OfferLast();
    if (record_) cboVar1.SetFocus(); // compound and sample are closed, the number is no input
    if (row_.Property == row_.Code) ui::Say("Property Code Error");
}

void frmTwo::VariableClick(int n) {
    ShowUnits(n);
    ShowVar3();
    ShowCaption();
}

void frmTwo::ConstraintClick() {
    ShowPhases();
    if (!Filling && lstPhase2.Index() > 0 && lstPhase2.Chosen() == lstPhase1.Chosen()) {
        lstPhase2.Index(0); // it was out of sight when the first one became the same
        ShowPhases();
    }
    ShowVar3();
    const TwoDraft draft = Draft();
    const bool ofOnePhase = PresetTwo(row_.Code).constraint == "FP";
    const int gas = lstPhase2.Find(PhaseName("G"));
    if (!Filling && ofOnePhase && draft.constraint == "PB" && draft.phase2.empty() && gas > 0)
        lstPhase2.Index(gas);
    if (!Filling) ProposeSetNumber();
}

void frmTwo::PhaseClick() {
    if (Filling) return;
    ShowPhases();
    ProposeSetNumber();
}

void frmTwo::NumericalClick() {
    cmdOK.Caption(Draft().numerical == "N" ? "Accept" : "Numerical Data");
}

/// Lets property and method be reviewed; another property starts its definition anew.
void frmTwo::Method() {
    const std::string before = Globals().PropertyCode;
    if (!ReviewProperty(txtComment)) return;
    const ui::FillingScope filling(*this);
    if (Globals().PropertyCode == before) {
        ShowUnits(1);
        ShowUnits(2);
    } else {
        ShowProperty();
    }
    OfferLast();
    ShowCaption();
}

/// What sets of one paper mostly have in common, taken over to be looked at.
void frmTwo::AsLast() {
    const auto last = LastSet();
    if (!last) return;
    {
        const ui::FillingScope filling(*this);
        ShowVariables(*last);
        ChooseCode(lstCONSTRAINT, ConstraintKinds, last->CONSTRAINT);
        for (ui::ComboBox* list : {&lstPhase1, &lstPhase2}) {
            list->Index(0);
            ShowPhases(); // of those that this property may have
            list->Choose(PhaseName(list == &lstPhase1 ? last->PHASE1 : last->PHASE2));
        }
        ShowPhases();
        ShowPresentation(*last);
    }
    NumericalClick();
    ShowVar3();
    ShowCaption();
    ProposeSetNumber();
    cmdOK.SetFocus();
}

} // namespace vexora
