#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/OpenRecord.h"
#include "records/UnitConversion.h"
#include "records/clsBD.h"
#include "records/clsX.h"
#include "reference/KVODefinitions.h"

namespace vexora {

class LineWriter;
class WordReader;
class clsL;
class clsR;

/// What a quantity is in its bio set: measured, varied, or the same in all rows. In this order they
/// stand in the set.
enum class BioRole { Property, Variable, Constraint };

/// A quantity of a bio set.
struct BioQuantity {
    BioRole role = BioRole::Variable;
    /// Code of its table (BioSet::TableOf).
    std::string code;
    /// The system unit, or the text of another one that needs no molar mass ("C", "MPa"); "1" for
    /// none.
    std::string unit = {};
    std::string phase = {}; // code, empty for none
    /// Key of the participant or component that it is said of, empty for none.
    std::string component = {};
    /// For all rows, as typed: with "%" per cent of the value; "*" when each row states its own.
    std::string uncertainty = {};
    std::string value = {}; // of a constraint, as typed

    bool StatesByRow() const { return uncertainty == "*"; }
    /// The same quantity, whatever its role, unit, uncertainty and value.
    bool IsSameAs(const BioQuantity& other) const {
        return code == other.code && phase == other.phase && component == other.component;
    }
    bool operator==(const BioQuantity&) const = default;
};

/// A further component of the solution; in a bio reaction one that takes no part.
struct BioComponent {
    std::string RN;       // registry number of its compound
    std::string SMPNM;    // number of its sample, empty for none
    std::string function; // a text of BioFunctions
    std::string phase;    // code, empty for none
    std::string note;     // its content, or what is said of its uncertainty
    bool operator==(const BioComponent&) const = default;
};

/// A part of a bio set in which sets have to agree whose rows are to stand in one, as a text that
/// is the same for equal ones.
struct BioPart {
    std::string name, text;
    bool operator==(const BioPart&) const = default;
};

/// What bio reactions and bio properties have in common: a solution with its components, any number
/// of properties against any number of variables, with what is held constant, the rows, a statement
/// of uncertainty for each quantity, and the method. The lines behind the one of the class are
///
///   BC key function phase SMPNM note             (a component; note is the rest)
///   BV code unit phase component uncertainty role value   (a quantity; role P, V or C)
///   BE
///   BM method                                    (the rest of the line)
///   B0 flag flag                                 (of a bio reaction)
///   BD value ...                                 (a row)
///   ^X                                           (statements, N the place among the quantities)
///
/// A component goes by its key: the registry number, and for the k-th one of the same compound the
/// number, a point and k, from 2. A row has a word for each property and variable, and one more
/// behind those whose uncertainty is "*".
class BioSet : public OpenRecord {
public:
    int SetNo = 0; // number of the set within its source or sample
    std::string Method;
    std::vector<BioComponent> Components;
    /// Properties first, then variables, then constraints; changed by Add, Erase, Change and
    /// TakeQuantities only, so that statements and cells go along.
    const std::vector<BioQuantity>& Quantities() const { return quantities_; }
    std::vector<clsX> recU; // one a quantity, in their order
    std::vector<clsBD> recD;
    bool Flag1 = false, Flag2 = false;
    clsR* Parent = nullptr; // the source, of a set in a complex sample as well

    /// "BR" or "BP": which words of the tables and which functions hold for it.
    virtual bool IsReaction() const = 0;
    /// The table that a code is looked up in, by the role: "S" is an entropy, "E" has two units.
    virtual BioQuantityTexts TableOf(BioRole role) const = 0;
    /// Compounds that take part or are the substance, by key, in front of the components.
    virtual std::vector<std::string> ParticipantKeys() const = 0;
    /// The registry numbers of all that the set is of, each once.
    std::vector<std::string> Compounds() const;

    /// The entry of the table for a quantity, null for a code that it lacks.
    const BioQuantityText* TextOf(const BioQuantity& quantity) const;
    /// The name of a quantity with its component and phase, as heads, plots and pages show it.
    std::string NameOf(const BioQuantity& quantity) const;
    /// Its unit as it is shown: the system unit where a file leaves it open, empty for none.
    std::string UnitOf(const BioQuantity& quantity) const;
    /// How its values lead to the system unit.
    UnitConversion ConversionOf(const BioQuantity& quantity) const;
    /// How many there are in a role, and the place of the first of them.
    std::size_t CountOf(BioRole role) const;
    std::size_t FirstOf(BioRole role) const;
    /// Properties and variables: the cells of a row.
    std::size_t Columns() const { return FirstOf(BioRole::Constraint); }

