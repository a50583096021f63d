#include "records/clsX.h"

#include "records/LineWriter.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

std::string Field(WordReader& words) {
    return WithoutPlaceholder(words.NextWord());
}

bool Flag(WordReader& words) {
    return words.NextWord() == "+";
}

/// A whole number from 0 to `highest`, else -1.
int Small(std::string_view word, int highest) {
    if (!IsNumeric(word)) return -1;
    const std::int64_t value = ToInteger(Val(word));
    return value >= 0 && value <= highest ? static_cast<int>(value) : -1;
}

std::string Sign(bool flag) {
    return flag ? "+" : "-";
}

/// A difference in system units at the digits typed; per cent and other texts as they stand.
std::string SystemDifference(const std::string& typed, std::string_view code, double factor,
                             double molarMass) {
    if (!IsNumeric(typed)) return typed;
    const double difference =
        ToSystem(code, Val(typed), factor, molarMass) - ToSystem(code, 0, factor, molarMass);
    return difference == 0 ? typed : FormatValue(difference, SignificantDigits(typed));
}

} // namespace

void clsX::Load(std::string_view line) {
    *this = clsX();
    WordReader words(line);
    words.NextWord();
    constexpr int highestPlace = 32767;
    N = Small(words.NextWord(), highestPlace);
    PRPCODE = Field(words);
    PHASE = Field(words);
    iDS = Flag(words);
    DSEvaluator = UnderscoresToBlanks(Field(words));
    DSLevel = Field(words);
    DSValue = Field(words);
    iRep = Flag(words);
    RType = Small(words.NextWord(), 1);
    RValue = Field(words);
    const std::string_view repetitions = words.NextWord();
    Repetitions = IsNumeric(repetitions) ? repetitions : "";
    iUnc = Flag(words);
    ULevel = Field(words);
    UValue = Field(words);
    iCU = Flag(words);
    CType = Field(words);
    CLevel = Field(words);
    iCD = Flag(words);
    CDRms = Field(words);
    CDSpec = UnderscoresToBlanks(Field(words));
    CValue = Field(words);
    inSystemUnits = true;
    Verbatim = Trim(line);
}

bool clsX::IsStated() const {
    if (N < 0) return false;
    const bool hasCombined = iCU && !(CValue.empty() && CType.empty() && CLevel.empty());
    return iDS || iRep || iUnc || iCD || hasCombined;
}

void clsX::SaveX(LineWriter& out, std::string_view code, double factor, double molarMass) const {
    if (!IsStated()) return;
    const bool asItStands = inSystemUnits || (IsSystemUnit(code) && factor <= 0);
    const auto system = [&](const std::string& typed) {
        return asItStands ? typed : SystemDifference(typed, code, factor, molarMass);
    };
    const bool statesRep = iRep || !repOfValueLine;
    out.Fields({"^X",
                std::to_string(N),
                PRPCODE,
                PHASE,
                Sign(iDS),
                BlanksToUnderscores(DSEvaluator),
                DSLevel,
                system(DSValue),
                Sign(iRep),
                RType < 0 ? "" : std::to_string(RType),
                statesRep ? system(RValue) : "",
                statesRep && IsNumeric(Repetitions) ? Repetitions : "",
                Sign(iUnc),
                ULevel,
                system(UValue),
                Sign(iCU),
                CType,
                CLevel,
                Sign(iCD),
                system(CDRms),
                BlanksToUnderscores(CDSpec),
                CValue});
}

} // namespace vexora
