#include "chem/UnitMeasure.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace vexora {

namespace {

using Powers = std::array<int, 6>;

struct NamedUnit {
    std::string_view name;
    double size;
    Powers powers; // m kg s K mol A
};

constexpr Powers Pressure{-1, 1, -2, 0, 0, 0};
constexpr Powers Energy{2, 1, -2, 0, 0, 0};
constexpr Powers Force{1, 1, -2, 0, 0, 0};
constexpr Powers Amount{0, 0, 0, 0, 1, 0};
constexpr Powers Degree{0, 0, 0, 1, 0, 0};

// Definitions of the SI brochure and, for units outside it, NIST SP 811, appendix B.8.
constexpr NamedUnit Units[] = {
    {"m", 1, {1}},
    {"g", 1e-3, {0, 1}},
    {"s", 1, {0, 0, 1}},
    {"h", 3600, {0, 0, 1}},
    {"K", 1, Degree},
    {"C", 1, Degree},
    {"F", 5.0 / 9, Degree},
    {"R", 5.0 / 9, Degree},
    {"mol", 1, Amount},
    {"lbmol", 453.59237, Amount},
    {"A", 1e-10, {1}},
    {"ft", 0.3048, {1}},
    {"lb", 0.45359237, {0, 1}},
    {"L", 1e-3, {3}},
    {"Hz", 1, {0, 0, -1}},
    {"N", 1, Force},
    {"kgf", 9.80665, Force},
    {"dyn", 1e-5, Force},
    {"Pa", 1, Pressure},
    {"bar", 1e5, Pressure},
    {"atm", 101325, Pressure},
    {"torr", 101325.0 / 760, Pressure},
    {"Torr", 101325.0 / 760, Pressure},
    {"psi", 0.45359237 * 9.80665 / (0.0254 * 0.0254), Pressure},
    // A metre of mercury of 13595.1 kg/m3 under standard gravity, and an inch of it.
    {"mHg", 13595.1 * 9.80665, Pressure},
    {"inHg", 13595.1 * 9.80665 * 0.0254, Pressure},
    {"inHg (conventional)", 13595.1 * 9.80665 * 0.0254, Pressure},
    {"J", 1, Energy},
    {"erg", 1e-7, Energy},
    {"cal", 4.184, Energy},
    {"cal(IT)", 4.1868, Energy},
    {"Btu", 1055.05585262, Energy},
    {"W", 1, {2, 1, -3}},
    {"V", 1, {2, 1, -3, 0, 0, -1}},
    {"S", 1, {-2, -1, 3, 0, 0, 2}},
    {"P", 0.1, {-1, 1, -1}},
    {"Poise", 0.1, {-1, 1, -1}},
    {"Stoke", 1e-4, {2, 0, -1}},
    {"Dimensionless", 1, {}},
    {"per cent", 1e-2, {}},
    {"ppm", 1e-6, {}},
};

struct Prefix {
    std::string_view name;
    double size;
};
constexpr Prefix Prefixes[] = {{"micro", 1e-6}, {"centi", 1e-2}, {"T", 1e12}, {"G", 1e9},
                               {"M", 1e6},      {"k", 1e3},      {"h", 1e2},  {"d", 1e-1},
                               {"c", 1e-2},     {"m", 1e-3},     {"u", 1e-6}, {"n", 1e-9}};

const NamedUnit* FindUnit(std::string_view name) {
    const auto found = std::ranges::find(Units, name, &NamedUnit::name);
    return found == std::end(Units) ? nullptr : found;
}

void Multiply(UnitMeasure& measure, const UnitMeasure& by, int power) {
    measure.size *= std::pow(by.size, power);
    for (std::size_t i = 0; i < measure.powers.size(); ++i)
        measure.powers[i] += power * by.powers[i];
}

/// The whole name goes before a prefix with a name: "ft" is no prefix with a tonne.
std::optional<UnitMeasure> MeasureOfName(std::string_view name) {
    if (const NamedUnit* unit = FindUnit(name)) return UnitMeasure{unit->size, unit->powers};
    for (const Prefix& prefix : Prefixes) {
        if (!name.starts_with(prefix.name)) continue;
        if (const NamedUnit* unit = FindUnit(name.substr(prefix.name.size())))
            return UnitMeasure{prefix.size * unit->size, unit->powers};
    }
    return std::nullopt;
}

/// product: factor { ("*" | "/" | " ") factor }
/// factor: "(" product ")" | number | name [power]
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    std::optional<UnitMeasure> Whole() {
        const UnitMeasure measure = Product();
        if (failed_ || !rest_.empty()) return std::nullopt;
        return measure;
    }

private:
    bool Take(std::string_view part) {
        const bool found = rest_.starts_with(part);
        if (found) rest_.remove_prefix(part.size());
        return found;
    }

    UnitMeasure Product() {
        UnitMeasure measure = Factor();
        while (!failed_) {
            if (Take("/"))
                Multiply(measure, Factor(), -1);
            else if (Take("*") || Take(" "))
                Multiply(measure, Factor(), 1);
            else
                break;
        }
        return measure;
    }

    UnitMeasure Factor() {
        if (Take("(")) {
            const UnitMeasure inner = Product();
            failed_ = failed_ || !Take(")");
            return inner;
        }
        double number = 0;
        const auto read = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
        if (read.ec == std::errc()) {
            rest_.remove_prefix(static_cast<std::size_t>(read.ptr - rest_.data()));
            return {number, {}};
        }
        const auto unit = MeasureOfName(Name());
        failed_ = failed_ || !unit;
        UnitMeasure measure;
        if (unit) Multiply(measure, *unit, Power());
        return measure;
    }

    std::string_view Name() {
        const std::string_view from = rest_;
        const auto isLetter = [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        };
        while (!rest_.empty() && isLetter(rest_.front()))
            rest_.remove_prefix(1);
        // Words that belong to a name.
        for (const std::string_view word : {"(IT)", " (conventional)", " cent"})
            if (Take(word)) break;
        return from.substr(0, from.size() - rest_.size());
    }

    int Power() {
        const bool isDigit = !rest_.empty() && rest_.front() >= '1' && rest_.front() <= '9';
        if (!isDigit) return 1;
        const int power = rest_.front() - '0';
        rest_.remove_prefix(1);
        return power;
    }

    std::string_view rest_;
    bool failed_ = false;
};

} // namespace

std::optional<UnitMeasure> MeasureOfUnit(std::string_view text) {
    return Reader(text).Whole();
}

std::optional<double> FactorBetween(std::string_view from, std::string_view to, bool perMass) {
    auto source = MeasureOfUnit(from);
    const auto target = MeasureOfUnit(to);
    if (!source || !target) return std::nullopt;
    if (perMass) Multiply(*source, *MeasureOfUnit("g/mol"), 1);
    return source->powers == target->powers ? source->size / target->size : 0;
}

} // namespace vexora
