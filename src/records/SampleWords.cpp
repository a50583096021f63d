#include "records/SampleWords.h"

#include "reference/KVODefinitions.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

void Join(std::string& words, const char* between, const std::string& more) {
    if (!words.empty() && !more.empty()) words += between;
    words += more;
}

} // namespace

std::string PurityInWords(const PurityStatement& statement) {
    const PurityUnit* unit = PurityUnitByCode(statement.Unit);
    if (statement.Value.empty() || unit == nullptr) return {};
    std::string words = statement.Value + " " + std::string(unit->text);
    Join(words, ", ", DeterminationName(statement.Method));
    return words;
}

std::string SampleInWords(std::string_view description) {
    const auto parts = ParseDescription(description);
    if (!parts) return std::string(description);
    std::string words = TextOfCode(SampleAvailabilities, parts->Availability);
    if (!parts->Availability.empty()) return words;
    words = TextOfCode(SampleSources, parts->Source);
    Join(words, ", ", PurityInWords(parts->Initial));
    std::string steps;
    for (const std::string& code : parts->Purification)
        Join(steps, ", ", PurificationName(code));
    Join(words, "; ", steps);
    for (const PurityStatement& statement : parts->Final)
        Join(words, "; ", PurityInWords(statement));
    return words.empty() ? "Nothing stated yet" : words;
}

} // namespace vexora
