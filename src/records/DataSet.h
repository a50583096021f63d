#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/OpenRecord.h"
#include "records/Quantity.h"
#include "records/ResultDefinition.h"
#include "records/RowList.h"
#include "records/SetSurroundings.h"
#include "records/UnitConversion.h"
#include "records/clsX.h"

namespace vexora {

class LineWriter;
class XmlWriter;

/// The statements of uncertainty about all rows: the property, the variables, and behind them what
/// is constant. Places that nobody wrote to take no memory: most sets of a large document state
/// nothing here.
class StatementsOfSet {
public:
    static constexpr std::size_t Count = 5;

    StatementsOfSet() = default;
    StatementsOfSet(const StatementsOfSet& other)
        : items_(other.items_ ? std::make_unique<Items>(*other.items_) : nullptr) {}
    StatementsOfSet(StatementsOfSet&&) noexcept = default;
    StatementsOfSet& operator=(StatementsOfSet other) noexcept {
        items_.swap(other.items_);
        return *this;
    }

    const clsX& operator[](std::size_t n) const { return Present()[n]; }
    clsX& operator[](std::size_t n) { return Own()[n]; }
    const clsX& at(std::size_t n) const { return Present().at(n); }
    clsX& at(std::size_t n) { return Own().at(n); }
    std::size_t size() const { return Count; }
    const clsX* begin() const { return Present().data(); }
    const clsX* end() const { return begin() + Count; }
    clsX* begin() { return Own().data(); }
    clsX* end() { return begin() + Count; }
    bool operator==(const StatementsOfSet& other) const {
        return items_ == other.items_ || Present() == other.Present();
    }

private:
    using Items = std::array<clsX, Count>;
    /// All places without a statement, each with its number.
    static const Items& Nothing();
    const Items& Present() const { return items_ ? *items_ : Nothing(); }
    Items& Own() {
        if (!items_) items_ = std::make_unique<Items>(Nothing());
        return *items_;
    }

    std::unique_ptr<Items> items_;
};

/// A state variable that is the same in all rows of a set: its place among the statements (0 for
/// one that has none of its own), its value as typed, with the conversion code of the unit, and the
/// phase in which it is meant.
struct HeldConstant {
    int item = 0;
    std::string code, value, unit, phase;
};

/// What every set with rows has in common: a property measured against one to three state
/// variables, statements of uncertainty about each of them, and the rows. A kind of set is a class
/// that adds its own line, says what its variables are, and knows the molar mass that its rows go
/// by. Table, plot, checks, reading and export work on this.
///
/// On disk a set is a header ^A, a factor ^M where its unit has no letter, the line of its class, a
/// ^X line for each item that is stated, the rows, and what closes it (^M 0).
class DataSet : public OpenRecord {
public:
    static constexpr int MostVariables = 3;
    static constexpr int Items = static_cast<int>(StatementsOfSet::Count);

    int nVar = 1;
    /// Code of the property, conversion code of its unit, relation of results to it
    /// (ResultDefinition.h), number of the set, presentation in the paper (Presentation.h).
    std::string PRPCODE, PROPERTY_UNIT, PROPERTY_FUNCT = "DIR", PRPSETNO, DATATYPE;
    /// Given by the user, or read from ^M; it wins over the unit code.
    double Factor = 0; // factor of a non-standard unit to the system unit, 0 when none
    /// Values stand in the units of the paper; each row knows for itself
    /// (clsData::inOriginalUnits).
    bool isOriginalUnit = true;
    /// Precision tags of the comment stand in system units (see clsX::inSystemUnits).
    bool commentInSystemUnits = false;
    StatementsOfSet UX;       // 0 the property, 1 to nVar the variables, then constraints
    std::vector<clsX> OtherX; // ^X lines with no place in the set, kept as read
    RowList recData;
    double FallbackMolarMass = 0; // [g/mol] of the file, where the formula gives none

    DataSet() = default;

    // What a kind of set says of itself.

    /// "Pure", "Bin", "Tern" or "React": the lists of the vocabulary that hold for it.
    virtual std::string_view DataContext() const = 0;
    /// The compound, mixture or reaction, as messages name it.
    virtual std::string SystemName() const = 0;
    /// Code and conversion code of variable n, 1 to nVar; empty outside.
    virtual const std::string& VARIABLE(int n) const = 0;
    virtual const std::string& VAR_UNIT(int n) const = 0;
    /// The name of variable n as the tables have it; empty for one that the system cannot have.
    virtual std::string VariableWords(int n) const;
    /// The phase in which a quantity is meant: 0 the property, 1 to nVar the variables.
    virtual const std::string& PhaseFor(int n) const = 0;
    /// All phases that are there together, the main one first; "&" for none.
    virtual std::vector<std::string> Phases() const = 0;
    /// Rows may bear a number that ties them to rows of other sets.
    virtual bool HasTies() const { return false; }
    /// The sets and names that a picture of this set draws on; none by default.
    virtual SetSurroundings Surroundings() const { return {}; }
    /// Molar mass [g/mol] that a unit by mass goes by in this row, 0 when it is not known. Of a
    /// pure compound it is the same for all rows, in a mixture it follows the composition.
    virtual double MolarMass(const clsData& row) const = 0;
    virtual bool MolarMassFollowsRows() const { return false; }
    /// The record that the set belongs to, as messages name it on refusal; null for none.
    virtual const Record* Owner() const = 0;
    /// What its definition holds constant; constants of a pure set are told by its comment.
    virtual std::vector<HeldConstant> Constants() const { return {}; }
    /// The kind of equilibrium by which the vocabulary names a property (Vocabulary.h).
    virtual std::string PropertyContext() const { return {}; }
    /// Statements and precisions stand in the units that the line of the set names, as rows do;
    /// otherwise those of variables, and all precisions, are brought to system units.
    virtual bool StatesInUnitsOfLine() const { return false; }
    /// A ratio bears neither the letter of a unit nor a factor in its record.
    virtual bool RatioHasNoUnit() const { return false; }
    /// A set of its own with the same definition, statements and rows, so that a table that is
    /// given up has changed nothing. It has no node and stands in no collection, but knows its
    /// owner.
    virtual std::shared_ptr<DataSet> Copy() const = 0;

