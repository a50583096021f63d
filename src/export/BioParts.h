// What bio reactions and bio properties share in the export.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "export/Statements.h"
#include "records/BioSet.h"

namespace vexora {

class Substance;
class XmlWriter;

/// What a bio set gives to its export: who is in the solution, how values and statements of each
/// quantity are converted, and which rows leave. Made for one export of one set, which must stay as
/// it is meanwhile.
class BioParts {
public:
    struct Quantity {
        const BioQuantity& stated;
        const BioQuantityText* text; // null for a code that no table knows
        std::string number;          // among those of its role, from 1
        ExportUnit unit;
        clsX item; // what is stated for all rows
    };

    explicit BioParts(const BioSet& set);

    std::span<const Quantity> Of(BioRole role) const;
    /// The property or variable of a cell.
    const Quantity& InColumn(std::size_t column) const { return quantities_[column]; }
    /// The compound or complex with this key in the set, null for none.
    const Substance* Member(std::string_view key) const;

    /// Why the set cannot leave, in words for the user, or empty.
    std::string Fault() const;
    /// The same, told to the user; true when there was one.
    bool TellsFault(const std::string& fault) const;

    /// All values of the row are numbers; of several properties some may be without one. Rows
    /// without any value are none.
    enum class Leaving { Whole, Empty, WithoutNumber };
    Leaving LeavingOf(const clsBD& row) const;

    /// The components of the solution with their functions.
    void ExportComponents(XmlWriter& xml) const;
    /// What the property of a set is called by, besides its own words.
    struct PropertyHead {
        std::string group, method; // group is the name of an element
        std::string component;     // key, empty for none
    };
    /// Opens the property: number, name, method, component.
    void OpenProperty(XmlWriter& xml, const Quantity& property, const PropertyHead& head) const;
    /// Closes it behind its statements.
    static void CloseProperty(XmlWriter& xml, const Quantity& property);
    /// Constraints, variables, and an element for each row that leaves; tells why others do not.
    void ExportNumbers(XmlWriter& xml) const;

private:
    void ExportConstraint(XmlWriter& xml, const Quantity& constraint) const;
    void ExportVariable(XmlWriter& xml, const Quantity& variable) const;
    void ExportQuantity(XmlWriter& xml, const Quantity& quantity, const char* id, const char* type,
                        const char* phaseId, const char* phase) const;
    /// False when an announced repeatability lacks its figure.
    bool ExportRow(XmlWriter& xml, const clsBD& row) const;
    std::string FaultOf(const Quantity& quantity) const;

    const BioSet& set_;
    std::size_t properties_, columns_; // how many cells of a row are measured, and how many in all
    std::vector<Quantity> quantities_; // in the order of the set
    std::map<std::string, std::shared_ptr<Substance>, std::less<>> members_;
};

/// A component of a solution: compound, what it is there for (empty for the substance itself), and
/// the number of its sample.
void ExportBioComponent(XmlWriter& xml, const Substance& compound, std::string_view function,
                        std::string_view sample);
/// An element with a phase and other texts inside; nothing for no phase and no texts.
void ExportBioPhase(XmlWriter& xml, const char* element, const char* inner, std::string_view phase,
                    const std::vector<std::string>& states = {});

} // namespace vexora
