#include "mixtures/frmMixt.h"

#include <algorithm>
#include <string>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* NewEntry = "New";
constexpr const char* NoThird = "None";
constexpr const char* CompoundDialog = "frmSubst";

/// Registry numbers of ten digits do not fit into 32 bits.
std::int64_t NumberOf(const clsL& compound) {
    return ParseInteger(compound.RN).value_or(0);
}

/// Ascending registry numbers; an empty place is the last by itself.
bool StandsBefore(const std::shared_ptr<clsL>& one, const std::shared_ptr<clsL>& other) {
    if (!one || !other) return one != nullptr;
    return NumberOf(*one) < NumberOf(*other);
}

} // namespace

frmMixt::frmMixt() : ChainForm("frmMixt", "Add mixture") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
    HelpContext = 260;
    cmdAccept.Enabled(false);
}

void frmMixt::ArrangeControls() {
    using namespace ui;
    Arrangement = Column({Field("Component 1:", cmbComp1), Field("Component 2:", cmbComp2),
                          Field("Component 3:", cmbComp3), ButtonRow({cmdAccept, cmdCancel})});
    PreferredColumns = 80;
}

void frmMixt::WireEvents() {
    for (std::size_t n = 0; n < lists_.size(); ++n)
        lists_[n]->OnClick = [this, n] { Click(n); };
    cmbComp3.OnGotFocus = [this] { PromptLeaves(); };
}

void frmMixt::Load() {
    const KVOGlobal& globals = Globals();
    Globals().DialogAccepted = false;
    const auto& compounds = globals.CurrentR->recL;
    chosen_[0] = compounds.Item(compounds.Position(CurrentCompound().get()));
    Fill(0);
    Fill(1);
}

/// A component that is chosen in a list is not offered in those below it.
void frmMixt::Click(std::size_t n) {
    if (Filling) return;
    if (lists_[n]->Chosen() == NewEntry) {
        if (auto made = NewCompound()) Choose(n, std::move(made));
        for (std::size_t list = 0; list < lists_.size(); ++list)
            Fill(list);
    } else {
        Choose(n, Picked(n));
        for (std::size_t list = n + 1; list < lists_.size(); ++list)
            Fill(list);
    }
    // Dead only as long as there is nothing to accept: afterwards it says what is missing.
    if (!chosen_[0] || !chosen_[1]) return;
    cmdAccept.Enabled(true);
    cmdCancel.Caption("Cancel");
}

/// Whoever comes to the third list has read its prompt.
void frmMixt::PromptLeaves() {
    const ui::FillingScope filling(*this);
    cmbComp3.FirstIsPrompt = false;
    if (cmbComp3.Item(0) == ThirdPrompt) cmbComp3.Remove(0);
}

/// The compound that joined the source on the way, or null.
std::shared_ptr<clsL> frmMixt::NewCompound() {
    const auto& compounds = Globals().CurrentR->recL;
    const std::size_t before = compounds.Count();
    // By this the dialog knows that it was opened on the way, and comes back here when it closes.
    Globals().OpenForms.push_back(Name());
    ui::Forms::Current().Get(CompoundDialog).ShowModal();
    return compounds.Count() > before ? compounds.Item(compounds.Count()) : nullptr;
}

void frmMixt::Choose(std::size_t n, std::shared_ptr<clsL> compound) {
    for (std::size_t below = n + 1; below < chosen_.size(); ++below)
        if (chosen_[below] == compound) chosen_[below] = nullptr;
    chosen_[n] = std::move(compound);
    if (n == Third) isBinary_ = cmbComp3.Chosen() == NoThird;
}

/// Offers what the lists above leave, and chooses again what was chosen.
void frmMixt::Fill(std::size_t n) {
    const ui::FillingScope filling(*this);
    ui::ComboBox& list = *lists_[n];
    list.Clear();
    if (n == Third && !chosen_[1]) return;
    list.FirstIsPrompt = n == Third;
    if (n == Third) list.Assign({ThirdPrompt, NoThird});
    const int lead = list.Count();
    const Compounds offered = OfferedIn(n);
    for (const auto& compound : offered)
        list.Add(compound->ShowKey());
    if (ui::Forms::Current().Knows(CompoundDialog)) list.Add(NewEntry);
    const auto found = std::ranges::find(offered, chosen_[n]);
    if (chosen_[n] && found != offered.end())
        list.Index(lead + static_cast<int>(found - offered.begin()));
    else if (n == Third)
        list.Choose(isBinary_ ? NoThird : ThirdPrompt);
}

frmMixt::Compounds frmMixt::OfferedIn(std::size_t n) const {
    Compounds offered;
    for (const auto& compound : Globals().CurrentR->recL) {
        const auto above = chosen_.begin() + static_cast<std::ptrdiff_t>(n);
        if (std::find(chosen_.begin(), above, compound) == above) offered.push_back(compound);
    }
    return offered;
}

/// By its place, for compounds may share a name; null for an entry that is no compound.
std::shared_ptr<clsL> frmMixt::Picked(std::size_t n) const {
    const int lead = n == Third ? lists_[n]->Find(NoThird) + 1 : 0;
    const int place = lists_[n]->Index() - lead;
    const Compounds offered = OfferedIn(n);
    return place >= 0 && place < static_cast<int>(offered.size())
               ? offered[static_cast<std::size_t>(place)]
               : nullptr;
}

void frmMixt::Accept() {
    if (!Check()) return;
    Store();
    if (IsGuided()) {
        Close();
        return;
    }
    cmdAccept.Enabled(false);
    cmdCancel.Caption("Done");
    cmdCancel.SetFocus();
}

bool frmMixt::Check() {
    if (!chosen_[1]) return Refuse(cmbComp2, "Please select the 2nd component");
    const clsR& source = *Globals().CurrentR;
    for (std::size_t n = 0; n < chosen_.size(); ++n) {
        if (chosen_[n] && source.FindL(chosen_[n]->RN) != chosen_[n])
            return Refuse(*lists_[n], "Substance internal error");
    }
    ShowInOrder();
    // The order of the registry numbers is that of the record: whatever the order of the choice,
    // equal mixtures look alike.
    if (source.FindM(Composed()->COMPOSITION()))
        return Refuse(cmbComp1, "This mixture has already been registered");
    return true;
}

/// Brings components and lists into the order in which a mixture is stored.
void frmMixt::ShowInOrder() {
    std::ranges::sort(chosen_, StandsBefore);
    for (std::size_t n = 0; n < lists_.size(); ++n)
        Fill(n);
    const ui::FillingScope filling(*this);
    if (!chosen_[Third]) cmbComp3.Index(-1);
}

std::shared_ptr<clsM> frmMixt::Composed() const {
    auto mixture = std::make_shared<clsM>();
    mixture->MixType = chosen_[Third] ? 3 : 2;
    for (int n = 1; n <= mixture->MixType; ++n)
        mixture->RN(n, chosen_[static_cast<std::size_t>(n - 1)]->RN);
    return mixture;
}

void frmMixt::Store() {
    KVOGlobal& globals = Globals();
    const auto mixture = Composed();
    mixture->AttachTo(*globals.CurrentR);
    globals.CurrentM = mixture;
    globals.DataContext = mixture->MixType == 2 ? "Bin" : "Tern";
    globals.CurrentMixType = mixture->MixType;
    globals.Saved = false;
    globals.DialogAccepted = true;
    NoteAccepted();
}

} // namespace vexora
