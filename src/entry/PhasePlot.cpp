#include "entry/PhasePlot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "entry/PureEnds.h"
#include "entry/SetStates.h"
#include "records/FractionCode.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

using MaybeValue = std::optional<double>;
using Composition = std::array<MaybeValue, 3>; // of the components, in fractions of 1
using PhaseComposition = std::pair<std::string, Composition>;

bool IsState(std::string_view code) {
    return code == "T" || code == "P";
}

/// Sets that tell of phases: their compositions, or where they coexist.
bool TellsPhases(const DataSet& set) {
    return FractionCode::Of(set.PRPCODE) || IsState(StateCode(set.PRPCODE));
}

/// What picture the set in hand calls for, and what its points are made of.
class PhasePicture {
public:
    PhasePicture(const SetInHand& hand, const SetSurroundings& around)
        : hand_(hand), around_(around), own_(PlotColumns::Of(hand.asItStands, hand.original)) {
        FindFraction();
        if (!fraction_) return;
        isTernary_ = hand_.asItStands.DataContext() == "Tern";
        isOfPhases_ = TellsPhases(hand_.asItStands);
        Gather();
    }
    std::shared_ptr<PlotTable> Binary();
    std::shared_ptr<PlotTable> Ternary();
    bool IsTernary() const { return isTernary_; }
    bool HasFraction() const { return fraction_.has_value(); }

private:
    void FindFraction();
    void Gather();
    bool Varies(std::string_view code) const;
    int ColumnOf(std::string_view code) const { return own_.Find(code); }
    void TakeColumn(int column, std::string_view code);
    void NameColumn(int column, std::string_view code);
    std::vector<PhaseComposition> Phases(const SystemState& state) const;
    int SeriesOf(const std::string& phase);
    void AddPoint(const SystemState& state, PlotTable::Row row, const std::string& phase, int tie);
    double InColumn(int column, MaybeValue system) const {
        return columns_.InTable(column, system.value_or(0));
    }
    std::string FractionName(int component) const;
    std::string TitleText() const;

    const SetInHand& hand_;
    const SetSurroundings& around_;
    PlotColumns own_;     // of the table in hand
    PlotColumns columns_; // of the picture
    std::optional<FractionCode> fraction_;
    UnitConversion fractionUnit_;
    bool isTernary_ = false, isOfPhases_ = false;
    SetStates states_;
    std::vector<std::string> phases_; // those of the series
    std::shared_ptr<PlotTable> table_ = std::make_shared<PlotTable>();
};

/// The variables come first: their kind and unit is what the property is seen against.
void PhasePicture::FindFraction() {
    for (const int n : {1, 2, 3, 0}) {
        const auto at = static_cast<std::size_t>(n);
        fraction_ = FractionCode::Of(own_.codes[at]);
        if (!fraction_) continue;
        fractionUnit_ = own_.units[at];
        return;
    }
}

/// Other properties have no place in a picture of phases, and phases none in that of a property.
void PhasePicture::Gather() {
    const std::string phases = PhasesKey(hand_.asItStands);
    bool isSeen = false;
    for (const DataSet* set : around_.sameSystem) {
        const bool isHand = set == &hand_.record;
        isSeen = isSeen || isHand;
        if (isHand)
            states_.Add(hand_.asItStands, true);
        else if (isOfPhases_ && TellsPhases(*set) && PhasesKey(*set) == phases)
            states_.Add(*set, false);
    }
    if (!isSeen) states_.Add(hand_.asItStands, true);
}

/// Two states differ in it.
bool PhasePicture::Varies(std::string_view code) const {
    constexpr double same = 1e-6; // of the value
    MaybeValue first;
    for (const SystemState& state : states_.All()) {
        const MaybeValue value = state.Value(code);
        if (!value) continue;
        if (first && std::abs(*value - *first) > same * std::abs(*first)) return true;
        if (!first) first = value;
    }
    return false;
}

