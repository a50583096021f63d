#include "mixtures/frmMixtSingle.h"

#include <span>
#include <utility>

#include "chem/clsMMM.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/EditStatements.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "records/PropertyChain.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "ui/Forms.h"

namespace vexora {

frmMixtSingle::frmMixtSingle() : ChainForm("frmMixtSingle", "Single value of a mixture") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdFinish, [this] { Accept(); });
    HelpContext = 326;
    txtPrpSetNo.Locked(true);
}

void frmMixtSingle::ArrangeControls() {
    using namespace ui;
    for (int n = 0; n < MostMixturePhases; ++n)
        lblPhase(n).Caption("Phase " + std::to_string(n + 1) + ":");
    std::vector<Layout> mixture = {Row({cboMixt, Field("Property set #", Narrow(txtPrpSetNo, 4))})};
    for (int n = 0; n < cboSample.Count(); ++n)
        mixture.push_back(Field(lblSample(n), Narrow(cboSample(n), 24)));
    const auto phase = [this](int n) { return Field(lblPhase(n), lstPhase(n)); };
    Arrangement =
        Column({Group("Mixture", mixture),
                Group("Phases", {lblReminder, Row({phase(0), phase(1), phase(2)}),
                                 Row({phase(3), phase(4)})}),
                Field("Property value:", Row({Narrow(txtValue, 24), lblUnit})),
                Field("Uncertainty:", Row({lblStated, cmdLastUnc, Stretch()})),
                Group(fraState, {Field(lblT, Row({Narrow(txtT, 24), Narrow(cboTUnit, 20)})),
                                 Field(lblP, Row({Narrow(txtP, 24), Narrow(cboPUnit, 20)}))}),
                Field("Comment to this record:", txtComment),
                ButtonRow({cmdMethod, cmdUnc, cmdCheck, cmdAccept, cmdFinish})});
    TabAlongArrangement();
    PreferredColumns = 100;
}

void frmMixtSingle::WireEvents() {
    cboMixt.OnClick = [this] { MixtureClick(); };
    for (std::size_t n = 0; n < samples_.size(); ++n)
        cboSample(static_cast<int>(n)).OnClick = [this, n] { SampleClick(n); };
    for (const auto& list : lstPhase)
        list->OnClick = [this] { Touch(); };
    for (ui::ItemList* list : {&cboTUnit, &cboPUnit})
        list->OnClick = [this] { Touch(); };
    for (ui::TextBox* box : {&txtValue, &txtT, &txtP, &txtComment})
        box->OnChange = [this] { Touch(); };
    cmdMethod.OnClick = [this] { Method(); };
    cmdUnc.OnClick = [this] { Uncertainty(); };
    cmdCheck.OnClick = [this] { CheckAverage(); };
}

void frmMixtSingle::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    record_ = globals.EditMixtSingle ? globals.CurrentMZ : nullptr;
    mixture_ = record_ ? record_->Parent->As<clsM>() : globals.CurrentM;
    if (!globals.CurrentMethod) globals.CurrentMethod = std::make_shared<clsMethod>();
    const ui::FillingScope filling(*this);
    FillMixtures();
    UseMixture();
    if (record_) TakeRecord(*record_);
    FillProperty();
    if (record_)
        Fill(*record_);
    else
        txtComment.Text(globals.PropertyComment);
    cmdCheck.Enabled(CanAverage());
    cmdUnc.Enabled(ui::Forms::Current().Knows("frmUnc"));
    cmdMethod.Enabled(ui::Forms::Current().Knows("frmProperty"));
    offer_.Show();
    if (!record_) return;
    cmdAccept.Caption("Accept");
    cboSample(0).SetFocus(); // its mixture is closed
}

void frmMixtSingle::MixtureClick() {
    const auto& mixtures = Globals().CurrentR->recM;
    const auto chosen = mixtures.Item(static_cast<std::size_t>(cboMixt.Index() + 1));
    if (Filling || chosen == mixture_) return;
    const ui::FillingScope filling(*this);
    mixture_ = chosen;
    UseMixture();
    FillProperty();
    statement_ = clsX();
    Touch();
}

/// The dialog may come back with a sample of another component, whose list then has it too.
void frmMixtSingle::SampleClick(std::size_t n) {
    if (Filling) return;
    const auto made = samples_[n].Click();
    for (SampleList& list : samples_) {
        if (!made || list.System().get() != made->Parent || &list == &samples_[n]) continue;
        list.Fill(list.System());
        list.Choose(made.get());
    }
    UseSamples();
    Touch();
}

/// Lets property and method be reviewed; a cancelled review has changed nothing.
void frmMixtSingle::Method() {
    const std::string property = row_.Code;
    if (!ReviewProperty(txtComment)) return;
    {
        const ui::FillingScope filling(*this);
        FillProperty();
    }
    // What was stated about another quantity is not true of this one.
    if (row_.Code != property) {
        statement_ = clsX();
        stateTag_.clear();
    }
    Touch();
}

/// Statements about the value in hand; they go with it when it is stored.
void frmMixtSingle::Uncertainty() {
    std::vector<clsX> items = Statements();
    if (items.empty()) return;
    value_.TakeText();
    // What a mixture states stands in the unit of its value, in the file too.
    if (EditStatementsOfValue(items, "RMZ", false)) TakeStatement(items);
}

/// The statement as it stands, with name and unit of its quantity.
std::vector<clsX> frmMixtSingle::Statements() const {
    const auto& head = Globals().CurrentProperty;
    if (!head || !mixture_) return {};
    clsMZ named;
    named.MixType = mixture_->MixType;
    named.PRPCODE = row_.Code;
    named.PROPERTY_UNIT = head->ConversionCode;
    named.Factor = head->Factor;
    StoreStatement(named);
    return NamedStatements(named);
}

void frmMixtSingle::TakeStatement(const std::vector<clsX>& items) {
    statement_ = items.front();
    Touch();
}

/// The scatter of an average is of that value alone.
void frmMixtSingle::KeepStatement() const {
    std::vector<clsX> items = Statements();
    if (!items.empty()) average_.TakeOut(items.front());
    StatementOffer::Keep(items);
}

/// The average of repeated values. It tells the purity of the mixed sample besides, weighted by the
/// composition of the state where it is known, which goes into the context.
void frmMixtSingle::CheckAverage() {
    if (!CheckSamples()) return;
    clsMZ draft;
    draft.MixType = mixture_->MixType;
    StoreSamples(draft);
    StoreValues(draft);
    clsMMM average;
    PrepareAverage(average, *mixture_, Samples(), draft);
    Globals().CurrentMethod->Purity = average.Purity();
    std::string text = "Average purity of the mixture: " + FormatFixed(average.Purity(), 2) + " %";
    const double mass = average.Calculate();
    text += mass > 0 ? "\nAverage molar mass: " + FormatFixed(mass, 3) + " g/mol"
                     : "\nNo composition is stated: the mean of the components";
    if (average_.Ask(statement_, text)) Touch();
}

void frmMixtSingle::Touch() {
    if (Filling) return;
    stored_ = false;
    cmdAccept.Caption(record_ ? "Accept" : "Next");
    offer_.Show();
}

} // namespace vexora
