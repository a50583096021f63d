// What is left of the definition of a ternary set when one component is absent.
#include "records/BinaryOfTernary.h"

#include <algorithm>
#include <cstdlib>

#include "records/FractionCode.h"
#include "records/PhaseCounts.h"
#include "records/clsM.h"
#include "reference/Conversions.h"
#include "reference/MixtureCodes.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr const char* Misfit = "Incorrect data combination for";
constexpr int BinaryFreedom = 3; // variables and slots of a binary set

bool Contains(const std::vector<int>& components, int component) {
    return std::ranges::find(components, component) != components.end();
}

} // namespace

BinaryOfTernary::BinaryOfTernary(const clsMV& set, int absent) : set_(set), absent_(absent) {
    isSilent_ = set.Parent == nullptr || set.Parent->Parent == nullptr;
    if (!isSilent_) Prepare();
}

void BinaryOfTernary::Prepare() {
    const PhaseCounts counts = PhaseCounts::Of(set_.Phases());
    if (std::abs(counts.liquid) > 1 && counts.gas != 0) {
        fault_ = "Mixture: " + set_.Parent->ShowKey() +
                 "\nUnable to automatically convert binary VLLE data from ternary where one "
                 "component is absent\nPlease do that manually";
        return;
    }
    isSilent_ = ComponentOf(set_.PRPCODE) == absent_;
    if (isSilent_) return;
    const bool isWhole = TakePhases() && TakeQuantities();
    const auto left = static_cast<int>(variables_.size() + slots_.size());
    // A single value has no composition that a unit by mass could go by.
    const bool isByMass = MakesValues() && set_.NeedsMolarMass();
    if (!isWhole || left != BinaryFreedom || isByMass) fault_ = Misfit;
    if (fault_.empty()) FindMixture();
}

/// False for a crystal of the component that is said to be absent.
bool BinaryOfTernary::TakePhases() {
    const std::string crystal = "Cp" + std::to_string(absent_);
    return std::ranges::none_of(set_.Phases(),
                                [&crystal](const std::string& phase) { return phase == crystal; });
}

/// The code that a quantity has without the component; nothing for one of it, and of a solvent of
/// which nothing but the other component is left. A solvent that is all of the binary is no longer
/// one: its composition is that of the mixture.
std::optional<std::string> BinaryOfTernary::GetCode(const std::string& code) const {
    const bool isOfSolvent = IsComposition(code) && code.ends_with('S');
    if (ComponentOf(code) == absent_) return std::nullopt;
    if (code.size() == 4 && code.starts_with("HEX")) return "HEX";
    if (!isOfSolvent) return code;
    if (Contains(ComponentsOfSolvent(set_.SOLVENT), absent_)) return std::nullopt;
    return code.substr(0, 2);
}

/// The one component that is left of the solvent; empty when that is no solvent any more.
std::string BinaryOfTernary::SolventLeft() const {
    std::vector<int> left = ComponentsOfSolvent(set_.SOLVENT);
    std::erase(left, absent_);
    return left.size() == 1 ? std::to_string(left[0]) : std::string();
}

/// False when something would have to be said of a solvent that is not there.
bool BinaryOfTernary::TakeQuantities() {
    code_ = GetCode(set_.PRPCODE).value_or("");
    for (int n = 1; n <= set_.nVar; ++n)
        if (const auto code = GetCode(set_.VARIABLE(n)))
            variables_.push_back({{*code, set_.VAR_UNIT(n), set_.PhaseFor(n)}, n});
    for (int n = 1; n <= set_.ConstraintCount(); ++n) {
        const std::string& own = set_.CONSTRAINT(n);
        // Two liquids are counted in their codes, not their components.
        const auto code = IsConstraint(own) ? GetCode(own) : own;
        if (!code) continue;
        slots_.push_back(
            {{*code, set_.CNVALUE(n), set_.PhaseFor(set_.nVar + n), set_.CN_UNIT(n)}, n});
    }
    DropSecondFractions();
    const bool needsSolvent =
        NeedsSolvent(code_) ||
        std::ranges::any_of(variables_,
                            [](const Variable& one) { return NeedsSolvent(one.is.code); }) ||
        std::ranges::any_of(slots_, [](const Slot& one) { return NeedsSolvent(one.is.code); });
    const bool hadSolvent = !ComponentsOfSolvent(set_.SOLVENT).empty();
    return !code_.empty() && !(needsSolvent && hadSolvent && SolventLeft().empty());
}

/// In a phase of two components one fraction says it all: that of the property, else of the first.
void BinaryOfTernary::DropSecondFractions() {
    const auto isSecond = [this](const std::string& code, const std::string& phase) {
        return FractionCode::Of(code) && IsFractionBeside(code, phase);
    };
    std::erase_if(variables_,
                  [&](const Variable& one) { return isSecond(one.is.code, one.is.phase); });
    std::erase_if(slots_, [&](const Slot& one) { return isSecond(one.is.code, one.is.phase); });
}

/// Another fraction of this phase goes before.
bool BinaryOfTernary::IsFractionBeside(const std::string& code, const std::string& phase) const {
    const int component = ComponentOf(code);
    const auto goesBefore = [&](const std::string& other, const std::string& of) {
        return of == phase && FractionCode::Of(other) && ComponentOf(other) < component;
    };
    return (FractionCode::Of(code_) && set_.PHASE1 == phase) ||
           std::ranges::any_of(
               variables_,
               [&](const Variable& one) { return goesBefore(one.is.code, one.is.phase); }) ||
           std::ranges::any_of(
               slots_, [&](const Slot& one) { return goesBefore(one.is.code, one.is.phase); });
}

bool BinaryOfTernary::Take(const clsData& row, std::string& fault) {
    if (isSilent_ || !IsNumeric(row.PRPVALUE())) return false;
    fault = fault_;
    if (!fault_.empty()) return false;
    const auto isEmpty = [&row](const Variable& one) {
        return !IsNumeric(row.VARIABLE(one.place));
    };
    if (std::ranges::any_of(variables_, isEmpty)) return false;
    return MakesValues() ? TakeValue(row) : TakeSet(row);
}

} // namespace vexora