    // What follows from that.

    /// The value of a state variable that is stated for all rows, in its system unit; empty when
    /// there is none, or it varies.
    virtual std::string ConstantOf(std::string_view code) const;
    /// What is the same in all rows, by definition or by the comment, as numbers in system units; a
    /// critical curve has none.
    std::vector<SetConstant> SystemConstants() const;
    ResultDefinition Definition() const { return ResultDefinition::Of(PROPERTY_FUNCT); }
    /// "A" for absolute values (direct, mean), "D" for differences, "R" for ratios.
    virtual std::string_view Relation() const { return Definition().Relation(); }
    bool HasVariable(std::string_view code) const;
    /// Some rows stand in the units of the paper, some do not.
    bool HasBothKinds() const;
    /// The quantities of a row from left to right: the variables, then the property, with the names
    /// and units that their statements bear (NameStatements in PropertyChain.h).
    std::vector<Quantity> Quantities() const;

    bool StandsByFactor() const override;
    /// By its number, else by its code; what has no place in the set is kept as read.
    Placement AddX(const clsX& item) override;
    /// Adds a row; the set is in original units as long as any of its rows is.
    clsData& AddRow(clsData row);
    Taken LoadRow(std::string_view line) override;
    Taken LoadRowStatements(std::string_view line) override;
    /// Header fields and a pending factor of the reader.
    /// To be called once, before rows are added.
    virtual void TakePending(const clsA& pending);
    /// Writes the set with its statements and rows. Values of variables in units without a letter
    /// are brought to system units in the lines. Throws SaveRefused for a unit that has no factor.
    void Print(LineWriter& out) const override;

    /// Molar mass [g/mol] that the set stands under, 0 when it is not known or follows the rows.
    double MolarMass() const;
    /// The unit is based on mass, so that the molar mass stands in front of the set.
    bool NeedsMolarMass() const;
    /// Values by mass go to system units by the molar mass of their own row, not by one of the set.
    bool ConvertsByRow() const;
    /// The conversion of the property (none for a ratio) and of variable n, as entered. That of the
    /// property takes the molar mass of the set or of a row.
    UnitConversion PropertyConversion() const;
    UnitConversion PropertyConversion(const clsData& row) const;
    UnitConversion VariableConversion(int n) const;
    /// The conversion of item n: 0 the property, 1 to nVar the variables, behind them what the
    /// definition holds constant.
    UnitConversion Conversion(int n) const;
    /// Brings all rows, statements and constants to system units; the unit codes of property and
    /// variables stay as the memory of the paper's units. What the set states about a property that
    /// goes by the molar mass of each row becomes the rows' own. False, and nothing changes, when a
    /// unit or a molar mass is not known.
    /// Never called for writing: the file keeps the figures of the paper wherever it can.
    bool AdjustUnits();
    /// A precision stated for a quantity in the unit of its values, in the system unit; that of a
    /// quantity that the set has not, as it stands.
    std::string SystemPrecision(const std::string& code, const std::string& typed) const;
    /// How a value of a state variable leads to its system unit from that of a unit field.
    static UnitConversion ConversionOf(const std::string& variable, const std::string& field);

    /// Visits each row as its record bears it: values of variables in units without a letter have
    /// left these. Throws SaveRefused, before the first row, for a unit that has no factor.
    void ForEachWrittenRow(const std::function<void(const clsData&)>& visit) const;

protected:
    DataSet(const DataSet&) = default;
    DataSet& operator=(const DataSet&) = default;

    /// The line of the class.
    virtual std::string DefinitionLine() const = 0;
    /// Brings the values of Constants() to system units.
    virtual void AdjustConstants() {}
    /// The comment as the record bears it, with the tags that the line of the class leaves to it.
    virtual std::string CommentOfLine() const { return Header.DATACOMMENT; }
    /// What stands behind the rows, "^M 0" to close the factor.
    virtual void PrintEnd(LineWriter& out) const;
    /// The unit field of the property: a letter, or "S" where a factor stands in front.
    std::string PropertyUnitField() const;

private:
    UnitConversion PropertyConversion(double molarMass) const;
    void TakeUnitsOf(const clsData& added);
    bool NamesUnit() const;
    std::string CommentForRecord() const;
    std::string PrecisionForRecord(const std::string& code, const std::string& typed) const;
    void PrintHead(LineWriter& out) const;
    void PrintStatements(LineWriter& out) const;
    void PrintRows(LineWriter& out) const;
    bool CanAdjustUnits(const std::vector<UnitConversion>& units) const;
    void AdjustStatements();
    void StateInRows();
    std::string UnitOfStatements(int n) const;
};

/// The set that the selected node or the dialog in hand is about, by the context of the globals;
/// null for none.
std::shared_ptr<DataSet> CurrentSet();

} // namespace vexora
