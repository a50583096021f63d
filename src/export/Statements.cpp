#include "export/Statements.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "export/XmlWriter.h"
#include "records/clsData.h"
#include "records/clsX.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

// From this level of confidence on [per cent] a figure is an expanded uncertainty.
constexpr double ExpandedLevel = 70;

/// Whether a figure is expanded is told by its level alone (JCGM 100:2008, 6.3). It is exported as
/// the author states it: a reader can multiply a standard uncertainty by a coverage factor of his
/// own.
bool IsExpanded(std::string_view level) {
    return IsNumeric(level) && Val(level) >= ExpandedLevel;
}

// Wavelengths leave in nm, ten Angstroms of the system unit.
constexpr double AngstromsInNanometre = 10;

bool IsInNanometres(const ExportUnit& unit) {
    return unit.wavelength && unit.converts && unit.code == "nm";
}

/// What needs no conversion leaves digit by digit as typed.
bool ChangesValues(const ExportUnit& unit) {
    if (unit.wavelength) return !IsInNanometres(unit);
    if (!unit.converts) return false;
    return unit.factor > 0 || (!IsSystemUnit(unit.code) && unit.code != "*");
}

// A figure of an uncertainty in the unit in which the value leaves.
double ConvertedDifference(double figure, const ExportUnit& unit) {
    if (!ChangesValues(unit)) return figure;
    const auto system = [&unit](double value) {
        return unit.converts ? ToSystem(unit.code, value, unit.factor, unit.molarMass) : value;
    };
    // What an offset adds to both cancels.
    return (system(figure) - system(0)) / (unit.wavelength ? AngstromsInNanometre : 1);
}

// A sign in front is no digit.
std::string WithoutPlus(std::string text) {
    if (text.starts_with('+')) text.erase(0, 1);
    return text;
}

// Without the noise in the last digits that the offset of a temperature leaves in a difference.
std::string RoundedText(double figure) {
    // More than any stated uncertainty has.
    constexpr int digits = 10;
    return NumberText(Val(FormatValue(figure, digits)));
}

// One digit of 1 mmHg would make 0.1 kPa of 0.13 kPa: so many digits that the figure stays what it
// is.
std::string TrueText(double figure, int digits) {
    constexpr double tolerance = 0.05; // of the figure
    constexpr int mostDigits = 15;
    const auto isOff = [&] {
        return std::abs(Val(FormatValue(figure, digits)) - figure) > tolerance * figure;
    };
    while (digits < mostDigits && isOff())
        ++digits;
    return FormatValue(figure, digits);
}

// A statement as an absolute figure of the exported unit; empty when nothing is stated. Per cent
// are of the entered value, whose unit may be another one than that of the figure. A figure of a
// variable has the digits typed, which are those that its record keeps.
std::string Figure(std::string_view statement, std::string_view value, const ExportUnit& ofValue,
                   const ExportUnit& ofFigure, bool ofProperty = false) {
    std::string text = WithoutPlus(NormalizeNumber(statement));
    if (text.ends_with('%')) {
        text.pop_back();
        if (!IsNumeric(text)) return {};
        const double figure = Val(text) * Val(NormalizeNumber(value)) / 100;
        return RoundedText(std::abs(ConvertedDifference(figure, ofValue)));
    }
    if (!IsNumeric(text)) return {};
    // An uncertainty has no sign; one typed with it is meant by its size.
    if (text.starts_with('-')) text.erase(0, 1);
    if (!ChangesValues(ofFigure)) return text;
    const double figure = std::abs(ConvertedDifference(Val(text), ofFigure));
    const int digits = SignificantDigits(text);
    return ofProperty ? TrueText(figure, digits) : FormatValue(figure, digits);
}

void ExportLevel(XmlWriter& xml, std::string_view element, std::string_view level) {
    if (IsNumeric(level) && Val(level) > 0) xml.Element(element, NumberText(Val(level)));
}

// What was evaluated elsewhere, or in a way not stated, stays in the record.
bool HasCombined(const clsX& item) {
    return item.iCU && (item.CType == "A" || item.CType == "B");
}

