#include "entry/TableColumns.h"

#include <algorithm>
#include <utility>

#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

/// A value as it is kept, exponent and all; one that has fewer digits than are stated shows zeros
/// for the rest. A converted value keeps more than were typed, and none of it is hidden.
std::string Shown(const std::string& value, int digits, bool isDigit) {
    if (!isDigit || !IsNumeric(value) || SignificantDigits(value) >= digits) return value;
    return FormatDigits(value, digits);
}

/// The head of the column says "%" for all its cells.
std::string WithoutPercent(const std::string& text) {
    return text.ends_with('%') ? text.substr(0, text.size() - 1) : text;
}

/// The statement in a row's own part that a column shows; null for the other columns.
template <class Extras>
auto* StatementIn(Extras& extras, const TableColumn& column) {
    auto& item = extras.items.at(static_cast<std::size_t>(column.item));
    switch (column.kind) {
    case Kind::DS:
        return &item.DS;
    case Kind::Rep:
        return &item.Rep;
    case Kind::Repetitions:
        return &item.Repetitions;
    case Kind::Unc:
        return &item.Unc;
    case Kind::CU:
        return &extras.userCU;
    default:
        return &extras.CD;
    }
}

/// What a row states itself: kind, item and text of each entry that is not
/// empty.
template <class Action>
void EachEntry(const clsData& row, const Action& action) {
    if (!row.Extras) return;
    const auto give = [&](Kind kind, int item, const std::string& text) {
        if (!text.empty()) action(kind, item, text);
    };
    for (int item = 0; item < static_cast<int>(row.Extras->items.size()); ++item) {
        const RowStatements& own = row.StatementsOf(item);
        give(Kind::DS, item, own.DS);
        give(Kind::Rep, item, own.Rep);
        give(Kind::Repetitions, item, own.Repetitions);
        give(Kind::Unc, item, own.Unc);
    }
    give(Kind::CU, 0, row.Extras->userCU);
    give(Kind::CD, 0, row.Extras->CD);
}

} // namespace

const std::string& FigureOf(const clsX& statements, TableColumn::Kind kind) {
    static const std::string none;
    switch (kind) {
    case Kind::DS:
        return statements.DSValue;
    case Kind::Rep:
        return statements.RValue;
    case Kind::Unc:
        return statements.UValue;
    case Kind::CU:
        return statements.CValue;
    case Kind::CD:
        return statements.CDRms;
    default:
        return none;
    }
}

bool* MarkOf(clsX& statements, TableColumn::Kind kind) {
    switch (kind) {
    case Kind::DS:
        return &statements.iDS;
    case Kind::Rep:
    case Kind::Repetitions:
        return &statements.iRep;
    case Kind::Unc:
        return &statements.iUnc;
    case Kind::CU:
        return &statements.iCU;
    case Kind::CD:
        return &statements.iCD;
    default:
        return nullptr;
    }
}

void MarkStatementsOfRows(const RowList& rows, std::span<clsX> items) {
    for (const clsData& row : rows) {
        EachEntry(row, [&](Kind kind, int item, const std::string&) {
            const auto place = static_cast<std::size_t>(item);
            if (place < items.size()) *MarkOf(items[place], kind) = true;
        });
    }
}

OwnSigns AbsoluteEntries(const RowList& rows) {
    OwnSigns found;
    for (const clsData& row : rows) {
        EachEntry(row, [&](Kind kind, int item, const std::string& text) {
            if (!text.ends_with('%')) found.emplace(kind, item);
        });
    }
    return found;
}

TableColumns::TableColumns(const std::vector<Quantity>& quantities, bool withDigits, bool withTies,
                           const OwnSigns& ownSigns) {
    const auto properties = std::ranges::count_if(quantities, &Quantity::isProperty);
    if (withTies) Add(Kind::Tie, 0, "Tie");
    int variable = 0;
    int property = 0;
    for (const Quantity& quantity : quantities) {
        const bool single = quantity.isProperty && properties < 2;
        AddQuantity(quantity,
                    single                ? "Property"
                    : quantity.isProperty ? "Property" + std::to_string(++property)
                                          : "Var" + std::to_string(++variable),
                    withDigits, ownSigns);
    }
    // Always last, so that other columns may come and go in front of it.
    Add(Kind::KVO, 0, "KVO Uncert.");
}

