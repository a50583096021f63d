#include <algorithm>

#include "chem/CommentTags.h"
#include "chem/MethodTags.h"
#include "chem/clsProperty.h"
#include "entry/PhaseLists.h"
#include "entry/PropertyContext.h"
#include "entry/ValueQuestions.h"
#include "globals/KVOGlobal.h"
#include "mixtures/frmMixtSingle.h"
#include "records/LineWriter.h"
#include "records/UnitConversion.h"
#include "records/clsM.h"
#include "records/clsMZ.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Temperature or pressure as it was entered.
UnitConversion ConversionOf(const std::string& code, const std::string& unitText) {
    const std::string unit = UnitOfVariable(code);
    return {ConversionCodeOf(unitText, unit), 0, 0, unit};
}

} // namespace

void frmMixtSingle::Accept() {
    if (stored_) {
        Close();
        return;
    }
    if (!Check()) return;
    Store();
    KeepStatement();
    if (record_) {
        Close();
        return;
    }
    const ui::FillingScope filling(*this);
    txtValue.Text("");
    statement_ = clsX(); // it was of the value that has been stored
    offer_.Show();
    ProposeSetNumber();
    cmdAccept.Caption("Done");
    stored_ = true;
    txtValue.SetFocus();
}

bool frmMixtSingle::Check() {
    const KVOGlobal& globals = Globals();
    // Another mixture may have fewer components than the property speaks of.
    const bool isOffered =
        row_.Offered.IsIn(globals.DataContext) || (record_ && record_->PRPCODE == row_.Code);
    if (globals.PropertyCode.empty() || !globals.CurrentProperty || !isOffered)
        return Refuse(cmdMethod, "Please review the property selection");
    return CheckSamples() && CheckPhases() &&
           std::ranges::all_of(states_, [this](const State& s) { return CheckState(s); }) &&
           value_.Check();
}

bool frmMixtSingle::CheckSamples() {
    if (!mixture_) return Refuse(cboMixt, "Please select sample");
    for (int n = 0; n < mixture_->MixType; ++n) {
        if (!samples_[static_cast<std::size_t>(n)].Sample())
            return Refuse(cboSample(n), "Please select sample");
    }
    return true;
}

bool frmMixtSingle::CheckPhases() {
    if (PhaseChosen(lstPhase(0)).empty()) return Refuse(lstPhase(0), "Select the phase");
    for (int n = 1; n < mixture_->MixType + 2; ++n) {
        const std::string phase = PhaseChosen(lstPhase(n));
        for (int before = 0; before < n && !phase.empty(); ++before) {
            if (PhaseChosen(lstPhase(before)) == phase)
                return Refuse(lstPhase(n), "Duplicate phase");
        }
    }
    return true;
}

bool frmMixtSingle::CheckState(const State& state) {
    if (!state.box.IsShown()) return true;
    state.box.Text(NormalizeNumber(state.box.Text()));
    const std::string& text = state.box.Text();
    if (text.empty()) return true;
    if (!IsNumeric(text)) return Refuse(state.box, "Enter the value of " + state.name);
    if (state.units.Index() < 0) return Refuse(state.units, "Select units for the " + state.name);
    const UnitConversion entered = ConversionOf(state.code, state.units.Chosen());
    clsProperty item;
    item.PropertyCode = state.code;
    item.ConversionCode = entered.code;
    item.Relation = "A";
    item.Name = VariableName(state.code) + ", " + entered.unit;
    item.Text = text;
    bool ok = true;
    item.Convert(ok, 0, ConfirmInBox);
    if (!ok) state.box.SetFocus();
    return ok;
}

void frmMixtSingle::Store() {
    KVOGlobal& globals = Globals();
    const auto record = record_ ? record_ : std::make_shared<clsMZ>();
    record->MixType = mixture_->MixType;
    StoreSamples(*record);
    StoreValues(*record);
    StoreStatement(*record);
    CommentTags tags = CommentTags::OfTags(globals.KeyRest);
    StoreStates(tags);
    globals.KeyRest = tags.Stored();
    FillHeader(record->Header, !record_,
               BuildComment(txtComment.Text(), *globals.CurrentProperty, stateTag_));
    if (record_)
        record->Rekey();
    else
        record->AttachTo(*mixture_);
    globals.CurrentMZ = record;
    globals.Saved = false;
    globals.DialogAccepted = true;
    NoteAccepted();
}

void frmMixtSingle::StoreValues(clsMZ& record) const {
    const StoredProperty property = PropertyToStore();
    record.PRPCODE = row_.Code;
    record.PRPSETNO = txtPrpSetNo.Text();
    record.isOriginalUnit = property.isOriginalUnit;
    record.Factor = property.factor;
    record.PROPERTY_UNIT = property.unit;
    for (int n = 1; n <= MostMixturePhases; ++n)
        record.PHASE(n, n <= record.MixType + 2 ? PhaseChosen(lstPhase(n - 1)) : "");
    record.PRPVALUE = txtValue.Text();
}

/// A tag that says the same stays where it is; one that the form did not show stays too.
void frmMixtSingle::StoreStates(CommentTags& tags) const {
    for (const State& state : states_) {
        const std::string tag = TagOf(state);
        if (!state.box.IsShown() || (!tag.empty() && tags.Has(tag))) continue;
        tags.DropBeginning(state.code + " = ");
        if (!tag.empty()) tags.Set(tag, true);
    }
}

std::string frmMixtSingle::TagOf(const State& state) const {
    const std::string& text = state.box.Text();
    if (text.empty()) return {};
    const bool unchanged = text == state.shownText && state.units.Chosen() == state.shownUnit;
    return state.code + " = " +
           (unchanged ? text : ConversionOf(state.code, state.units.Chosen()).Converted(text).text);
}

/// What is stated goes with its quantity, which the item names besides.
void frmMixtSingle::StoreStatement(clsMZ& record) const {
    clsX item = statement_;
    item.N = 0;
    item.PRPCODE = row_.Code;
    item.PHASE = OrPlaceholder(PhaseChosen(lstPhase(0)));
    record.Statements(0, item);
}

} // namespace vexora
