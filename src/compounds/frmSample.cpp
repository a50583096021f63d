#include "compounds/frmSample.h"

#include "entry/CodeLists.h"
#include "globals/KVOGlobal.h"
#include "records/SampleWords.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int HelpSample = 250;
const std::string NewEntry = "New";

/// Asks for a method that the list lacks; empty when none was given.
std::string AskMethod() {
    const auto answer =
        ui::TheDesktop().Ask({"Please enter method of purity determination", {}, {}});
    return FreeText(answer.value_or(""));
}

} // namespace

frmSample::frmSample() : ChainForm("frmSample", "Sample") {
    purities_.push_back(initial_);
    for (int i = 0; i < finalRows; ++i) {
        final_.push_back({txtFinalPurity(i), lstFinalPurity(i), lstFinalDetBy(i)});
        purities_.push_back(final_.back());
    }
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
    HelpContext = HelpSample;
    txtSampleNo.Locked(true);
    txtSmplDescription.Locked(true);
    txtSmplDescription.OnChange = [this] {
        txtSmplDescription.Readable(SampleInWords(txtSmplDescription.Text()));
    };
    txtPurifySteps.Locked(true);
}

void frmSample::ArrangeControls() {
    using namespace ui;
    std::vector<Layout> after = {
        Field("Purified by: (Select all applicable statements)", lstPurify),
        Field("In this order:", txtPurifySteps)};
    const std::size_t first = after.size();
    for (const auto& [value, unit, method] : final_) {
        after.push_back(Field(after.size() == first ? "Final purity:" : "Another detn.",
                              Row({Narrow(value, 8), unit, method})));
    }
    Arrangement = Column(
        {Row({Field("Compound:", cboSubst), Field("Sample #", Narrow(txtSampleNo, 4))}),
         Field("Description availability:", lstDescAvail),
         Field("Sample description:", txtSmplDescription),
         Group(fraInitial,
               {Field("Source of sample:", lstSmpSrc),
                Field("Initial purity (if reported)", Row({Narrow(txtSrcPurity, 8), lstSrcPurity})),
                Field("Determined by", lstSrsDetBy)}),
         Group(fraFinal, after), ButtonRow({cmdNext, cmdProperty, cmdAccept, cmdCancel})});
    PreferredColumns = 124;
}

void frmSample::WireEvents() {
    cboSubst.OnClick = [this] { SubstClick(); };
    lstDescAvail.OnClick = [this] { AvailabilityClick(); };
    lstSmpSrc.OnClick = [this] { Compose(); };
    lstPurify.OnClick = [this] { PurifyClick(); };
    for (const Purity& boxes : purities_) {
        boxes.value.OnChange = [this] { Compose(); };
        boxes.unit.OnClick = [this] { Compose(); };
        boxes.method.OnClick = [this, &method = boxes.method] { MethodClick(method); };
    }
    cmdNext.OnClick = [this] { Next(); };
    cmdProperty.OnClick = [this] { GoOnToProperty(); };
    mnuHelpSample.OnClick = [] { ui::TheDesktop().ShowHelp(HelpSample); };
}

void frmSample::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    editing_ = globals.EditSample && CurrentCompoundSample() != nullptr;
    FillLists();
    FillCompounds();
    cboSubst.Enabled(!editing_);
    cmdNext.Visible(!editing_);
    cmdProperty.Visible(!editing_ && !IsGuided() && ui::Forms::Current().Knows("frmProperty"));
    if (editing_) {
        stored_ = CurrentCompoundSample();
        const ui::FillingScope filling(*this);
        cboSubst.Index(static_cast<int>(globals.CurrentR->recL.Position(stored_->Parent)) - 1);
        txtSampleNo.Text(stored_->SMPNM);
        Fill();
    } else {
        cboSubst.Index(static_cast<int>(globals.CurrentR->recL.Position(CurrentCompound().get())) -
                       1);
        NewSample();
    }
}

void frmSample::FillLists() {
    lstDescAvail.Assign(Texts(SampleAvailabilities));
    lstSmpSrc.Assign(Texts(SampleSources));
    lstPurify.Assign(PurificationList());
    lstPurify.Add(otherEntry);
    for (const Purity& boxes : purities_) {
        boxes.unit.Assign(PurityUnitList());
        boxes.method.Assign(DeterminationList());
        boxes.method.Add(otherEntry);
    }
}

void frmSample::FillCompounds() {
    const ui::FillingScope filling(*this);
    FillCompoundList(cboSubst);
    if (!editing_) cboSubst.Add(NewEntry);
}

/// Empties the form for the next sample of the chosen compound.
void frmSample::NewSample() {
    const ui::FillingScope filling(*this);
    stored_ = nullptr;
    changed_ = true;
    const auto compound = ChosenCompound();
    txtSampleNo.Text(compound ? std::to_string(compound->NextSampleNumber()) : std::string());
    lstDescAvail.Index(-1);
    ClearDescription();
    txtSmplDescription.Text("");
    cmdAccept.Caption("Accept");
}

std::shared_ptr<clsL> frmSample::ChosenCompound() const {
    return Globals().CurrentR->recL.Item(static_cast<std::size_t>(cboSubst.Index() + 1));
}

void frmSample::SubstClick() {
    if (Filling || cboSubst.Index() < 0) return;
    if (!editing_ && cboSubst.Index() == cboSubst.Count() - 1) NewCompound();
    if (cboSubst.Index() == chosen_) return;
    chosen_ = cboSubst.Index();
    const auto compound = ChosenCompound();
    if (!compound) {
        if (chosen_ >= 0) ui::Say("Substance internal error");
        return;
    }
    stored_ = nullptr; // what stands on the form now describes a sample of this compound
    txtSampleNo.Text(std::to_string(compound->NextSampleNumber()));
    Compose();
}

/// Lets the operator enter a compound first; the one that joined the source is chosen then.
void frmSample::NewCompound() {
    auto& compounds = Globals().CurrentR->recL;
    const std::size_t before = compounds.Count();
    if (!Globals().IsEditingInPlace()) Globals().OpenForms.push_back(Name());
    ui::Forms::Current().Get("frmSubst").ShowModal();
    FillCompounds();
    const ui::FillingScope filling(*this);
    cboSubst.Index(compounds.Count() > before ? static_cast<int>(compounds.Count()) - 1 : chosen_);
}

void frmSample::AvailabilityClick() {
    FollowAvailability();
    Compose();
}

void frmSample::PurifyClick() {
    const int other = lstPurify.Find(otherEntry);
    if (!Filling && lstPurify.Selected(other)) {
        const ui::FillingScope filling(*this);
        lstPurify.Selected(other, false);
        const std::string text = AskMethod();
        lstPurify.Selected(PlaceOfMethod(lstPurify, text), true);
    }
    if (!Filling) FollowSteps();
    Compose();
}

void frmSample::MethodClick(ui::ComboBox& method) {
    if (!Filling && method.Chosen() == otherEntry) {
        const ui::FillingScope filling(*this);
        const std::string text = AskMethod();
        method.Index(PlaceOfMethod(method, text));
    }
    Compose();
}

void frmSample::Compose() {
    if (Filling) return;
    changed_ = true;
    cmdAccept.Caption("Accept");
    txtSmplDescription.Text(lstDescAvail.Index() < 0 ? std::string() : ComposeDescription(Read()));
}

} // namespace vexora
