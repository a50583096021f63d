#include "tables/HeadingGuess.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "reference/Numbers.h"
#include "reference/Text.h"
#include "tables/HeadingQuantity.h"
#include "tables/HeadingText.h"

namespace vexora {

namespace {

using Rows = std::vector<std::vector<std::string>>;
using ReadColumns = std::vector<std::optional<ReadColumn>>;

constexpr std::size_t MostHeadingRows = 5;

bool HasLetter(std::string_view text) {
    return std::ranges::any_of(text, [](unsigned char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c >= 0x80 || c == '%';
    });
}

bool IsHeadingRow(const std::vector<std::string>& row) {
    return std::ranges::any_of(row, HasLetter) && std::ranges::none_of(row, IsValueCell);
}

/// What stands alone in the first cell of a row; empty where more stands in it, or less.
std::string LoneText(const std::vector<std::string>& row) {
    const auto isFilled = [](const std::string& cell) { return !Trim(cell).empty(); };
    const bool isLone = std::ranges::count_if(row, isFilled) == 1 && isFilled(row.front());
    return isLone ? PlainHeading(row.front()) : "";
}

/// Number and title of the table above the heads, or an empty row.
bool IsTitle(const std::vector<std::string>& row, const NamedComponents& components) {
    const std::string text = LoneText(row);
    if (text.empty())
        return std::ranges::all_of(row, [](const auto& c) { return Trim(c).empty(); });
    return !IsValueCell(text) && !ReadHeading(text, components) &&
           !IsHeadOverComponents(text, components);
}

std::size_t WidthOf(const Rows& rows) {
    std::size_t width = 0;
    for (const auto& row : rows)
        width = std::max(width, row.size());
    return width;
}

/// The rows of heads in plain characters, all of the same width.
Rows PlainRows(const Rows& rows, std::size_t first, std::size_t behind) {
    Rows plain;
    for (std::size_t i = first; i < behind; ++i) {
        auto& row = plain.emplace_back(WidthOf(rows));
        std::ranges::transform(rows[i], row.begin(), PlainHeading);
    }
    return plain;
}

/// Cells of one column from above, the first replaced where a text is given. A phase comes first,
/// so that it parts no quantity from its unit.
std::string Joined(const Rows& heads, std::size_t column, const std::string& first,
                   const NamedComponents& components) {
    std::string joined, phases;
    for (std::size_t i = 0; i < heads.size(); ++i) {
        const std::string& cell = i == 0 && !first.empty() ? first : heads[i][column];
        if (cell.empty()) continue;
        (ReadPhaseAlone(cell, components) ? phases : joined) += cell + " ";
    }
    return std::string(TrimBlanks(phases + joined));
}

/// The last row is a line between heads and values, such as "P = 101.3 kPa": it holds one text that
/// is no part of the head above it, and must not be lost.
bool IsRemark(Rows heads, const NamedComponents& components) {
    if (LoneText(heads.back()).empty()) return false;
    if (ReadHeading(Joined(heads, 0, {}, components), components)) return false;
    heads.pop_back();
    return ReadHeading(Joined(heads, 0, {}, components), components).has_value();
}

/// By column the head that stands over it further left; empty where none reaches. That of one
/// component reaches over phases only.
std::vector<std::string> SpanningHeads(const Rows& heads, const NamedComponents& components) {
    std::vector<std::string> spans(heads.front().size());
    if (heads.size() < 2) return spans;
    std::string span;
    bool isWide = false;
    for (std::size_t column = 0; column < spans.size(); ++column) {
        const std::string& cell = heads.front()[column];
        if (!cell.empty()) {
            isWide = IsHeadOverComponents(cell, components);
            span = isWide || ReadFraction(cell, components) ? cell : "";
        }
        const std::string& below = heads[1][column];
        const bool reaches = isWide || ReadPhaseAlone(below, components);
        if (!below.empty() && reaches) spans[column] = span;
    }
    return spans;
}

/// A phase over several columns must stand over the same quantities as every other phase: else it
/// is open how far it reaches.
bool SpansAgree(const ReadColumns& columns, const std::vector<std::string>& spans) {
    std::vector<std::pair<std::string, std::vector<std::string>>> groups;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!columns[i] || spans[i].empty()) continue;
        const bool isState = IsOneOf(columns[i]->quantity, {"T", "P"});
        if (isState || columns[i]->mark.kind == PhaseMark::Kind::None) continue;
        if (groups.empty() || groups.back().first != spans[i]) groups.push_back({spans[i], {}});
        groups.back().second.push_back(columns[i]->quantity);
    }
    return std::ranges::all_of(groups, [&](const auto& g) { return g.second == groups[0].second; });
}

ReadColumns ReadAll(const Rows& heads, const NamedComponents& components) {
    const std::vector<std::string> spans = SpanningHeads(heads, components);
    ReadColumns spanned(spans.size()), alone(spans.size());
    for (std::size_t i = 0; i < spans.size(); ++i) {
        alone[i] = ReadHeading(Joined(heads, i, {}, components), components);
        const std::string below = Joined(heads, i, spans[i], components);
        if (!spans[i].empty()) spanned[i] = ReadHeading(below, components);
        if (!spanned[i]) spanned[i] = alone[i];
    }
    return SpansAgree(spanned, spans) ? spanned : alone;
}