/// The unit of the table in hand where it has the quantity, else the system unit.
void PhasePicture::TakeColumn(int column, std::string_view code) {
    const auto at = static_cast<std::size_t>(column);
    columns_.codes[at] = code;
    const int ofHand = ColumnOf(code);
    const bool isFraction = FractionCode::Of(code).has_value();
    columns_.units[at] = isFraction   ? fractionUnit_
                         : ofHand < 0 ? UnitConversion()
                                      : own_.units[static_cast<std::size_t>(ofHand)];
    NameColumn(column, code);
}

void PhasePicture::NameColumn(int column, std::string_view code) {
    std::string name;
    const int ofHand = ColumnOf(code);
    if (const auto fraction = FractionCode::Of(code)) {
        name = FractionName(fraction->component);
    } else if (ofHand >= 0) {
        name = ofHand == 0 ? hand_.table.YName : hand_.table.NameOf(ofHand);
    } else {
        name = VariableName(code, hand_.asItStands.DataContext());
        name += " (" + DefaultUnit(name) + ")";
    }
    (column == 0 ? table_->YName : table_->VarNames[static_cast<std::size_t>(column - 1)]) = name;
}

std::string PhasePicture::FractionName(int component) const {
    const std::string code = fraction_->kind + std::to_string(component);
    const std::string name =
        WithComponentName(VariableName(code, hand_.asItStands.DataContext()), around_);
    return columns_.WholeOf(1) == 100 ? name + " (%)" : name;
}

/// The fractions of the kind in hand that are known of each phase; the last one follows from the
/// others. The main phase of the set in hand comes first.
std::vector<PhaseComposition> PhasePicture::Phases(const SystemState& state) const {
    const std::size_t components = isTernary_ ? 3 : 2;
    std::map<std::string, Composition> known;
    for (const SystemState::Cell& cell : state.cells) {
        const auto fraction = FractionCode::Of(cell.code);
        if (fraction && fraction->kind == fraction_->kind)
            known[cell.phase][static_cast<std::size_t>(fraction->component - 1)] = cell.value;
    }
    for (auto& [phase, composition] : known) {
        std::size_t missing = 0, last = 0;
        double rest = 1;
        for (std::size_t n = 0; n < components; ++n) {
            if (composition[n])
                rest -= *composition[n];
            else
                last = n;
            missing += composition[n] ? 0 : 1;
        }
        if (missing == 1) composition[last] = rest;
    }
    const std::vector<std::string> order = hand_.asItStands.Phases();
    std::vector<PhaseComposition> phases(known.begin(), known.end());
    std::ranges::stable_sort(phases, {}, [&order](const PhaseComposition& one) {
        return std::ranges::find(order, one.first) - order.begin();
    });
    return phases;
}

int PhasePicture::SeriesOf(const std::string& phase) {
    const auto at = std::ranges::find(phases_, phase);
    if (at != phases_.end()) return static_cast<int>(at - phases_.begin());
    phases_.push_back(phase);
    const std::string name = PhaseName(phase);
    table_->SeriesNames.push_back(name.empty() ? phase : name);
    return static_cast<int>(phases_.size()) - 1;
}

void PhasePicture::AddPoint(const SystemState& state, PlotTable::Row row, const std::string& phase,
                            int tie) {
    const auto at = static_cast<std::size_t>(std::max(state.point, 0));
    const bool isHand = state.point >= 0;
    const bool hasBar = isHand && own_.Find(columns_.codes[0]) == 0; // the property is drawn up
    table_->Add(row, hasBar ? hand_.table.PointUnc[at] : 0, isHand ? hand_.table.PointRow[at] : 0,
                isHand && hand_.table.PointFar[at], SeriesOf(phase), tie);
}

