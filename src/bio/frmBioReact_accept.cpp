// Accepting: the checks of all pages, the table, and the set in its place.
#include "bio/frmBioReact.h"
#include "entry/BioRows.h"
#include "globals/KVOGlobal.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr const char* Cofactor = "Cofactor";

/// "1st", "2nd", "3rd", "4th" ...
std::string Ordinal(int number) {
    const int last = number % 100 / 10 == 1 ? 0 : number % 10;
    return std::to_string(number) + (last == 1 ? "st" : last == 2 ? "nd" : last == 3 ? "rd" : "th");
}

} // namespace

void frmBioReact::Accept() {
    if (!Check()) return;
    const auto set = MakeSet();
    if (!set || !EnterBioRows(cmdAccept, set)) return;
    Store(set);
    Close();
}

bool frmBioReact::Check() {
    for (const Page page :
         {Page::Reaction, Page::Components, Page::Property, Page::Variables, Page::Constraints})
        if (!CheckPage(page)) return false;
    if (!CheckCofactors()) return false;
    txtMethod.Text(std::string(Trim(txtMethod.Text())));
    if (txtMethod.IsEmpty()) return Refuse(txtMethod, "Please specify the method of measurement");
    return Tell(CheckAcross(Entries()));
}

bool frmBioReact::CheckPage(Page page) {
    return Tell(FaultsOf(page));
}

bool frmBioReact::Tell(const BioFaults& faults) {
    return faults.empty() || Refuse(*faults.front().field, faults.front().text);
}

BioFaults frmBioReact::FaultsOf(Page page) {
    switch (page) {
    case Page::Reaction:
        break;
    case Page::Components:
        return components_.Check();
    case Page::Property:
        return properties_.Check(HasPropertyAmongVariables());
    case Page::Variables:
        return variables_.Check();
    case Page::Constraints:
        return constraints_.Check();
    }
    return CheckReaction();
}

BioFaults frmBioReact::CheckReaction() {
    if (!optBio.Value() && !optChem.Value())
        return {{&optBio, "Please, select a reaction notation formalism: chemical or biochemical\n"
                          "See Help for explanation of the difference"}};
    if (participants_.IsEmpty()) return {{&cmbPart(0), "Select 1st reaction participant"}};
    BioFaults faults;
    for (int row = 0; row < participants_.Rows(); ++row) {
        if (!participants_.IsUsed(row)) continue;
        ui::TextBox& box = txtCoeff(row);
        box.Text(NormalizeNumber(box.Text()));
        const std::string name = participants_.Name(row);
        if (participants_.All()[static_cast<std::size_t>(row)].phase.empty())
            faults.push_back({&cboPhase(row), "Select phase for participant " + name});
        else if (box.IsEmpty())
            faults.push_back({&box, "Enter coefficient for " + Ordinal(row + 1) + " participant"});
        else if (!IsNumeric(box.Text()) || Val(box.Text()) == 0)
            faults.push_back({&box, "Participant " + name + " has an invalid coefficient"});
    }
    if (faults.empty() && optChem.Value() && !participants_.IsBalanced())
        faults.push_back({&cmdEquate, "Reaction is not balanced"});
    return faults;
}

bool frmBioReact::CheckFormulas() {
    const int row = participants_.FirstWithoutFormula();
    return row < 0 || Refuse(cmbPart(row), "Participant formula is misisng");
}

/// What a co-factor does depends on how much of it there is; the title says which one is meant.
bool frmBioReact::CheckCofactors() {
    clsBR draft;
    WriteReaction(draft);
    std::vector<BioQuantity> quantities;
    for (const BioEntry& entry : Entries())
        quantities.push_back(entry.quantity);
    draft.TakeQuantities(quantities);
    for (std::size_t n = 0; n < draft.Components.size(); ++n) {
        const BioComponent& one = draft.Components[n];
        if (one.function != Cofactor || StatesContent(draft, one.RN)) continue;
        if (ui::AskYesNo("Co-factor content is not defined\nAre you sure it is unknown?",
                         draft.CompoundName(draft.KeyOf(n))))
            continue;
        const auto free =
            std::ranges::find_if(cboConst, [](const auto& list) { return list->Index() <= 0; });
        (free == cboConst.end() ? cboConst(0) : **free).SetFocus();
        return false;
    }
    return true;
}

bool frmBioReact::HasPropertyAmongVariables() const {
    return std::ranges::any_of(variables_.Entries(), [](const BioEntry& entry) {
        return entry.quantity.role == BioRole::Property;
    });
}

BioEntries frmBioReact::Entries() const {
    BioEntries entries = properties_.Entries();
    for (const BioQuantityPage* page : {&variables_, &constraints_})
        std::ranges::move(page->Entries(), std::back_inserter(entries));
    return entries;
}

/// Notation, participants and components.
void frmBioReact::WriteReaction(clsBR& set) const {
    set.Notation = optChem.Value();
    set.Participants.clear();
    for (const Participant& one : participants_.All())
        if (!one.RN.empty())
            set.Participants.push_back({one.RN, one.SMPNM, one.coefficient, one.phase});
    set.Components = components_.Components();
}

/// What the form says, with the rows of the edited set; null when the person wants to go back.
std::shared_ptr<clsBR> frmBioReact::MakeSet() {
    const auto set = as_ ? as_->Copy() : std::make_shared<clsBR>();
    if (!record_) {
        set->recD.clear();
        set->SetNo = Globals().CurrentR->NextBRNumber();
    }
    WriteReaction(*set);
    set->Method = txtMethod.Text();
    FillBioHeader(set->Header, record_ == nullptr, txtComment.Text());
    return TakeEntries(*set, Entries()) ? set : nullptr;
}

void frmBioReact::Store(const std::shared_ptr<clsBR>& set) {
    KVOGlobal& globals = Globals();
    if (record_) {
        record_->Replace(*set);
        globals.CurrentBR = record_;
    } else {
        set->AttachTo(*globals.CurrentR);
        globals.CurrentBR = set;
    }
    globals.Saved = false;
    accepted_ = true;
}

} // namespace vexora
