#include "records/Presentation.h"

namespace vexora {

Presentation Presentation::Of(std::string_view dataType) {
    constexpr std::string_view numberLetters = "YSCN";
    Presentation result;
    if (dataType == "&") return result;
    // "C" in front tells of the numbers, behind a letter it tells of calculated values.
    if (!dataType.empty() && numberLetters.find(dataType.front()) != std::string_view::npos) {
        result.numerical = dataType.substr(0, 1);
        dataType.remove_prefix(1);
    }
    for (const char letter : dataType) {
        if (letter == 'C')
            result.calculated = true;
        else if (letter == 'E')
            result.equation = true;
        else if (letter == 'G')
            result.graph = true;
        else
            result.others += letter;
    }
    return result;
}

std::string Presentation::Code() const {
    return numerical + (calculated ? "C" : "") + (equation ? "E" : "") + (graph ? "G" : "") +
           others;
}

std::vector<CodeText> Presentation::Kinds() {
    const CodeTexts types = DataTypes;
    std::vector<CodeText> kinds(types.begin(), types.end());
    kinds.push_back({"No numerical data", NoNumbers});
    return kinds;
}

} // namespace vexora
