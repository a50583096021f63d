// The page of the other components.
#include <algorithm>
#include <memory>
#include <utility>

#include "entry/BioPages.h"
#include "entry/CodeLists.h"
#include "entry/PhaseLists.h"
#include "entry/SelectionScope.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr const char* None = "None";
constexpr const char* Solution = "S";
constexpr std::size_t FunctionsOfProperty = 3;

std::vector<std::string> WithNone(std::vector<std::string> texts) {
    texts.insert(texts.begin(), None);
    return texts;
}

/// A text that is not offered, as a file may have it, joins the list.
void ChooseEntry(ui::ComboBox& list, const std::string& text) {
    if (text.empty()) return list.Index(0);
    if (list.Find(text) < 0) list.Add(text);
    list.Choose(text);
}

std::shared_ptr<clsL> CompoundOfSource(const std::string& rn) {
    return rn.empty() ? nullptr : Globals().CurrentR->FindL(rn);
}

std::string NameInSource(const std::string& rn) {
    const auto compound = CompoundOfSource(rn);
    return compound ? compound->ShowKey() : rn;
}

} // namespace

std::vector<std::string> BioPhaseCodes() {
    std::vector<std::string> codes = {"S", "S1", "S2"};
    for (const std::string& name : PhaseList("React"))
        codes.push_back(PhaseCode(name));
    return codes;
}

void FillBioPhases(ui::ComboBox& list, const std::vector<std::string>& codes) {
    std::vector<std::string> names;
    for (const std::string& code : codes)
        names.push_back(PhaseName(code));
    list.Assign(WithNone(std::move(names)));
    list.Index(0);
}

std::string BioPhaseChosen(const ui::ComboBox& list) {
    return list.Index() <= 0 ? std::string() : PhaseChosen(list);
}

int BioRowCount(int usual, std::size_t used) {
    return std::max(usual, static_cast<int>(used) + (static_cast<int>(used) < usual ? 0 : 1));
}

std::vector<BioSubject> BioSubjects(const BioSet& draft, const std::vector<int>& participantRows,
                                    const std::vector<int>& componentRows) {
    constexpr int Components = 1000; // rows of components are told from those of participants
    std::vector<BioSubject> subjects;
    const auto add = [&](const std::string& key, int row) {
        const std::string name = draft.CompoundName(key);
        std::string own = name;
        for (int n = 2; std::ranges::count(subjects, own, &BioSubject::name) > 0; ++n)
            own = name + " (" + std::to_string(n) + ")";
        subjects.push_back({key, own, row});
    };
    const auto participants = draft.ParticipantKeys();
    for (std::size_t i = 0; i < participants.size(); ++i)
        add(participants[i], i < participantRows.size() ? participantRows[i] : static_cast<int>(i));
    for (std::size_t i = 0; i < draft.Components.size(); ++i)
        add(draft.KeyOf(i),
            Components + (i < componentRows.size() ? componentRows[i] : static_cast<int>(i)));
    return subjects;
}

BioComponentPage::BioComponentPage(ui::Form& form, const Controls& controls, bool isReaction)
    : form_(form), on_(controls), isReaction_(isReaction) {
    for (int i = 0; i < on_.compounds.Count(); ++i) {
        rows_.push_back(
            {{}, {}, CompoundList(form, on_.compounds(i)), SampleList(form, on_.samples(i), None)});
        on_.compounds(i).OnClick = [this, i] { CompoundClick(i); };
        on_.samples(i).OnClick = [this, i] { SampleClick(i); };
    }
}

ui::Layout BioComponentPage::Arrangement() const {
    using namespace ui;
    std::vector<Layout> rows;
    for (int i = 0; i < on_.compounds.Count(); ++i)
        rows.push_back(
            Field(std::to_string(i + 1) + ":",
                  ui::Row({on_.compounds(i), Field("Function:", Narrow(on_.functions(i), 18)),
                           Field("Phase:", Narrow(on_.phases(i), 14)),
                           Field("Sample:", Narrow(on_.samples(i), 8)),
                           Field("Note:", on_.contents(i))})));
    rows.push_back(Stretch());
    return Column(std::move(rows));
}

