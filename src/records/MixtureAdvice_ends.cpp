// Rows in which one component is alone: what holds for the pure compound has to hold there.
#include "records/MixtureAdvice.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "records/MixtureWords.h"
#include "records/PureValues.h"
#include "records/RowFractions.h"
#include "records/StatedUncertainty.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

// So many stated uncertainties are no accident any more.
constexpr double Times = 3;
// Of the greatest amount, where none is stated.
constexpr double PartOfGreatest = 0.02;

std::string PureName(const clsMV& set, int component) {
    const auto compound = set.Parent ? set.Parent->Component(component) : nullptr;
    return " of pure " +
           (compound ? compound->ShowKey() : "component " + std::to_string(component));
}

double GreatestAmount(const clsMV& set, const SystemColumn& column) {
    double greatest = 0;
    for (const clsData& row : set.recData)
        greatest = std::max(greatest, std::abs(column.Of(row).value_or(0)));
    return greatest;
}

/// The pure values that a mixture asks for: of each component's sample, read when first asked.
class PureSamples {
public:
    const PureValues* Of(const clsMV& set, int component, const std::string& code) {
        const auto compound = set.Parent->Component(component);
        const auto number = static_cast<int>(ToInteger(Val(set.SMPNM(component))));
        const auto sample = compound ? compound->FindS(number) : nullptr;
        if (!sample) return nullptr;
        const auto [entry, isNew] =
            known_.try_emplace(std::to_string(component) + " " + sample->SMPNM + " " + code);
        if (isNew) entry->second = PureValues(*sample, code);
        return &entry->second;
    }

private:
    std::unordered_map<std::string, PureValues> known_;
};

/// What a row at a pure end differs from by too much; empty when something agrees, or nothing can
/// be compared.
std::string Disagreement(double value, std::optional<double> uncertainty,
                         const std::vector<const PureValue*>& known) {
    const PureValue* nearest = nullptr;
    double limit = 0;
    for (const PureValue* pure : known) {
        if (!uncertainty && !pure->uncertainty) continue;
        const double both =
            Times * std::hypot(uncertainty.value_or(0), pure->uncertainty.value_or(0));
        const double distance = std::abs(value - pure->value);
        if (distance <= both) return {};
        if (nearest && distance >= std::abs(value - nearest->value)) continue;
        nearest = pure;
        limit = both;
    }
    if (!nearest) return {};
    constexpr int digits = 2;
    return " differs from " + NumberText(nearest->value) + " in set " + nearest->setNumber +
           " of its sample by more than " + FormatValue(limit, digits) +
           ", three stated uncertainties";
}

void AdviseOnEndsOf(const clsMV& set, PureSamples& samples, Findings& findings) {
    const RowFractions fractions(set);
    const auto kind = PureKind::Of(set);
    if (fractions.IsEmpty() || !kind) return;
    const std::string phase = kind->isBoiling ? std::string() : set.PHASE1;
    const SystemColumn column(set, 0);
    const StateOfRows state(set);
    const UncertaintyOfRows uncertainties(set);
    RowTally faults;
    std::size_t place = 0;
    for (const clsData& row : set.recData) {
        ++place;
        const int component = fractions.PureComponent(row, phase);
        const auto value = component != 0 && column.Converts(row) ? column.Of(row) : std::nullopt;
        const PureValues* const pure = value ? samples.Of(set, component, kind->code) : nullptr;
        if (!pure) continue;
        const std::string fault =
            Disagreement(*value, uncertainties.Of(row), pure->At(*kind, state.Of(row)));
        if (!fault.empty())
            faults.Add(place, "value " + NumberText(*value) + PureName(set, component) + fault);
    }
    if (!faults.IsEmpty())
        Remarks(findings, set).Hint(FirstCapital(QuantityInWords(set, 0)) + ": " + faults.Text());
}

} // namespace

void AdviseOnExcess(const clsMV& set, Findings& findings) {
    if (!IsOneOf(set.PRPCODE, {"VEX", "HEX", "CEX", "GEX"}) || set.Relation() != "A") return;
    const RowFractions fractions(set);
    const SystemColumn column(set, 0);
    const UncertaintyOfRows uncertainties(set);
    const double ofGreatest = PartOfGreatest * GreatestAmount(set, column);
    RowTally faults;
    std::size_t place = 0;
    for (const clsData& row : set.recData) {
        ++place;
        const int component = fractions.PureComponent(row, set.PHASE1);
        const auto value = component != 0 ? column.Of(row) : std::nullopt;
        if (!value) continue;
        const auto stated = uncertainties.Of(row);
        if (std::abs(*value) > (stated ? Times * *stated : ofGreatest))
            faults.Add(place,
                       "value " + NumberText(*value) + PureName(set, component) + " is not near 0");
    }
    if (!faults.IsEmpty())
        Remarks(findings, set).Hint(FirstCapital(QuantityInWords(set, 0)) + ": " + faults.Text());
}

void AdviseOnPureEnds(const clsM& mixture, Findings& findings) {
    PureSamples samples;
    for (const auto& set : mixture.recMV)
        AdviseOnEndsOf(*set, samples, findings);
}

} // namespace vexora
