#include "records/clsX.h"

#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "records/UnitConversion.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

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

} // namespace

void clsX::Load(std::string_view line) {
    *this = clsX();
    WordReader words(line);
    words.NextWord();
    constexpr int highestPlace = 32767;
    N = Small(words.NextWord(), highestPlace);
    PRPCODE = NextField(words);
    PHASE = NextField(words);
    iDS = Flag(words);
    DSEvaluator = UnderscoresToBlanks(NextField(words));
    DSLevel = NextField(words);
    DSValue = NextField(words);
    iRep = Flag(words);
    RType = Small(words.NextWord(), 1);
    RValue = NextField(words);
    const std::string_view repetitions = words.NextWord();
    Repetitions = IsNumeric(repetitions) ? repetitions : "";
    iUnc = Flag(words);
    ULevel = NextField(words);
    UValue = NextField(words);
    iCU = Flag(words);
    CType = NextField(words);
    CLevel = NextField(words);
    iCD = Flag(words);
    CDRms = NextField(words);
    CDSpec = UnderscoresToBlanks(NextField(words));
    CValue = NextField(words);
    // The writer of the line has converted its values.
    inSystemUnits = true;
    // Should the set have no place for it, it can only be given back as it came.
    Verbatim = Trim(line);
}

bool clsX::IsStated() const {
    if (N < 0) return false;
    // A flag alone states nothing of a combined uncertainty.
    const bool hasCombined = iCU && !(CValue.empty() && CType.empty() && CLevel.empty());
    return iDS || iRep || iUnc || iCD || hasCombined;
}

bool clsX::HasUnmarkedDS() const {
    return !iDS && !(DSEvaluator.empty() && DSLevel.empty() && DSValue.empty());
}

bool clsX::HasUnmarkedRep() const {
    const bool ofOwn = !repOfValueLine && !(RValue.empty() && Repetitions.empty());
    return !iRep && (ofOwn || RType >= 0);
}

bool clsX::HasUnmarkedUnc() const {
    return !iUnc && !(ULevel.empty() && UValue.empty());
}

bool clsX::HasUnmarkedCU() const {
    return !iCU && !(CValue.empty() && CType.empty() && CLevel.empty());
}

bool clsX::HasUnmarkedCD() const {
    return !iCD && !(CDRms.empty() && CDSpec.empty());
}

bool clsX::HasUnmarked() const {
    return HasUnmarkedDS() || HasUnmarkedRep() || HasUnmarkedUnc() || HasUnmarkedCU() ||
           HasUnmarkedCD();
}

bool clsX::IsKept() const {
    return N >= 0 && (IsStated() || HasUnmarked());
}

bool clsX::SaysTheSame(const clsX& other) const {
    clsX same = *this;
    same.Verbatim = other.Verbatim;
    return same == other;
}

bool clsX::HoldsAll() const {
    WordReader words(Verbatim);
    std::size_t place = 0;
    constexpr std::size_t number = 1; // one that lacks is found by the code
    for (const std::string& written : Words({})) {
        const std::string read = WithoutPlaceholder(words.NextWord());
        const bool same = read == written || place == number || (written == "-" && read.empty());
        if (!same && !(IsNumeric(read) && IsNumeric(written) && Val(read) == Val(written)))
            return false;
        ++place;
    }
    const bool isMarkAlone = iCU && !IsKept(); // of a combined uncertainty, which states nothing
    return words.AtEnd() && !isMarkAlone;
}

void clsX::ChangeCodes(const std::function<std::string(const std::string&)>& changed) {
    PRPCODE = changed(PRPCODE);
    PHASE = changed(PHASE);
    Name.clear();
    std::string line;
    WordReader words(Verbatim);
    for (int place = 0; !words.AtEnd(); ++place) {
        const std::string word(words.NextWord());
        AppendField(line, place == 2 || place == 3 ? changed(word) : word);
    }
    Verbatim = std::move(line);
}

void clsX::SaveX(LineWriter& out, std::string_view code, double factor, double molarMass) const {
    if (IsKept()) out.Fields(Words({std::string(code), factor, molarMass}));
}

std::vector<std::string> clsX::Words(const UnitConversion& unit) const {
    const auto system = [&](const std::string& typed) {
        return inSystemUnits ? typed : unit.DifferenceText(typed);
    };
    // The value line has it already, and would be contradicted when it is edited.
    const bool statesRep = iRep || !repOfValueLine;
    return {"^X",
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
            CValue};
}

void SaveOthers(LineWriter& out, const std::vector<clsX>& others) {
    for (const clsX& other : others) {
        // Without a line of a file it was made here, and can be written like any other.
        if (other.Verbatim.empty())
            other.SaveX(out, "");
        else
            out.Line(other.Verbatim);
    }
}

} // namespace vexora