void BioComponentPage::Fill(const std::vector<BioComponent>& components) {
    const ui::FillingScope filling(form_);
    std::vector<std::string> functions = WithNone(Texts(BioFunctions));
    if (!isReaction_) functions.resize(FunctionsOfProperty + 1);
    const std::vector<std::string> phases = BioPhaseCodes();
    for (int i = 0; i < on_.compounds.Count(); ++i) {
        const auto n = static_cast<std::size_t>(i);
        const BioComponent one = n < components.size() ? components[n] : BioComponent();
        At(i).RN = one.RN;
        At(i).SMPNM = one.SMPNM;
        on_.functions(i).Assign(functions);
        ChooseEntry(on_.functions(i), one.function);
        FillBioPhases(on_.phases(i), phases);
        ChoosePhase(on_.phases(i), one.phase);
        on_.contents(i).Text(one.note);
    }
    Refresh();
}

void BioComponentPage::Refresh() {
    const ui::FillingScope filling(form_);
    for (int i = 0; i < on_.compounds.Count(); ++i) {
        At(i).compounds.Fill(At(i).RN);
        ShowSamples(i);
        Show(i);
    }
}

/// A sample that the document does not have is not replaced in silence.
void BioComponentPage::ShowSamples(int i) {
    Row& row = At(i);
    const auto compound = CompoundOfSource(row.RN);
    row.samples.Fill(compound);
    row.samples.ChooseNone();
    if (compound && !row.SMPNM.empty())
        row.samples.Choose(compound->FindS(static_cast<int>(Val(row.SMPNM))).get());
}

void BioComponentPage::Show(int i) {
    const bool isUsed = !At(i).RN.empty();
    for (ui::Control* control : std::initializer_list<ui::Control*>{
             &on_.functions(i), &on_.phases(i), &on_.samples(i), &on_.contents(i)})
        control->Enabled(isUsed);
}

/// Function, phase, sample and note belong to the compound that stood there.
void BioComponentPage::CompoundClick(int i) {
    if (form_.Filling) return;
    Row& row = At(i);
    const SelectionScope selection;
    const auto rn = row.compounds.Click();
    if (rn && *rn != row.RN) {
        const ui::FillingScope filling(form_);
        row.RN = *rn;
        on_.functions(i).Index(0);
        on_.phases(i).Index(0);
        if (!rn->empty()) ChoosePhase(on_.phases(i), Solution);
        on_.contents(i).Text("");
        row.samples.Fill(CompoundOfSource(row.RN)); // one alone is chosen
        const auto sample = row.samples.Sample();
        row.SMPNM = sample ? sample->SMPNM : std::string();
    }
    Refresh();
    if (Follow) Follow();
}

void BioComponentPage::SampleClick(int i) {
    if (form_.Filling) return;
    Row& row = At(i);
    const SelectionScope selection;
    const auto made = row.samples.Click();
    const auto sample = row.samples.Sample();
    row.SMPNM = sample ? sample->SMPNM : std::string();
    if (!made) return;
    Refresh();
    if (Follow) Follow();
}

std::vector<BioComponent> BioComponentPage::Components() const {
    std::vector<BioComponent> components;
    for (const int i : Rows()) {
        BioComponent one;
        one.RN = At(i).RN;
        one.SMPNM = At(i).SMPNM;
        if (on_.functions(i).Index() > 0) one.function = on_.functions(i).Chosen();
        one.phase = BioPhaseChosen(on_.phases(i));
        one.note = TrimBlanks(on_.contents(i).Text());
        components.push_back(std::move(one));
    }
    return components;
}

std::vector<int> BioComponentPage::Rows() const {
    std::vector<int> rows;
    for (int i = 0; i < on_.compounds.Count(); ++i)
        if (!At(i).RN.empty()) rows.push_back(i);
    return rows;
}

BioFaults BioComponentPage::Check() const {
    BioFaults faults;
    for (const int i : Rows())
        if (isReaction_ && on_.phases(i).Index() <= 0)
            faults.push_back(
                {&on_.phases(i), "Select phase for component " + NameInSource(At(i).RN)});
    for (const int i : Rows())
        if (on_.functions(i).Index() <= 0)
            faults.push_back(
                {&on_.functions(i), "Select function of component " + NameInSource(At(i).RN)});
    return faults;
}

} // namespace vexora
