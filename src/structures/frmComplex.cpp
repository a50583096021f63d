#include "structures/frmComplex.h"

#include <algorithm>

#include "entry/SelectionScope.h"
#include "globals/KVOGlobal.h"
#include "records/clsComplexSample.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr const char* GasHydrate = "Gas Hydrate";
const std::vector<std::string> Functions = {"Enclathrated species", "Gas", "Water", "Other"};

std::string CompoundName(const std::string& rn) {
    const auto compound = Globals().CurrentR->FindL(rn);
    return compound ? compound->ShowKey() : rn;
}

} // namespace

frmComplex::frmComplex() : ChainForm("frmComplex", "Complex system") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdOK, cmdCancel, [this] { Accept(); });
    HelpContext = 570;
    cboType.ToolTip("Choose a type or type another one");
}

void frmComplex::ArrangeControls() {
    using namespace ui;
    Arrangement =
        Column({Field("Type of complex system:", cboType),
                Group("Components", {lstComp, Row({Stretch(), cmdAdd, cmdDelete})}),
                Group("Selected component",
                      {Field("Compound:", Row({cboComp, Field("Sample:", Narrow(cboSample, 16))})),
                       Field("Function:", cboFunction),
                       Field("Content:", Row({Narrow(txtContent, 16), cboContent}))}),
                ButtonRow({cmdOK, cmdCancel})});
    TabAlongArrangement();
    PreferredColumns = 90;
    PreferredRows = 24;
}

void frmComplex::WireEvents() {
    lstComp.OnClick = [this] { LineClick(); };
    cmdAdd.OnClick = [this] { Add(); };
    cmdDelete.OnClick = [this] { Delete(); };
    cboComp.OnClick = [this] { CompoundClick(); };
    cboSample.OnClick = [this] { SampleClick(); };
    for (ui::ItemList* list : {&cboFunction, &cboContent})
        list->OnClick = [this] { FieldChanged(); };
    txtContent.OnChange = [this] { FieldChanged(); };
}

void frmComplex::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    record_ = globals.EditComplex ? globals.CurrentComplex : nullptr;
    const ui::FillingScope filling(*this);
    cboType.Assign({GasHydrate});
    if (record_) {
        draft_.TakeDefinition(*record_);
        cboType.Text(draft_.CType);
        Caption("Edit: Complex system");
    } else {
        draft_.Components.emplace_back();
    }
    ShowLines();
    Select(0);
}

/// Helpers opened on the way have had answers of their own.
void frmComplex::Unload() {
    Globals().DialogAccepted = accepted_;
    ChainForm::Unload();
}

/// A component that is not right yet is not left.
void frmComplex::LineClick() {
    if (Filling) return;
    const auto chosen = static_cast<std::size_t>(std::max(lstComp.Index(), 0));
    if (chosen == line_) return;
    if (CheckLine(line_)) return Select(chosen);
    const ui::FillingScope filling(*this);
    lstComp.Index(static_cast<int>(line_));
}

void frmComplex::Add() {
    if (InHand() && IsEmptyLine(line_)) {
        Refuse(cboComp, "Select the component");
        return;
    }
    if (!CheckLine(line_)) return;
    draft_.Components.emplace_back();
    ShowLines();
    Select(draft_.Components.size() - 1);
    cboComp.SetFocus();
}

void frmComplex::Delete() {
    if (!InHand()) return;
    draft_.Components.erase(draft_.Components.begin() + static_cast<std::ptrdiff_t>(line_));
    ShowLines();
    Select(std::min(line_, std::max<std::size_t>(draft_.Components.size(), 1) - 1));
}

/// What was said belongs to the compound that stood there.
void frmComplex::CompoundClick() {
    ComplexComponent* const component = InHand();
    if (Filling || !component) return;
    const auto rn = compounds_.Click();
    if (rn && *rn != component->RN) {
        if (!component->RN.empty()) *component = {};
        component->RN = *rn;
        samples_.Fill(Globals().CurrentR->FindL(*rn)); // one alone is chosen
        if (const auto sample = samples_.Sample()) component->SMPNM = sample->SMPNM;
    }
    ShowLines();
    ShowFields();
}

void frmComplex::SampleClick() {
    ComplexComponent* const component = InHand();
    if (Filling || !component) return;
    {
        const SelectionScope selection; // which the dialog of samples changes
        samples_.Click();
    }
    const auto sample = samples_.Sample();
    component->SMPNM = sample ? sample->SMPNM : std::string();
    // The dialog of samples may have made a compound too.
    ShowLines();
    ShowFields();
}

void frmComplex::FieldChanged() {
    ComplexComponent* const component = InHand();
    if (Filling || !component) return;
    component->function = cboFunction.Chosen();
    component->content = content_.Content();
    ShowLines();
}

ComplexComponent* frmComplex::InHand() {
    return line_ < draft_.Components.size() ? &draft_.Components[line_] : nullptr;
}

void frmComplex::Select(std::size_t line) {
    line_ = line;
    const ui::FillingScope filling(*this);
    lstComp.Index(InHand() ? static_cast<int>(line) : -1);
    ShowFields();
}

void frmComplex::ShowLines() {
    const ui::FillingScope filling(*this);
    std::vector<std::string> texts;
    for (const ComplexComponent& component : draft_.Components)
        texts.push_back(TextOf(component));
    lstComp.Assign(std::move(texts));
    lstComp.Index(InHand() ? static_cast<int>(line_) : -1);
}

