#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/OpenRecord.h"
#include "records/UnitConversion.h"
#include "records/clsX.h"
#include "reference/ShortText.h"

namespace vexora {

class LineWriter;
class XmlWriter;

/// What every single value has in common: a property with its value, unit and factor, what the
/// value line says of its uncertainty, and statements of uncertainty in ^X lines behind it. A kind
/// of value is a class that adds its own line. Documents hold many, most of them with nothing
/// stated in ^X lines, so these stand behind one pointer.
class SingleValue : public OpenRecord {
public:
    /// Code of the property, conversion code of its unit, number of the set, value as typed: texts,
    /// for the digits that the author gave are part of the datum.
    ShortText PRPCODE, PROPERTY_UNIT, PRPSETNO, PRPVALUE;
    /// In the unit of the value; never part of a ^X line.
    ShortText PRPUNCERTY; // figure of the evaluation
    /// A trailing "%" is per cent of the value.
    ShortText PRECIS; // repeatability, and the number of determinations behind it
    ShortText DETERMNM;
    /// Values stand in the unit of the paper, not in the system unit.
    bool isOriginalUnit = true;
    /// Precision tags of the comment stand in system units (see clsX::inSystemUnits).
    bool commentInSystemUnits = false;
    double Factor = 0;            // factor of a non-standard unit to the system unit, 0 when none
    double FallbackMolarMass = 0; // [g/mol] of the file, where the formula gives none

    // What a kind of value says of itself.

    /// "Pure", "Bin", "Tern" or "React": the lists of the vocabulary that hold for it.
    virtual std::string_view DataContext() const = 0;
    /// The compound, mixture or reaction, as messages name it.
    virtual std::string SystemName() const = 0;
    /// The conversion code of its unit, where the field says more than that.
    virtual std::string UnitCode() const { return PROPERTY_UNIT; }
    virtual void UnitCode(std::string_view code) { PROPERTY_UNIT = code; }
    /// By whose mass the unit goes, as labels name it; empty where that is understood.
    virtual std::string UnitBasis() const { return {}; }
    /// State variables at which the value holds, with their codes and conversion codes (n from 1).
    virtual int VariableCount() const { return 0; }
    virtual std::string VARIABLE(int) const { return {}; }
    virtual std::string VAR_UNIT(int) const { return {}; }
    /// Molar mass [g/mol] that a unit by mass goes by, 0 when it is not known.
    virtual double MolarMass() const = 0;
    /// The record that the value belongs to, as messages name it on refusal; null for none.
    virtual const Record* Owner() const = 0;
    /// What is stated of the value stands in the unit of the line, and as typed; otherwise
    /// precisions are brought to system units and per cent to the figure.
    virtual bool StatesInUnitsOfLine() const { return false; }
    /// A molar mass in front of a unit by mass.
    virtual bool HasMolarMass() const { return true; }

    // What follows from that.

    /// The statements about quantity n, 0 the property; figures and repeatability of the property
    /// are those of the value line.
    clsX Statements(int n) const;
    /// Makes no memory of its own for an item that says no more than the value line.
    void Statements(int n, const clsX& item);
    /// Puts `changed(code)` in the place of every code of a quantity or phase in statements and
    /// precisions.
    void ChangeCodes(const std::function<std::string(const std::string&)>& changed);
    bool StandsByFactor() const override;
    /// Puts a statement in its place; what has none is kept as read, and what the line of an item
    /// does not carry stays as it is.
    Placement AddX(const clsX& item) override;
    /// Takes over what stood in front of the value line. The pending factor is the user's own for
    /// a value in the system unit, and the molar mass for a unit that is based on mass.
    /// To be called once, before anything else is done with a value that was read.
    void TakePending(const clsA& pending);
    /// Writes header, factor, value line and statements. Throws SaveRefused for a unit that has no
    /// factor.
    void Print(LineWriter& out) const override;

    /// The conversion of the property as entered; none in system units.
    UnitConversion PropertyConversion() const;
    /// The same of variable n.
    UnitConversion VariableConversion(int n) const;
    /// Value of the property in the system unit, 0 when it cannot be converted.
    double SystemValue() const;
    /// The unit is based on mass, so that the molar mass stands in front of the value.
    bool NeedsMolarMass() const;

protected:
    /// The fields of the value line in front of the value, the tag first, and behind the unit
    /// field.
    virtual std::vector<std::string> LineFields(std::string unitField) const = 0;
    /// "^M 0" stands behind the line.
    virtual bool ClosesFactor(bool factorStands) const { return factorStands || NeedsMolarMass(); }
    /// What the reader finds behind the fields of the class.
    void LoadValue(class WordReader& words);

private:
    /// What only few values carry.
    struct Stated {
        std::vector<clsX> items;  // by quantity, 0 the property
        std::vector<clsX> others; // lines about quantities that the value does not have
    };
    Stated& Rare();
    std::string CommentForRecord() const;
    std::string SystemPrecision(const std::string& code, const std::string& typed) const;
    std::string PrecisionForRecord() const;
    bool PrintFactor(LineWriter& out) const;
    void PrintStatements(LineWriter& out) const;

    std::unique_ptr<Stated> stated_; // empty for nearly all values
};

} // namespace vexora
