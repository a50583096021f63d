#include "reference/Numbers.h"

#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace vexora {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The longest beginning of a text that the number grammar takes.
struct Beginning {
    std::size_t length = 0; // 0 if there is none
    /// All its digits as one whole number, as long as a double holds that exactly; else isPlain is
    /// false, as for a number with an exponent.
    std::int64_t digits = 0;
    std::size_t decimals = 0;
    bool isPlain = false;
};

/// Takes the digits from this byte on; how many there are.
std::size_t TakeDigits(std::string_view text, std::size_t at, std::int64_t& digits) {
    constexpr std::int64_t most = 999'999'999'999'999; // of 15 digits, all of which are doubles
    const std::size_t first = at;
    for (; at < text.size() && IsDigit(text[at]); ++at)
        digits = digits > most ? digits : digits * 10 + (text[at] - '0');
    return at - first;
}

Beginning BeginningOf(std::string_view text) {
    constexpr std::int64_t bound = 1'000'000'000'000'000;
    Beginning number;
    std::size_t at = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    const std::size_t whole = TakeDigits(text, at, number.digits);
    at += whole;
    if (at < text.size() && text[at] == '.') {
        number.decimals = TakeDigits(text, at + 1, number.digits);
        if (whole + number.decimals == 0) return {};
        at += 1 + number.decimals;
    } else if (whole == 0) {
        return {};
    }
    number.isPlain = number.digits < bound;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        std::int64_t ofExponent = 0;
        const std::size_t digits = TakeDigits(text, exponent, ofExponent);
        // An "E" without digits ends the number in front of it: "5E" is 5.
        if (digits > 0) at = exponent + digits;
        number.isPlain = number.isPlain && digits == 0;
    }
    number.length = at;
    return number;
}

/// True when a number of the grammar that is out of the range of doubles is too small, not too big.
bool IsTiny(std::string_view number) {
    const std::size_t e = number.find_first_of("eE");
    if (e != std::string_view::npos && e + 1 < number.size()) return number[e + 1] == '-';
    return number.find_first_of("123456789") > number.find('.');
}

// These are doubles without a rounding, so that a plain number over one of them is rounded once, as
// it has to be.
constexpr std::array<double, 23> PowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                             1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Value of the beginning of a text; nothing when there is none or it is not finite.
std::optional<double> Parse(std::string_view text, const Beginning& number) {
    if (number.length == 0) return std::nullopt;
    if (number.isPlain && number.decimals < PowersOfTen.size()) {
        const auto whole = static_cast<double>(number.digits);
        const double size = number.decimals == 0 ? whole : whole / PowersOfTen[number.decimals];
        return text[0] == '-' ? -size : size;
    }
    // from_chars knows no plus sign.
    const std::size_t sign = text[0] == '+' ? 1 : 0;
    const std::string_view bare = text.substr(sign, number.length - sign);
    double value = 0;
    const auto [end, error] = std::from_chars(bare.data(), bare.data() + bare.size(), value);
    if (error == std::errc::result_out_of_range) {
        if (IsTiny(bare)) return 0.0;
        return std::nullopt;
    }
    return value;
}

/// The 15 significant decimal digits of |v| and the power of ten of the first one.
struct Decimal {
    std::string digits;
    int exponent = 0;
};

// Rounding is done on these digits: 2.675 is 2.67499... as a double and yet rounds to 2.68.
Decimal ToDecimal(double v) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                            std::fabs(v), std::chars_format::scientific, 14);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t e = text.find('e');
    Decimal result;
    result.digits = std::string(1, text[0]) + std::string(text.substr(2, e - 2));
    result.exponent = static_cast<int>(ToInteger(Val(text.substr(e + 1))));
    return result;
}

/// Adds one to the last digit; true when the number became one digit longer.
bool Increment(std::string& digits) {
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return false;
        }
        *digit = '0';
    }
    digits.insert(digits.begin(), '1');
    return true;
}

