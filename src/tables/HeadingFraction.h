#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tables/HeadingGuess.h"

namespace vexora {

/// The phase that a heading names, before it is known what the others name.
struct PhaseMark {
    enum class Kind { None, Liquid, Gas, Numbered, Layer } kind = Kind::None;
    std::string name; // of a layer ("aqueous")
    int number = 0;   // 1 to 3: "'", "I", "α" are the first
    bool operator==(const PhaseMark&) const = default;
};

/// A composition as one heading tells of it.
struct HeadingFraction {
    std::string quantity; // "X1", "W2", "J1"
    double factor = 1;    // 0.01 where per cent are printed
    bool isPerCent = false;
    bool isVaporLetter = false;  // y
    bool isLiquidLetter = false; // x
    PhaseMark mark;
};

/// "x1", "w1''", "mole fraction of ethanol in the liquid phase", "wt % ethanol" as a plain heading.
/// Nothing where a word or sign is left over, two parts contradict each other, or the component or
/// the kind of fraction is open.
std::optional<HeadingFraction> ReadFraction(std::string_view plain,
                                            const NamedComponents& components);

/// A heading that names a phase and nothing else.
std::optional<PhaseMark> ReadPhaseAlone(std::string_view plain, const NamedComponents& components);
/// A heading that names a phase or a kind of fraction ("mole fraction", "wt %"), or both, and no
/// component: it may stand over several columns.
bool IsHeadOverComponents(std::string_view plain, const NamedComponents& components);

} // namespace vexora
