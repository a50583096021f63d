#include <algorithm>

#include "chem/CommentTags.h"
#include "chem/clsMMM.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "globals/KVOGlobal.h"
#include "mixtures/frmMixtSingle.h"
#include "records/MixtureWords.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

int NumberOf(std::string_view text) {
    return static_cast<int>(ToInteger(Val(text)));
}

} // namespace

/// A record keeps its mixture.
void frmMixtSingle::FillMixtures() {
    const clsR& source = *Globals().CurrentR;
    for (const auto& mixture : source.recM)
        cboMixt.Add(mixture->ShowKey());
    cboMixt.Index(static_cast<int>(source.recM.Position(mixture_.get())) - 1);
    cboMixt.Enabled(!record_);
    for (const State& state : states_) {
        state.units.Assign(UnitList(UnitOfVariable(state.code), state.code));
        state.units.Index(-1); // a wrong unit is the slip that is least seen
    }
}

/// Puts the mixture into the context and offers the samples of its components.
void frmMixtSingle::UseMixture() {
    KVOGlobal& globals = Globals();
    if (!mixture_) return;
    globals.CurrentM = mixture_;
    globals.DataContext = mixture_->MixType == 2 ? "Bin" : "Tern";
    globals.CurrentMixType = mixture_->MixType;
    for (std::size_t n = 0; n < samples_.size(); ++n) {
        const int component = static_cast<int>(n) + 1;
        const bool isThere = component <= mixture_->MixType;
        const auto compound = isThere ? mixture_->Component(component) : nullptr;
        ui::Label& label = lblSample(component - 1);
        label.Visible(isThere);
        label.Caption("Sample of " + (compound ? compound->ShowKey() : mixture_->RN(component)) +
                      ":");
        cboSample(component - 1).Visible(isThere);
        samples_[n].Fill(compound);
    }
    lblPhase(MostMixturePhases - 1).Visible(mixture_->MixType > 2);
    lstPhase(MostMixturePhases - 1).Visible(mixture_->MixType > 2);
    UseSamples();
}

/// Purity of the mixed sample into the context. A unit by mass needs a composition, which a single
/// value does not have.
void frmMixtSingle::UseSamples() {
    if (!mixture_) return;
    clsMethod& method = *Globals().CurrentMethod;
    clsMZ draft;
    draft.MixType = mixture_->MixType;
    draft.PRPCODE = row_.Code;
    StoreSamples(draft);
    clsMMM average;
    PrepareAverage(average, *mixture_, Samples(), draft);
    method.Purity = average.Purity();
    method.MMass = 0;
    method.nComponent = mixture_->MixType;
    ProposeSetNumber();
}

/// Brings the form in line with the property in force.
void frmMixtSingle::FillProperty() {
    row_ = PropertyInForce();
    Caption((record_ ? "Edit: " : "") + WithComponents(row_.Property, mixture_.get()) +
            " as single valued property");
    RestrictPhases();
    value_.ShowUnit();
    ShowStates();
    ProposeSetNumber();
}

void frmMixtSingle::RestrictPhases() {
    const std::string& context = Globals().DataContext;
    const std::string property = context + " " + row_.Code;
    if (property == phasesOf_) return; // what was chosen stays as it is
    phasesOf_ = property;
    const MixturePhaseOffer offer = OfferMixturePhases(row_.Code, context);
    lblReminder.Visible(offer.isCriticalState);
    for (int n = 0; n < MostMixturePhases; ++n) {
        lstPhase(n).Clear(); // phases of another property need not make sense for this one
        FillPromptedPhaseList(lstPhase(n), offer.places[static_cast<std::size_t>(n)]);
    }
}

/// What the property says itself is not asked.
void frmMixtSingle::ShowStates() {
    for (const State& state : states_) {
        const bool asked = MayState(state.code, row_);
        state.label.Visible(asked);
        state.box.Visible(asked);
        state.units.Visible(asked);
    }
}

/// The number of a record that keeps property and samples does not change.
void frmMixtSingle::ProposeSetNumber() {
    if (!mixture_ || row_.Code.empty()) {
        txtPrpSetNo.Text("");
        return;
    }
    clsMZ draft;
    draft.MixType = mixture_->MixType;
    draft.PRPCODE = row_.Code;
    StoreSamples(draft);
    const bool same = record_ && record_->PRPCODE == row_.Code && record_->SMPNM1 == draft.SMPNM1 &&
                      record_->SMPNM2 == draft.SMPNM2 && record_->SMPNM3 == draft.SMPNM3;
    txtPrpSetNo.Text(same ? std::string(record_->PRPSETNO)
                          : std::to_string(NextSetNumber(*mixture_, draft)));
}

/// Puts what a record holds into the context, as if the property had just been chosen.
void frmMixtSingle::TakeRecord(const clsMZ& record) const {
    TakeProperty({record.PRPCODE, record.PROPERTY_UNIT, record.Factor, record.isOriginalUnit, 0},
                 record.Header);
    clsProperty& head = *Globals().CurrentProperty;
    head.Text = record.PRPVALUE;
    head.Value = Val(record.PRPVALUE);
}

void frmMixtSingle::Fill(const clsMZ& record) {
    statement_ = record.Statements(0);
    CommentTags comment(record.Header.DATACOMMENT);
    stateTag_ = comment.TakeState();
    txtComment.Text(TakeComment(comment.Stored()));
    ChooseSamples(record);
    for (int n = 0; n < MostMixturePhases; ++n) {
        lstPhase(n).Index(0);
        ChoosePhase(lstPhase(n), record.PHASE(n + 1));
    }
    txtValue.Text(record.PRPVALUE);
    const CommentTags tags = CommentTags::OfTags(Globals().KeyRest);
    for (State& state : states_) {
        state.box.Text(tags.Constant(state.code));
        if (!state.box.IsEmpty()) state.units.Index(0); // tags stand in the system unit
        state.shownText = state.box.Text();
        state.shownUnit = state.units.Chosen();
    }
}

/// A sample that the document does not have is not replaced in silence.
void frmMixtSingle::ChooseSamples(const clsMZ& record) {
    for (std::size_t n = 0; n < samples_.size(); ++n) {
        const auto& compound = samples_[n].System();
        if (!compound) continue;
        samples_[n].ChooseNone();
        samples_[n].Choose(
            compound->FindSample(NumberOf(record.SMPNM(static_cast<int>(n) + 1))).get());
    }
    UseSamples();
}

ComponentSamples frmMixtSingle::Samples() const {
    ComponentSamples samples;
    for (std::size_t n = 0; n < samples.size(); ++n)
        samples[n] = samples_[n].Sample();
    return samples;
}

bool frmMixtSingle::IsSampleOf(const clsMZ& record, int n) const {
    const auto sample = samples_[static_cast<std::size_t>(n - 1)].Sample();
    return sample && NumberOf(sample->SMPNM) == NumberOf(record.SMPNM(n));
}

/// A number stays as the record has it while it is that of the same sample.
void frmMixtSingle::StoreSamples(clsMZ& record) const {
    for (int n = 1; n <= mixture_->MixType; ++n) {
        const auto sample = samples_[static_cast<std::size_t>(n - 1)].Sample();
        const bool same = record_ && IsSampleOf(*record_, n);
        record.SMPNM(n, same ? record_->SMPNM(n) : sample ? sample->SMPNM : std::string());
    }
}

} // namespace vexora
