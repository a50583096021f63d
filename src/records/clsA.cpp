#include "records/clsA.h"

#include "chem/CommentTags.h"
#include "records/LineWriter.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <cstdint>
#include <vector>

namespace vexora {

namespace {

// Bit 2, the recommendation to reject the value, is not taken over from a file.
constexpr std::uint64_t FlagMask = 0x7FFB;

/// Old files have the mask in hexadecimal digits; what comes before a wrong one counts.
std::uint64_t HexFlag(std::string_view word, bool& isValid) {
    std::uint64_t value = 0;
    for (const char c : word) {
        const bool isDigit = c >= '0' && c <= '9';
        if (!isDigit && (c < 'A' || c > 'F')) {
            isValid = false;
            break;
        }
        value = value * 16 + static_cast<std::uint64_t>(isDigit ? c - '0' : c - 'A' + 10);
    }
    return value;
}

std::uint64_t WholePart(std::string_view word) {
    const double value = Val(word);
    constexpr double bound = 9.0e18;
    if (value >= bound || value <= -bound) return 0;
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
}

std::string FlagOf(std::string_view word, bool& isValid) {
    if (word.empty() || word == "&") return "0";
    const std::uint64_t flag = IsNumeric(word) ? WholePart(word) : HexFlag(word, isValid);
    return std::to_string(flag & FlagMask);
}

bool AllDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == text.npos;
}

/// A dotted date, day or month first, as month/day/year; every other text as it stands.
std::string SlashedDate(std::string_view text) {
    if (text.find('.') == text.npos) return std::string(text);
    const std::vector<std::string> parts = Split(text, '.');
    if (parts.size() != 3) return std::string(text);
    for (const std::string& part : parts)
        if (!AllDigits(part)) return std::string(text);
    const std::string year = (parts[2].size() == 2 ? "20" : "") + parts[2];
    // Where dates have dots the day comes first, unless the second part can be no month.
    return Val(parts[1]) <= 12 ? parts[1] + "/" + parts[0] + "/" + year
                               : parts[0] + "/" + parts[1] + "/" + year;
}

/// With its last tag closed, so that another can be put behind it.
std::string ClosedComment(std::string_view rest) {
    CommentTags comment(WithoutPlaceholder(Trim(rest)));
    comment.Close();
    return comment.Stored();
}

} // namespace

Notices clsA::Load(std::string_view line) {
    Notices told;
    WordReader words(line);
    if (words.NextWord() == "^A") {
        NOTE = UnderscoresToBlanks(WithoutPlaceholder(words.NextWord()));
        SOURCEDOC = WithoutPlaceholder(words.NextWord());
        EXPPURPOSE = WithoutPlaceholder(words.NextWord());
        const std::string_view flag = words.NextWord();
        bool isValid = true;
        PRPFLAG = FlagOf(flag, isValid);
        const std::string_view lineSoFar = line.substr(0, line.size() - words.Rest().size());
        if (!isValid) told.push_back({std::string(Trim(lineSoFar)), "Invalid PRPFLAG"});
        COMPILER = WithoutPlaceholder(words.NextWord());
        CONTRIBUTOR = WithoutPlaceholder(words.NextWord());
        DATEADDED = SlashedDate(WithoutPlaceholder(words.NextWord()));
    }
    DATACOMMENT = ClosedComment(words.Rest());
    return told;
}

void clsA::TakeHeader(const clsA& other) {
    const double factor = Factor;
    // The factor of a record is its own affair: it depends on the unit of that record.
    *this = other;
    Factor = factor;
}

void clsA::PrintHeader(LineWriter& out, std::string_view comment) const {
    out.Fields({"^A", BlanksToUnderscores(NOTE), SOURCEDOC, EXPPURPOSE,
                Val(PRPFLAG) == 0 ? "" : PRPFLAG, COMPILER, CONTRIBUTOR, DATEADDED},
               comment);
}

} // namespace vexora
