#include "records/ReactionAdvice.h"

#include "chem/Balancer.h"
#include "chem/CommentTags.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace vexora {

namespace {

constexpr double StandardTemperature = 298.15; // [K]
constexpr std::string_view Oxygen = "7782447";

/// What an organic compound burns to, with its enthalpy of formation at 298.15 K [kJ/mol] (CODATA
/// key values for thermodynamics, 1989).
struct Product {
    std::string_view rn, phase, words;
    double enthalpy;
};
constexpr Product Products[] = {{"124389", "G", "carbon dioxide", -393.51},
                                {"7732185", "L", "liquid water", -285.83},
                                {"7727379", "G", "nitrogen", 0}};
constexpr int MostDecimals = 2; // of these

bool IsGas(const std::string& phase) {
    return IsBlankField(phase) || phase == "G" || phase == "IG";
}

/// The product at a place, null for what is another one or in another phase.
const Product* ProductAt(const clsC& value, int i) {
    const std::string& phase = value.PARTICIPANT_PHASE(i);
    const auto* const found = std::ranges::find(Products, value.Parent->RN(i), &Product::rn);
    if (found == std::end(Products)) return nullptr;
    return found->phase == phase || (found->phase == "G" && IsGas(phase)) ? found : nullptr;
}

bool IsAtStandardTemperature(const clsC& value) {
    const auto is = [](const std::string& text) {
        return IsNumeric(text) && Equal(Val(text), StandardTemperature);
    };
    return is(value.INITIAL_TEMPERATURE) &&
           (IsBlankField(value.FINAL_TEMPERATURE) || is(value.FINAL_TEMPERATURE));
}

/// A combustion taken apart.
struct Combustion {
    int compound = 0;    // its place
    double products = 0; // their enthalpy of formation [kJ/mol]
    std::string words;   // what that was taken from
};

std::optional<Combustion> CombustionOf(const clsC& value) {
    Combustion combustion;
    SlotTexts coefficients;
    for (int i = 1; i <= clsQ::MostParticipants; ++i) {
        coefficients.push_back(value.PARTICIPANT_COEFF(i));
        const double n = Val(coefficients.back());
        if (value.Parent->RN(i).empty() || n == 0) continue;
        if (n > 0) {
            const Product* const product = ProductAt(value, i);
            if (!product) return std::nullopt;
            combustion.products += n * product->enthalpy;
            if (product->enthalpy != 0)
                combustion.words += (combustion.words.empty() ? "with " : " and ") +
                                    NumberText(product->enthalpy) + " kJ/mol for " +
                                    std::string(product->words);
        } else if (value.Parent->RN(i) != Oxygen) {
            // Of several moles it would not be said which are meant.
            if (combustion.compound != 0 || n != -1) return std::nullopt;
            combustion.compound = i;
        } else if (!IsGas(value.PARTICIPANT_PHASE(i))) {
            return std::nullopt;
        }
    }
    if (combustion.compound == 0 || !IsBalanced(value.Parent->Formulas(), coefficients))
        return std::nullopt;
    return combustion;
}

/// By whose mass the value goes.
bool IsOfCompound(const clsC& value, int place) {
    return !value.NeedsMolarMass() || value.MassOf().empty() ||
           value.MassOf() == value.Parent->RN(place);
}

constexpr double GasConstant = 8.314462618; // [J/K/mol], CODATA 2018, exact but for the rounding

/// A straight line through points, with the standard errors of its two figures.
struct Line {
    double slope = 0, intercept = 0;
    double ofSlope = 0, ofIntercept = 0;
};

struct Point {
    double x, y;
};

/// Ordinary least squares; nothing for points above one another.
std::optional<Line> LineThrough(const std::vector<Point>& points) {
    const auto n = static_cast<double>(points.size());
    double x = 0, y = 0, xx = 0, xy = 0, residuals = 0;
    for (const Point& point : points) {
        x += point.x / n;
        y += point.y / n;
    }
    for (const Point& point : points) {
        xx += (point.x - x) * (point.x - x);
        xy += (point.x - x) * (point.y - y);
    }
    constexpr double least = 1e-6; // of the mean: below it all are one
    if (std::sqrt(xx / n) < least * std::abs(x)) return std::nullopt;
    Line line{xy / xx, y - xy / xx * x, 0, 0};
    for (const Point& point : points) {
        const double off = point.y - line.intercept - line.slope * point.x;
        residuals += off * off;
    }
    const double scatter = std::sqrt(residuals / (n - 2));
    line.ofSlope = scatter / std::sqrt(xx);
    line.ofIntercept = scatter * std::sqrt(1 / n + x * x / xx);
    return line;
}

/// A figure and its error with as many places as two digits of the error have.
std::string WithError(double figure, double error, const char* unit) {
    constexpr int most = 4;
    const int places = error > 0 ? 1 - static_cast<int>(std::floor(std::log10(error))) : most;
    const int shown = std::clamp(places, 0, most);
    return FormatFixed(figure, shown) + " " + unit + " (standard error " +
           FormatFixed(error, shown) + ")";
}

/// Rows with both numbers above 0.
std::vector<Point> VantHoffPoints(const clsE& set) {
    const SystemColumn constants(set, 0), temperatures(set, 1);
    const bool isLog = CommentTags(set.Header.DATACOMMENT).Has("L");
    std::vector<Point> points;
    for (const clsData& row : set.recData) {
        const auto k = constants.Of(row), t = temperatures.Of(row);
        if (!k || !t || *t <= 0 || (!isLog && *k <= 0)) continue;
        if (!constants.Converts(row) || !temperatures.Converts(row)) continue;
        points.push_back({1 / *t, isLog ? *k * std::numbers::ln10 : std::log(*k)});
    }
    return points;
}

/// Of a gas the constant of molarities goes by the internal energy.
bool GoesByEnthalpy(const clsE& set) {
    const std::vector<std::string> phases = set.Phases();
    return set.PRPCODE.starts_with('K') &&
           (set.PRPCODE != "KJ" || std::ranges::none_of(phases, IsGas));
}

} // namespace

