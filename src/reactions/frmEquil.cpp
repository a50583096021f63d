#include "reactions/frmEquil.h"

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/EditStatements.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "records/Presentation.h"
#include "records/PropertyChain.h"
#include "records/clsL.h"
#include "records/clsQ.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

#include <utility>

namespace vexora {

frmEquil::frmEquil() : ChainForm("frmEquil", "Equilibrium of a reaction") {
    for (int n = 0; n < Participants; ++n)
        samples_.emplace_back(*this, cboSample(n), "None");
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdFinish, [this] { Accept(); });
    HelpContext = 280;
    txtPrpSetNo.Locked(true);
}

void frmEquil::ArrangeControls() {
    using namespace ui;
    Arrangement = Column(
        {Row({Field("Reaction:", lblReaction), Field("Property set #", Narrow(txtPrpSetNo, 4))}),
         ParticipantsLayout(), PhasesLayout(),
         Row({Field("Solvent phase:", cboSolventPhase),
              Field("Standard state:", cboStandardState)}),
         ConstantsLayout(), VariablesLayout(),
         Group(fraPresentation,
               {Row({Field("Numerical:", lstNumerical), chkCalc, chkEqu, chkGraph})}),
         chkIncludeDigit, Field("Comment:", txtComment),
         ButtonRow({cmdMethod, cmdUnc, cmdAccept, cmdFinish})});
    PreferredColumns = 120;
    TabAlongArrangement();
}

ui::Layout frmEquil::ParticipantsLayout() {
    std::vector<ui::Layout> left, right;
    for (int n = 0; n < Participants; ++n)
        (n < Participants / 2 ? left : right)
            .push_back(ui::Field(lblPart(n), ui::Narrow(cboSample(n), 16)));
    return ui::Group("Participants and their samples",
                     {ui::Row({ui::Column(std::move(left)), ui::Column(std::move(right))})});
}

ui::Layout frmEquil::PhasesLayout() {
    std::vector<ui::Layout> rows;
    for (int row = 0; row < Places; ++row) {
        std::vector<ui::Layout> parts = {ui::Narrow(cboPhase(row), 28)};
        for (int i = 1; i <= Participants; ++i)
            parts.emplace_back(Part(row, i));
        parts.push_back(ui::Stretch());
        rows.push_back(
            ui::Field("Phase " + std::to_string(row + 1) + ":", ui::Row(std::move(parts))));
    }
    return ui::Group("Phases and the participants in them", std::move(rows));
}

ui::Layout frmEquil::ConstantsLayout() {
    std::vector<ui::Layout> left, right;
    for (int row = 0; row < Places; ++row)
        (row < Places / 2 ? left : right)
            .push_back(
                ui::Field("Fixed condition:", ui::Row({cboConst(row), ui::Narrow(txtConst(row), 10),
                                                       ui::Narrow(lblConstUnit(row), 4)})));
    return ui::Group(fraConstants,
                     {ui::Row({ui::Column(std::move(left)), ui::Column(std::move(right))})});
}

ui::Layout frmEquil::VariablesLayout() {
    std::vector<ui::Layout> rows;
    for (int row = 0; row < MostVariables; ++row) {
        lblVar(row).Caption("Variable:");
        rows.push_back(ui::Field(
            lblVar(row), ui::Row({cboVar(row), ui::Field("Units:", ui::Narrow(cboVarUnit(row), 14)),
                                  lblSystemUnit(row), ui::Stretch()})));
    }
    return ui::Group(fraVariables, std::move(rows));
}

void frmEquil::WireEvents() {
    for (int i = 1; i <= Participants; ++i)
        cboSample(i - 1).OnClick = [this, i] { SampleClick(i); };
    for (const auto& list : cboPhase)
        list->OnClick = [this] { ShowSolvent(); };
    for (int row = 0; row < Places; ++row)
        cboConst(row).OnClick = [this, row] { ConstantClick(row); };
    for (const auto& list : cboVar)
        list->OnClick = [this] {
            ShowUnits();
            ShowCaption();
        };
    lstNumerical.OnClick = [this] { NumericalClick(); };
    cmdMethod.OnClick = [this] { Method(); };
    cmdUnc.OnClick = [this] { Uncertainty(); };
}

void frmEquil::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    as_ = std::dynamic_pointer_cast<clsE>(std::exchange(globals.SetToRepeat, nullptr));
    if (globals.EditEquilibrium) as_ = record_ = globals.CurrentE;
    reaction_ = as_ ? as_->Parent->As<clsQ>() : globals.CurrentQ;
    if (!globals.CurrentMethod) globals.CurrentMethod = std::make_shared<clsMethod>();
    {
        const ui::FillingScope filling(*this);
        if (as_)
            TakeProperty(
                {as_->PRPCODE, as_->PROPERTY_UNIT, as_->Factor, as_->isOriginalUnit, as_->nVar},
                as_->Header);
        FillReaction();
        FillLists();
        ShowProperty();
        if (as_)
            Fill(*as_);
        else
            txtComment.Text(globals.PropertyComment);
    }
    ShowSolvent();
    ShowConstants();
    ShowUnits();
    ShowCaption();
    NumericalClick();
    cmdMethod.Enabled(ui::Forms::Current().Knows("frmProperty"));
    cmdUnc.Enabled(ui::Forms::Current().Knows("frmUnc"));
    cboPhase(0).SetFocus();
    if (row_.Property == row_.Code) ui::Say("Property Code Error");
}

/// The dialog may come back with a sample of another participant. What it makes current is not what
/// this form is about.
void frmEquil::SampleClick(int i) {
    if (Filling) return;
    KVOGlobal& globals = Globals();
    const auto compound = globals.CurrentL;
    const auto sample = globals.CurrentS;
    const std::string context = globals.DataContext;
    const auto made = samples_[static_cast<std::size_t>(i - 1)].Click();
    globals.CurrentL = compound;
    globals.CurrentS = sample;
    globals.DataContext = context;
    for (int other = 1; made && other <= Participants; ++other) {
        if (other == i || reaction_->RN(other) != made->Parent->RN) continue;
        SampleList& list = samples_[static_cast<std::size_t>(other - 1)];
        const auto before = list.Chosen();
        list.Fill(list.System());
        list.Choose(before ? before.get() : static_cast<const SubstanceSample*>(made.get()));
    }
}

/// A value is that of the quantity it was typed for.
void frmEquil::ConstantClick(int row) {
    if (Filling) return;
    std::string& before = constants_[static_cast<std::size_t>(row)];
    const std::string code = QuantityOf(cboConst(row));
    if (std::exchange(before, code) != code) txtConst(row).Text("");
    ShowConstants();
}

void frmEquil::NumericalClick() {
    const bool none = Draft().numerical == Presentation::NoNumbers;
    cmdAccept.Caption(none ? "Accept" : "Numerical Data");
}

/// Lets property and method be reviewed; what has been chosen stays.
void frmEquil::Method() {
    if (!ReviewProperty(txtComment)) return;
    ShowProperty();
    ShowUnits();
    ShowCaption();
}

/// Statements about the whole set; they go with it when it is stored. The table asks for them, too,
/// and shows the columns that they call for.
void frmEquil::Uncertainty() {
    KVOGlobal& globals = Globals();
    const auto set = DefineSet();
    NameStatements(*set);
    const auto chain = std::exchange(globals.CurrentProperty, BuildChain(*set));
    const bool accepted = EditStatementsOfValue(set->UX, "RQE", false);
    globals.CurrentProperty = chain;
    if (!accepted) return;
    set->recData.Clear();
    stated_ = *set;
}

} // namespace vexora
