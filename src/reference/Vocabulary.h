// The look-ups between the codes that records store and the words that dialogs and the export show,
// answered by the two databases of ReferenceDatabases. A look-up that finds nothing, or finds no
// database, gives an empty result and says nothing: the caller's check tells the user. A table that
// cannot be read throws DatabaseError. Codes are matched with exact case, names without regard to
// it; of several rows the first in table order answers.
//
// The tables of the vocabulary are kept: each is read at its first look-up, and anew when other
// databases are opened or installed, or rows are changed through LocalDb. A pointer to a row holds
// until then. Compounds are not kept; they are asked of the database each time.
//
// Context words are "Pure", "Bin", "Tern", "React" and "Complex" (offered what "Pure" is offered).
// Property contexts are "", "vle", "lle", "sle", "sse", "sub": variants of one property by kind of
// equilibrium (vapor, liquid, solid; sub is solid and gas).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

struct BioQuantityText;

/// The contexts in which a table offers a row.
struct ContextFlags {
    bool Pure = false;
    bool Bin = false;
    bool Tern = false;
    bool React = false;
    bool GH = false;
    /// True as well for a context that no column tells of.
    bool IsIn(std::string_view context) const;
};

// Phases. "Solution", "Solution 1" and "Solution 2" ("S", "S1", "S2") never reach the database.

std::string PhaseCode(std::string_view name);
std::string PhaseName(std::string_view code);
/// True for a known code and for "&" (no phase).
bool PhaseValid(std::string_view code);
/// Names of the phases offered in a context (all with no context), in table order, of those whose
/// name begins with the prefix. "GH" is the context of gas-hydrate sets; "Complex" adds its phases
/// to those of "Pure".
std::vector<std::string> PhaseList(std::string_view context, std::string_view prefix = {});
/// True for constraint codes of critical curves; they are no crystals although some begin with "C".
bool IsCriticalCurve(std::string_view code);
bool IsCrystalPhase(std::string_view code);
bool IsLiquidPhase(std::string_view code);

// Independent variables.

/// Constr: it may be held constant for a whole set; NeedSolvent: it is said of the solvent.
struct VariableRow {
    std::string IndVarCode;
    std::string IndVariable;
    std::string Unit;
    std::string XMLGroup;
    std::string XMLNAME;
    bool Constr = false;
    bool NeedSolvent = false;
    ContextFlags Offered;
};
/// The first row of a code or name; null if there is none.
const VariableRow* FindVariable(std::string_view code);
const VariableRow* FindVariableByName(std::string_view name);
/// The variables offered in a context; only those usable as constraints, if asked.
std::vector<VariableRow> VariablesOf(std::string_view context, bool constraintsOnly = false);
/// With a context, only what is offered in it.
std::string VariableName(std::string_view code, std::string_view context = {});
std::string VariableCode(std::string_view name, std::string_view context = {});
/// True for a variable of pure data.
bool VariableValid(std::string_view code);

// Properties.

/// The flags tell in which ways it is entered: single, at a fixed variable, against one or two.
struct PropertyRow {
    std::string Code;
    std::string Property;
    std::string Unit; // system unit
    std::string GROUP;
    std::string CONTEXT;
    std::string IndVarFixed;
    std::string PureAvail; // two-letter class
    std::string MixtAvail; // two-letter class
    std::string XMLNAME;
    bool MixZ = false;
    bool MixV = false;
    bool Single = false;
    bool Fixed = false;
    bool One = false;
    bool Two = false;
    bool REACT = false;
    ContextFlags Offered;
};
/// The row of a code that fits best: offered in the context and of the property context, then
/// offered and of none, then the first with the code. Null without such a code.
const PropertyRow* FindProperty(std::string_view code, std::string_view context = {},
                                std::string_view propertyContext = {});
