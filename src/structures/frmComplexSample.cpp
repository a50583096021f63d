#include "structures/frmComplexSample.h"

#include <algorithm>

#include "entry/PropertyContext.h"
#include "entry/SelectionScope.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

frmComplexSample::frmComplexSample() : ChainForm("frmComplexSample", "Sample of a complex system") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdOK, cmdCancel, [this] { Accept(); });
    HelpContext = 575;
    txtSampleNo.Locked(true);
}

void frmComplexSample::ArrangeControls() {
    using namespace ui;
    Arrangement = Column(
        {Row({Field("Complex system:", lblComplex), Field("Sample #", Narrow(txtSampleNo, 4))}),
         Group("Components", {lstComp}),
         Group("Selected component",
               {chkComp, Field("Content:", Row({Narrow(txtContent, 16), cboContent})),
                Field("Sample:", cboSample)}),
         Group(frmGH, {Row({Field("Temperature, K:", Narrow(txtPrepT, 12)),
                            Field("Pressure, kPa:", Narrow(txtPrepP, 12))}),
                       Field("Method:", txtMethod)}),
         Field("Comment:", txtComment), ButtonRow({cmdOK, cmdCancel})});
    TabAlongArrangement();
    PreferredColumns = 90;
    PreferredRows = 28;
}

void frmComplexSample::WireEvents() {
    lstComp.OnClick = [this] { LineClick(); };
    chkComp.OnClick = [this] { PresenceClick(); };
    cboSample.OnClick = [this] { SampleClick(); };
    txtContent.OnChange = [this] { ContentChanged(); };
    cboContent.OnClick = [this] { ContentChanged(); };
}

void frmComplexSample::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    record_ = globals.EditComplexSample ? globals.CurrentComplexSample : nullptr;
    complex_ = record_ ? record_->Parent->As<clsComplex>() : globals.CurrentComplex;
    const ui::FillingScope filling(*this);
    lblComplex.Caption(complex_->ShowKey());
    for (const ComplexComponent& component : complex_->Components)
        lines_.push_back({{component.RN, component.content, component.SMPNM}, !record_});
    if (record_)
        TakeRecord();
    else
        txtSampleNo.Text(std::to_string(complex_->NextSampleNumber()));
    frmGH.Visible(record_ ? record_->isGH() : complex_->IsGasHydrate());
    ShowLines();
    Select(0);
}

void frmComplexSample::TakeRecord() {
    Caption("Edit: Sample of a complex system");
    for (const SampleComponent& component : record_->Components) {
        const auto line = std::ranges::find_if(lines_, [&component](const Line& one) {
            return one.component.RN == component.RN && !one.isPresent;
        });
        if (line == lines_.end())
            lines_.push_back({component, true});
        else
            *line = {component, true};
    }
    txtSampleNo.Text(record_->SMPNM);
    txtPrepT.Text(record_->PrepT);
    txtPrepP.Text(record_->PrepP);
    txtMethod.Text(record_->Method);
    txtComment.Text(record_->Header.DATACOMMENT);
}

/// Helpers opened on the way have had answers of their own.
void frmComplexSample::Unload() {
    Globals().DialogAccepted = accepted_;
    ChainForm::Unload();
}

/// A component that is not right yet is not left.
void frmComplexSample::LineClick() {
    if (Filling) return;
    const auto chosen = static_cast<std::size_t>(std::max(lstComp.Index(), 0));
    if (chosen == line_) return;
    if (CheckLine(line_)) return Select(chosen);
    const ui::FillingScope filling(*this);
    lstComp.Index(static_cast<int>(line_));
}

/// What was typed for a component stays in sight of who takes the mark off by mistake.
void frmComplexSample::PresenceClick() {
    if (Filling || !InHand()) return;
    InHand()->isPresent = chkComp.Value();
    ShowLines();
    ShowFields();
}

void frmComplexSample::SampleClick() {
    if (Filling || !InHand()) return;
    {
        const SelectionScope selection; // which the dialog of samples changes
        samples_.Click();
    }
    const auto sample = samples_.Sample();
    InHand()->component.SMPNM = sample ? sample->SMPNM : std::string();
    ShowLines();
    ShowFields();
}

void frmComplexSample::ContentChanged() {
    if (Filling || !InHand()) return;
    InHand()->component.content = content_.Content();
    ShowLines();
}

void frmComplexSample::Select(std::size_t line) {
    line_ = line;
    const ui::FillingScope filling(*this);
    lstComp.Index(InHand() ? static_cast<int>(line) : -1);
    ShowFields();
}

void frmComplexSample::ShowLines() {
    const ui::FillingScope filling(*this);
    std::vector<std::string> texts;
    for (const Line& line : lines_)
        texts.push_back(TextOf(line));
    lstComp.Assign(std::move(texts));
    lstComp.Index(InHand() ? static_cast<int>(line_) : -1);
}