void frmComplex::ShowFields() {
    const ui::FillingScope filling(*this);
    const ComplexComponent component = InHand() ? *InHand() : ComplexComponent();
    for (ui::Control* control :
         {static_cast<ui::Control*>(&cboComp), static_cast<ui::Control*>(&cboFunction),
          static_cast<ui::Control*>(&cmdDelete)})
        control->Enabled(InHand() != nullptr);
    content_.Enabled(InHand() != nullptr);
    cboSample.Enabled(!component.RN.empty());
    compounds_.Fill(component.RN);
    ShowSamples(component);
    cboFunction.Assign(Functions);
    if (!component.function.empty() && cboFunction.Find(component.function) < 0)
        cboFunction.Add(component.function); // as a file may have it
    cboFunction.Choose(component.function);
    content_.Show(component.content);
}

/// A sample that the document does not have is not replaced in silence.
void frmComplex::ShowSamples(const ComplexComponent& component) {
    const auto compound = Globals().CurrentR->FindL(component.RN);
    samples_.Fill(compound);
    samples_.ChooseNone();
    if (compound && !component.SMPNM.empty())
        samples_.Choose(compound->FindS(static_cast<int>(ToInteger(Val(component.SMPNM)))).get());
}

std::string frmComplex::TextOf(const ComplexComponent& component) const {
    std::string text =
        component.RN.empty() ? "(a component to be selected)" : CompoundName(component.RN);
    if (!component.SMPNM.empty()) text += ", sample " + component.SMPNM;
    for (const std::string& part : {component.function, ContentInWords(component.content)})
        if (!part.empty()) text += ", " + part;
    return text;
}

/// A known type is one however it is typed; one that stands there already stays as it is.
std::string frmComplex::TypeTyped() const {
    if (record_ && cboType.Text() == record_->CType) return record_->CType;
    const std::string typed(Trim(SingleLine(cboType.Text())));
    return LowerAscii(typed) == LowerAscii(GasHydrate) ? GasHydrate : typed;
}

void frmComplex::Accept() {
    if (!Check()) return;
    if (IsChanged()) Store();
    accepted_ = true;
    Close();
}

bool frmComplex::Check() {
    // What has been opened for a component and left empty is none.
    std::size_t line = draft_.Components.size();
    while (line-- > 0)
        if (draft_.Components.size() > 1 && IsEmptyLine(line))
            draft_.Components.erase(draft_.Components.begin() + static_cast<std::ptrdiff_t>(line));
    line_ = std::min(line_, draft_.Components.size());
    ShowLines();
    ShowFields();
    draft_.CType = TypeTyped();
    const bool isAsBefore = record_ && record_->CType == draft_.CType;
    if (draft_.CType.empty() && !isAsBefore)
        return Refuse(cboType, "Select type of complex system");
    return CheckLines() && MayDropContents();
}

bool frmComplex::CheckLines() {
    const bool mayBeEmpty = record_ && record_->Components.empty();
    if (draft_.Components.empty() && !mayBeEmpty)
        return Refuse(cmdAdd, "A complex system has at least one component");
    if (!CheckLine(line_)) return false;
    for (std::size_t line = 0; line < draft_.Components.size(); ++line)
        if (!CheckLine(line)) return false;
    return true;
}

/// What stands in the record as it is has been accepted before.
bool frmComplex::CheckLine(std::size_t line) {
    if (line >= draft_.Components.size()) return true;
    const ComplexComponent& component = draft_.Components[line];
    if (record_ && std::ranges::find(record_->Components, component) != record_->Components.end())
        return true;
    const auto refuse = [this, line](ui::Control& field, const std::string& text) {
        Select(line);
        return Refuse(field, text);
    };
    if (const auto fault = FaultOf(component.content))
        return refuse(content_.FieldOf(*fault), fault->text);
    if (component.RN.empty()) return refuse(cboComp, "Select the component");
    if (std::ranges::count(draft_.Components, component.RN, &ComplexComponent::RN) > 1)
        return refuse(cboComp, "This component stands in the list already");
    return true;
}

bool frmComplex::IsEmptyLine(std::size_t line) const {
    return draft_.Components[line] == ComplexComponent();
}

/// The components that go though samples of the complex state contents of them.
std::vector<std::string> frmComplex::Dropped() const {
    std::vector<std::string> dropped;
    if (!record_) return dropped;
    for (const ComplexComponent& component : record_->Components) {
        const bool isStated = std::ranges::any_of(record_->recS, [&](const auto& sample) {
            return sample->FindComponent(component.RN) != nullptr;
        });
        if (isStated && !draft_.FindComponent(component.RN)) dropped.push_back(component.RN);
    }
    return dropped;
}

bool frmComplex::MayDropContents() {
    std::string names;
    for (const std::string& rn : Dropped())
        names += (names.empty() ? "" : " and ") + CompoundName(rn);
    return names.empty() || Confirm(lstComp, "Samples of this complex system state contents of " +
                                                 names + ".\nRemove these contents, too?");
}

bool frmComplex::IsChanged() const {
    return !record_ || record_->CType != draft_.CType || record_->Components != draft_.Components;
}

void frmComplex::Store() {
    KVOGlobal& globals = Globals();
    const std::vector<std::string> dropped = Dropped();
    const bool isNew = record_ == nullptr;
    if (isNew) {
        record_ = std::make_shared<clsComplex>();
        record_->SetNo(NextComplexNumber(*globals.CurrentR));
    }
    record_->TakeDefinition(draft_);
    for (const auto& sample : record_->recS)
        std::erase_if(sample->Components, [&dropped](const SampleComponent& component) {
            return std::ranges::find(dropped, component.RN) != dropped.end();
        });
    if (isNew) record_->AttachTo(*globals.CurrentR);
    record_->Refresh();
    globals.CurrentComplex = record_;
    globals.CurrentL = record_;
    globals.Saved = false;
}

} // namespace vexora
