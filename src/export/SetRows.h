// The rows of any set in the export, and what the set says of its quantities in front of them.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "export/Statements.h"
#include "records/RowMasses.h"
#include "records/clsX.h"

namespace vexora {

class DataSet;
class clsData;
class XmlWriter;
struct DataSubject;

/// All values of the row are numbers; others are not exported.
bool IsNumericRow(const clsData& row);

/// What a set gives to the export of its rows: how values and statements of each quantity are
/// converted (0 the property, 1 to 3 the variables), and its statements for rows without their own.
/// Made for one export of one set, which must stay as it is meanwhile.
struct SetRows {
    struct Quantity {
        ExportUnit unit; // converts tells of the statements of the set; a row has its own flag
        clsX item;
        ExportUnit ofRow;           // the same for the row in hand
        bool repeatsInRows = false; // some rows state the repeatability
    };
    const DataSet& set;
    std::array<Quantity, 4> quantities;
    bool lacksRepeatability = false; // announced, but without a figure in the set or any row
    std::optional<RowMasses> masses; // where the property goes by the molar mass of each row

    /// Statements that only some rows make announce themselves like those of the set.
    explicit SetRows(const DataSet& set);

    /// Whether a row leaves.
    enum class Leaving { Whole, WithoutNumber, WithoutMass };
    /// Takes a row in hand: the units of the quantities are those in it, with the molar mass that
    /// it goes by.
    Leaving Enter(const clsData& row);
    /// The unit of quantity n in the row in hand.
    const ExportUnit& UnitIn(int n) const;
    /// Why the rows cannot be exported, in words for the user, or empty.
    /// To be asked before anything is written: a set that is begun cannot be taken back.
    std::string Fault(const DataSubject& subject);

    /// How the results are defined, and the state that they are relative to.
    /// temperature in K and pressure in kPa, as typed; a text that is no number is left out.
    void ExportDefinition(XmlWriter& xml, const DataSubject& subject,
                          const std::string& temperature, const std::string& pressure,
                          const std::string& phase) const;
    /// The heads of the variables.
    void ExportVariables(XmlWriter& xml, const DataSubject& subject) const;
    /// One NumValues element for each row that leaves; tells why others do not, and of an announced
    /// repeatability that lacks its figure.
    /// Rows are left out one by one, the set is not: the good values are worth having.
    void ExportRows(XmlWriter& xml, const DataSubject& subject);
};

/// The set is stated to have no numbers, and has none.
/// Such sets are no fault of the data; the export names them together.
bool IsWithoutNumbers(const DataSet& set);

} // namespace vexora
