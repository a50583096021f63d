#include "records/RegistryNumbers.h"

#include "globals/KVOGlobal.h"
#include "records/clsComplex.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "ui/Lists.h"

#include <utility>

namespace vexora {

namespace {

constexpr std::string_view Water = "7732185";

std::shared_ptr<Substance> SubstanceOfRN(std::string_view rn, const clsR* source) {
    if (!source) source = Globals().CurrentR.get();
    return source && !NamesNoCompound(rn) ? source->FindSubstance(rn) : nullptr;
}

} // namespace

std::optional<char> CheckDigit(std::string_view digits) {
    if (digits.empty()) return std::nullopt;
    std::size_t sum = 0;
    for (std::size_t weight = 1; weight <= digits.size(); ++weight) {
        const char digit = digits[digits.size() - weight];
        if (digit < '0' || digit > '9') return std::nullopt;
        sum += weight * static_cast<std::size_t>(digit - '0');
    }
    return static_cast<char>('0' + sum % 10);
}

std::string WithCheckDigit(std::string_view rn) {
    std::string mended(rn);
    if (rn.empty() || rn.back() < '0' || rn.back() > '9') return mended;
    if (const auto digit = CheckDigit(rn.substr(0, rn.size() - 1))) mended.back() = *digit;
    return mended;
}

bool NamesComplex(std::string_view rn) {
    return rn.starts_with('-') && IsNumeric(rn);
}

bool NamesNoCompound(std::string_view rn) {
    return rn.empty() || rn == EmptySlot || !IsNumeric(rn) || Val(rn) == 0;
}

std::string NameOfRN(std::string_view rn) {
    const auto source = Globals().CurrentR;
    if (source && NamesComplex(rn)) {
        const auto complex = source->FindComplex(rn);
        return complex ? complex->Name() : std::string();
    }
    const auto compound = source && !NamesNoCompound(rn) ? source->FindL(rn) : nullptr;
    const std::string name = compound ? compound->Name : std::string();
    return name.empty() && rn == Water ? "water" : name;
}

std::string FormulaOfRN(std::string_view rn) {
    const auto substance = SubstanceOfRN(rn, nullptr);
    return substance ? substance->FormulaText() : std::string();
}

double MolarMassOfRN(std::string_view rn, const clsR* source) {
    const auto substance = SubstanceOfRN(rn, source);
    return substance ? substance->MolarMass() : 0;
}

std::string NewSubstanceRN() {
    // Far below 50-00-0, the smallest number of the registry, so that it meets none of them.
    std::int64_t n = 100;
    for (const auto& source : Globals().recR) {
        for (const auto& compound : source->recL) {
            if (ToInteger(Val(compound->RN)) / 10 == n) ++n;
        }
    }
    const std::string digits = std::to_string(n);
    return digits + CheckDigit(digits).value_or('0');
}

void FillCompoundList(ui::ItemList& list) {
    std::vector<std::string> names;
    if (const auto source = Globals().CurrentR) {
        for (const auto& compound : source->recL)
            names.push_back(compound->ShowKey());
    }
    list.Assign(std::move(names));
}

} // namespace vexora
