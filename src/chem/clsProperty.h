#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace vexora {

/// What an evaluation has to say about a value.
struct ValueDoubt {
    std::string item;        // code and name of the quantity
    double value = 0;        // [system unit]
    std::string text;        // as a box shows it
    bool isQuestion = false; // the value may stand if the operator says so
};

/// Puts a doubt to the operator where it comes up, for what follows depends on the answer: true
/// when a value in question may stand. The answer to what is no question does not count.
/// Rows of a table bring their own answer, "Yes to All" among them.
using ConfirmValue = std::function<bool(const ValueDoubt&)>;

/// One quantity of a row, from the text that was typed to the value in system units with its
/// uncertainty. The items of a row form a chain: the head is the property, behind it stands one
/// item for each variable; the last has isLast true. Values and levels that are not given are empty
/// texts or 0; a text ending in "%" is per cent of the value.
/// A dialog builds the chain, which the globals hold while it is open (CurrentProperty); figures
/// are expanded uncertainties at a level of about 95 per cent.
class clsProperty {
public:
    std::string PropertyCode;
    std::string ConversionCode;
    std::string Text;           // value as typed
    double Value = 0;           // numeric value of Text [entered unit]
    double Factor = 0;          // factor of a non-standard unit, 0 when none
    std::string Relation;       // "A" absolute, "D" difference, other: taken without conversion
    double SystemValue = 0;     // [system unit]
    double PRECISION = 0;       // expanded uncertainty [entered unit]
    std::string PrecisionText;  // precision as typed
    double SystemPrecision = 0; // expanded uncertainty [system unit]
    double Der = 0;             // derivative of the property by this quantity, 0 for none
    int LastDigit = 0;          // decimal places of Text
    std::string DS;             // device specification
    std::string Rep;            // repeatability
    std::string Unc;            // uncertainty stated by the author
    std::string CD;             // curve deviation
    std::string masterds, masterrep, masterunc; // the same for the whole set
    std::string nRep;                           // number of repetitions
    int masternrep = 0;
    double DSLevel = 0;  // level of confidence [per cent], 0 when not given
    int replevel = 0;    // kind of repeatability: 0 of the mean, 1 of a single measurement
    double unclevel = 0; // level of confidence [per cent], 0 when not given
    std::string Name;    // name and unit as messages show them
    bool isLast = true;
    std::shared_ptr<clsProperty> NextItem;

    /// Converts Text to SystemValue and merges the stated uncertainties into PRECISION and
    /// SystemPrecision. ok is false when the value is not valid, or suspicious and not confirmed;
    /// without `confirm` nothing is told and nothing suspicious stands. molarMass in g/mol, 0 when
    /// not known.
    /// Device, repeatability and curve deviation add in squares; the author's figure is a lower
    /// bound of the sum. An empty Text leaves Value as it is.
    void Convert(bool& ok, double molarMass, const ConfirmValue& confirm = {});
    /// Derivatives of the items behind this one, brought to system units of this property.
    void ConvertDer(double molarMass);
    /// Hard limits on SystemValue; only an absolute value is tested.
    void Validate(bool& ok) const;
    /// Limits of plausibility on SystemValue; only an absolute value is tested.
    void Check(bool& ok) const;
    /// Takes over all fields of the source and of the chain behind it.
    /// The copies are independent: an evaluation on trial leaves the source alone.
    void Copy(const clsProperty& source);
};

/// The figure of a statement [unit of the value]; per cent is of the value, with its sign. 0 for an
/// empty text or a bare "%".
double StatedFigure(std::string_view statement, double value);

/// Evaluates the chain from its head: the empty text on success, "Error" on failure; the figures
/// are in PRECISION and SystemPrecision of each item. molarMass in g/mol; confirm as of Convert.
std::string EvaluateUncertainty(clsProperty& head, double molarMass,
                                const ConfirmValue& confirm = {});

} // namespace vexora