void CombinedHead(XmlWriter& xml, const clsX& item) {
    if (!HasCombined(item)) return;
    xml.Open("CombinedUncertainty");
    xml.Element("nCombUncertAssessNum", "1");
    // Spelled as it always was, for readers may compare the text.
    xml.Element("sCombUncertEvaluator", "Data file complier");
    xml.Element("eCombUncertEvalMethod", item.CType == "A"
                                             ? "Propagation of evaluated standard uncertainties"
                                             : "Comparison with reference property values");
    ExportLevel(xml, "nCombUncertLevOfConfid", item.CLevel);
    xml.Close();
}

const char* AuthorsElement(const clsX& item) {
    return IsExpanded(item.ULevel) ? "nExpandUncertValue" : "nStdUncertValue";
}

// A head states the figure itself only where no values follow.
void AuthorsHead(XmlWriter& xml, const clsX& item, const std::string& role,
                 const std::string& figure = {}) {
    if (!item.iUnc) return;
    xml.Open(role + "Uncertainty");
    if (role != "Constr") xml.Element("nUncertAssessNum", "1");
    xml.Element("sUncertEvaluator", "Author");
    xml.ElementIfAny(AuthorsElement(item), figure);
    ExportLevel(xml, "nUncertLevOfConfid", item.ULevel);
    xml.Close();
}

void RepeatabilityHead(XmlWriter& xml, const clsX& item, const std::string& role,
                       const std::string& figure = {}) {
    if (!item.iRep) return;
    xml.Open(role + "Repeatability");
    xml.Element("sRepeatEvaluator", "Author");
    // Neither where the author does not say of what the deviation is.
    if (item.RType == 0) xml.Element("eRepeatMethod", "Standard deviation of the mean");
    if (item.RType == 1) {
        xml.Element("eRepeatMethod", "Standard deviation of a single value (unbiased)");
    }
    xml.ElementIfAny("n" + role + "RepeatValue", figure);
    if (!figure.empty() && IsNumeric(item.Repetitions))
        xml.Element("nRepetitions", Trim(item.Repetitions));
    xml.Close();
}

void DeviceHead(XmlWriter& xml, const clsX& item, const std::string& role,
                const std::string& figure = {}) {
    if (!item.iDS) return;
    xml.Open(role + "DeviceSpec");
    // The evaluator is a place in a list, or a name that was typed.
    if (item.DSEvaluator == "0") {
        xml.Element("eDeviceSpecMethod", "Specified by the manufacturer");
    } else if (item.DSEvaluator == "1") {
        xml.Element("eDeviceSpecMethod", "Certified or calibrated by a third party");
    } else if (item.DSEvaluator == "2") {
        xml.Element("eDeviceSpecMethod", "Calibrated by the experimentalist");
    } else {
        xml.ElementIfAny("sDeviceSpecEvaluator", item.DSEvaluator);
    }
    xml.ElementIfAny("n" + role + "DeviceSpecValue", figure);
    ExportLevel(xml, "nDeviceSpecLevOfConfid", item.DSLevel);
    xml.Close();
}

/// The figure of one value under the number by which its head can be found; a head and its figures
/// correspond by it.
void WithNumber(XmlWriter& xml, const std::string& group, std::string_view number,
                std::string_view element, const std::string& figure) {
    if (figure.empty()) return;
    xml.Open(group);
    xml.ElementIfAny(number, number.empty() ? "" : "1");
    xml.Element(element, figure);
    xml.Close();
}

} // namespace

std::string ConversionFault(const ExportUnit& unit) {
    if (!unit.converts || unit.factor > 0) return {};
    if (unit.code == "*" || !IsKnownConversion(unit.code)) return "Invalid conversion factor";
    if (IsMassBased(unit.code) && unit.molarMass <= 0) {
        return "Molar mass of the compound is not known";
    }
    return {};
}

