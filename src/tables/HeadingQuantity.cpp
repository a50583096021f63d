#include "tables/HeadingQuantity.h"

#include <array>
#include <cmath>
#include <vector>

#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "tables/HeadingText.h"
#include "tables/ProcessTable.h"

namespace vexora {

namespace {

struct Name {
    std::string_view printed, quantity;
};

/// Without case, signs of lowering and points.
constexpr Name StateWords[] = {
    {"temperature", "T"},
    {"temp", "T"},
    {"temperature t", "T"},
    {"temperature, t", "T"},
    {"boiling temperature", "T"},
    {"boiling point", "T"},
    {"bubble temperature", "T"},
    {"bubble point temperature", "T"},
    {"equilibrium temperature", "T"},
    {"cloud point", "T"},
    {"cloud point temperature", "T"},
    {"liquidus temperature", "T"},
    {"t exp", "T"},
    {"t, exp", "T"},
    {"pressure", "P"},
    {"total pressure", "P"},
    {"pressure p", "P"},
    {"pressure, p", "P"},
    {"vapor pressure", "P"},
    {"vapour pressure", "P"},
    {"equilibrium pressure", "P"},
    {"bubble pressure", "P"},
    {"bubble point pressure", "P"},
    {"system pressure", "P"},
    {"ptot", "P"},
    {"p tot", "P"},
    {"p total", "P"},
    {"p exp", "P"},
    {"p, exp", "P"},
};
constexpr Name StateSigns[] = {
    {"T", "T"}, {"\u03b8", "T"}, {"Tb", "T"}, {"P", "P"}, {"p", "P"},
};

/// Functions as their signs read without marks of standard state and molar quantity; "H-H(298)" is
/// any difference to the enthalpy at the reference temperature.
constexpr Name FunctionSigns[] = {
    {"Cp", "CP"},    {"cp", "CP"},      {"CP", "CP"},          {"Cv", "CV"},          {"cv", "CV"},
    {"CV", "CV"},    {"Cs", "CS"},      {"Csat", "CS"},        {"C\u03c3", "CS"},     {"S", "S"},
    {"H-H(0)", "H"}, {"H-H(298)", "H"}, {"(H-H(0))/T", "H/T"}, {"(G-H(0))/T", "G/T"},
};
constexpr Name FunctionWords[] = {
    {"isobaric heat capacity", "CP"},
    {"molar isobaric heat capacity", "CP"},
    {"isobaric molar heat capacity", "CP"},
    {"heat capacity at constant pressure", "CP"},
    {"molar heat capacity at constant pressure", "CP"},
    {"isochoric heat capacity", "CV"},
    {"heat capacity at constant volume", "CV"},
    {"molar heat capacity at constant volume", "CV"},
    {"saturation heat capacity", "CS"},
    {"molar entropy", "S"},
    {"standard entropy", "S"},
    {"standard molar entropy", "S"},
};
/// Columns of a pure compound, whose names of the vocabulary are understood as well.
constexpr std::string_view Functions[] = {"CP", "CV", "CS", "H", "H/T", "S", "G", "G/T", "UA"};

template <std::size_t N>
std::string Found(const Name (&names)[N], std::string_view printed) {
    for (const Name& name : names)
        if (name.printed == printed) return std::string(name.quantity);
    return {};
}

std::string ReadState(std::string_view text) {
    const std::string sign = Replace(text, "_", "");
    if (std::string quantity = Found(StateSigns, sign); !quantity.empty()) return quantity;
    const std::string words = Replace(Replace(LowerAscii(text), "_", " "), ".", "");
    return Found(StateWords, words);
}

/// "H°(T) - H°(298.15 K)" becomes "H-H(298)", "C°p,m" "Cp".
std::string FunctionSign(std::string_view text) {
    std::string sign(text);
    constexpr std::array<Name, 27> Marks{{
        {" ", ""},
        {"\u00b0", ""},
        {"^o", ""},
        {"^0", ""},
        {"_", ""},
        {"{", "("},
        {"}", ")"},
        {"[", "("},
        {"]", ")"},
        {"(T)", ""},
        {"(T/K)", ""},
        {"K)", ")"},
        {",T", ""},
        {"HT-", "H-"},
        {"GT-", "G-"},
        {"HmT", "H"},
        {"Hm", "H"},
        {"Gm", "G"},
        {"Sm", "S"},
        {"ST", "S"},
        {",m", ""},
        {".m", ""},
        {"(298.15)", "(298)"},
        {"(Tr)", "(298)"},
        {"-H298.15", "-H(298)"},
        {"-H298", "-H(298)"},
        {"-H0", "-H(0)"},
    }};
    for (const auto& [printed, plain] : Marks)
        sign = Replace(sign, printed, plain);
    for (const std::string_view capacity : {"Cpm", "cpm", "CPm", "Cvm", "cvm", "CVm", "Csatm"})
        if (sign == capacity) sign.pop_back();
    return sign.starts_with('(') && sign.ends_with(')') && sign.find('/') == sign.npos
               ? sign.substr(1, sign.size() - 2)
               : sign;
}

std::string ReadFunction(std::string_view text) {
    const std::string sign = FunctionSign(text);
    if (std::string quantity = Found(FunctionSigns, sign); !quantity.empty()) return quantity;
    const std::string words = LowerAscii(text);
    if (std::string quantity = Found(FunctionWords, words); !quantity.empty()) return quantity;
    for (const std::string_view code : Functions)
        if (EqualNoCase(words, PropertyName(code, "Pure"))) return std::string(code);
    return {};
}

/// A power of ten in front of a quantity, by which the values were multiplied: "100 w1",
/// "10^-3 p". Papers that lost the raising print "102 w1".
double TakeScale(std::string_view& text) {
    const std::vector<HeadingToken> tokens = HeadingTokens(text);
    if (tokens.size() < 2 || tokens[0].kind != HeadingToken::Kind::Number) return 1;
    std::size_t next = 1;
    double scale = 0;
    if (IsOneOf(tokens[0].text, {"100", "1000", "10000"})) scale = Val(tokens[0].text);
    if (IsOneOf(tokens[0].text, {"102", "103", "104"}))
        scale = std::pow(10, Val(tokens[0].text.substr(2)));
    if (tokens[0].text == "10" && tokens[1].text == "^") {
        const bool isNegative = tokens.size() > 2 && tokens[2].text == "-";
        next = isNegative ? 3 : 2;
        if (next >= tokens.size() || tokens[next].text.size() != 1) return 1;
        scale = std::pow(10, (isNegative ? -1 : 1) * Val(tokens[next].text));
        ++next;
    }
    if (next < tokens.size() && tokens[next].text == "*") ++next;
    const bool isInFront =
        scale > 0 && next < tokens.size() &&
        (tokens[next].kind == HeadingToken::Kind::Word || tokens[next].text == "(");
    if (!isInFront) return 1;
    text.remove_prefix(tokens[next].begin);
    return scale;
}

struct Parted {
    std::string_view quantity, unit;
};

bool Opens(char c) {
    return c == '(' || c == '[' || c == '{';
}
bool Closes(char c) {
    return c == ')' || c == ']' || c == '}';
}

/// The ways in which a heading may be a quantity and its unit: no unit, then parted by "/", "," or
/// a blank outside of brackets, or the unit in the last brackets.
std::vector<Parted> WaysToPart(std::string_view plain) {
    std::vector<Parted> ways{{plain, {}}};
    int depth = 0;
    for (std::size_t at = 0; at < plain.size(); ++at) {
        const char c = plain[at];
        const bool isOutside = depth == 0;
        depth += Opens(c) ? 1 : Closes(c) ? -1 : 0;
        if (!isOutside || at == 0) continue;
        const std::string_view before = TrimBlanks(plain.substr(0, at));
        const std::string_view behind = plain.substr(at + 1);
        if (c == '/' || c == ',' || c == ';' || c == ' ') ways.push_back({before, behind});
        if (plain.substr(at).starts_with("\u00b0")) ways.push_back({before, plain.substr(at)});
        if (c == ' ' && behind.starts_with("in ")) ways.push_back({before, behind.substr(3)});
        if (Opens(c) && Closes(plain.back()) && plain.find_first_of(")]}", at) == plain.size() - 1)
            ways.push_back({before, plain.substr(at + 1, plain.size() - at - 2)});
        if (c == '(' && plain.ends_with("))")) // "Cp (J/(mol K))"
            ways.push_back({before, plain.substr(at + 1, plain.size() - at - 2)});
    }
    return ways;
}

/// Brackets around the unit alone, or a slash in front of it, as a second row of heads has them.
std::string_view BareUnit(std::string_view unit) {
    unit = TrimBlanks(unit);
    while (unit.starts_with('/') || unit.starts_with(','))
        unit = TrimBlanks(unit.substr(1));
    if (unit.size() > 2 && Opens(unit.front()) && unit.find_first_of(")]}") == unit.size() - 1)
        unit = TrimBlanks(unit.substr(1, unit.size() - 2));
    return unit;
}

std::optional<ReadColumn> ReadParted(const Parted& way, double scale, std::string quantity) {
    ReadColumn column;
    const std::string_view unit = BareUnit(way.unit);
    if (quantity.empty() || (unit.empty() && scale != 1)) return std::nullopt;
    if (!unit.empty()) {
        const auto read = ReadUnit(unit, quantity, scale);
        if (!read) return std::nullopt;
        column.unit = *read;
        column.isUnitPrinted = true;
    }
    column.quantity = std::move(quantity);
    return column;
}

/// "t" is a time as well, and "S" much else: such signs need their unit.
bool NeedsUnit(std::string_view quantity, std::string_view text) {
    return quantity.starts_with('J') || IsOneOf(text, {"t", "S", "Cs", "cs"});
}

std::optional<ReadColumn> ReadComposition(const Parted& way, double scale,
                                          const NamedComponents& components) {
    const auto fraction = ReadFraction(way.quantity, components);
    if (!fraction) return std::nullopt;
    const std::string_view unit = BareUnit(way.unit);
    const bool isTwice = fraction->isPerCent && (scale != 1 || !unit.empty());
    if (isTwice || (unit.empty() && NeedsUnit(fraction->quantity, {}))) return std::nullopt;
    std::optional<HeadingUnit> read = UnitByFactor(fraction->factor / scale, fraction->quantity);
    if (!unit.empty()) read = ReadUnit(unit, fraction->quantity, scale);
    if (!read) return std::nullopt;
    ReadColumn column;
    column.quantity = fraction->quantity;
    column.unit = *read;
    column.isUnitPrinted = fraction->isPerCent || scale != 1 || !unit.empty();
    column.isVaporLetter = fraction->isVaporLetter;
    column.isLiquidLetter = fraction->isLiquidLetter;
    column.mark = fraction->mark;
    return column;
}

std::optional<ReadColumn> ReadWay(const Parted& way, double scale,
                                  const NamedComponents& components) {
    const bool isMixture = components.MixType() > 1;
    if (isMixture)
        if (auto column = ReadComposition(way, scale, components)) return column;
    std::string quantity = way.quantity == "t" ? "T" : ReadState(way.quantity);
    if (!isMixture && quantity != "T") quantity = ReadFunction(way.quantity);
    if (way.unit.empty() && NeedsUnit(quantity, way.quantity)) return std::nullopt;
    return ReadParted(way, scale, quantity);
}

} // namespace

std::optional<ReadColumn> ReadHeading(std::string_view plain, const NamedComponents& components) {
    if (EqualNoCase(plain, "Comb.Uncertainty")) {
        ReadColumn column;
        column.quantity = ProcessColumn::CombinedUncertainty;
        return column;
    }
    const double scale = TakeScale(plain);
    for (const Parted& way : WaysToPart(plain))
        if (auto column = ReadWay(way, scale, components)) return column;
    return std::nullopt;
}

} // namespace vexora
