#include "tables/frmSelect.h"

#include <span>
#include <string>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "tables/ProcessWords.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* NewEntry = "New";

/// The kinds of tables or data below a node.
struct KindsOfNode {
    std::string_view nodeKey;
    std::span<const std::string_view> kinds;
};

constexpr std::string_view OfSample[] = {ThermalFunctionsKind};
constexpr std::string_view OfMixture[] = {PhaseEquilibriaKind};
constexpr std::string_view OfComplex[] = {BulkPropertyKind, PhaseEquilibriumKind,
                                          CrystalStructureKind, DecompositionKind};
constexpr std::string_view OfOthers[] = {BioTransitionKind, BioSolubilityKind, BioReactionKind};
constexpr KindsOfNode Kinds[] = {{"RLS", OfSample}, {"RM", OfMixture}, {"RXS", OfComplex}};

} // namespace

frmSelect::frmSelect() : Form("frmSelect", "Table to process") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdOK, cmdCancel, [this] { Accept(); });
    HelpContext = 360;
}

void frmSelect::ArrangeControls() {
    using namespace ui;
    std::vector<Layout> parts{Field(lblType, cboType), Field(lblMixt, cboMixt)};
    for (int n = 0; n < cboSample.Count(); ++n)
        parts.push_back(Field(lblSample(n), Narrow(cboSample(n), 24)));
    parts.push_back(Row({chkStatic, Stretch()}));
    parts.push_back(ButtonRow({cmdOK, cmdCancel}));
    Arrangement = Column(std::move(parts));
    TabAlongArrangement();
    PreferredColumns = 90;
}

void frmSelect::WireEvents() {
    cboMixt.OnClick = [this] { MixtureClick(); };
    for (std::size_t n = 0; n < samples_.size(); ++n)
        cboSample(static_cast<int>(n)).OnClick = [this, n] { SampleClick(n); };
}

void frmSelect::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    FillTypes();
    ShowTableFields();
    if (!IsOfTable()) return FillSamples();
    if (IsOfMixture())
        mixture_ = globals.CurrentM;
    else
        compound_ = CurrentCompound();
    chkStatic.Value(globals.StaticMode);
    FillMixtures();
    FillSamples();
}

/// Other data are about what the tree has selected, or about what their form asks for.
void frmSelect::ShowTableFields() {
    Caption(IsOfTable() ? "Table to process" : "Data to enter");
    lblType.Caption(IsOfTable() ? "Kind of table:" : "Kind of data:");
    lblMixt.Caption(IsOfMixture() ? "Mixture:" : "Compound:");
    lblMixt.Visible(IsOfTable());
    cboMixt.Visible(IsOfTable());
    chkStatic.Visible(IsOfMixture());
}

void frmSelect::MixtureClick() {
    if (Filling) return;
    if (cboMixt.Chosen() == NewEntry) return MakeNew();
    const clsR& source = *Globals().CurrentR;
    const auto place = static_cast<std::size_t>(cboMixt.Index() + 1);
    const bool isFound =
        IsOfMixture() ? source.recM.Item(place) != nullptr : source.recL.Item(place) != nullptr;
    if (!isFound) {
        ui::Say(IsOfMixture() ? "Mixture internal error" : "L internal error");
        return FillMixtures();
    }
    if (IsOfMixture())
        mixture_ = source.recM.Item(place);
    else
        compound_ = source.recL.Item(place);
    FillSamples();
}

/// The dialog for it comes back here; cancelled, it leaves what was chosen before.
void frmSelect::MakeNew() {
    KVOGlobal& globals = Globals();
    const clsR& source = *globals.CurrentR;
    const std::size_t before = IsOfMixture() ? source.recM.Count() : source.recL.Count();
    globals.OpenForms.push_back(Name());
    ui::Forms::Current().Get(IsOfMixture() ? "frmMixt" : "frmSubst").ShowModal();
    globals.DialogAccepted = false; // of this dialog nothing is accepted yet
    if (IsOfMixture() && source.recM.Count() > before)
        mixture_ = source.recM.Item(source.recM.Count());
    if (!IsOfMixture() && source.recL.Count() > before)
        compound_ = source.recL.Item(source.recL.Count());
    FillMixtures();
    FillSamples();
    cboMixt.SetFocus();
}

