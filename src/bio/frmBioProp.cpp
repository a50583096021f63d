#include "bio/frmBioProp.h"

#include "entry/SelectionScope.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"

#include <utility>

namespace vexora {

namespace {

constexpr int UsualComponents = 6;
constexpr int UsualProperties = 4;
constexpr int UsualVariables = 4;
constexpr int UsualConstraints = 8;

int QuantityCount(const clsBP* pattern, BioRole role, int usual) {
    return BioRowCount(usual, pattern ? pattern->CountOf(role) : 0);
}

ui::Layout PageLayout(ui::Layout rows, ui::CommandButton& next) {
    return ui::Column({std::move(rows), ui::Row({ui::Stretch(), next})});
}

} // namespace

std::shared_ptr<clsBP> frmBioProp::Pattern() {
    const KVOGlobal& globals = Globals();
    return globals.EditBioProp ? globals.CurrentBP
                               : std::dynamic_pointer_cast<clsBP>(globals.BioSetToRepeat);
}

int frmBioProp::ComponentCount() {
    const auto pattern = Pattern();
    return BioRowCount(UsualComponents, pattern ? pattern->Components.size() : 0);
}

int frmBioProp::PropertyCount() {
    return QuantityCount(Pattern().get(), BioRole::Property, UsualProperties);
}

int frmBioProp::VariableCount() {
    return QuantityCount(Pattern().get(), BioRole::Variable, UsualVariables);
}

int frmBioProp::ConstraintCount() {
    return QuantityCount(Pattern().get(), BioRole::Constraint, UsualConstraints);
}

frmBioProp::frmBioProp() : ChainForm("frmBioProp", "Bio System Properties") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
    HelpContext = 520;
}

void frmBioProp::ArrangeControls() {
    using namespace ui;
    TabStrip1.Assign({"Initial state", "Final state", "Composition", "Property", "Variables",
                      "Constraints", "Description"});
    TabStrip1.Index(0);
    const Layout first =
        Column({Row({Field("Substance:", cmbSubst), Field("Sample:", Narrow(cboSubstSample, 12))}),
                Field(lblState1, cboState1), Field("Phase:", cboPhase1), Stretch()});
    const Layout second =
        Column({Field(lblState2, cboState2), Field("Phase:", cboPhase2), Stretch()});
    const Layout description =
        Column({Field("Data set #:", lblSetNo), Field("Method of measurement:", txtMethod),
                Field("Comment:", txtComment)});
    Arrangement =
        Column({Pages(TabStrip1, {PageLayout(first, Next1), PageLayout(second, Next2),
                                  PageLayout(components_.Arrangement(), Next3),
                                  PageLayout(properties_.Arrangement(), Next4),
                                  PageLayout(variables_.Arrangement(), Next5),
                                  PageLayout(constraints_.Arrangement(), Next6), description}),
                ButtonRow({cmdAccept, cmdCancel})});
    TabAlongArrangement();
    PreferredColumns = 130;
}

void frmBioProp::WireEvents() {
    cmbSubst.OnClick = [this] { SubstanceClick(); };
    cboSubstSample.OnClick = [this] { SampleClick(); };
    components_.Follow = [this] { Follow(); };
    int page = First;
    for (ui::CommandButton* next : {&Next1, &Next2, &Next3, &Next4, &Next5, &Next6})
        next->OnClick = [this, leaves = static_cast<Page>(page++)] { Next(leaves); };
}

void frmBioProp::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    if (globals.EditBioProp) record_ = globals.CurrentBP;
    base_ = Base();
    globals.BioSetToRepeat = nullptr;
    Fill();
    if (record_) Caption("Edit: Bio System Properties");
    cmbSubst.SetFocus();
}

/// Helpers opened on the way have had answers of their own.
void frmBioProp::Unload() {
    Globals().DialogAccepted = accepted_;
    ChainForm::Unload();
}

/// A sample is one of its compound.
void frmBioProp::SubstanceClick() {
    if (Filling) return;
    const SelectionScope selection;
    const auto rn = substances_.Click();
    if (rn && *rn != rn_) {
        rn_ = *rn;
        samples_.Fill(Globals().CurrentR->FindL(rn_)); // one alone is chosen
        const auto sample = samples_.Sample();
        sample_ = sample ? sample->SMPNM : std::string();
    }
    Follow();
}

void frmBioProp::SampleClick() {
    if (Filling) return;
    const SelectionScope selection;
    const auto made = samples_.Click();
    const auto sample = samples_.Sample();
    sample_ = sample ? sample->SMPNM : std::string();
    if (made) Follow();
}

/// A person has changed what is in the solution, or made a compound or a sample on the way.
void frmBioProp::Follow() {
    FillSubstance();
    components_.Refresh();
    OfferSubjects();
}

/// Quantities are said of the substance and the components as they stand on the form now.
void frmBioProp::OfferSubjects() {
    clsBP draft;
    WriteSubstance(draft);
    const auto subjects = BioSubjects(draft, {0}, components_.Rows());
    for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
        page->OfferSubjects(subjects);
}

void frmBioProp::Next(Page page) {
    if (!CheckPage(page)) return;
    ui::Control* const first[] = {IsTransition() ? &cboState2 : &cboPhase2,
                                  &cmbComp(0),
                                  &cboProp(0),
                                  &cboVar(0),
                                  &cboConst(0),
                                  &txtMethod};
    TabStrip1.Index(page + 1);
    first[page]->SetFocus();
}

} // namespace vexora
