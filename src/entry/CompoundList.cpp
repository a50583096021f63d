#include "entry/CompoundList.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* NoCompound = "None";
constexpr const char* NewEntry = "New";
constexpr const char* CompoundDialog = "frmSubst";

} // namespace

void CompoundList::Fill(const std::string& rn) {
    const ui::FillingScope filling(form_);
    const clsR& source = *Globals().CurrentR;
    std::vector<std::string> names = {NoCompound};
    for (const auto& compound : source.recL)
        names.push_back(compound->ShowKey());
    const auto compound = source.FindL(rn);
    stranger_ = compound ? std::string() : rn;
    if (!stranger_.empty()) names.push_back(stranger_);
    // Not offered where nothing could open.
    if (ui::Forms::Current().Knows(CompoundDialog)) names.emplace_back(NewEntry);
    list_.Assign(std::move(names));
    const auto place =
        stranger_.empty() ? source.recL.Position(compound.get()) : source.recL.Count() + 1;
    list_.Index(static_cast<int>(place));
}

/// By its place, for compounds may share a name.
std::optional<std::string> CompoundList::Click() {
    const auto& compounds = Globals().CurrentR->recL;
    const auto place = static_cast<std::size_t>(list_.Index());
    if (place == 0) return "";
    if (place <= compounds.Count()) return compounds.Item(place)->RN;
    if (!stranger_.empty() && place == compounds.Count() + 1) return stranger_;
    return Make();
}

std::optional<std::string> CompoundList::Make() {
    KVOGlobal& globals = Globals();
    const auto& compounds = globals.CurrentR->recL;
    const std::size_t before = compounds.Count();
    // By this the dialog knows that it was opened on the way, and comes back here when it closes.
    if (!globals.IsEditingInPlace()) globals.OpenForms.push_back(form_.Name());
    ui::Forms::Current().Get(CompoundDialog).ShowModal();
    if (compounds.Count() == before) return std::nullopt;
    return compounds.Item(compounds.Count())->RN;
}

} // namespace vexora
