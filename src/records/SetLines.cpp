#include "records/SetLines.h"

#include "records/LineWriter.h"
#include "records/Record.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"

#include <algorithm>

namespace vexora {

std::string NextField(WordReader& words) {
    return WithoutPlaceholder(words.NextWord());
}

std::string NextPhase(WordReader& words) {
    return OrPlaceholder(words.NextWord());
}

std::string PhasesInBrief(std::initializer_list<std::string_view> phases) {
    std::string text;
    for (const std::string_view phase : phases) {
        if (IsBlankField(phase)) continue;
        text += text.empty() ? "" : "+";
        text += phase;
    }
    return text;
}

std::string UnitField(std::string_view code) {
    return IsUnitLetter(code) ? std::string(code) : "S";
}

double FactorOfLongUnit(std::string_view code, const Record& set, const Record* parent) {
    const double factor = ConversionFactor(code);
    if (factor != 0) return factor;
    throw SaveRefused("Invalid conversion factor: " + std::string(code) + "\n" +
                      (parent ? parent->Key() + "\n" : std::string()) + set.ShowKey());
}

void PrintFactor(LineWriter& out, double factor) {
    out.Line("^M " + NormalizeNumber(NumberText(factor)));
}

std::string CommentInSystemUnits(
    const std::string& stored,
    const std::function<std::string(const std::string&, const std::string&)>& toSystem) {
    const std::size_t tags = stored.find("::");
    if (tags == std::string::npos) return stored;
    std::string comment = stored.substr(0, tags + 1);
    for (std::size_t at = tags + 1; at < stored.size();) {
        const std::size_t codeEnd = stored.find(':', at + 1);
        const std::size_t valueEnd =
            codeEnd == std::string::npos ? codeEnd : stored.find(':', codeEnd + 1);
        const bool isPrecision = stored[at] == ':' && stored.compare(at, 2, ":d") == 0;
        if (!isPrecision || valueEnd == std::string::npos) {
            comment += stored.substr(at, codeEnd == std::string::npos ? codeEnd : codeEnd - at);
            at = std::min(codeEnd, stored.size());
            continue;
        }
        const std::string code = stored.substr(at + 2, codeEnd - at - 2);
        const std::string typed = stored.substr(codeEnd + 1, valueEnd - codeEnd - 1);
        comment += ":d" + code + ":" + toSystem(code, typed);
        at = valueEnd;
    }
    return comment;
}

} // namespace vexora