    /// Puts a quantity behind the last of its role, or in front of place `at` within its role, with
    /// an empty statement and empty cells.
    std::size_t Add(BioQuantity quantity);
    /// Takes one out with its statement and its cells.
    void Erase(std::size_t place);
    /// Changes a quantity that keeps its role: code, unit, phase, component, uncertainty, value.
    void Change(std::size_t place, BioQuantity quantity);
    /// Puts these in the place of all: statements and cells follow those that stay
    /// (BioQuantity::IsSameAs and the same role, or a role that has cells), others are dropped.
    void TakeQuantities(const std::vector<BioQuantity>& quantities);

    /// The key of component n, and the registry number that a key names.
    std::string KeyOf(std::size_t component) const;
    /// Those of participants or substance, and behind them of the components: registry numbers, the
    /// further ones of a compound numbered.
    std::vector<std::string> Keys() const;
    static std::string RNOfKey(std::string_view key);
    /// The compound that a key names, null when the source has none; its name, or the number.
    std::shared_ptr<clsL> CompoundOf(std::string_view key) const;
    std::string CompoundName(std::string_view key) const;
    /// A compound, or a sample of it, stands in the set.
    virtual bool Uses(std::string_view rn) const;
    virtual bool UsesSample(std::string_view rn, std::string_view sample) const;
    /// Two numbers of samples are one; none is no sample.
    static bool IsSameSample(std::string_view a, std::string_view b);

    // Making one set of many. Each keeps every figure that was typed.

    /// Statements and rows fit the quantities: one statement each, one cell a column.
    bool Check() const;
    /// Takes out components and variables that are there twice, and variables that are empty in
    /// every row. Properties, constraints and participants stay.
    void Clean();
    /// Constraints become variables, with their value in each row.
    void Expand();
    /// All that must agree agrees, but rows and the values of constraints: kind, participants,
    /// components, quantities with units and statements, states, phases, method and what the header
    /// says. In which order things stand, and whether a quantity varies or is held constant, is all
    /// one.
    bool Equal(const BioSet& other) const;
    /// What has to agree, part by part, each under its name.
    std::vector<BioPart> Parts() const;
    /// Appends the rows of an equal set, cell by cell under the same quantity.
    void Merge(const BioSet& other);
    /// Variables that are the same text in all rows become constraints.
    void Compact();

    bool StandsByFactor() const override { return false; }
    /// By its number, else by its code; what names no quantity of the set is kept as read.
    Placement AddX(const clsX& item) override;
    /// A BD line. One that is too short is filled up with empty cells.
    Taken LoadRow(std::string_view line) override;

protected:
    BioSet();
    BioSet(const BioSet&) = default;
    BioSet& operator=(const BioSet&) = default;
    static std::vector<std::string> NumberedKeys(std::vector<std::string> rns);
    void PrintHeader(LineWriter& out) const;
    /// BC to BM.
    void PrintDefinition(LineWriter& out) const;
    void PrintRows(LineWriter& out) const;
    void PrintStatements(LineWriter& out) const;
    /// Appends the parts that are those of the class.
    virtual void AddParts(std::vector<BioPart>& parts) const = 0;
    /// What is said of each participant or the substance, as a text.
    virtual std::vector<std::string> ParticipantTexts() const = 0;
    /// Texts in one, which tells them apart; sorted, for parts whose order means nothing.
    static std::string Joined(const std::vector<std::string>& texts);
    static std::string Sorted(std::vector<std::string> texts);

private:
    std::string NumberAmong(const BioQuantity& quantity) const;
    std::vector<std::string> TextsOfQuantities(bool properties) const;
    std::vector<std::string> IdentityTexts() const;
    bool IsEmptyColumn(std::size_t place) const;
    bool RepeatsColumn(std::size_t place, std::size_t earlier) const;
    bool CanBeConstraint(std::size_t place) const;
    void CleanComponents();
    void CleanColumns();

    std::vector<BioQuantity> quantities_;
    std::vector<clsX> others_; // ^X lines that name no quantity of the set
};

/// The bio set that the selected node is about, by CurrentKey; null for none.
std::shared_ptr<BioSet> CurrentBioSet();

/// Whether a component's content is stated by a quantity: X, W, M, J, E or pC of that compound that
/// varies or is held constant.
bool StatesContent(const BioSet& set, std::string_view rn);

/// The units in which its values may be typed, the system unit ("1" for none) first: those that
/// need no molar mass.
std::vector<std::string> BioUnits(const BioQuantityText& quantity);

} // namespace vexora