const PropertyRow* FindPropertyByName(std::string_view name, std::string_view context = {});
struct PropertyGroupRow {
    std::string GROUP;
    std::string GroupName;
    std::string XMLGroup;
    ContextFlags Offered;
};
/// The groups offered in a context (all with none).
std::vector<PropertyGroupRow> PropertyGroups(std::string_view context);
/// The properties of a group offered in a context.
std::vector<PropertyRow> PropertiesOfGroup(std::string_view group, std::string_view context);
std::string PropertyCode(std::string_view name);
std::string PropertyName(std::string_view code, std::string_view context = {},
                         std::string_view propertyContext = {});
/// True when pure data of the property can be entered in any mode.
bool PropertyValid(std::string_view code);
/// System unit of a property or variable name.
std::string DefaultUnit(std::string_view name);
/// System unit of a property or variable code; empty when no table knows it.
std::string UnitOfProperty(std::string_view code, std::string_view context = {});
std::string UnitOfVariable(std::string_view code);
/// Class of the property where the mode ("Single", "Fixed", "One", "Two") is open to it, else "".
std::string PureAvailable(std::string_view code, std::string_view mode);
/// Class of the property where the mode ("MixZ", "MixV") is open to it, else "".
std::string MixtureAvailable(std::string_view code, std::string_view mode);
/// Code of the variable held fixed for the property; "T" if none is named.
std::string IndVarFixed(std::string_view code);
/// Reference letter of a pure property's class on or off the phase boundary; "" for a class without
/// one, nothing for an unknown class. Fluids are "L", "G" and "FL".
std::optional<std::string> PureLetter(std::string_view propertyClass, bool onBoundary,
                                      std::string_view phase1);

// Methods and the statements about them.

struct MethodRow {
    std::string MethodCode;
    std::string Method;
};
std::vector<MethodRow> MethodsOf(std::string_view propertyCode);
std::string MethodCode(std::string_view name, std::string_view propertyCode);
struct QuestionRow {
    std::string Question;
    std::string Key;
};
std::vector<QuestionRow> Questions(std::string_view method, std::string_view context);

// Samples. Free text stands in round brackets: the code functions give it back so, the name
// functions bare, with a bracket inside blanked.

std::string PurificationName(std::string_view code);
std::string PurificationCode(std::string_view text);
std::string DeterminationName(std::string_view code);
std::string DeterminationCode(std::string_view text);
/// Names for the lists; "Stated by supplier" leads the second.
std::vector<std::string> PurificationList();
std::vector<std::string> DeterminationList();
/// Rating of a way to determine purity, lower is more trusted.
std::optional<int> PurityRating(std::string_view code);

// Compounds, reactions.

struct CompoundRow {
    std::int64_t RN = 0;
    std::string NAME;
    std::string FORMULA;
};
/// All rows of a registry number, in table order.
std::vector<CompoundRow> CompoundsOf(std::int64_t rn);
std::string ReactionType(std::string_view code);
std::string ReactionCode(std::string_view type);
std::vector<std::string> ReactionTypes();
/// Standard atomic mass [g/mol].
/// Values of IUPAC; of D and T the mass of the isotope. Exact case: "Co" is not "CO".
std::optional<double> AtomicMass(std::string_view symbol);

// Words of the export.

/// Element names and texts of ThermoML. Records hold codes only, for a schema may change its words.
std::string XMLPropertyGroup(std::string_view code, std::string_view context = {},
                             std::string_view propertyContext = {});
std::string XMLPropertyName(std::string_view code, std::string_view context = {},
                            std::string_view propertyContext = {});
std::string XMLMethod(std::string_view methodCode, std::string_view propertyCode);
/// Group of the variable's row; without one, by the letter the code begins with.
std::string XMLVariableGroup(std::string_view code);
std::string XMLVariableName(std::string_view code);
/// Names of a bio quantity, by its entry and not by its code, which means something else in other
/// tables. A variable is called as that of the same code and unit, where there is one.
std::string XMLBioPropertyName(const BioQuantityText& quantity);
std::string XMLBioVariableName(const BioQuantityText& quantity);
std::string ReferenceStateText(std::string_view code);

} // namespace vexora
