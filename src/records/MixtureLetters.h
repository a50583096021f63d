#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "records/PhaseCounts.h"

namespace vexora {

class clsMV;
class clsMZ;

/// The letter of a property class of mixtures ("DD", "PP") for these phases; empty for phases that
/// do not go with the class.
std::string MixtureLetter(std::string_view propertyClass, const PhaseCounts& phases);

/// Letters of the data of mixtures. A document holds few kinds of data in many sets, so each kind
/// is looked up once.
class MixtureLetters {
public:
    struct Letter {
        std::string text;
        /// The phases do not go with the property.
        bool isFault = false;
    };
    const Letter& Of(const clsMZ& value);
    const Letter& Of(const clsMV& set);

private:
    std::unordered_map<std::string, Letter> known_;
};

} // namespace vexora