void TableColumns::AddQuantity(const Quantity& quantity, const std::string& head, bool withDigits,
                               const OwnSigns& ownSigns) {
    const clsX& stated = quantity.statements;
    const int item = quantity.item;
    const auto add = [&](Kind kind, const std::string& name) {
        // As the set states its figure, so do its rows, but where one says
        // otherwise.
        const bool percent = FigureOf(stated, kind).find('%') != std::string::npos;
        Add(kind, item, name, percent && !ownSigns.contains({kind, item}));
    };
    Add(Kind::Value, item, head);
    if (withDigits) Add(Kind::Digits, item, "Digits");
    if (stated.iDS) add(Kind::DS, "Dev.Spec.");
    if (stated.iRep) {
        add(Kind::Rep, "Repeatab.");
        add(Kind::Repetitions, "Repetitions");
    }
    if (stated.iUnc) add(Kind::Unc, "Uncert.");
    if (!quantity.isProperty) return;
    if (stated.iCU) add(Kind::CU, "Comb.Unc.");
    if (stated.iCD) add(Kind::CD, "Curve Dev.");
}

void TableColumns::Add(Kind kind, int item, const std::string& head, bool percent) {
    columns_.push_back({kind, item, percent, percent ? head + "%" : head});
}

int TableColumns::Find(Kind kind, int item) const {
    for (int i = 0; i < Count(); ++i) {
        if ((*this)[i].kind == kind && (*this)[i].item == item) return i;
    }
    return -1;
}

std::vector<int> TableColumns::PlacesIn(const TableColumns& others) const {
    std::vector<int> places;
    for (const TableColumn& column : columns_)
        places.push_back(others.Find(column.kind, column.item));
    return places;
}

std::string TableColumns::CellOf(const clsData& row, int at) const {
    const TableColumn& column = (*this)[at];
    if (column.kind == Kind::Tie) return IsBlankField(row.TIELINE) ? "" : row.TIELINE;
    if (column.kind == Kind::KVO) return IsBlankField(row.PRPUNCERTY) ? "" : row.PRPUNCERTY;
    if (column.kind == Kind::Value || column.kind == Kind::Digits) {
        const auto item = static_cast<std::size_t>(column.item);
        const std::string value = row.Values.at(item);
        if (column.kind == Kind::Value) return Shown(value, row.Digits[item], row.isDigit);
        return std::to_string(row.DigitCount(column.item));
    }
    if (!row.Extras) return {};
    const std::string& text = *StatementIn(std::as_const(*row.Extras), column);
    return column.percent ? WithoutPercent(text) : text;
}

void TableColumns::Store(clsData& row, int at, const std::string& cell) const {
    const TableColumn& column = (*this)[at];
    if (column.kind == Kind::Tie)
        row.TIELINE = cell;
    else if (column.kind == Kind::Value)
        StoreValue(row, at, cell);
    else if (column.kind == Kind::Digits)
        StoreDigits(row, column.item, cell);
    else if (column.kind == Kind::KVO) {
        if (IsNumeric(cell) || cell.empty()) row.PRPUNCERTY = cell;
    } else if (!cell.empty() || row.Extras) {
        row.Statements(0); // makes the room for what only few rows carry
        // The record states each figure by itself, with its sign of per cent.
        const bool addsPercent = column.percent && !cell.empty() && !cell.ends_with('%');
        *StatementIn(*row.Extras, column) = addsPercent ? cell + "%" : cell;
    }
}

/// A cell that nobody has typed into leaves the text of the record as it is.
void TableColumns::StoreValue(clsData& row, int at, const std::string& cell) const {
    const int item = (*this)[at].item;
    // The zeros that the cell may show are no part of the text.
    const bool asShown = !cell.empty() && CellOf(row, at) == cell;
    if (!asShown) row.Values.at(static_cast<std::size_t>(item)) = cell;
    if (Find(Kind::Digits, item) >= 0) return; // the count comes with its own cell
    row.Digits.at(static_cast<std::size_t>(item)) =
        static_cast<std::uint8_t>(asShown ? row.DigitCount(item) : SignificantDigits(cell));
}

void TableColumns::StoreDigits(clsData& row, int item, const std::string& cell) {
    const auto place = static_cast<std::size_t>(item);
    // 0 or nothing: as many as the text of the value has.
    const int typed = static_cast<int>(std::clamp(Val(cell), 0.0, 99.0));
    row.Digits.at(place) =
        static_cast<std::uint8_t>(typed > 0 ? typed : SignificantDigits(row.Values.at(place)));
}

} // namespace vexora
