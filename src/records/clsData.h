#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "reference/ShortText.h"

namespace vexora {

class LineWriter;
class WordReader;
class XmlWriter;
struct SetRows;
struct UnitConversion;

/// The uncertainty statements of one quantity in one row, as typed; "%" at the end is per cent of
/// the value.
/// DS is the device specification, Rep the repeatability, Unc the uncertainty that the author
/// states. An empty text takes what the whole set states.
struct RowStatements {
    std::string DS, Rep, Repetitions, Unc;
    bool IsEmpty() const;
    bool operator==(const RowStatements&) const = default;
};

/// What only few rows carry: statements of their own.
struct RowExtras {
    std::array<RowStatements, 4> items; // 0 the property, 1 to 3 the variables
    std::string userCU;                 // combined uncertainty typed by the operator
    std::string CD;                     // curve deviation
};

/// One row of a data set: values of up to three state variables and of the property, each as typed,
/// with its count of digits. Rows are many: what few of them need sits behind one pointer.
///
///   ^D VARIABLE(1) ... VARIABLE(n) PRPVALUE PRPUNCERTY
///   ^G VARIABLE(1) digits ... VARIABLE(n) digits PRPVALUE digits PRPUNCERTY
///   ^Y DS Rep Repetitions Unc  (of each variable, then of the property)  userCU CD
///
/// A word behind PRPUNCERTY is TIELINE, written where there is one, and in every row of a ternary.
///
/// ^d and ^g hold values in the units of the paper, ^D and ^G in system units; ^Y follows its row
/// and stands only where something is stated.
///
/// "&" is an empty value. VARIABLE and PRPVALUE are the numbers as typed, digits the count of
/// significant ones, PRPUNCERTY the figure of the evaluation; userCU is a combined uncertainty, CD
/// the deviation from a fitted curve, both of the property.
class clsData {
public:
    std::array<ShortText, 4> Values; // 0 the property, 1 to 3 the variables, as typed
    /// The tie number is the same for rows of coexisting phases.
    ShortText PRPUNCERTY, TIELINE;
    std::array<std::uint8_t, 4> Digits{}; // counts of significant digits
    /// A converted value cannot show its digits: 25 bar is 2500 kPa, still of two digits.
    bool isDigit = false; // counts of digits stand in the line
    /// Rows of one set may differ: each knows for itself, so that none is converted twice.
    bool inOriginalUnits = false; // values stand in the units of the paper
    std::int8_t nVar = 1;
    std::unique_ptr<RowExtras> Extras; // empty for nearly all rows

    clsData() = default;
    clsData(const clsData& other);
    clsData(clsData&& other) noexcept = default;
    clsData& operator=(const clsData& other);
    clsData& operator=(clsData&& other) noexcept = default;

    const ShortText& PRPVALUE() const { return Values[0]; }
    /// Value of variable n, 1 to 3; empty outside.
    const ShortText& VARIABLE(int n) const;
    /// The statements of item n (0 the property), made on the first writing access.
    RowStatements& Statements(int n);
    const RowStatements& StatementsOf(int n) const;

    /// The count of digits of a value, 0 the property: as recorded, else that of its text.
    int DigitCount(int n) const;

    /// Reads a row of so many variables; false when a word is missing.
    /// The line does not say how many: the set does. A count of digits of 0 or none is that of the
    /// text; a word behind the property may lack. Words too many are left.
    bool Load(WordReader& words, int variables);
    /// Reads the ^Y line that follows the row.
    /// Words that lack are empty, words too many are left.
    void LoadExtras(WordReader& words);
    /// Writes the row as it stands, and its ^Y line where something is stated. Rows of a ternary
    /// have a word for the tie number also where there is none.
    void PrintData(LineWriter& out, bool hasTieWord = false) const;
    void PrintExtras(LineWriter& out) const;

    /// Brings value n (0 the property) with its statements to the system unit; its count of digits
    /// stays, and goes into the line where the new text would tell another one.
    /// For a value in the units of the paper only, which the caller has to see to: nothing here
    /// stops a second conversion. A text that is no number stays.
    void Convert(int n, const UnitConversion& unit, bool isDifference = false);

    /// One NumValues element; see SetRows for what the set gives. It has to have the row in hand.
    void ExportData(XmlWriter& xml, SetRows& rows) const;

private:
    void LoadValue(std::string_view text, std::string_view digits, std::size_t n);
    void RecordDigits(std::size_t n, int digits);
};

} // namespace vexora
