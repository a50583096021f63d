#include "reactions/frmChanged.h"

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/EditStatements.h"
#include "entry/PropertyContext.h"
#include "entry/PropertyRules.h"
#include "globals/KVOGlobal.h"
#include "records/PropertyChain.h"
#include "records/clsC.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int Count = clsQ::MostParticipants;
constexpr const char* NoSample = "None";

} // namespace

frmChanged::frmChanged() : ChainForm("frmChanged", "Property change of a reaction") {
    for (int n = 0; n < Count; ++n)
        samples_.emplace_back(*this, cboSample(n), NoSample);
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdFinish, [this] { Accept(); });
    HelpContext = 275;
    txtPrpSetNo.Locked(true);
}

void frmChanged::ArrangeControls() {
    using namespace ui;
    std::vector<Layout> rows;
    for (int n = 0; n < Count; ++n)
        rows.push_back(Field(
            lblPart(n), Row({Narrow(cboPhase(n), 20), Field("Sample:", Narrow(cboSample(n), 16)),
                             cboComposition(n), Narrow(txtComposition(n), 8)})));
    rows.push_back(Row({Field("Solvent phase:", Narrow(cboSolventPhase, 20)), lblSolvent}));
    const auto state = [](TextBox& temperature, TextBox& pressure) {
        return Row({Field("Temperature, K:", Narrow(temperature, 14)),
                    Field("Pressure, kPa:", Narrow(pressure, 14))});
    };
    Arrangement =
        Column({Group("Participants: phase, sample and composition of a solution", rows),
                Group("States", {Field("Initial:", state(txtInitialT, txtInitialP)),
                                 Field("Final:", state(txtFinalT, txtFinalP)),
                                 Field("Standard state:", cboStandardState)}),
                Field("Property value:",
                      Row({Narrow(txtValue, 20), Narrow(cboUnit, 20), Field(lblMassOf, cboMassOf),
                           Field("Property set #", Narrow(txtPrpSetNo, 4))})),
                Field("Uncertainty:", Row({lblStated, cmdLastUnc, Stretch()})),
                Field("Comment to this record:", txtComment),
                ButtonRow({cmdMethod, cmdUnc, cmdAccept, cmdFinish})});
    TabAlongArrangement();
    PreferredColumns = 140;
}

void frmChanged::WireEvents() {
    for (int i = 1; i <= Count; ++i) {
        cboPhase(i - 1).OnClick = [this, i] { PhaseClick(i); };
        cboSample(i - 1).OnClick = [this, i] { SampleClick(i); };
        cboComposition(i - 1).OnClick = [this] { Touch(); };
        txtComposition(i - 1).OnChange = [this] { Touch(); };
    }
    for (ui::ItemList* list : {&cboSolventPhase, &cboStandardState})
        list->OnClick = [this] { Touch(); };
    for (const StateField& field : states_)
        field.box.OnChange = [this] { Touch(); };
    for (ui::TextBox* box : {&txtInitialT, &txtInitialP})
        box->OnLostFocus = [this] { CopyStates(); };
    for (ui::TextBox* box : {&txtValue, &txtComment})
        box->OnChange = [this] { Touch(); };
    cboUnit.OnClick = [this] { UnitClick(); };
    cboMassOf.OnClick = [this] { MassOfClick(); };
    cmdMethod.OnClick = [this] { Method(); };
    cmdUnc.OnClick = [this] { Uncertainty(); };
}

void frmChanged::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    record_ = globals.EditChanged ? globals.CurrentC : nullptr;
    reaction_ = record_ ? record_->Parent->As<clsQ>() : globals.CurrentQ;
    if (!globals.CurrentMethod) globals.CurrentMethod = std::make_shared<clsMethod>();
    const ui::FillingScope filling(*this);
    if (record_) TakeRecord(*record_);
    FillReaction();
    FillProperty();
    if (record_)
        Fill(*record_);
    else
        txtComment.Text(globals.PropertyComment);
    UsePhases();
    cmdUnc.Enabled(ui::Forms::Current().Knows("frmUnc"));
    cmdMethod.Enabled(ui::Forms::Current().Knows("frmProperty"));
    if (record_) cmdAccept.Caption("Accept");
    offer_.Show();
    cboPhase(0).SetFocus();
}

