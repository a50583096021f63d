#include "entry/EditStatements.h"

#include <algorithm>
#include <utility>

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "globals/KVOGlobal.h"
#include "records/PropertyChain.h"
#include "records/clsX.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

/// A copy of the chain in force with its precisions in the units entered.
/// A copy, since nobody has asked to change the precisions of the record.
std::shared_ptr<clsProperty> ChainToEvaluate(bool inSystemUnits) {
    auto chain = std::make_shared<clsProperty>();
    chain->Copy(*Globals().CurrentProperty);
    if (!inSystemUnits) return chain;
    for (clsProperty* item = chain.get(); item; item = item->NextItem.get())
        PrecisionInEnteredUnit(*item, Globals().CurrentMethod->MMass);
    return chain;
}

} // namespace

bool EditStatements(std::span<clsX> items, int properties) {
    KVOGlobal& globals = Globals();
    const auto before = globals.CurrentUX;
    globals.CurrentUX = std::make_shared<std::vector<clsX>>(items.begin(), items.end());
    const int propertiesBefore = std::exchange(globals.PropertiesInUX, properties);
    // The dialog below has an answer of its own to give when it closes.
    const bool acceptedBefore = std::exchange(globals.DialogAccepted, false);
    ui::Forms::Current().Get("frmUnc").ShowModal();
    const bool accepted = std::exchange(globals.DialogAccepted, acceptedBefore);
    // On a copy until then: Cancel leaves every item as it was, digits and flags.
    if (accepted) std::ranges::copy(*globals.CurrentUX, items.begin());
    globals.CurrentUX = before;
    globals.PropertiesInUX = propertiesBefore;
    return accepted;
}

bool EditStatementsOfValue(std::span<clsX> items, std::string_view key, bool inSystemUnits) {
    KVOGlobal& globals = Globals();
    const auto chain = std::exchange(globals.CurrentProperty, ChainToEvaluate(inSystemUnits));
    // The tree may stand on another record; the key in force is that of the value while frmUnc is
    // open.
    const std::string keyBefore = std::exchange(globals.CurrentKey, std::string(key));
    const bool accepted = EditStatements(items);
    globals.CurrentKey = keyBefore;
    globals.CurrentProperty = chain;
    return accepted;
}

} // namespace vexora