void frmComplexSample::ShowFields() {
    const ui::FillingScope filling(*this);
    const Line line = InHand() ? *InHand() : Line();
    chkComp.Enabled(InHand() != nullptr);
    chkComp.Value(line.isPresent);
    content_.Enabled(line.isPresent);
    content_.Show(line.component.content);
    // A sample that the document does not have is not replaced in silence.
    const auto compound = Globals().CurrentR->FindL(line.component.RN);
    samples_.Fill(compound);
    samples_.ChooseNone();
    const std::string& number = line.component.SMPNM;
    if (compound && !number.empty())
        samples_.Choose(compound->FindS(static_cast<int>(ToInteger(Val(number)))).get());
    cboSample.Enabled(line.isPresent && compound);
}

std::string frmComplexSample::TextOf(const Line& line) const {
    const SampleComponent& component = line.component;
    const auto compound = Globals().CurrentR->FindL(component.RN);
    std::string text = compound ? compound->ShowKey() : component.RN;
    if (!complex_->FindComponent(component.RN)) text += " (no component of the system)";
    if (!line.isPresent) return text + ": not present";
    const std::string content = ContentInWords(component.content);
    if (!content.empty()) text += ", " + content;
    if (!component.SMPNM.empty()) text += ", sample " + component.SMPNM;
    return text;
}

void frmComplexSample::Accept() {
    if (!Check()) return;
    const auto made = Made();
    LineWriter before, after;
    if (record_) record_->PrintComplex(before);
    made->Parent = complex_.get();
    made->PrintComplex(after);
    if (!record_ || before.Text() != after.Text()) Store(*made);
    accepted_ = true;
    Close();
}

bool frmComplexSample::Check() {
    for (std::size_t line = 0; line < lines_.size(); ++line)
        if (!CheckLine(line)) return false;
    return CheckPreparation();
}

/// What stands in the record as it is has been accepted before.
bool frmComplexSample::CheckLine(std::size_t line) {
    if (line >= lines_.size() || !lines_[line].isPresent) return true;
    const SampleComponent& component = lines_[line].component;
    if (record_ && std::ranges::find(record_->Components, component) != record_->Components.end())
        return true;
    const auto fault = FaultOf(component.content);
    if (!fault) return true;
    Select(line);
    return Refuse(content_.FieldOf(*fault), fault->text);
}

bool frmComplexSample::CheckPreparation() {
    if (!frmGH.Visible()) return true;
    const struct {
        ui::TextBox& box;
        std::string known, name;
    } fields[] = {{txtPrepT, record_ ? record_->PrepT : "", "temperature"},
                  {txtPrepP, record_ ? record_->PrepP : "", "pressure"}};
    for (const auto& [box, known, name] : fields) {
        if (box.Text() == known) continue;
        box.Text(NormalizeNumber(std::string(Trim(box.Text()))));
        if (box.IsEmpty()) continue;
        if (!IsNumeric(box.Text())) return Refuse(box, "Preparation " + name + " is not numeric");
        if (Val(box.Text()) <= 0) return Refuse(box, "Illegal preparation " + name);
    }
    return true;
}

/// The sample as the form says; the order of its components is kept.
std::shared_ptr<clsComplexSample> frmComplexSample::Made() const {
    auto made = std::make_shared<clsComplexSample>();
    if (record_) made->TakeDefinition(*record_);
    made->SMPNM = txtSampleNo.Text();
    std::vector<SampleComponent> components;
    for (const Line& line : lines_)
        if (line.isPresent) components.push_back(line.component);
    const auto& known = made->Components;
    const auto placeBefore = [&known](const SampleComponent& component) {
        const auto same = std::ranges::find(known, component);
        if (same != known.end()) return same - known.begin();
        return std::ranges::find(known, component.RN, &SampleComponent::RN) - known.begin();
    };
    std::ranges::stable_sort(components, {}, placeBefore);
    made->Components = std::move(components);
    if (frmGH.Visible()) {
        made->PrepT = txtPrepT.Text();
        made->PrepP = txtPrepP.Text();
        made->Method = Trim(SingleLine(txtMethod.Text()));
        made->HasPreparation = made->HasPreparation || !txtPrepT.IsEmpty() || !txtPrepP.IsEmpty() ||
                               !made->Method.empty();
    }
    if (!record_ || txtComment.Text() != record_->Header.DATACOMMENT)
        made->Header.DATACOMMENT = Trim(SingleLine(txtComment.Text()));
    if (record_) return made;
    SignHeader(made->Header);
    return made;
}

void frmComplexSample::Store(const clsComplexSample& made) {
    KVOGlobal& globals = Globals();
    const bool isNew = record_ == nullptr;
    if (isNew) {
        record_ = std::make_shared<clsComplexSample>();
        record_->SMPNM = made.SMPNM;
    }
    record_->TakeDefinition(made);
    if (isNew) record_->AttachTo(*complex_);
    globals.CurrentComplexSample = record_;
    globals.CurrentS = record_;
    globals.Saved = false;
}

} // namespace vexora