std::shared_ptr<PlotTable> PhasePicture::Binary() {
    const bool isPressure = StateCode(hand_.asItStands.PRPCODE) == "P" || !Varies("T");
    const std::string ordinate = isPressure ? "P" : "T";
    const std::string other = isPressure ? "T" : "P";
    if (!isOfPhases_ || !Varies(ordinate)) return nullptr;
    const std::string fraction = fraction_->kind + std::to_string(fraction_->component);
    const auto component = static_cast<std::size_t>(fraction_->component - 1);
    TakeColumn(1, fraction);
    TakeColumn(0, ordinate);
    if (Varies(other)) {
        TakeColumn(2, other);
        table_->nVar = 2;
    }
    int tie = 0;
    for (const SystemState& state : states_.All()) {
        const MaybeValue y = state.Value(ordinate);
        const auto phases = Phases(state);
        if (!y || phases.empty()) continue;
        ++tie;
        for (const auto& [phase, composition] : phases)
            AddPoint(state,
                     {InColumn(0, y), InColumn(1, composition[component]),
                      InColumn(2, state.Value(other))},
                     phase, phases.size() > 1 ? tie : 0);
    }
    if (phases_.size() < 2) return nullptr;
    MarkFractions(*table_, columns_);
    AddPureEnds(*table_, columns_, hand_.asItStands, around_);
    return table_;
}

/// Its kind of fraction, what of temperature and pressure is the same everywhere, and the property.
std::string PhasePicture::TitleText() const {
    std::string title = VariableName(fraction_->kind + std::string("1"), "Tern");
    title = title.substr(0, title.find(" of component"));
    if (columns_.WholeOf(1) == 100) title += " (%)";
    for (const std::string code : {"T", "P"}) {
        const auto value = states_.All().empty() ? std::nullopt : states_.All()[0].Value(code);
        if (!value || Varies(code)) continue;
        title += ", " + NumberText(*value) + " " + DefaultUnit(VariableName(code, "Tern"));
    }
    return table_->YName.empty()
               ? title
               : table_->YName + " by " + LowerAscii(title.substr(0, 1)) + title.substr(1);
}

std::shared_ptr<PlotTable> PhasePicture::Ternary() {
    const std::string kind(1, fraction_->kind);
    TakeColumn(1, kind + "1");
    TakeColumn(2, kind + "2");
    const bool isProperty = !FractionCode::Of(hand_.asItStands.PRPCODE);
    table_->nVar = 2;
    if (isProperty) table_->YName = hand_.table.YName;
    if (!isProperty && Varies("T")) {
        TakeColumn(3, "T");
        table_->nVar = 3;
    }
    for (std::size_t n = 0; n < table_->Corners.size(); ++n)
        table_->Corners[n] = around_.NameOf(static_cast<int>(n) + 1);
    int tie = 0;
    for (const SystemState& state : states_.All()) {
        if (isProperty && state.point < 0) continue;
        auto phases = Phases(state);
        std::erase_if(phases, [](const auto& one) { return !one.second[0] || !one.second[1]; });
        ++tie;
        const double property =
            isProperty ? hand_.table.PointTable[static_cast<std::size_t>(state.point)][0] : 0;
        for (const auto& [phase, composition] : phases)
            AddPoint(state,
                     {property, InColumn(1, composition[0]), InColumn(2, composition[1]),
                      InColumn(3, state.Value("T"))},
                     phase, phases.size() > 1 ? tie : 0);
    }
    if (table_->PointTable.empty()) return nullptr;
    MarkFractions(*table_, columns_);
    table_->Title = TitleText();
    return table_;
}

} // namespace

std::shared_ptr<PlotTable> PhasePlot(const SetInHand& hand, const SetSurroundings& around) {
    const std::string_view context = hand.asItStands.DataContext();
    if (context != "Bin" && context != "Tern") return nullptr;
    PhasePicture picture(hand, around);
    if (!picture.HasFraction()) return nullptr;
    auto table = picture.IsTernary() ? picture.Ternary() : picture.Binary();
    if (table) table->Cut();
    return table;
}

} // namespace vexora
