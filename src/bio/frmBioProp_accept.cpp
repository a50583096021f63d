// Accepting: the checks of all pages, the table, and the set in its place.
#include "bio/frmBioProp.h"
#include "entry/BioRows.h"
#include "globals/KVOGlobal.h"
#include "records/clsR.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr const char* Solvent = "Solvent";

/// Contents that are said of a solvent.
bool IsOfSolvent(const BioQuantity& quantity) {
    return quantity.role != BioRole::Property && IsOneOf(quantity.code, {"Xs", "Ws", "Vs", "Js"});
}

} // namespace

void frmBioProp::Accept() {
    for (const Page page :
         {First, Second, Composition, Property, Variables, Constraints, Description})
        if (!CheckPage(page)) return;
    if (!ConfirmSubstance()) return;
    const auto set = MakeSet();
    if (!set || !EnterBioRows(cmdAccept, set)) return;
    Store(set);
    Close();
}

bool frmBioProp::CheckPage(Page page) {
    const BioFaults faults = FaultsOf(page);
    return faults.empty() || Refuse(*faults.front().field, faults.front().text);
}

BioFaults frmBioProp::FaultsOf(Page page) {
    switch (page) {
    case First:
        return CheckFirst();
    case Second:
        return CheckSecond();
    case Composition:
        return components_.Check();
    case Property:
        return properties_.Check(HasPropertyAmongVariables());
    case Variables:
        return variables_.Check();
    case Constraints:
        return constraints_.Check();
    case Description:
        break;
    }
    return CheckDescription();
}

BioFaults frmBioProp::CheckFirst() {
    if (rn_.empty()) return {{&cmbSubst, "Select the substance for which the property is stored"}};
    if (IsTransition() && StateIn(cboState1).empty())
        return {{&cboState1, "Please specity the initial state"}};
    return {};
}

BioFaults frmBioProp::CheckSecond() {
    if (IsTransition() && StateIn(cboState2).empty())
        return {{&cboState2, "Please specity the final state"}};
    return {};
}

BioFaults frmBioProp::CheckDescription() {
    BioFaults faults = CheckAcross(Entries());
    CheckSolvents(faults);
    if (Trim(txtMethod.Text()).empty())
        faults.push_back({&txtMethod, "Please specify the method of measurement"});
    if (IsTransition() && StateIn(cboState1) == StateIn(cboState2))
        faults.push_back({&cboState2, "Please specity the final state other than initial state"});
    return faults;
}

/// In a solubility, contents of a solvent are those of a component that is one.
void frmBioProp::CheckSolvents(BioFaults& faults) {
    if (IsTransition()) return;
    clsBP draft;
    WriteSubstance(draft);
    const std::vector<int> rows = components_.Rows();
    for (const BioEntry& entry : Entries()) {
        if (!IsOfSolvent(entry.quantity)) continue;
        std::size_t n = 0;
        while (n < rows.size() && draft.KeyOf(n) != entry.quantity.component)
            ++n;
        if (n < rows.size() && draft.Components[n].function == Solvent) continue;
        ui::Control& field = n < rows.size() ? cboFunction(rows[n]) : cmbComp(0);
        faults.push_back({&field, "Please review the Composition tab\n" +
                                      draft.CompoundName(entry.quantity.component) +
                                      " is not a solvent component"});
    }
}

bool frmBioProp::HasPropertyAmongVariables() const {
    return std::ranges::any_of(variables_.Entries(), [](const BioEntry& entry) {
        return entry.quantity.role == BioRole::Property;
    });
}

/// The rows were measured on the substance that the set was of.
bool frmBioProp::ConfirmSubstance() {
    if (rn_ == base_->RN || base_->recD.empty()) return true;
    clsBP draft;
    WriteSubstance(draft);
    return Confirm(cmbSubst, "The table has values of " + base_->CompoundName(base_->RN) +
                                 "\nDo they stand for " + draft.CompoundName(rn_) +
                                 " from now on?");
}

void frmBioProp::Store(const std::shared_ptr<clsBP>& set) {
    KVOGlobal& globals = Globals();
    if (record_) {
        record_->Replace(*set);
        globals.CurrentBP = record_;
    } else {
        set->AttachTo(*globals.CurrentR);
        globals.CurrentBP = set;
    }
    globals.Saved = false;
    accepted_ = true;
}

} // namespace vexora