/// "000123" with 2 places is "1.23"; at least one digit stands before the point.
std::string PlacePoint(std::string digits, std::size_t places) {
    if (digits.size() <= places) digits.insert(0, places + 1 - digits.size(), '0');
    const std::size_t extra = digits.size() - places - 1;
    digits.erase(0, std::min(digits.find_first_not_of('0'), extra));
    if (places > 0) digits.insert(digits.size() - places, ".");
    return digits;
}

// The addend keeps an exact power of ten from losing a digit to the logarithm; what rounds up to
// one (999.9999999) counts as one.
int IntegerDigits(double v) {
    if (v == 0 || !std::isfinite(v)) return 0;
    return static_cast<int>(std::floor(std::log10(std::fabs(v)) + 0.000001)) + 1;
}

/// An offset changes the number of integer digits, a factor is taken to keep the relative
/// precision.
bool HasOffset(std::string_view unitCode) {
    return unitCode == "C" || unitCode == "F";
}

} // namespace

std::optional<double> NumberIn(std::string_view text) {
    text = TrimBlanks(text);
    const Beginning number = BeginningOf(text);
    return number.length == text.size() ? Parse(text, number) : std::nullopt;
}

bool IsNumeric(std::string_view text) {
    text = TrimBlanks(text);
    const Beginning number = BeginningOf(text);
    if (number.length == 0 || number.length != text.size()) return false;
    return number.isPlain || Parse(text, number).has_value(); // a plain one is in range
}

double Val(std::string_view text) {
    std::string packed;
    if (text.find(' ') != std::string_view::npos) {
        packed = Replace(text, " ", "");
        text = packed;
    }
    return Parse(text, BeginningOf(text)).value_or(0.0);
}

bool Equal(double a, double b) {
    constexpr double nearness = 1e-9;
    if (a == 0 || b == 0) return a == b;
    return std::abs((a - b) / a) < nearness;
}

std::string NumberText(double v) {
    constexpr double plainBound = 1e15;
    if (!std::isfinite(v) || v == 0) return "0";
    if (std::fabs(v) < plainBound && v == std::trunc(v))
        return std::to_string(static_cast<std::int64_t>(v));
    Decimal decimal = ToDecimal(v);
    std::string& digits = decimal.digits;
    digits.erase(digits.find_last_not_of('0') + 1);
    const std::string sign = v < 0 ? "-" : "";
    const int e = decimal.exponent;
    if (e >= -15 && e < 15) {
        const int places = std::max(0, static_cast<int>(digits.size()) - 1 - e);
        const auto width = static_cast<std::size_t>(e + 1 + places);
        if (e >= 0 && digits.size() < width) digits.append(width - digits.size(), '0');
        return sign + PlacePoint(digits, static_cast<std::size_t>(places));
    }
    if (digits.size() > 1) digits.insert(1, ".");
    return sign + digits + (e < 0 ? "E-" : "E+") + std::to_string(std::abs(e));
}

std::string FormatFixed(double v, int decimals) {
    if (!std::isfinite(v)) return "0";
    decimals = std::max(decimals, 0);
    Decimal decimal = v == 0 ? Decimal{"0", 0} : ToDecimal(v);
    std::string& digits = decimal.digits;
    const int keep = decimal.exponent + 1 + decimals; // digits that stay before the cut
    if (keep < 0) {
        digits = "0";
    } else if (static_cast<std::size_t>(keep) < digits.size()) {
        const bool up = digits[static_cast<std::size_t>(keep)] >= '5';
        digits.resize(static_cast<std::size_t>(keep));
        if (up) Increment(digits);
    } else {
        digits.append(static_cast<std::size_t>(keep) - digits.size(), '0');
    }
    // Nothing rounds to "-0".
    const bool negative = v < 0 && digits.find_first_not_of('0') != std::string::npos;
    return (negative ? "-" : "") + PlacePoint(digits, static_cast<std::size_t>(decimals));
}

