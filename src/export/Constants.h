// State variables that are the same for all values of a set: what its definition fixes, and what
// its comment states.
#pragma once

#include <string>
#include <vector>

#include "export/Statements.h"

namespace vexora {

class clsMZ;
class clsX;
class DataSet;
struct DataSubject;

/// A variable that stays the same, with what the set states about its value.
struct ExportedConstant {
    std::string code, value, phase; // value as typed, empty for a critical curve
    ExportUnit unit;
    const clsX* statements = nullptr; // owned by the set

    bool HasNumber() const;
};

/// Those of a set in the order in which they leave: of its definition, then of its comment, where T
/// [K], P [kPa], WL [Angstrom] and WF [MHz] may stand.
std::vector<ExportedConstant> ConstantsOf(const DataSet& set);
/// Temperature and pressure of the comment.
std::vector<ExportedConstant> ConstantsOf(const clsMZ& value);

/// Why a constant cannot leave, in words for the user, or empty.
std::string ConstantFault(const DataSubject& subject,
                          const std::vector<ExportedConstant>& constants);
/// Their elements. Tells of those without a number, which are left out, and of an announced
/// repeatability that lacks its figure.
void ExportConstants(XmlWriter& xml, const DataSubject& subject,
                     const std::vector<ExportedConstant>& constants);
/// The constraint of one atmosphere.
/// 101.325 kPa, exact by definition (CGPM 1954).
void ExportAtmosphere(XmlWriter& xml, const DataSubject& subject);

} // namespace vexora
