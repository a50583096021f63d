#include "chem/PropertyLimits.h"

#include <cmath>
#include <limits>
#include <span>

namespace vexora {

namespace {

constexpr double None = std::numeric_limits<double>::infinity();

// One rule for several codes, parted by blanks; "#" stands for each of 1, 2, 3.
struct Rule {
    std::string_view codes;
    double lower;
    double upper;
    bool aboveLower = false; // the lower bound itself is refused
    bool belowUpper = false; // the upper bound itself is refused
    bool absolute = false;   // the bounds are those of |v|
    // Azeotropic temperature and pressure: the system was found to have no azeotrope.
    bool orMinusOne = false; // -1 passes: no azeotrope
};

// What thermodynamics forbids [system units: K, kPa, kg/m3, m3/mol, J/K/mol, kJ/mol ...].
constexpr Rule HardLimits[] = {
    {"T TMN TBN TB TC TE TLC TUC TG TTR TDC", 0, None},
    {"TA PA", 0, None, false, false, false, true},
    {"P PV P# PC PO F", 0, None},
    {"VDN VDM VS VM VC VSC VDC", 0, None, true},
    {"CP CV CS CPV CVV CPW H/T S M# J#", 0, None},
    // G(T)-H(0) is minus the integral of S over T, and S is not negative by the third law.
    {"G/T", -None, 0},
    // Visible light is slower in matter than in the vacuum.
    {"RID RIX", 1, None, true},
    // "WL" without a number is a wavelength.
    {"XI# X4 X5 X6 XI4 XI5 XI6", 0, 1}, // of participants of a reaction, who are more
    {"W# X# XU# WU# XL# WL# XA# WA# XE# WE# XC# WC# W#S X#S V# V#S", 0, 1},
    {"KT KP KX KM KJ EE YRC PHx PHM PHM# PHJ PHJ# RSS Z ZC VLC VLR CGM", 0, None},
    {"AP# AC# AOC FC IST IIT NVC NFL NVK NTC NTD NDC NMC", 0, None},
};

// Where the data of common compounds lie; helium and molten salts are asked about.
constexpr Rule SoftLimits[] = {
    {"TMN", 100, 700},
    {"TB TBN", 100, 800},
    {"TC", 190, 1000},
    {"T TG TTR TDC", 1, 2000},
    {"TE TLC TUC", 100, 1000},
    {"TA", 100, 1000, false, false, false, true},
    {"PC", 500, 10000},
    {"PV", 0, 10000, true},
    {"P P# PO F", 0, 1000000, true},
    {"PA", -None, 1000000, false, false, false, true},
    {"VDC", 160, 1000},
    {"VC", 0.00008, 0.01},
    {"VDN", 0, 5000, true},
    {"VM", 0.00001, None, true},
    {"VS VSC", 0.0002, None, true},
    {"VDM", -None, 100000},
    // Excess and partial quantities have both signs.
    {"VEX VP# VA", 0, 0.001, false, false, true},
    {"CP CV CS CPA H/T S G/T", 0.001, 10000, false, false, true},
    {"CEX", 0.001, 1000, false, false, true},
    {"CPW CVW", 1, 4200, false, false, true},
    {"CPV CVV", 1000, 4200000, false, false, true},
    {"HEX GEX", 0, 10, false, false, true},
    {"HTR HVP", 0, 300},
    {"RID RIX", -None, 2, false, true},
    {"M# J#", -None, 20, false, true},
    {"YRC", 0.0001, 0.1},
    {"RSS", 10, 10000},
    {"VTP VPT VPA VVB VVA VVI VVE VVC VVD VV1 VV2", 0, 1, false, false, true},
    {"Z ZC IST IIT", 0.0001, 10},
    {"CGM", 0.5, 2},
};

bool Matches(std::string_view pattern, std::string_view code) {
    if (pattern.size() != code.size()) return false;
    for (std::size_t i = 0; i < code.size(); ++i) {
        const bool digit = code[i] >= '1' && code[i] <= '3';
        if (pattern[i] != code[i] && !(pattern[i] == '#' && digit)) return false;
    }
    return true;
}

bool Names(std::string_view codes, std::string_view code) {
    for (std::size_t at = 0; at < codes.size();) {
        const std::size_t end = std::min(codes.find(' ', at), codes.size());
        if (Matches(codes.substr(at, end - at), code)) return true;
        at = end + 1;
    }
    return false;
}

bool Holds(const Rule& rule, double value) {
    if (rule.orMinusOne && value == -1) return true;
    const double v = rule.absolute ? std::abs(value) : value;
    const bool low = rule.aboveLower ? v > rule.lower : v >= rule.lower;
    const bool high = rule.belowUpper ? v < rule.upper : v <= rule.upper;
    return low && high;
}

/// The first rule that names the code decides.
bool Passes(std::span<const Rule> rules, std::string_view code, double value) {
    for (const Rule& rule : rules) {
        if (Names(rule.codes, code)) return Holds(rule, value);
    }
    return true;
}

} // namespace

bool IsValidValue(std::string_view code, double systemValue) {
    return Passes(HardLimits, code, systemValue);
}

bool IsPlausibleValue(std::string_view code, double systemValue) {
    return Passes(SoftLimits, code, systemValue);
}

} // namespace vexora
