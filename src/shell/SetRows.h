#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/RowMasses.h"
#include "records/UnitConversion.h"
#include "records/clsData.h"
#include "shell/ReadingPage.h"

namespace vexora {

class BioSet;
class DataSet;

/// The values of a set as its page shows them: as typed, and in system units where the set holds
/// rows of both kinds. The set has to stay while this is asked.
class ShownValues {
public:
    explicit ShownValues(const DataSet& set);
    /// Value n of a row, 0 the property.
    std::string Of(const clsData& row, int n);

private:
    const DataSet& set_;
    bool inSystem_;
    RowMasses masses_;
    std::vector<UnitConversion> entered_;
};

/// The first and the last rows of a set, each with what it states of its own.
void ShowRows(ReadingPage& page, const DataSet& set, const std::vector<std::string>& heads);
void ShowRows(ReadingPage& page, const BioSet& set);

/// What is stated of a quantity for all rows, a line each kind, in plain words. `ofRows` has the
/// marks of what rows state of their own.
void DescribeStatements(ReadingPage& page, const std::string& quantity, const std::string& unit,
                        const clsX& stated, const clsX& ofRows);

} // namespace vexora
