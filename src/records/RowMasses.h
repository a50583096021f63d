#pragma once

#include "chem/clsMMM.h"
#include "records/UnitConversion.h"

#include <array>

namespace vexora {

class DataSet;
class clsData;
class clsMV;

/// The average molar masses of the rows of a set, made ready once for all of them. The set and its
/// mixture must stay as they are meanwhile.
class RowMasses {
public:
    explicit RowMasses(const DataSet& set);

    /// [g/mol]; 0 when it is not known, for want of the molar mass of a component or because
    /// variables and constants do not tell the composition of the phase that the property is of.
    double Of(const clsData& row);

private:
    void TakeComposition(const clsMV& set);

    const DataSet& set_;
    const clsMV* mixed_ = nullptr; // null for a set whose rows have one molar mass in common
    clsMMM calculator_;
    std::array<UnitConversion, 4> units_; // of the property and the variables
};

} // namespace vexora
