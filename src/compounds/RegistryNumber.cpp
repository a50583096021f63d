#include "compounds/RegistryNumber.h"

#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsOneDigit(std::string_view text) {
    return text.size() == 1 && IsDigit(text.front());
}

/// The first character that is no digit, counted from 0, or nothing.
std::optional<std::size_t> FirstOdd(std::string_view text) {
    const std::size_t place = text.find_first_not_of("0123456789");
    return place == text.npos ? std::nullopt : std::optional(place);
}

const std::string NotNumeric = "Enter numeric RN";

} // namespace

std::string RegistryParts::Joined() const {
    const std::string digit = IsOneDigit(Check) ? Check : CheckDigitText(Front, Middle);
    return Front + Middle + digit;
}

RegistryParts SplitRegistryNumber(std::string_view rn) {
    RegistryParts parts;
    if (rn.empty()) return parts;
    parts.Check = rn.substr(rn.size() - 1);
    rn.remove_suffix(1);
    const std::size_t middle = rn.size() < 2 ? 0 : rn.size() - 2;
    parts.Middle = rn.substr(middle);
    parts.Front = rn.substr(0, middle);
    return parts;
}

std::string DashedRegistryNumber(std::string_view rn) {
    const RegistryParts parts = SplitRegistryNumber(rn);
    return parts.Front + "-" + parts.Middle + "-" + parts.Check;
}

std::optional<RegistryParts> PrintedRegistryNumber(std::string_view text) {
    std::string plain(Trim(text));
    for (const char* dash : {"\u2010", "\u2011", "\u2012", "\u2013"}) // as printers set it
        plain = Replace(plain, dash, "-");
    if (plain.size() < 7 || plain.size() > 12) return std::nullopt;
    const std::size_t dashes = plain.size() - 5;
    RegistryParts parts{plain.substr(0, dashes), plain.substr(dashes + 1, 2),
                        plain.substr(plain.size() - 1)};
    if (DashedRegistryNumber(parts.Front + parts.Middle + parts.Check) != plain)
        return std::nullopt;
    if (FirstOdd(parts.Front + parts.Middle + parts.Check)) return std::nullopt;
    return parts;
}

std::string CheckDigitText(std::string_view front, std::string_view middle) {
    if (CodePointCount(TrimBlanks(middle)) != 2) return {};
    const std::optional<char> digit = CheckDigit(std::string(front) + std::string(middle));
    return digit ? std::string(1, *digit) : std::string();
}

std::optional<RegistryNumberFault> CheckRegistryNumber(const RegistryParts& parts) {
    if (parts.IsEmpty()) return std::nullopt;
    if (const auto odd = FirstOdd(parts.Front)) return RegistryNumberFault{NotNumeric, 0, *odd, 1};
    if (CodePointCount(parts.Middle) != 2) return RegistryNumberFault{NotNumeric, 1, 0, 0};
    if (const auto odd = FirstOdd(parts.Middle)) return RegistryNumberFault{NotNumeric, 1, *odd, 1};
    if (parts.Front.empty()) return RegistryNumberFault{NotNumeric, 0, 0, 0};
    if (parts.Front.front() == '0') return RegistryNumberFault{"RN cannot start with 0", 0, 0, 1};
    return std::nullopt;
}

std::string FreeSubstanceRN(const clsR& source, std::string_view rn) {
    std::string free(rn);
    std::int64_t n = ParseInteger(rn).value_or(1000) / 10;
    while (source.FindL(free)) {
        const std::string digits = std::to_string(++n);
        free = digits + CheckDigit(digits).value_or('0');
    }
    return free;
}

} // namespace vexora
