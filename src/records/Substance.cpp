#include "records/Substance.h"

#include "records/RegistryNumbers.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

template <class Set>
std::shared_ptr<Set> FindSet(const ui::Collection<Set>& sets, std::string_view code, int nVar,
                             std::string_view setNumber) {
    for (const auto& set : sets)
        if (set->nVar == nVar && set->PRPCODE == code && set->PRPSETNO == setNumber) return set;
    return nullptr;
}

template <class Set>
int NextNumber(const ui::Collection<Set>& sets, std::string_view code, int nVar) {
    // One above the count; after a deletion that may be taken, then the next free one.
    int number = 1;
    for (const auto& set : sets)
        number += set->nVar == nVar && set->PRPCODE == code ? 1 : 0;
    while (FindSet(sets, code, nVar, std::to_string(number)))
        ++number;
    return number;
}

} // namespace

std::shared_ptr<SubstanceSample> Substance::FindSample(int number) const {
    for (auto& sample : Samples())
        if (ToInteger(Val(sample->SMPNM)) == number) return std::move(sample);
    return nullptr;
}

std::string FormulaOfSample(const Substance* substance, std::string_view number) {
    if (!substance) return {};
    if (!NamesComplex(substance->RN)) return substance->FormulaText();
    const auto sample = substance->FindSample(static_cast<int>(ToInteger(Val(number))));
    const std::string formula = sample ? sample->Formula() : substance->FormulaText();
    return formula == "Error" ? std::string() : formula;
}

std::string SubstanceSample::SystemName() const {
    return System() ? System()->ShowKey() : std::string();
}

std::shared_ptr<clsZ> SubstanceSample::FindZ(std::string_view code, int nVar,
                                             std::string_view setNumber) const {
    return FindSet(recZ, code, nVar, setNumber);
}

int SubstanceSample::NextSetNumber(std::string_view code, int nVar) const {
    return NextNumber(recZ, code, nVar);
}

std::shared_ptr<clsTwo> SubstanceSample::FindTwo(std::string_view code, int nVar,
                                                 std::string_view setNumber) const {
    return FindSet(recTwo, code, nVar, setNumber);
}

int SubstanceSample::NextTwoNumber(std::string_view code, int nVar) const {
    return NextNumber(recTwo, code, nVar);
}

void SubstanceSample::EachChild(const std::function<void(Record&)>& visit) const {
    for (const auto& value : recZ)
        visit(*value);
    for (const auto& set : recTwo)
        visit(*set);
}

} // namespace vexora
