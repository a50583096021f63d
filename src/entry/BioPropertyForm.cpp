#include "entry/BioPropertyForm.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "entry/BioRows.h"
#include "globals/KVOGlobal.h"
#include "reference/Text.h"

namespace vexora {

namespace {

int Rows(BioRole role) {
    const KVOGlobal& globals = Globals();
    const std::shared_ptr<BioSet> shown =
        globals.EditBioProp ? globals.CurrentBP : globals.BioSetToRepeat;
    return BioRowCount(role == BioRole::Constraint ? 8 : 4, shown ? shown->CountOf(role) : 0);
}

template <class T, class... Arguments>
ui::ControlArray<T> Array(ui::Form& form, const char* name, BioRole role,
                          const Arguments&... arguments) {
    return {form, name, Rows(role), arguments...};
}

ui::ControlArray<ui::ComboBox> Phases(ui::Form& form, const char* name, BioRole role, bool any) {
    return {form, name, any ? Rows(role) : 0};
}

} // namespace

BioPropertyForm::BioPropertyForm(std::string name, std::string caption, bool hasPhases)
    : ChainForm(std::move(name), std::move(caption)),
      cboProp(Array<ui::ComboBox>(*this, "cboProp", BioRole::Property)),
      cmbPropComp(Array<ui::ComboBox>(*this, "cmbPropComp", BioRole::Property)),
      cboPropPhase(Phases(*this, "cboPropPhase", BioRole::Property, hasPhases)),
      cboPropUnit(Array<ui::ComboBox>(*this, "cboPropUnit", BioRole::Property)),
      chkPropUnc(Array<ui::CheckBox>(*this, "chkPropUnc", BioRole::Property, "")),
      txtPropUnc(Array<ui::TextBox>(*this, "txtPropUnc", BioRole::Property)),
      cboVar(Array<ui::ComboBox>(*this, "cboVar", BioRole::Variable)),
      cmbVarComp(Array<ui::ComboBox>(*this, "cmbVarComp", BioRole::Variable)),
      cboVarPhase(Phases(*this, "cboVarPhase", BioRole::Variable, hasPhases)),
      cboVarUnit(Array<ui::ComboBox>(*this, "cboVarUnit", BioRole::Variable)),
      chkVarUnc(Array<ui::CheckBox>(*this, "chkVarUnc", BioRole::Variable, "")),
      txtVarUnc(Array<ui::TextBox>(*this, "txtVarUnc", BioRole::Variable)),
      cboConst(Array<ui::ComboBox>(*this, "cboConst", BioRole::Constraint)),
      cmbConstrComp(Array<ui::ComboBox>(*this, "cmbConstrComp", BioRole::Constraint)),
      cboConstPhase(Phases(*this, "cboConstPhase", BioRole::Constraint, hasPhases)),
      txtConst(Array<ui::TextBox>(*this, "txtConst", BioRole::Constraint)),
      cboConstUnit(Array<ui::ComboBox>(*this, "cboConstUnit", BioRole::Constraint)),
      chkConstrUnc(Array<ui::CheckBox>(*this, "chkConstrUnc", BioRole::Constraint, "")),
      txtConstrUnc(Array<ui::TextBox>(*this, "txtConstrUnc", BioRole::Constraint)),
      properties_(*this, BioRole::Property,
                  {cboProp, cmbPropComp, cboPropUnit, chkPropUnc, txtPropUnc, nullptr,
                   hasPhases ? &cboPropPhase : nullptr}),
      variables_(*this, BioRole::Variable,
                 {cboVar, cmbVarComp, cboVarUnit, chkVarUnc, txtVarUnc, nullptr,
                  hasPhases ? &cboVarPhase : nullptr}),
      constraints_(*this, BioRole::Constraint,
                   {cboConst, cmbConstrComp, cboConstUnit, chkConstrUnc, txtConstrUnc, &txtConst,
                    hasPhases ? &cboConstPhase : nullptr}) {
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
}

void BioPropertyForm::AddQuantityPages(std::vector<Page>& pages) {
    using namespace ui;
    pages.push_back({"Property", properties_.Arrangement(), {&cboProp(0)}, [this] {
                         return properties_.Check(HasPropertyAmongVariables());
                     }});
    pages.push_back({"Variables", variables_.Arrangement(), {&cboVar(0)}, [this] {
                         return variables_.Check();
                     }});
    pages.push_back({"Constraints", constraints_.Arrangement(), {&cboConst(0)}, [this] {
                         return constraints_.Check();
                     }});
    pages.push_back(
        {"Description",
         Column({Field("Data set #:", lblSetNo), Field("Method of measurement:", txtMethod),
                 Field("Comment:", txtComment)}),
         {&txtMethod},
         [this] { return CheckWhole(); }});
}

void BioPropertyForm::Arrange(std::vector<Page> pages) {
    using namespace ui;
    AddQuantityPages(pages);
    pages_ = std::move(pages);
    std::vector<std::string> captions;
    std::vector<Layout> layouts;
    for (std::size_t n = 0; n < pages_.size(); ++n) {
        captions.push_back(pages_[n].caption);
        layouts.push_back(pages_[n].layout);
        if (n + 1 == pages_.size()) break;
        next_.push_back(
            std::make_unique<CommandButton>(*this, "Next" + std::to_string(n + 1), "Next"));
        next_.back()->OnClick = [this, n] { Next(n); };
        layouts.back() = Column({layouts.back(), Row({Stretch(), *next_.back()})});
    }
    TabStrip1.Assign(std::move(captions));
    TabStrip1.Index(0);
    Arrangement = Column({Pages(TabStrip1, std::move(layouts)), ButtonRow({cmdAccept, cmdCancel})});
    TabAlongArrangement();
    PreferredColumns = 130;
}

void BioPropertyForm::NamePages(const std::vector<std::string>& captions) {
    std::vector<std::string> names = captions;
    for (std::size_t n = names.size(); n < pages_.size(); ++n)
        names.push_back(pages_[n].caption);
    TabStrip1.Assign(std::move(names));
    TabStrip1.Index(0);
}

std::shared_ptr<clsBP> BioPropertyForm::Shown() {
    const KVOGlobal& globals = Globals();
    return globals.EditBioProp ? globals.CurrentBP
                               : std::dynamic_pointer_cast<clsBP>(globals.BioSetToRepeat);
}

void BioPropertyForm::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    if (globals.EditBioProp) record_ = globals.CurrentBP;
    base_ = MakeBase();
    globals.BioSetToRepeat = nullptr;
    {
        const ui::FillingScope filling(*this);
        lblSetNo.Caption(std::to_string(base_->SetNo));
        txtMethod.Text(base_->Method);
        txtComment.Text(base_->Header.DATACOMMENT);
        for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
            page->Offer(*base_, base_->PrpType == "G" ? "" : base_->PrpType);
        FillOwn();
        OfferSubjects();
        for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
            page->Fill(base_->Quantities());
    }
    if (record_) Caption("Edit: " + Caption());
    Enter(pages_.front());
}

