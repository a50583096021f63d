#include "compounds/frmSample.h"

#include <algorithm>
#include <cmath>

#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

using NameLookUp = std::string (*)(std::string_view);

/// The words of a code as a list shows them; free text keeps its brackets.
std::string ListText(const std::string& code, NameLookUp nameOf) {
    return code.starts_with('(') ? code : nameOf(code);
}

/// What papers print beside per cent, which the file has alone.
struct PrintedUnit {
    std::string_view text, code; // as listed; of the unit in per cent
    double factor;               // into per cent
};
constexpr PrintedUnit PrintedUnits[] = {
    {"mass fraction", "w%", 100},
    {"mole fraction", "m%", 100},
    {"water mass fraction", "h%", 100},
    {"water mass ppm", "h%", 1e-4},
};

/// A value as printed in per cent, to the place that was typed; what is no number stays.
std::string InPerCent(const std::string& value, const PrintedUnit& unit) {
    if (!IsNumeric(value)) return value;
    // No content is known to so many places; an absurd exponent has no last one.
    const double places = std::clamp(-std::log10(LastPlace(value) * unit.factor), 0.0, 20.0);
    return FormatFixed(Val(value) * unit.factor, static_cast<int>(std::lround(places)));
}

} // namespace

std::vector<std::string> frmSample::PurityUnitList() {
    std::vector<std::string> units;
    units.reserve(std::size(PurityUnits) + std::size(PrintedUnits));
    for (const PurityUnit& unit : PurityUnits)
        units.emplace_back(unit.text);
    for (const PrintedUnit& unit : PrintedUnits)
        units.emplace_back(unit.text);
    return units;
}

PurityStatement frmSample::ReadPurity(const Purity& boxes) {
    PurityStatement purity{
        NormalizeNumber(boxes.value.Text()), {}, DeterminationCode(boxes.method.Chosen())};
    for (const PurityUnit& unit : PurityUnits)
        if (unit.text == boxes.unit.Chosen()) purity.Unit = unit.code;
    for (const PrintedUnit& unit : PrintedUnits) {
        if (unit.text != boxes.unit.Chosen()) continue;
        purity.Value = InPerCent(purity.Value, unit);
        purity.Unit = unit.code;
    }
    return purity;
}

SampleDescription frmSample::Read() const {
    SampleDescription description;
    description.Availability = CodeOfText(SampleAvailabilities, lstDescAvail.Chosen());
    description.Source = CodeOfText(SampleSources, lstSmpSrc.Chosen());
    description.Initial = ReadPurity(initial_);
    description.Purification = steps_;
    for (const Purity& boxes : final_)
        description.Final.push_back(ReadPurity(boxes));
    return description;
}

/// Shows the sample's description. One that cannot be taken apart is given to the operator to mend,
/// again and again until it can; on Cancel it stays as it is and the lists stay empty.
void frmSample::Fill() {
    std::string text = stored_->SMPDESC;
    while (true) {
        txtSmplDescription.Text(text);
        const auto description = ParseDescription(text);
        if (description && ShowDescription(*description)) return;
        ClearDescription();
        const std::string title = "Please correct sample description";
        ui::Say("Error: Sample description cannot be interpreted", title);
        const auto mended = ui::TheDesktop().Ask({"Sample description:", title, text});
        if (!mended) break;
        text = *mended;
    }
    txtSmplDescription.Text(stored_->SMPDESC);
}

/// False when a code is unknown or there are more statements than boxes.
bool frmSample::ShowDescription(const SampleDescription& description) {
    ClearDescription();
    lstDescAvail.Index(IndexOfCode(SampleAvailabilities, description.Availability));
    FollowAvailability();
    if (!IsDescribed()) return true;
    lstSmpSrc.Index(IndexOfCode(SampleSources, description.Source));
    if (!ShowPurity(description.Initial, initial_)) return false;
    for (const std::string& code : description.Purification) {
        const int place = PlaceOfMethod(lstPurify, ListText(code, PurificationName));
        if (place < 0) return false;
        lstPurify.Selected(place, true);
    }
    steps_ = description.Purification;
    ShowSteps();
    if (description.Final.size() > final_.size()) return false;
    std::size_t i = 0;
    return std::ranges::all_of(description.Final, [&](const PurityStatement& statement) {
        return ShowPurity(statement, final_[i++]);
    });
}

bool frmSample::ShowPurity(const PurityStatement& statement, const Purity& boxes) {
    if (statement.Value.empty()) return true;
    boxes.value.Text(statement.Value);
    if (const PurityUnit* row = PurityUnitByCode(statement.Unit)) boxes.unit.Choose(row->text);
    if (statement.Method.empty()) return true;
    const std::string method = ListText(statement.Method, DeterminationName);
    boxes.method.Index(PlaceOfMethod(boxes.method, method));
    return boxes.method.Index() >= 0;
}

void frmSample::ClearDescription() {
    lstDescAvail.Index(-1);
    lstSmpSrc.Index(-1);
    for (int i = 0; i < lstPurify.Count(); ++i)
        lstPurify.Selected(i, false);
    steps_.clear();
    ShowSteps();
    for (const Purity& boxes : purities_) {
        boxes.value.Text("");
        boxes.unit.Index(0); // most purities are reported in mol %
        boxes.method.Index(-1);
    }
    FollowAvailability();
}

/// Source and purity are asked for only while there is something to describe.
void frmSample::FollowAvailability() {
    const bool described = lstDescAvail.Index() <= 0;
    fraInitial.Enabled(described);
    fraFinal.Enabled(described);
}

/// A mark that was taken off removes its step wherever it stands, a new one is the last step.
void frmSample::FollowSteps() {
    std::erase_if(steps_, [this](const std::string& code) {
        return !lstPurify.Selected(lstPurify.Find(ListText(code, PurificationName)));
    });
    for (int i = 0; i < lstPurify.Count(); ++i) {
        const std::string code = PurificationCode(lstPurify.Item(i));
        if (lstPurify.Selected(i) && std::ranges::find(steps_, code) == steps_.end())
            steps_.push_back(code);
    }
    ShowSteps();
}

void frmSample::ShowSteps() {
    std::string text;
    for (const std::string& code : steps_)
        text += (text.empty() ? "" : "; ") + ListText(code, PurificationName);
    txtPurifySteps.Text(text);
}

/// The entry's place in a list of methods; free text that the list lacks is added in front of
/// "Other". -1 for none.
int frmSample::PlaceOfMethod(ui::ItemList& list, const std::string& text) {
    if (text.starts_with('(') && list.Find(text) < 0) list.Insert(list.Find(otherEntry), text);
    return text.empty() ? -1 : list.Find(text);
}

} // namespace vexora
