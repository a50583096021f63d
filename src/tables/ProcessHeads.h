#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tables/ProcessWords.h"

namespace vexora {

/// The heads of a column as a person reads them, and the description that they stand for.
class ProcessHeads {
public:
    enum Row { Quantity, Unit, Phase };
    using Texts = std::array<std::string, 3>; // by Row

    /// Mixture null: of a pure compound, whose columns have no phase.
    explicit ProcessHeads(const clsM* mixture)
        : quantities_(Headings(mixture)), phases_(HeadPhases(mixture)), isPure_(!mixture) {}

    ProcessColumn ColumnOf(const Texts& texts) const;
    Texts TextsOf(const ProcessColumn& column) const;
    /// "Mole fraction of ethanol, Gas".
    std::string NameOf(const ProcessColumn& column) const;
    std::string QuantityText(std::string_view code) const;
    std::string PhaseText(std::string_view code) const;
    /// What is offered in a row of the heads of this column; none where nothing is to be chosen.
    std::vector<std::string> Offered(Row row, const ProcessColumn& column) const;

    /// The heads with another quantity: a unit that it has too stays, a temperature is in kelvin
    /// unless stated otherwise, and what is common to all phases has none.
    Texts WithQuantity(const Texts& before, const std::string& quantity) const;

private:
    const std::vector<HeadEntry>& UnitsOf(const std::string& quantity) const;

    std::vector<HeadEntry> quantities_, phases_;
    bool isPure_;
    mutable std::map<std::string, std::vector<HeadEntry>> units_; // by quantity, once looked up
};

} // namespace vexora