void AdviseOnCombustion(const clsC& value, Findings& findings) {
    const bool isCombustion = value.Parent && value.Parent->REACTCLASS == "CMO";
    if (!isCombustion || value.PRPCODE != "HR" || !IsAtStandardTemperature(value)) return;
    const UnitConversion unit = value.PropertyConversion();
    if (!IsNumeric(value.PRPVALUE) || !unit.IsPossible()) return;
    const auto combustion = CombustionOf(value);
    if (!combustion || !IsOfCompound(value, combustion->compound)) return;
    const std::string enthalpy = unit.Converted(value.PRPVALUE).text;
    const std::string phase = PhaseName(value.PARTICIPANT_PHASE(combustion->compound));
    Remarks(findings, value)
        .Hint(PropertyName(value.PRPCODE, value.DataContext()) + ": " + combustion->words +
              " the enthalpy of formation of " + value.Parent->Name(combustion->compound) +
              (phase.empty() ? "" : " (" + phase + ")") + " is " +
              FormatFixed(combustion->products - Val(enthalpy),
                          std::min(DecimalPlaces(enthalpy), MostDecimals)) +
              " kJ/mol at " + NumberText(StandardTemperature) + " K");
}

void AdviseOnEquilibrium(const clsE& set, Findings& findings) {
    constexpr std::size_t leastRows = 5;
    if (set.nVar != 1 || set.VARIABLE(1) != "T" || set.Definition().Relation() != "A" ||
        !GoesByEnthalpy(set))
        return;
    const std::vector<Point> points = VantHoffPoints(set);
    if (points.size() < leastRows) return;
    const auto line = LineThrough(points);
    if (!line) return;
    constexpr double joules = 1000; // in a kJ
    const double perSlope = GasConstant / joules;
    Remarks(findings, set)
        .Hint(PropertyName(set.PRPCODE, set.DataContext()) + ": ln K against 1/T of " +
              std::to_string(points.size()) + " rows gives an enthalpy of reaction of " +
              WithError(-perSlope * line->slope, perSlope * line->ofSlope, "kJ/mol") +
              " and an entropy of " +
              WithError(GasConstant * line->intercept, GasConstant * line->ofIntercept, "J/K/mol"));
}

} // namespace vexora
