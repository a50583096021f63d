#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vexora {

/// The elements of an export that say something to its closing check.
enum class ElementKind : unsigned char {
    Other,
    Data,
    Reaction,
    NumValues,
    Sample,
    Component,
    Participant,
    Compound,
    RegNum,
    PropertyValue,
    VariableValue,
    VariableType,
    OrgNum,
    DataNumber,
    ReactionNumber,
    SampleNumber,
    PropNumber,
    VarNumber,
    PropValue,
    VarValue,
    PropName,
    ConstraintValue,
    HeadValue, // of a reaction, in front of the rows
    Outsider,  // what is there, but takes no part
};

/// What the name of an element tells.
struct ElementName {
    std::string text;
    ElementKind kind = ElementKind::Other;
    bool isNumber = false; // `n` begins the name of a number
    bool isDigits = false; // a count of digits
};

/// The names that came up, each looked at once: a file has few of them, but hundreds of thousands
/// of elements.
class ElementNames {
public:
    /// Holds as long as this does.
    const ElementName& Of(std::string_view name) {
        const ElementName*& last = last_[PlaceOf(name)];
        if (last == nullptr || last->text != name) last = &Found(name);
        return *last;
    }

private:
    static constexpr std::size_t Places = 1024;
    /// By the first and the last bytes: no two names of the schema agree in both.
    static std::size_t PlaceOf(std::string_view name) {
        constexpr std::uint64_t spread = 0x9E3779B97F4A7C15; // the golden ratio, as hashes use it
        constexpr unsigned kept = 10;                        // bits of a place
        std::uint64_t first = 0, last = 0;
        const std::size_t count = std::min(name.size(), sizeof first);
        std::memcpy(&first, name.data(), count);
        std::memcpy(&last, name.data() + name.size() - count, count);
        return (((first * spread) ^ last) * spread) >> (64 - kept);
    }
    const ElementName& Found(std::string_view name);

    std::unordered_map<std::string, ElementName> names_;
    std::array<const ElementName*, Places> last_{}; // found at each place
};

} // namespace vexora
