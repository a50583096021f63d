#include "mixtures/frmMixtVar.h"

#include <utility>

#include "chem/clsMethod.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "records/Presentation.h"
#include "records/clsMV.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

frmMixtVar::frmMixtVar() : ChainForm("frmMixtVar", "Property of a mixture") {
    for (int i = 0; i < MostComponents; ++i)
        samples_[static_cast<std::size_t>(i)] =
            std::make_unique<SampleList>(*this, cboSample(i), "SELECT SAMPLE");
    ArrangeControls();
    WireEvents();
    UseButtons(cmdOK, cmdFinish, [this] { Accept(); });
    HelpContext = 336;
    txtPrpSetNo.Locked(true);
}

void frmMixtVar::ArrangeControls() {
    using namespace ui;
    std::vector<ui::Layout> samples, phases, constraints, variables;
    for (int i = 0; i < MostComponents; ++i)
        samples.push_back(Field(lblSample(i), cboSample(i)));
    for (int i = 0; i < MostPhases; ++i) {
        phases.push_back(Field(lblPhase(i), lstPhase(i)));
        lblPhase(i).Caption(i == 0 ? "Primary phase:" : "Phase " + std::to_string(i + 1) + ":");
    }
    for (int i = 0; i < MostRows; ++i) {
        const std::string number = std::to_string(i + 1) + ":";
        lblConstraint(i).Caption("Constraint " + number);
        lblVar(i).Caption("Variable " + number);
        constraints.push_back(
            Field(lblConstraint(i),
                  Row({cboConstraint(i), Narrow(txtConstr(i), 14),
                       Field("Units:", cboConstrUnit(i)), Field("In:", cboConstrPhase(i))})));
        variables.push_back(Field(lblVar(i), Row({cboVar(i), Field("Units:", cboVarUnit(i)),
                                                  Field("In:", cboVarPhase(i))})));
    }
    Arrangement = Column(
        {Row({Field("Mixture:", cboMixt), Field("Property set #", Narrow(txtPrpSetNo, 4))}),
         Row(samples),
         Row({Field("Phases in equilibrium:", cboPhases), Field("Constraints:", cboConstraints),
              lblVariables}),
         Row(phases), Group(fraConstraints, constraints), Group(fraVariables, variables),
         Field(lblVar5, Row({Narrow(txtVar5, 20), lblUnit5})),
         Row({Field(lblSolvent, cboSolvent), Field(lblStandardState, cboStandardState)}),
         Group(
             fraDefinition,
             {Field("Results:", lstPROPERTY_FUNCT), Field("Relation:", lstRelation),
              Row({Field("Reference T:", txtRefT), Note("K"), Field("Reference pressure:", txtRefP),
                   Note("kPa"), Field(lblRefPhase, cboRefPhase)})}),
         Group(fraPresentation,
               {Field("Numerical:", lstNumerical), Row({chkCalc, chkEqu, chkGraph})}),
         chkIncludeDigit, Field("Comment:", txtComment), ButtonRow({cmdMethod, cmdOK, cmdFinish})});
    PreferredColumns = 110;
    TabAlongArrangement();
}

void frmMixtVar::WireEvents() {
    cboMixt.OnClick = [this] { MixtureClick(); };
    for (int i = 0; i < MostComponents; ++i)
        cboSample(i).OnClick = [this, i] { SampleClick(i); };
    cboPhases.OnClick = [this] { PhasesClick(); };
    cboConstraints.OnClick = [this] { ConstraintsClick(); };
    for (const auto& list : lstPhase)
        list->OnClick = [this] { PhaseClick(); };
    for (int i = 0; i < MostRows; ++i) {
        cboConstraint(i).OnClick = [this] { QuantityClick(); };
        cboVar(i).OnClick = [this] { QuantityClick(); };
    }
    lstPROPERTY_FUNCT.OnClick = [this] { ShowDefinition(); };
    lstRelation.OnClick = [this] { ShowDefinition(); };
    lstNumerical.OnClick = [this] { NumericalClick(); };
    cmdMethod.OnClick = [this] { Method(); };
}

void frmMixtVar::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    as_ = std::dynamic_pointer_cast<clsMV>(std::exchange(globals.SetToRepeat, nullptr));
    if (globals.EditMixtVar) as_ = record_ = globals.CurrentMV;
    tied_ = std::exchange(globals.SetsToShow, {});
    if (!globals.CurrentMethod) globals.CurrentMethod = std::make_shared<clsMethod>();
    {
        const ui::FillingScope filling(*this);
        if (as_) {
            globals.CurrentMethod->Context = as_->PropertyContext(); // names the property
            TakeProperty(
                {as_->PRPCODE, as_->PROPERTY_UNIT, as_->Factor, as_->isOriginalUnit, as_->nVar},
                as_->Header);
        }
        FillHeader();
        ListMixtures();
        UseMixture();
        ShowProperty();
        if (as_)
            Fill(*as_);
        else
            txtComment.Text(globals.PropertyComment);
        openAtFirst_ = OpenSpectralVariable(Draft());
    }
    if (record_) { // what a stored set is, need not be asked about
        for (const MixtVarFinding& finding : CheckMixtVar(Draft()))
            if (finding.asks) allowed_.insert(finding.text);
    }
    cmdMethod.Enabled(ui::Forms::Current().Knows("frmProperty"));
    ShowCaption();
    if (record_) cboSample(0).SetFocus(); // its mixture is closed
    if (row_.Property == row_.Code) ui::Say("Property Code Error");
}

void frmMixtVar::MixtureClick() {
    if (Filling) return;
    UseMixture();
}

/// The sample dialog may be opened from here; what it makes current is not what this form is about.
void frmMixtVar::SampleClick(int component) {
    if (Filling) return;
    KVOGlobal& globals = Globals();
    const auto compound = globals.CurrentL;
    const auto sample = globals.CurrentS;
    const std::string context = globals.DataContext;
    samples_[static_cast<std::size_t>(component)]->Click();
    globals.CurrentL = compound;
    globals.CurrentS = sample;
    globals.DataContext = context;
    ProposeSetNumber();
}

void frmMixtVar::PhasesClick() {
    if (Filling) return;
    PresetConstraints();
    ShowFrames();
}

void frmMixtVar::ConstraintsClick() {
    if (Filling) return;
    constraintsChosen_ = true;
    ShowFrames();
}

void frmMixtVar::PhaseClick() {
    if (!Filling) ShowPhasesOfQuantities();
}

void frmMixtVar::QuantityClick() {
    if (!Filling) ShowQuantities();
}

void frmMixtVar::NumericalClick() {
    const bool none = Draft().numerical == Presentation::NoNumbers;
    cmdOK.Caption(none ? "Accept" : "Numerical Data");
}

/// Lets property and method be reviewed; another property is offered what suits it, and what has
/// been chosen stays.
void frmMixtVar::Method() {
    KVOGlobal& globals = Globals();
    const int variables = Draft().VariableCount();
    if (variables > 0) globals.VariableCount = variables;
    const std::string before = globals.PropertyCode;
    if (!ReviewProperty(txtComment)) return;
    const ui::FillingScope filling(*this);
    if (globals.PropertyCode == before)
        ShowUnits();
    else
        ShowProperty();
    ShowCaption();
}

} // namespace vexora
