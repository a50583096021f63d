#include "entry/ColumnNotes.h"

#include "reference/Text.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

std::string StatedText(const TableColumn& column, const clsX& stated) {
    std::string text =
        column.kind == Kind::Repetitions ? stated.Repetitions : FigureOf(stated, column.kind);
    if (IsBlankField(text)) return {};
    if (column.percent && text.ends_with('%')) text.pop_back();
    return std::string(TrimBlanks(text));
}

bool HasUnit(Kind kind) {
    return kind == Kind::DS || kind == Kind::Rep || kind == Kind::Unc || kind == Kind::CU ||
           kind == Kind::CD;
}

std::string NoteText(const TableColumn& column, const clsX& stated) {
    const std::string unit = stated.Unit == "1" ? std::string() : stated.Unit;
    if (column.kind == Kind::Value)
        return stated.Name + (stated.Name.empty() || unit.empty() ? "" : ", ") + unit;
    return HasUnit(column.kind) && !column.percent ? unit : std::string();
}

/// The texts of a rule that are not empty, by column.
template <class Rule>
ui::Grid::ColumnTexts TextsBy(Rule rule, const TableColumns& columns,
                              std::span<const clsX> statements) {
    ui::Grid::ColumnTexts texts;
    for (int at = 0; at < columns.Count(); ++at) {
        const auto item = static_cast<std::size_t>(columns[at].item);
        if (item >= statements.size()) continue;
        if (std::string text = rule(columns[at], statements[item]); !text.empty())
            texts.emplace(at, std::move(text));
    }
    return texts;
}

} // namespace

ui::Grid::ColumnTexts StatedTexts(const TableColumns& columns, std::span<const clsX> statements) {
    return TextsBy(StatedText, columns, statements);
}

ui::Grid::ColumnTexts HeadNotes(const TableColumns& columns, std::span<const clsX> statements) {
    return TextsBy(NoteText, columns, statements);
}

} // namespace vexora