/// Helpers opened on the way have had answers of their own.
void BioPropertyForm::Unload() {
    Globals().DialogAccepted = accepted_;
    ChainForm::Unload();
}

std::shared_ptr<clsBP> BioPropertyForm::MakeBase() const {
    const auto shown = Shown();
    if (record_) return shown->Copy();
    const auto set = shown ? shown->Copy() : NewSet();
    set->recD.clear();
    for (clsX& statement : set->recU)
        statement.KVOUValue.clear();
    set->SetNo = NextNumber();
    return set;
}

/// Quantities are said of what stands on the form now.
void BioPropertyForm::OfferSubjects() {
    const auto subjects = Subjects();
    for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
        page->OfferSubjects(subjects);
}

void BioPropertyForm::OfferPhases(const std::vector<std::string>& codes) {
    for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
        page->OfferPhases(codes);
}

void BioPropertyForm::Next(std::size_t page) {
    if (!CheckPage(page)) return;
    TabStrip1.Index(static_cast<int>(page) + 1);
    Enter(pages_[page + 1]);
}

void BioPropertyForm::Enter(const Page& page) {
    const auto first =
        std::ranges::find_if(page.fields, [](const auto* field) { return field->IsUsable(); });
    if (first != page.fields.end()) (*first)->SetFocus();
}

bool BioPropertyForm::CheckPage(std::size_t page) {
    const BioFaults faults = pages_[page].check();
    return faults.empty() || Refuse(*faults.front().field, faults.front().text);
}

bool BioPropertyForm::HasPropertyAmongVariables() const {
    return std::ranges::any_of(variables_.Entries(), [](const BioEntry& entry) {
        return entry.quantity.role == BioRole::Property;
    });
}

BioFaults BioPropertyForm::CheckWhole() {
    BioFaults faults = CheckAcross(Entries());
    if (Trim(txtMethod.Text()).empty()) faults.push_back(NoMethod());
    return faults;
}

BioFault BioPropertyForm::NoMethod() {
    return {&txtMethod, "Please specify the method of measurement"};
}

BioEntries BioPropertyForm::Entries() const {
    BioEntries entries = properties_.Entries();
    for (const BioQuantityPage* page : {&variables_, &constraints_})
        std::ranges::move(page->Entries(), std::back_inserter(entries));
    return entries;
}

void BioPropertyForm::Accept() {
    for (std::size_t page = 0; page < pages_.size(); ++page)
        if (!CheckPage(page)) return;
    if (!ConfirmOwn()) return;
    const auto set = MakeSet();
    if (!set || !EnterBioRows(cmdAccept, set)) return;
    Store(set);
    Close();
}

/// What the form says, with the rows of the edited set; null when the person wants to go back.
std::shared_ptr<clsBP> BioPropertyForm::MakeSet() const {
    const auto set = base_->Copy();
    WriteOwn(*set);
    set->Method = Trim(txtMethod.Text());
    FillBioHeader(set->Header, record_ == nullptr, txtComment.Text());
    return TakeEntries(*set, Entries()) ? set : nullptr;
}

void BioPropertyForm::Store(const std::shared_ptr<clsBP>& set) {
    KVOGlobal& globals = Globals();
    if (record_)
        record_->Replace(*set);
    else
        Attach(set);
    globals.CurrentBP = record_ ? record_ : set;
    globals.Saved = false;
    accepted_ = true;
}

} // namespace vexora
