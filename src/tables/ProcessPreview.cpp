#include "tables/ProcessPreview.h"

#include "records/MixtureLine.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr const char* Indent = "      ";

std::string Joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : "; ") + part;
    return text;
}

std::string Rows(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " row" : " rows");
}

/// A pane has room for so many characters.
constexpr std::size_t Wide = 68;

/// Long lines go on below, further in.
std::vector<std::string> Wrapped(const std::vector<std::string>& lines) {
    std::vector<std::string> wrapped;
    for (std::string line : lines) {
        while (line.size() > Wide) {
            const std::size_t blank = line.rfind(' ', Wide);
            const std::size_t text = line.find_first_not_of(' ');
            if (blank == line.npos || blank < text) break;
            wrapped.push_back(line.substr(0, blank));
            line = std::string(Indent) + "    " + line.substr(blank + 1);
        }
        wrapped.push_back(std::move(line));
    }
    return wrapped;
}

/// What is missing, else what a box would say. Entries of a list have one line.
std::vector<std::string> Missing(const std::string& hint, const std::string& message) {
    if (hint.empty()) return Wrapped(Split(message, '\n'));
    std::vector<std::string> lines = Split(hint, '\n');
    lines.insert(lines.begin(), "Still missing:");
    return Wrapped(lines);
}

std::string NameOf(const ProcessTable& table, const ProcessHeads& heads, int column) {
    return heads.NameOf(table.columns[static_cast<std::size_t>(column)]);
}

/// A phase, or a constant; one that is asked for on Process has no value yet.
std::string SlotText(const ConstraintSlot& slot, const ProcessHeads& heads) {
    if (NamesPhase(slot.code)) return heads.PhaseText(slot.code);
    if (slot.value.empty() || slot.value == "&") return heads.QuantityText(slot.code) + " asked";
    return heads.QuantityText(slot.code) + " " + slot.value + " " + UnitOfVariable(slot.code);
}

std::vector<std::string> LinesOf(const ProcessTable& table, const PlannedSet& set,
                                 const ProcessHeads& heads, std::size_t number) {
    const auto& property = table.columns[static_cast<std::size_t>(set.property)];
    std::string name = heads.QuantityText(property.quantity);
    if (!set.PHASE1.empty()) name += ", " + heads.PhaseText(set.PHASE1);
    std::vector<std::string> variables, held;
    for (const int variable : set.variables)
        variables.push_back(NameOf(table, heads, variable));
    for (const ConstraintSlot& slot : set.slots)
        if (!slot.code.empty() && slot.code != "&") held.push_back(SlotText(slot, heads));
    std::vector<std::string> lines{std::to_string(number) + ".  " + name + ": " +
                                   Rows(set.rows.size()) + (set.isTied ? ", tied" : "")};
    lines.push_back(Indent + ("against " + Joined(variables)));
    if (!held.empty()) lines.push_back(Indent + ("with " + Joined(held)));
    if (set.uncertainty >= 0) lines.push_back(Indent + std::string("with its uncertainties"));
    return lines;
}

} // namespace

std::vector<std::string> PreviewOf(const ProcessTable& table, const PhaseAnalysis& analysis,
                                   const ProcessHeads& heads) {
    if (!analysis.Ok) return Missing(analysis.hint, analysis.message);
    std::vector<std::string> lines;
    std::size_t number = 0;
    for (const PlannedSet& set : analysis.sets)
        for (std::string& line : LinesOf(table, set, heads, ++number))
            lines.push_back(std::move(line));
    if (analysis.asksT) lines.push_back("Process asks for the constant temperature");
    if (analysis.asksP) lines.push_back("Process asks for the constant pressure");
    return Wrapped(lines);
}

std::vector<std::string> PreviewOf(const ProcessTable& table, const ThermalAnalysis& analysis,
                                   const ProcessHeads& heads) {
    if (!analysis.Ok) return Missing(analysis.hint, analysis.message);
    std::vector<std::string> lines;
    for (const PlannedFunction& set : analysis.sets) {
        lines.push_back(std::to_string(lines.size() / 2 + 1) + ".  " +
                        NameOf(table, heads, set.property) + ": " + Rows(set.rows.size()));
        lines.push_back(Indent + ("against " + NameOf(table, heads, analysis.TColumn)) +
                        (set.uncertainty >= 0 ? ", with its uncertainties" : ""));
    }
    return Wrapped(lines);
}

} // namespace vexora
