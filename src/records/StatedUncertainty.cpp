#include "records/StatedUncertainty.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "chem/CommentTags.h"
#include "records/DataSet.h"
#include "records/SingleValue.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

bool HasPrecision(const clsA& header, std::string_view code) {
    return !CommentTags(header.DATACOMMENT).Precision(code).empty();
}

/// The first of some figures that says anything, of a value as typed.
std::optional<double> FirstOf(std::initializer_list<std::string_view> figures,
                              std::string_view typed, const UnitConversion& unit) {
    for (std::string_view figure : figures) {
        const bool isPerCent = figure.ends_with('%');
        if (isPerCent) figure.remove_suffix(1);
        if (!IsNumeric(figure) || Val(figure) <= 0) continue;
        const double amount = isPerCent ? Val(figure) / 100 * std::abs(Val(typed)) : Val(figure);
        return std::abs(unit.Difference(amount));
    }
    return std::nullopt;
}

std::string_view WhenMeant(bool isMeant, const std::string& figure) {
    return isMeant ? std::string_view(figure) : std::string_view();
}

} // namespace

bool StatesUncertainty(const SingleValue& value) {
    return !IsBlankField(value.PRPUNCERTY) || !IsBlankField(value.PRECIS) ||
           value.Statements(0).IsStated() || HasPrecision(value.Header, value.PRPCODE);
}

bool StatesUncertainty(const DataSet& set) {
    return set.UX[0].IsStated() || HasPrecision(set.Header, set.PRPCODE) ||
           std::any_of(set.recData.begin(), set.recData.end(), [](const clsData& row) {
               return !IsBlankField(row.PRPUNCERTY) || row.Extras != nullptr;
           });
}

std::optional<double> UncertaintyOf(const SingleValue& value) {
    const UnitConversion unit = value.PropertyConversion();
    if (!unit.IsPossible()) return std::nullopt;
    const clsX stated = value.Statements(0);
    return FirstOf({value.PRPUNCERTY, WhenMeant(stated.iCU, stated.CValue),
                    WhenMeant(stated.iUnc, stated.UValue)},
                   value.PRPVALUE, unit);
}

UncertaintyOfRows::UncertaintyOfRows(const DataSet& set)
    : set_(set), byRow_(set.ConvertsByRow()), unit_(set.PropertyConversion()) {}

std::optional<double> UncertaintyOfRows::Of(const clsData& row) const {
    UnitConversion unit = row.inOriginalUnits ? unit_ : UnitConversion();
    if (byRow_ && row.inOriginalUnits) unit.molarMass = set_.MolarMass(row);
    if (!unit.IsPossible()) return std::nullopt;
    static const std::string none;
    const std::string& combined = row.Extras ? row.Extras->userCU : none;
    const auto own =
        FirstOf({row.PRPUNCERTY, combined, row.StatementsOf(0).Unc}, row.PRPVALUE(), unit);
    const clsX& ofSet = set_.UX[0];
    if (own) return own;
    return FirstOf({WhenMeant(ofSet.iCU, ofSet.CValue), WhenMeant(ofSet.iUnc, ofSet.UValue)},
                   row.PRPVALUE(), unit);
}

} // namespace vexora