/// The dialog may come back with a sample of another component, whose list then has it too.
void frmSelect::SampleClick(std::size_t n) {
    if (Filling) return;
    const auto made = samples_[n].Click();
    Globals().DialogAccepted = false;
    for (SampleList& list : samples_) {
        if (!made || list.System().get() != made->Parent || &list == &samples_[n]) continue;
        list.Fill(list.System());
        list.Choose(made.get());
    }
}

bool frmSelect::IsOfTable() const {
    return IsOfMixture() || Globals().CurrentKey == "RLS";
}

bool frmSelect::IsOfMixture() const {
    return Globals().CurrentKey == "RM";
}

void frmSelect::FillTypes() {
    std::span<const std::string_view> offered = OfOthers;
    for (const KindsOfNode& node : Kinds)
        if (node.nodeKey == Globals().CurrentKey) offered = node.kinds;
    for (const std::string_view kind : offered)
        cboType.Add(std::string(kind));
    if (cboType.Count() == 1) cboType.Index(0);
}

void frmSelect::FillMixtures() {
    const ui::FillingScope filling(*this);
    cboMixt.Clear();
    if (!Globals().CurrentR) return;
    const clsR& source = *Globals().CurrentR;
    if (IsOfMixture()) {
        for (const auto& mixture : source.recM)
            cboMixt.Add(mixture->ShowKey());
    } else {
        for (const auto& compound : source.recL)
            cboMixt.Add(compound->ShowKey());
    }
    cboMixt.Add(NewEntry);
    const std::size_t chosen = IsOfMixture() ? source.recM.Position(mixture_.get())
                                             : source.recL.Position(compound_.get());
    cboMixt.Index(static_cast<int>(chosen) - 1);
}

/// The compound that list n of samples is about, or null.
std::shared_ptr<clsL> frmSelect::Component(std::size_t n) const {
    if (!IsOfMixture()) return n == 0 ? compound_ : nullptr;
    const int component = static_cast<int>(n) + 1;
    return mixture_ && component <= mixture_->MixType ? mixture_->Component(component) : nullptr;
}

/// Nothing is asked where each compound has one sample.
void frmSelect::FillSamples() {
    bool asks = false;
    for (std::size_t n = 0; n < samples_.size(); ++n) {
        const auto compound = Component(n);
        samples_[n].Fill(compound);
        if (!compound) continue;
        asks = asks || compound->recS.Count() != 1;
        if (!compound->recS.IsEmpty()) samples_[n].Choose(compound->recS.Item(1).get());
        if (!IsOfMixture()) samples_[n].Choose(CurrentCompoundSample().get());
        lblSample(static_cast<int>(n)).Caption("Sample of " + compound->ShowKey() + ":");
    }
    for (int n = 0; n < cboSample.Count(); ++n) {
        const bool isThere = asks && Component(static_cast<std::size_t>(n));
        lblSample(n).Visible(isThere);
        cboSample(n).Visible(isThere);
    }
}

void frmSelect::Accept() {
    if (!Check()) return;
    Store();
    Close();
}

bool frmSelect::Check() {
    if (cboType.Index() < 0)
        return Refuse(cboType,
                      std::string("Please select the kind of ") + (IsOfTable() ? "table" : "data"));
    return !IsOfTable() || CheckTable();
}

bool frmSelect::CheckTable() {
    if (IsOfMixture() ? !mixture_ : !compound_)
        return Refuse(cboMixt,
                      IsOfMixture() ? "Please select the mixture" : "Please select the compound");
    for (std::size_t n = 0; n < samples_.size(); ++n)
        if (Component(n) && !samples_[n].Sample())
            return Refuse(cboSample(static_cast<int>(n)), "Please select sample");
    return true;
}

void frmSelect::Store() const {
    Globals().TableKind = cboType.Chosen();
    if (IsOfTable()) StoreTable();
    Globals().DialogAccepted = true;
}

void frmSelect::StoreTable() const {
    KVOGlobal& globals = Globals();
    globals.StaticMode = chkStatic.Value();
    globals.ChosenSamples.clear();
    for (const SampleList& list : samples_)
        if (const auto sample = list.Sample()) globals.ChosenSamples.push_back(sample->SMPNM);
    if (IsOfMixture()) {
        globals.CurrentM = mixture_;
        globals.CurrentMixType = mixture_->MixType;
        globals.SystemClass = mixture_->MixType == 2 ? "Bin" : "Tern";
    } else {
        globals.CurrentL = compound_;
        globals.CurrentS = samples_[0].Sample();
        globals.SystemClass = "Pure";
    }
    globals.DataContext = globals.SystemClass;
}

} // namespace vexora