/// What was said of a solution is not true of another phase.
void frmChanged::PhaseClick(int i) {
    if (Filling) return;
    {
        const ui::FillingScope filling(*this);
        if (!IsDissolved(i)) {
            cboComposition(i - 1).Index(0);
            txtComposition(i - 1).Text("");
        }
        if (!HasSolution()) {
            cboSolventPhase.Index(0);
            solvent_ = reaction_->SOLVENTRN;
            ShowSolvent();
        }
    }
    UsePhases();
    Touch();
}

/// The dialog may come back with a sample of another participant.
void frmChanged::SampleClick(int i) {
    if (Filling) return;
    const auto made = samples_[static_cast<std::size_t>(i - 1)].Click();
    for (int other = 1; made && other <= Count; ++other) {
        if (other == i || reaction_->RN(other) != made->Parent->RN) continue;
        SampleList& list = samples_[static_cast<std::size_t>(other - 1)];
        const auto before = list.Chosen();
        list.Fill(list.System());
        list.Choose(before ? before.get() : static_cast<const SubstanceSample*>(made.get()));
    }
    Touch();
}

void frmChanged::UnitClick() {
    if (Filling) return;
    KVOGlobal& globals = Globals();
    const std::string& text = cboUnit.Chosen();
    const bool isGiven = text == unit_.text;
    globals.PropertyUnit = isGiven ? unit_.code : UnitCode(row_, text);
    globals.CurrentMethod->Factor = isGiven ? unit_.factor : 0;
    globals.PropertyText = text;
    clsProperty& head = *globals.CurrentProperty;
    head.ConversionCode = globals.OriginalUnits ? globals.PropertyUnit : "S";
    head.Factor = globals.OriginalUnits ? globals.CurrentMethod->Factor : 0;
    UseUnit();
    Touch();
}

void frmChanged::MassOfClick() {
    if (Filling) return;
    int place = 0;
    for (int i = 1; i <= Count; ++i)
        if (IsUsed(i) && place++ == cboMassOf.Index()) massOf_ = reaction_->RN(i);
    UseUnit();
    Touch();
}

/// Nearly all changes are between states of one temperature and pressure.
void frmChanged::CopyStates() {
    for (std::size_t n = 0; n < 2; ++n) {
        const std::string text = NormalizeNumber(states_[n].box.Text());
        ui::TextBox& final = states_[n + 2].box;
        if (final.IsEmpty() && IsNumeric(text)) final.Text(text);
    }
}

/// Lets property and method be reviewed; a cancelled review has changed nothing.
void frmChanged::Method() {
    const std::string property = row_.Code;
    if (!ReviewProperty(txtComment)) return;
    {
        const ui::FillingScope filling(*this);
        FillProperty();
    }
    // What was stated about another quantity is not true of this one.
    if (row_.Code != property) statement_ = clsX();
    Touch();
}

/// Statements about the value in hand; they go with it when it is stored.
void frmChanged::Uncertainty() {
    const KVOGlobal& globals = Globals();
    if (!globals.CurrentProperty) return;
    globals.CurrentProperty->Text = NormalizeNumber(txtValue.Text());
    std::vector<clsX> items = Statements();
    const bool inSystemUnits = record_ && record_->commentInSystemUnits;
    if (EditStatementsOfValue(items, "RQC", inSystemUnits)) TakeStatement(items);
}

/// The statement as it stands, with name and unit of its quantity.
std::vector<clsX> frmChanged::Statements() const {
    if (!Globals().CurrentProperty) return {};
    clsC named;
    named.Parent = reaction_.get();
    StoreUnit(named);
    StoreStatement(named);
    return NamedStatements(named);
}

void frmChanged::TakeStatement(const std::vector<clsX>& items) {
    statement_ = items.front();
    Touch();
}

void frmChanged::Touch() {
    if (Filling) return;
    stored_ = false;
    cmdAccept.Caption(record_ ? "Accept" : "Next");
    offer_.Show();
}

} // namespace vexora
