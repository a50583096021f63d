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

/// How a value in this unit gets the one in which it leaves; what needs no conversion leaves digit
/// by digit as typed.
UnitConversion OnLeaving(const ExportUnit& unit) {
    if (IsInNanometres(unit) || (!unit.wavelength && !unit.converts)) return {};
    if (!unit.wavelength) return unit;
    return {"*", (unit.converts ? unit.Difference(1) : 1) / AngstromsInNanometre};
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

// A statement as an absolute figure of the exported unit; empty when nothing is stated. Per cent
// are of the entered value, whose unit may be another one than that of the figure.
std::string Figure(std::string_view statement, std::string_view value, const ExportUnit& ofValue,
                   const ExportUnit& ofFigure) {
    std::string text = WithoutPlus(NormalizeNumber(statement));
    if (text.ends_with('%')) {
        text.pop_back();
        if (!IsNumeric(text)) return {};
        const double figure = Val(text) * Val(NormalizeNumber(value)) / 100;
        return RoundedText(std::abs(OnLeaving(ofValue).Difference(figure)));
    }
    if (!IsNumeric(text)) return {};
    // An uncertainty has no sign; one typed with it is meant by its size.
    if (text.starts_with('-')) text.erase(0, 1);
    return OnLeaving(ofFigure).DifferenceText(text);
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
    // Where nobody says who judged the device there is nothing to announce in front of the rows.
    const bool hasContent = !item.DSEvaluator.empty() || !figure.empty() || Val(item.DSLevel) > 0;
    if (!item.iDS || !hasContent) return;
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
    if (unit.code == "*" || !IsConversionOf(unit.code, unit.unit))
        return "Invalid conversion factor";
    return unit.IsPossible() ? "" : "Molar mass of the compound is not known";
}

void DropUnstated(clsX& item) {
    if (!item.iDS) item.DSEvaluator = item.DSLevel = item.DSValue = "";
    if (!item.iRep) item.Repetitions = item.RValue = "";
    if (!item.iRep) item.RType = -1;
    if (!item.iUnc) item.ULevel = item.UValue = "";
    if (!item.iCD) item.CDRms = "";
}

ExportNumber ExportedValue(std::string_view typed, const ExportUnit& unit, int count) {
    const std::string text = WithoutPlus(NormalizeNumber(typed));
    // The recorded count goes before the text: the operator may have stated it.
    ConvertedNumber number = OnLeaving(unit).Converted(text, count, unit.difference);
    // The schema knows no count of 0.
    return {std::move(number.text), std::max(1, number.digits)};
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
        const std::string text = Figure(ofRow, value, unit, unit);
        return text.empty() ? Figure(statement, value, unit, ofSet) : text;
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