ExportNumber ExportedValue(std::string_view typed, const ExportUnit& unit, int count) {
    std::string text = WithoutPlus(NormalizeNumber(typed));
    const int ofText = SignificantDigits(text);
    // The recorded count goes before the text: the operator may have stated it.
    int digits = count > 0 ? count : ofText;
    if (!ChangesValues(unit)) return {std::move(text), std::max(1, digits)};
    const bool isAbsolute = !unit.difference && !unit.wavelength;
    const double value = isAbsolute ? ToSystem(unit.code, Val(text), unit.factor, unit.molarMass)
                                    : ConvertedDifference(Val(text), unit);
    // A zero has no first digit to count from.
    if (value == 0) return {std::move(text), std::max(1, digits)};
    // Digits that an offset adds or takes away; the others are as recorded.
    if (isAbsolute) {
        const int shown = ConvertedDigits(text, unit.factor > 0 ? "" : unit.code, value);
        digits = ofText == 0 ? shown : digits + shown - ofText;
    }
    // The schema knows no count of 0.
    digits = std::max(1, digits);
    return {FormatValue(value, digits), digits};
}

// Combined, author's, repeatability, device: the order of the schema.
void clsX::ExportX(XmlWriter& xml, std::string_view role) const {
    const std::string name(role);
    if (name == "Prop") CombinedHead(xml, *this);
    AuthorsHead(xml, *this, name);
    RepeatabilityHead(xml, *this, name);
    DeviceHead(xml, *this, name);
}

bool ExportConstraintStatements(XmlWriter& xml, const clsX& item, std::string_view value,
                                const ExportUnit& unit) {
    const std::string role = "Constr";
    const std::string author = Figure(item.UValue, value, unit, unit);
    const std::string repeatability = Figure(item.RValue, value, unit, unit);
    const std::string device = Figure(item.DSValue, value, unit, unit);
    // A constraint without figures says nothing.
    if (!author.empty()) AuthorsHead(xml, item, role, author);
    if (!repeatability.empty()) RepeatabilityHead(xml, item, role, repeatability);
    if (!device.empty()) DeviceHead(xml, item, role, device);
    return !item.iRep || !repeatability.empty();
}

bool ExportStatements(XmlWriter& xml, const clsX& item, std::string_view role,
                      std::string_view value, const ExportUnit& unit, const RowFigures* row) {
    if (!item.iCU && !item.iUnc && !item.iRep && !item.iDS && !item.iCD) return true;
    const std::string name(role);
    const bool ofProperty = name == "Prop";
    ExportUnit ofSet = unit;
    // A set and its rows may stand in different units; figures of variables read from a file are in
    // system units already.
    ofSet.converts =
        (row ? row->setConverts : unit.converts) && (ofProperty || !item.inSystemUnits);
    static const RowStatements none;
    const RowStatements& own = row ? row->statements : none;
    const auto figure = [&](const std::string& statement, std::string_view ofRow = {}) {
        const std::string text = Figure(ofRow, value, unit, unit, ofProperty);
        return text.empty() ? Figure(statement, value, unit, ofSet, ofProperty) : text;
    };
    if (ofProperty && HasCombined(item)) {
        WithNumber(xml, "CombinedUncertainty", "nCombUncertAssessNum",
                   IsExpanded(item.CLevel) ? "nCombExpandUncertValue" : "nCombStdUncertValue",
                   figure(item.CValue, row ? row->combined : ""));
    }
    if (item.iUnc) {
        WithNumber(xml, name + "Uncertainty", "nUncertAssessNum", AuthorsElement(item),
                   figure(item.UValue, own.Unc));
    }
    const std::string repeatability = item.iRep ? figure(item.RValue, own.Rep) : std::string();
    if (!repeatability.empty()) {
        const std::string& count = own.Repetitions.empty() ? item.Repetitions : own.Repetitions;
        xml.Open(name + "Repeatability");
        xml.Element("n" + name + "RepeatValue", repeatability);
        if (IsNumeric(count)) xml.Element("nRepetitions", Trim(count));
        xml.Close();
    }
    if (item.iDS) {
        WithNumber(xml, name + "DeviceSpec", "", "n" + name + "DeviceSpecValue",
                   figure(item.DSValue, own.DS));
    }
    if (ofProperty && item.iCD) {
        WithNumber(xml, "CurveDev", "nCurveDevAssessNum", "nCurveDevValue",
                   figure(item.CDRms, row ? row->curveDeviation : ""));
    }
    return !item.iRep || !repeatability.empty();
}

} // namespace vexora
