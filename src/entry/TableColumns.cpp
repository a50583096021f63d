#include "entry/TableColumns.h"

#include <algorithm>

#include "records/clsTwo.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

/// A value as typed; one that was stored with other digits than its text has shows those.
std::string Shown(const std::string& value, int digits, bool isDigit) {
    if (!isDigit || digits <= 0 || !IsNumeric(value) || SignificantDigits(value) == digits) {
        return value;
    }
    return FormatDigits(value, digits);
}

std::string WithoutPercent(const std::string& text) {
    return text.ends_with('%') ? text.substr(0, text.size() - 1) : text;
}

std::string* StatementIn(clsData& row, const TableColumn& column) {
    switch (column.kind) {
    case Kind::DS:
        return &row.Statements(column.item).DS;
    case Kind::Rep:
        return &row.Statements(column.item).Rep;
    case Kind::Repetitions:
        return &row.Statements(column.item).Repetitions;
    case Kind::Unc:
        return &row.Statements(column.item).Unc;
    default:
        break;
    }
    row.Statements(0); // makes the room for what only few rows carry
    return column.kind == Kind::CU ? &row.Extras->userCU : &row.Extras->CD;
}

} // namespace

TableColumns::TableColumns(const clsTwo& set, bool withDigits) {
    for (int n = 1; n <= set.nVar; ++n)
        AddItem(set, n, withDigits);
    AddItem(set, 0, withDigits);
    const clsX& property = set.UX[0];
    if (property.iCU) Add(Kind::CU, 0, "Comb.Unc.", property.CValue);
    if (property.iCD) Add(Kind::CD, 0, "Curve Dev.", property.CDRms);
    Add(Kind::KVO, 0, "KVO Uncert.");
}

void TableColumns::AddItem(const clsTwo& set, int item, bool withDigits) {
    const clsX& stated = set.UX[static_cast<std::size_t>(item)];
    Add(Kind::Value, item, item == 0 ? "Property" : "Var" + std::to_string(item));
    if (withDigits) Add(Kind::Digits, item, "Digits");
    if (stated.iDS) Add(Kind::DS, item, "Dev.Spec.", stated.DSValue);
    if (stated.iRep) {
        Add(Kind::Rep, item, "Repeatab.", stated.RValue);
        Add(Kind::Repetitions, item, "Repetitions");
    }
    if (stated.iUnc) Add(Kind::Unc, item, "Uncert.", stated.UValue);
}

void TableColumns::Add(Kind kind, int item, const std::string& head, const std::string& setValue) {
    const bool percent = setValue.find('%') != setValue.npos;
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
    const auto item = static_cast<std::size_t>(column.item);
    const std::string& value = row.Values[item];
    switch (column.kind) {
    case Kind::Value:
        return Shown(value, row.Digits[item], row.isDigit);
    case Kind::Digits:
        return std::to_string(row.isDigit && row.Digits[item] > 0 ? row.Digits[item]
                                                                  : SignificantDigits(value));
    case Kind::KVO:
        return IsBlankField(row.PRPUNCERTY) ? "" : row.PRPUNCERTY;
    default:
        break;
    }
    if (!row.Extras) return {};
    clsData copy = row;
    const std::string text = *StatementIn(copy, column);
    return column.percent ? WithoutPercent(text) : text;
}

void TableColumns::Store(clsData& row, int at, const std::string& cell) const {
    const TableColumn& column = (*this)[at];
    const auto item = static_cast<std::size_t>(column.item);
    if (column.kind == Kind::Value && !cell.empty() && CellOf(row, at) == cell) {
        if (Find(Kind::Digits, column.item) < 0)
            row.Digits[item] = static_cast<std::uint8_t>(row.DigitCount(column.item));
        return; // what was typed stays behind what its digits let show
    }
    if (column.kind == Kind::Value) {
        row.Values[item] = cell;
        if (Find(Kind::Digits, column.item) < 0)
            row.Digits[item] = static_cast<std::uint8_t>(SignificantDigits(cell));
    } else if (column.kind == Kind::Digits) {
        const int typed = static_cast<int>(std::clamp(Val(cell), 0.0, 99.0));
        row.Digits[item] =
            static_cast<std::uint8_t>(typed > 0 ? typed : SignificantDigits(row.Values[item]));
    } else if (column.kind == Kind::KVO) {
        if (IsNumeric(cell) || cell.empty()) row.PRPUNCERTY = cell;
    } else if (!cell.empty() || row.Extras) {
        const bool addsPercent = column.percent && !cell.empty() && !cell.ends_with('%');
        *StatementIn(row, column) = addsPercent ? cell + "%" : cell;
    }
}

} // namespace vexora
