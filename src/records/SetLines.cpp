#include "records/SetLines.h"

#include "chem/CommentTags.h"
#include "records/LineWriter.h"
#include "records/Record.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"

namespace vexora {

std::string NextField(WordReader& words) {
    return WithoutPlaceholder(words.NextWord());
}

std::string NextPhase(WordReader& words) {
    return OrPlaceholder(words.NextWord());
}

std::string PhasesInBrief(std::initializer_list<std::string_view> phases) {
    // "L" alone, or "L+G" where two are there together.
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

std::string KeptField(std::string_view field, std::string_view unit) {
    return std::string(IsUnitLong(field) ? CodeInField(field, unit) : field);
}

double FactorOfLongUnit(std::string_view code, std::string_view unit, const Record& set,
                        const Record* parent) {
    const double factor = ConversionFactor(code, unit);
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
    CommentTags tags(stored);
    tags.ChangePrecisions(toSystem);
    return tags.Stored();
}

} // namespace vexora
