#include "bio/BioTable.h"

#include <utility>

#include "chem/clsProperty.h"
#include "entry/RowChecks.h"
#include "records/BioSet.h"
#include "records/PropertyChain.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

constexpr const char* InvalidNumber = "Invalid number\nPlease correct or delete it";
constexpr const char* AsTyped = "as typed"; // a relation without limits and conversion

/// Bio codes whose values have the limits of a code of other data. The codes themselves are a list
/// of their own: "S" is the entropy of a reaction, which may be negative.
constexpr std::pair<std::string_view, std::string_view> LimitsAs[] = {
    {"T", "T"},   {"T12", "T"}, {"Tp", "T"},  {"T0", "T"},  {"P", "P"},   {"X", "X1"},
    {"W", "W1"},  {"M", "M1"},  {"J", "J1"},  {"Xs", "X1"}, {"Ws", "W1"}, {"Vs", "V1"},
    {"Js", "J1"}, {"KT", "KT"}, {"KX", "KX"}, {"KM", "KM"}, {"KJ", "KJ"},
};

std::string_view LimitsOf(std::string_view code) {
    for (const auto& [own, other] : LimitsAs)
        if (own == code) return other;
    return {};
}

/// A figure of no less than 0, absolute or per cent of the value beside it.
bool IsUncertainty(std::string text) {
    if (text.ends_with('%')) text.pop_back();
    return IsNumeric(text) && Val(text) >= 0;
}

std::shared_ptr<clsProperty> ItemOf(const BioSet& set, const BioQuantity& quantity,
                                    const clsX& statements) {
    auto item = std::make_shared<clsProperty>();
    const UnitConversion conversion = set.ConversionOf(quantity);
    const std::string_view limits = LimitsOf(quantity.code);
    item->PropertyCode = limits.empty() ? quantity.code : limits;
    item->ConversionCode = conversion.code;
    item->Factor = conversion.factor;
    item->Relation = limits.empty() ? AsTyped : "A";
    item->Name = set.NameOf(quantity);
    if (const std::string unit = set.UnitOf(quantity); !unit.empty()) item->Name += ", " + unit;
    TakeMasters(*item, statements);
    // What the set states in one word holds where its statement says nothing.
    if (item->masterunc.empty() && !quantity.StatesByRow()) item->masterunc = quantity.uncertainty;
    return item;
}

} // namespace

std::string HeadOf(const BioSet& set, const BioQuantity& quantity) {
    const std::string unit = set.UnitOf(quantity);
    return set.NameOf(quantity) + (unit.empty() ? "" : " (" + unit + ")");
}

TableColumns ColumnsOf(const BioSet& set) {
    std::vector<TableColumn> columns;
    for (std::size_t n = 0; n < set.Columns(); ++n) {
        const BioQuantity& quantity = set.Quantities()[n];
        const char* const role = quantity.role == BioRole::Property ? "Prop. " : "Var. ";
        const int item = static_cast<int>(n);
        columns.push_back({Kind::Value, item, false, role + HeadOf(set, quantity)});
        if (quantity.StatesByRow()) columns.push_back({Kind::Unc, item, false, "Unc."});
    }
    return TableColumns(std::move(columns));
}

std::string InLines(const std::string& head) {
    constexpr std::size_t wide = 30; // characters of a line
    std::string lines;
    std::size_t begin = 0; // of the last line
    WordReader words(head);
    while (!words.AtEnd()) {
        const std::string_view word = words.NextWord();
        if (word.empty()) continue;
        if (!lines.empty()) {
            const bool fits = lines.size() - begin + 1 + word.size() <= wide;
            lines += fits ? ' ' : '\n';
            if (!fits) begin = lines.size();
        }
        lines += word;
    }
    return lines;
}

std::string ConstantsOf(const BioSet& set) {
    std::string text;
    for (const BioQuantity& quantity : set.Quantities()) {
        if (quantity.role != BioRole::Constraint) continue;
        text += (text.empty() ? "Constant: " : "    ") + set.NameOf(quantity) + " = " +
                NumberWithUnit(quantity.value, set.UnitOf(quantity));
    }
    return text;
}

std::vector<clsX> NamedStatements(const BioSet& set) {
    std::vector<clsX> items = set.recU;
    items.resize(set.Quantities().size());
    for (std::size_t n = 0; n < items.size(); ++n) {
        const BioQuantity& quantity = set.Quantities()[n];
        items[n].N = static_cast<int>(n);
        items[n].PRPCODE = quantity.code;
        items[n].PHASE = quantity.phase;
        items[n].Name = set.NameOf(quantity);
        items[n].Unit = set.UnitOf(quantity);
        items[n].Constr = quantity.role == BioRole::Constraint;
        items[n].inSystemUnits = false; // they stand in the unit of the quantity, from a file too
    }
    return items;
}

std::shared_ptr<clsProperty> ChainOf(const BioSet& set, const std::vector<clsX>& statements) {
    std::shared_ptr<clsProperty> head;
    clsProperty* last = nullptr;
    for (std::size_t n = 0; n < set.Columns(); ++n) {
        auto item = ItemOf(set, set.Quantities()[n], statements.at(n));
        if (last) last->isLast = false;
        std::shared_ptr<clsProperty>& place = last ? last->NextItem : head;
        place = std::move(item);
        last = place.get();
    }
    return head;
}

std::vector<Finding> CheckBioRow(const ui::Grid& grid, const TableColumns& columns, int row,
                                 int properties) {
    std::vector<Finding> findings;
    if (IsEmptyRow(grid, columns, row)) return findings;
    const auto cell = [&](int column) {
        return column < 0 ? std::string() : CleanCell(columns[column], grid.Cell(row, column));
    };
    bool anyProperty = false;
    for (int n = 0; n < properties; ++n)
        anyProperty = anyProperty || !cell(columns.Find(Kind::Value, n)).empty();
    for (int column = 0; column < columns.Count(); ++column) {
        const std::string text = cell(column);
        const int item = columns[column].item;
        const bool isValue = columns[column].kind == Kind::Value;
        const bool isMeasured = item < properties && anyProperty; // others were, in this row
        const bool mayLack =
            !isValue || (isMeasured && cell(columns.Find(Kind::Unc, item)).empty());
        const bool isGood = text.empty() ? mayLack
                            : isValue    ? IsNumeric(text)
                                         : IsUncertainty(text);
        if (!isGood) findings.push_back({row, column, InvalidNumber});
    }
    const auto beside = CheckBeside(grid, columns, row);
    findings.insert(findings.end(), beside.begin(), beside.end());
    return findings;
}

} // namespace vexora