std::optional<std::int64_t> ParseInteger(std::string_view text) {
    text = TrimBlanks(text);
    if (!text.empty() && text[0] == '+') {
        text.remove_prefix(1);
        if (text.empty() || !IsDigit(text[0])) return std::nullopt;
    }
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::int64_t ToInteger(double v) {
    if (std::isnan(v)) return 0;
    // Not every int64 is a double; this one is, and the first that does not fit.
    constexpr double bound = 9223372036854775808.0; // 2^63
    if (v >= bound) return std::numeric_limits<std::int64_t>::max();
    if (v <= -bound) return std::numeric_limits<std::int64_t>::min();
    const double floor = std::floor(v);
    const double rest = v - floor;
    const auto low = static_cast<std::int64_t>(floor);
    if (rest > 0.5 || (rest == 0.5 && low % 2 != 0)) return low + 1;
    return low;
}

std::string NormalizeNumber(std::string_view text) {
    constexpr std::string_view typesetMinus = "\u2212";
    text = TrimBlanks(text);
    std::string result = text.find(typesetMinus.front()) == text.npos
                             ? std::string(text)
                             : Replace(text, typesetMinus, "-");
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (result[i] == ',')
            result[i] = '.';
        else if (result[i] == ' ')
            result.erase(i, 1);
    }
    if (!result.empty() && result[0] == '.') result.insert(0, "0");
    return result;
}

int DecimalPlaces(std::string_view text) {
    text = TrimBlanks(text);
    const auto d = static_cast<std::int64_t>(Find(text, "."));
    auto e = static_cast<std::int64_t>(Find(text, "e"));
    if (e == 0) e = static_cast<std::int64_t>(Find(text, "E"));
    std::int64_t places = d > 0 ? static_cast<std::int64_t>(CodePointCount(text)) - d : 0;
    if (e != 0) {
        const double x = Val(Substring(text, static_cast<std::size_t>(e) + 1));
        // The exponent moves the point; without a point d is 0, which gives the place too many.
        places = e - 1 - d - ToInteger(std::clamp(x, -1e6, 1e6));
    }
    return static_cast<int>(std::clamp<std::int64_t>(places, 0, 255));
}

int SignificantDigits(std::string_view text) {
    text = TrimBlanks(text);
    std::size_t e = std::min(text.find('e'), text.size());
    if (e == text.size()) e = std::min(text.find('E'), e);
    text = text.substr(0, e);
    // Signs, point and leading zeros tell the size of a number, not its precision.
    while (!text.empty() && (text[0] == '-' || text[0] == '.' || text[0] == '0'))
        text.remove_prefix(1);
    const std::size_t length = CodePointCount(text);
    return static_cast<int>(text.find('.') == std::string_view::npos ? length : length - 1);
}

int TemperatureDigits(std::string_view text, std::string_view unitCode) {
    const int digits = SignificantDigits(text);
    if (!HasOffset(unitCode)) return digits;
    const double v = std::fabs(Val(text));
    // 273.15 brings a number up to three integer digits; the typed ones are among them.
    return digits + (v < 1 ? 3 : v < 10 ? 2 : v < 100 ? 1 : 0);
}

double LastPlace(std::string_view text) {
    text = TrimBlanks(text);
    const std::size_t e = std::min(text.find_first_of("eE"), text.size());
    const std::size_t point = text.substr(0, e).find('.');
    const std::size_t places = point < e ? e - 1 - point : 0;
    if (e == text.size() && places < PowersOfTen.size()) return 1 / PowersOfTen[places];
    const double exponent = e < text.size() ? Val(text.substr(e + 1)) : 0;
    return std::pow(10.0, exponent - static_cast<double>(places));
}

std::string FormatDigits(std::string_view text, int digits) {
    return FormatValue(Val(text), digits == 0 ? SignificantDigits(text) : digits);
}

std::string FormatValue(double v, int digits) {
    if (digits == 0) digits = SignificantDigits(NumberText(v));
    return FormatFixed(v, std::max(0, digits - IntegerDigits(v)));
}

} // namespace vexora
