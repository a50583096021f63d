#include "tables/ProcessHeads.h"

#include <algorithm>

#include "reference/Conversions.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

/// A code or text that no list knows, as a file may have it, stands for itself.
std::string TextOf(const std::vector<HeadEntry>& entries, std::string_view code) {
    const auto found = std::ranges::find(entries, code, &HeadEntry::code);
    return found == entries.end() ? std::string(code) : found->text;
}

std::string CodeOf(const std::vector<HeadEntry>& entries, const std::string& text) {
    const auto found = std::ranges::find(entries, text, &HeadEntry::text);
    return found == entries.end() ? text : found->code;
}

} // namespace

const std::vector<HeadEntry>& ProcessHeads::UnitsOf(const std::string& quantity) const {
    const auto known = units_.find(quantity);
    return known != units_.end() ? known->second
                                 : units_.emplace(quantity, HeadUnits(quantity)).first->second;
}

ProcessColumn ProcessHeads::ColumnOf(const Texts& texts) const {
    ProcessColumn column;
    if (texts[Quantity].empty()) return column;
    column.quantity = CodeOf(quantities_, texts[Quantity]);
    if (!column.IsState()) column.phase = CodeOf(phases_, texts[Phase]);
    column.unit = CodeOf(UnitsOf(column.quantity), texts[Unit]);
    // A listed unit may be no more than its factor, but it is listed by its text.
    const auto& units = UnitsOf(column.quantity);
    const bool isListed = std::ranges::find(units, texts[Unit], &HeadEntry::text) != units.end();
    if (isListed || !IsNumeric(texts[Unit])) return column;
    column.unit = ProcessColumn::ByFactor;
    column.factor = texts[Unit];
    return column;
}

ProcessHeads::Texts ProcessHeads::TextsOf(const ProcessColumn& column) const {
    if (!column.IsDescribed()) return {};
    const std::string unit = column.unit == ProcessColumn::ByFactor || column.unit.empty()
                                 ? column.factor
                                 : TextOf(UnitsOf(column.quantity), column.unit);
    return {QuantityText(column.quantity), unit,
            column.phase.empty() ? std::string() : PhaseText(column.phase)};
}

std::string ProcessHeads::QuantityText(std::string_view code) const {
    return TextOf(quantities_, code);
}

std::string ProcessHeads::PhaseText(std::string_view code) const {
    return TextOf(phases_, code);
}

std::string ProcessHeads::NameOf(const ProcessColumn& column) const {
    const std::string phase = column.phase.empty() ? "" : ", " + PhaseText(column.phase);
    return QuantityText(column.quantity) + phase;
}

std::vector<std::string> ProcessHeads::Offered(Row row, const ProcessColumn& column) const {
    const bool hasPhase = !isPure_ && !column.IsState() && !column.IsUncertainty();
    const std::vector<HeadEntry> none;
    const auto& entries = row == Quantity            ? quantities_
                          : !column.IsDescribed()    ? none
                          : row == Unit              ? UnitsOf(column.quantity)
                          : row == Phase && hasPhase ? phases_
                                                     : none;
    std::vector<std::string> texts;
    for (const HeadEntry& entry : entries)
        texts.push_back(entry.text);
    return texts;
}

ProcessHeads::Texts ProcessHeads::WithQuantity(const Texts& before,
                                               const std::string& quantity) const {
    if (quantity == quantities_.front().text) return {};
    ProcessColumn column;
    column.quantity = CodeOf(quantities_, quantity);
    const ProcessColumn old = ColumnOf(before);
    const bool sameUnits = old.IsDescribed() && UnitsOf(column.quantity).size() > 1 &&
                           Offered(Unit, old) == Offered(Unit, column);
    Texts texts{quantity, sameUnits ? before[Unit] : std::string(), before[Phase]};
    if (texts[Unit].empty() && column.quantity == "T") texts[Unit] = HeadSystemUnit("T");
    if (Offered(Phase, column).empty()) texts[Phase].clear();
    return texts;
}

} // namespace vexora