/// What the columns say together of the phases, which one alone does not.
class PhasesOfBlock {
public:
    PhasesOfBlock(const ReadColumns& columns, int mixType) : mixType_(mixType) {
        for (const auto& column : columns)
            if (column) Note(*column);
    }

    std::string CodeOf(const ReadColumn& column) const {
        switch (column.mark.kind) {
        case PhaseMark::Kind::Gas:
            return "G";
        case PhaseMark::Kind::Liquid:
            return "L";
        case PhaseMark::Kind::Numbered:
            return CodeOfNumber(column);
        case PhaseMark::Kind::Layer:
            return CodeOfLayer(column.mark.name);
        case PhaseMark::Kind::None:
            break;
        }
        if (!hasVapor_ || !hasPlainX_) return {};
        return column.isVaporLetter ? "G" : column.isLiquidLetter ? "L" : "";
    }

private:
    void Note(const ReadColumn& column) {
        const bool isNumbered = column.mark.kind == PhaseMark::Kind::Numbered;
        hasVapor_ = hasVapor_ || column.isVaporLetter;
        hasPlainX_ = hasPlainX_ || column.isLiquidLetter;
        if (isNumbered && !column.isVaporLetter) Add(numbers_, column.mark.number);
        if (isNumbered && column.isVaporLetter) Add(vaporNumbers_, column.mark.number);
        if (column.mark.kind == PhaseMark::Kind::Layer) Add(layers_, column.mark.name);
    }
    template <class T>
    static void Add(std::vector<T>& list, const T& item) {
        if (std::ranges::find(list, item) == list.end()) list.push_back(item);
    }

    /// One number alone does not tell that there is a second liquid. x' and y'' are the liquid and
    /// the gas.
    std::string CodeOfNumber(const ReadColumn& column) const {
        if (!vaporNumbers_.empty()) {
            const bool isPair = numbers_ == std::vector{1} && vaporNumbers_ == std::vector{2};
            return !isPair ? "" : column.isVaporLetter ? "G" : "L";
        }
        const int most = mixType_ == 3 ? 3 : 2;
        const bool isComplete = numbers_.size() > 1 && std::ranges::max(numbers_) <= most;
        return isComplete ? "L" + std::to_string(column.mark.number) : "";
    }
    /// Layers are numbered as they come; two sorts of names at once tell nothing.
    std::string CodeOfLayer(const std::string& name) const {
        if (layers_.size() != 2 || !numbers_.empty()) return {};
        return name == layers_.front() ? "L1" : "L2";
    }

    int mixType_;
    bool hasVapor_ = false, hasPlainX_ = false;
    std::vector<int> numbers_, vaporNumbers_;
    std::vector<std::string> layers_;
};

/// Values above 1 are per cent, or something else, where the heading of a fraction names no unit.
bool HasLargeValue(const Rows& rows, std::size_t firstRow, std::size_t column) {
    for (std::size_t i = firstRow; i < rows.size(); ++i)
        if (column < rows[i].size() && Val(NormalizeNumber(rows[i][column])) > 1.0001) return true;
    return false;
}

ProcessColumn Described(const ReadColumn& read, const PhasesOfBlock& phases) {
    ProcessColumn column;
    column.quantity = read.quantity;
    column.unit = read.unit.unit;
    column.factor = read.unit.factor;
    if (!column.IsState() && !column.IsUncertainty()) column.phase = phases.CodeOf(read);
    return column;
}

} // namespace

GuessedHeads GuessHeads(const Rows& rows, const NamedComponents& components) {
    const std::size_t limit = std::min(rows.size(), MostHeadingRows);
    std::size_t first = 0, behind = 0;
    while (first < limit && WidthOf(rows) > 1 && IsTitle(rows[first], components))
        ++first;
    behind = first;
    while (behind < limit && IsHeadingRow(rows[behind]))
        ++behind;
    if (behind > first + 1 && IsRemark(PlainRows(rows, first, behind), components)) --behind;
    if (first == behind) return {};

    const ReadColumns read = ReadAll(PlainRows(rows, first, behind), components);
    const PhasesOfBlock phases(read, components.MixType());
    GuessedHeads heads;
    for (std::size_t i = 0; i < read.size(); ++i) {
        ProcessColumn& column = heads.columns.emplace_back();
        if (!read[i]) continue;
        column = Described(*read[i], phases);
        const bool isOpen = !read[i]->isUnitPrinted && !column.IsState();
        if (isOpen && HasLargeValue(rows, behind, i)) column.unit.clear();
    }
    if (std::ranges::none_of(heads.columns, &ProcessColumn::IsDescribed)) return {};
    heads.rows = static_cast<int>(behind);
    return heads;
}

} // namespace vexora
