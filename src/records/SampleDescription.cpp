#include "records/SampleDescription.h"

#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Parts between separators that stand outside round brackets, blanks around them removed.
std::vector<std::string> SplitOutsideBrackets(std::string_view text, char separator) {
    std::vector<std::string> parts(1);
    int depth = 0;
    for (const char c : text) {
        if (c == '(') ++depth;
        if (c == ')' && depth > 0) --depth;
        if (c == separator && depth == 0)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    for (std::string& part : parts)
        part = TrimBlanks(part);
    return parts;
}

/// The words of a section; an empty section has none.
std::vector<std::string> Words(std::string_view section) {
    return section.empty() ? std::vector<std::string>() : SplitOutsideBrackets(section, ',');
}

/// "99.5m%" as number and unit, or nothing for another word.
/// A bare number is none: without its unit it says neither of what nor by what.
std::optional<PurityStatement> Statement(std::string_view word) {
    if (word.starts_with('(')) return std::nullopt;
    for (const PurityUnit& unit : PurityUnits) {
        if (!word.ends_with(unit.code)) continue;
        const std::string value(TrimBlanks(word.substr(0, word.size() - unit.code.size())));
        if (IsNumeric(value)) return PurityStatement{value, std::string(unit.code), {}};
    }
    return std::nullopt;
}

/// Statements with their methods; nothing when a word fits nowhere. A word that states nothing is
/// the method of the statement before it, which has one at most.
std::optional<std::vector<PurityStatement>> Statements(const std::vector<std::string>& words) {
    std::vector<PurityStatement> statements;
    for (const std::string& word : words) {
        if (auto statement = Statement(word))
            statements.push_back(*statement);
        else if (statements.empty() || word.empty() || !statements.back().Method.empty())
            return std::nullopt;
        else
            statements.back().Method = word;
    }
    return statements;
}

void AppendStatement(std::string& line, const PurityStatement& statement) {
    line += std::string(TrimBlanks(statement.Value)) + statement.Unit;
    if (!statement.Method.empty()) line += "," + statement.Method;
}

} // namespace

bool IsImpurityUnit(std::string_view code) {
    return code == "h%" || code == "g%" || code == "i%" || code == "j%";
}

std::string ComposeDescription(const SampleDescription& description) {
    if (!description.Availability.empty()) return description.Availability;
    std::string line = description.Source;
    if (IsNumeric(description.Initial.Value)) {
        line += ",";
        AppendStatement(line, description.Initial);
    }
    line += ";";
    for (std::size_t i = 0; i < description.Purification.size(); ++i)
        line += (i > 0 ? "," : "") + description.Purification[i];
    line += ";";
    bool first = true;
    for (const PurityStatement& statement : description.Final) {
        if (!IsNumeric(statement.Value)) continue;
        if (!first) line += ",";
        AppendStatement(line, statement);
        first = false;
    }
    return line;
}

std::optional<SampleDescription> ParseDescription(std::string_view text) {
    SampleDescription description;
    text = TrimBlanks(text);
    const std::vector<std::string> sections = SplitOutsideBrackets(text, ';');
    // Without a ";" only the short forms are meant: nothing is known, or there was no sample.
    if (sections.size() == 1) {
        if (text.empty() || IndexOfCode(SampleAvailabilities, text) < 0) return std::nullopt;
        description.Availability = text;
        return description;
    }
    if (sections.size() != 3) return std::nullopt;

    std::vector<std::string> words = Words(sections[0]);
    if (words.empty() || IndexOfCode(SampleSources, words[0]) < 0) return std::nullopt;
    description.Source = words[0];
    words.erase(words.begin());
    const auto initial = Statements(words);
    // A seller states one figure.
    if (!initial || initial->size() > 1) return std::nullopt;
    if (!initial->empty()) description.Initial = initial->front();

    description.Purification = Words(sections[1]);
    for (const std::string& code : description.Purification)
        if (code.empty()) return std::nullopt;

    const auto final = Statements(Words(sections[2]));
    if (!final) return std::nullopt;
    description.Final = *final;
    return description;
}

std::string FreeText(std::string_view typed) {
    std::string text = SingleLine(typed);
    for (const char* mark : {"(", ")", ";"})
        text = Replace(text, mark, "");
    text = Replace(text, ",", " ");
    const std::string_view trimmed = TrimBlanks(text);
    return trimmed.empty() ? std::string() : "(" + std::string(trimmed) + ")";
}

std::string CheckPurityValue(std::string_view typed) {
    if (typed.empty()) return {};
    if (Find(typed, "$") > 0 || Find(typed, ",") > 0) return "Illegal character in purity value";
    const double value = Val(typed);
    if (!IsNumeric(typed) || value < 0 || value > 100) return "Invalid purity value";
    return {};
}

} // namespace vexora
