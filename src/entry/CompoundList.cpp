#include "entry/CompoundList.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "globals/KVOGlobal.h"
#include "records/clsComplex.h"
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
    numbers_.clear();
    const auto offer = [&](const Substance& substance) {
        names.push_back(substance.ShowKey());
        numbers_.push_back(substance.RN);
    };
    for (const auto& compound : source.recL)
        offer(*compound);
    if (withComplexes_)
        for (const auto& complex : source.recComplex)
            offer(*complex);
    auto place = std::ranges::find(numbers_, rn);
    if (!rn.empty() && place == numbers_.end()) { // one that the source does not have
        names.push_back(rn);
        place = numbers_.insert(numbers_.end(), rn);
    }
    // Not offered where nothing could open.
    if (ui::Forms::Current().Knows(CompoundDialog)) names.emplace_back(NewEntry);
    list_.Assign(std::move(names));
    list_.Index(rn.empty() ? 0 : static_cast<int>(place - numbers_.begin()) + 1);
}

/// By its place, for compounds may share a name.
std::optional<std::string> CompoundList::Click() {
    const auto place = static_cast<std::size_t>(list_.Index());
    if (place == 0) return "";
    return place <= numbers_.size() ? numbers_[place - 1] : Make();
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
