#include "export/ExpectedValues.h"

#include "export/BioParts.h"
#include "export/Constants.h"
#include "export/ReactionParts.h"
#include "export/SetRows.h"
#include "records/DataSet.h"
#include "records/ReactionText.h"
#include "records/clsBR.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsMZ.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <cmath>

namespace vexora {

namespace {

// Wavelengths are kept in Angstroms and leave in nm.
constexpr double AngstromsInNanometre = 10;

std::optional<ExpectedValue> Expected(std::string_view typed, const ExportUnit& unit) {
    const std::string text = NormalizeNumber(typed);
    if (!IsNumeric(text)) return std::nullopt;
    // A converted number comes back within a fifth of the last place; some room for the arithmetic.
    constexpr double part = 0.25;
    constexpr double ofDouble = 1e-12;
    double value = Val(text);
    double place = LastPlace(text);
    if (unit.converts) {
        value = unit.difference ? unit.Difference(value) : unit.Absolute(value);
        place = std::abs(unit.Difference(place));
    }
    if (unit.wavelength) {
        value /= AngstromsInNanometre;
        place /= AngstromsInNanometre;
    }
    return ExpectedValue{value, part * place + ofDouble * std::abs(value)};
}

/// Of a set or a single value.
template <class Data>
std::string UnitOfQuantity(const Data& data, int count, int n) {
    if (n == 0) return UnitOfProperty(data.PRPCODE, data.DataContext());
    if (n > count) return {};
    const bool isOfReaction = data.DataContext() == "React";
    const std::string variable = data.VARIABLE(n);
    const std::string code = isOfReaction ? ParticipantCodeOf(variable).code : variable;
    return code == "WL" ? "nm" : UnitOfVariable(code);
}

std::optional<ExpectedValue> Expected(const SingleValue& value, int n) {
    if (n == 0) return Expected(value.PRPVALUE, {value.PropertyConversion(), value.isOriginalUnit});
    const auto* pure = dynamic_cast<const clsZ*>(&value);
    if (pure == nullptr) return std::nullopt;
    ExportUnit unit{value.VariableConversion(n), value.isOriginalUnit};
    unit.wavelength = value.VARIABLE(n) == "WL";
    return Expected(pure->INDVARIABLE, unit);
}

/// Pure single values hold nothing constant.
std::vector<ExportedConstant> ConstantsOf(const Record* record) {
    if (const auto* set = dynamic_cast<const DataSet*>(record)) return ConstantsOf(*set);
    const auto* ofMixture = dynamic_cast<const clsMZ*>(record);
    return ofMixture ? ConstantsOf(*ofMixture) : std::vector<ExportedConstant>();
}

std::vector<std::string> CoefficientsOf(const clsBR& reaction) {
    std::vector<std::string> numbers;
    for (const BioParticipant& one : reaction.Participants)
        numbers.push_back(one.coefficient);
    return numbers;
}

/// In their order: of each participant its coefficient and content, then the initial state.
std::vector<std::string> NumbersOfHead(const Record* record) {
    if (const auto* const reaction = dynamic_cast<const clsBR*>(record))
        return CoefficientsOf(*reaction);
    const auto* const change = dynamic_cast<const clsC*>(record);
    const auto* const equilibrium = change ? nullptr : dynamic_cast<const clsE*>(record);
    if (change == nullptr && equilibrium == nullptr) return {};
    std::vector<std::string> numbers;
    for (const auto& one : change ? ParticipantsOf(*change) : ParticipantsOf(*equilibrium))
        numbers.insert(numbers.end(), {one.coefficient, one.content});
    if (change)
        numbers.insert(numbers.end(), {change->INITIAL_TEMPERATURE, change->INITIAL_PRESSURE});
    return numbers;
}

} // namespace

ExpectedValues::ExpectedValues(const Record* record)
    : record_(record), set_(dynamic_cast<const DataSet*>(record)),
      bioSet_(dynamic_cast<const BioSet*>(record)) {
    for (const ExportedConstant& constant : ConstantsOf(record))
        if (const auto value = Expected(constant.value, constant.unit))
            constants_.push_back(*value);
    for (const std::string& number : NumbersOfHead(record))
        if (const auto value = Expected(number, {})) head_.push_back(*value);
    if (set_ != nullptr) {
        rows_ = std::make_unique<SetRows>(*set_);
        next_ = set_->recData.begin();
    }
    if (bioSet_ == nullptr) return;
    bioParts_ = std::make_unique<BioParts>(*bioSet_);
    for (const BioParts::Quantity& constraint : bioParts_->Of(BioRole::Constraint))
        if (const auto value = Expected(constraint.stated.value, constraint.unit))
            constants_.push_back(*value);
}

ExpectedValues::~ExpectedValues() = default;

bool ExpectedValues::Next() {
    if (set_ != nullptr) return NextRow();
    if (bioSet_ != nullptr) return NextBioRow();
    const bool isThere = isFirst_ && dynamic_cast<const SingleValue*>(record_) != nullptr;
    isFirst_ = false;
    return isThere;
}

bool ExpectedValues::NextRow() {
    while (next_ != set_->recData.end()) {
        row_ = next_++;
        if (rows_->Enter(*row_) == SetRows::Leaving::Whole) return true;
    }
    return false;
}

bool ExpectedValues::NextBioRow() {
    while (nextBio_ < bioSet_->recD.size())
        if (bioParts_->LeavingOf(bioSet_->recD[nextBio_++]) == BioParts::Leaving::Whole)
            return true;
    return false;
}

std::optional<ExpectedValue> ExpectedValues::NextConstant() {
    return constant_ < constants_.size() ? std::optional(constants_[constant_++]) : std::nullopt;
}

std::optional<ExpectedValue> ExpectedValues::NextOfHead() {
    return ofHead_ < head_.size() ? std::optional(head_[ofHead_++]) : std::nullopt;
}

std::optional<std::size_t> ExpectedValues::BioColumn(NumberedQuantity quantity) const {
    const BioRole role = quantity.isProperty ? BioRole::Property : BioRole::Variable;
    const auto number = static_cast<std::size_t>(quantity.number);
    if (quantity.number < 1 || number > bioParts_->Of(role).size()) return std::nullopt;
    return bioSet_->FirstOf(role) + number - 1;
}

std::optional<ExpectedValue> ExpectedValues::Of(NumberedQuantity quantity) const {
    if (bioSet_ != nullptr) {
        const auto column = BioColumn(quantity);
        const auto& cells = bioSet_->recD[nextBio_ - 1].Cells;
        if (!column || *column >= cells.size()) return std::nullopt;
        return Expected(cells[*column].value, bioParts_->InColumn(*column).unit);
    }
    const int n = quantity.isProperty ? 0 : quantity.number;
    if (set_ == nullptr) return Expected(static_cast<const SingleValue&>(*record_), n);
    if (n > row_->nVar) return std::nullopt;
    return Expected(row_->Values[static_cast<std::size_t>(n)], rows_->UnitIn(n));
}

std::size_t ExpectedValues::CountInBlock() const {
    if (set_ != nullptr) return static_cast<std::size_t>(set_->nVar) + 1;
    if (bioSet_ == nullptr) return 0;
    const auto& cells = bioSet_->recD[nextBio_ - 1].Cells;
    return static_cast<std::size_t>(std::ranges::count_if(
        cells, [](const BioCell& cell) { return !IsBlankField(cell.value); }));
}

std::string ExpectedValues::UnitOf(NumberedQuantity quantity) const {
    if (bioSet_ != nullptr) {
        const auto column = BioColumn(quantity);
        const BioQuantityText* text = column ? bioParts_->InColumn(*column).text : nullptr;
        return text ? std::string(text->unit) : std::string();
    }
    const int n = quantity.isProperty ? 0 : quantity.number;
    if (set_ != nullptr) return UnitOfQuantity(*set_, set_->nVar, n);
    const auto* value = dynamic_cast<const SingleValue*>(record_);
    return value != nullptr ? UnitOfQuantity(*value, value->VariableCount(), n) : std::string();
}

} // namespace vexora
