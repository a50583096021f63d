#include "records/clsS.h"

#include <algorithm>
#include <set>

#include "export/XmlWriter.h"
#include "records/SampleDescription.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// The operator's words stand in brackets; all else is a code of the tables.
bool IsFreeText(std::string_view code) {
    return code.starts_with('(');
}

/// The element says what the per cent are of (mole, mass, volume, water, halide).
void ExportFigure(XmlWriter& xml, const PurityStatement& statement) {
    const PurityUnit* unit = PurityUnitByCode(statement.Unit);
    if (unit == nullptr || statement.Value.empty()) return;
    const std::string element(unit->element);
    xml.Element(element, statement.Value);
    xml.Element(element + "Digits",
                std::to_string(std::max(1, SignificantDigits(statement.Value))));
}

/// Listed methods have an element of enumerated texts, free ones one of strings.
void ExportMethod(XmlWriter& xml, const std::string& element, std::string_view code,
                  const std::string& name) {
    if (!code.empty()) xml.ElementIfAny((IsFreeText(code) ? "s" : "e") + element, name);
}

void ExportAnalysis(XmlWriter& xml, const PurityStatement& statement) {
    ExportMethod(xml, "AnalMeth", statement.Method, DeterminationName(statement.Method));
}

/// Step 1 is the sample as it was obtained; each step of purification has a number of its own, the
/// last tells the purity that was reached.
void ExportInitial(XmlWriter& xml, const SampleDescription& description) {
    xml.Open("purity");
    xml.Element("nStep", "1");
    ExportFigure(xml, description.Initial);
    xml.ElementIfAny("eSource", TextOfCode(SampleSources, description.Source));
    ExportAnalysis(xml, description.Initial);
    xml.Close();
}

void ExportPurification(XmlWriter& xml, int step, std::string_view code) {
    xml.Open("purity");
    xml.Element("nStep", std::to_string(step));
    ExportMethod(xml, "PurifMethod", code, PurificationName(code));
    xml.Close();
}

/// The public schema has all figures in front of the methods, and no method twice.
void ExportFinalStrictly(XmlWriter& xml, const std::vector<PurityStatement>& statements) {
    for (const PurityStatement& statement : statements)
        ExportFigure(xml, statement);
    std::set<std::string_view> known;
    for (const PurityStatement& statement : statements)
        if (known.insert(statement.Method).second) ExportAnalysis(xml, statement);
}

void ExportFinal(XmlWriter& xml, int step, const SampleDescription& description) {
    xml.Open("purity");
    xml.Element("nStep", std::to_string(step));
    if (xml.IsStrict()) {
        ExportFinalStrictly(xml, description.Final);
    } else {
        for (const PurityStatement& statement : description.Final) {
            ExportFigure(xml, statement);
            ExportAnalysis(xml, statement);
        }
    }
    xml.Close();
}

} // namespace

void clsS::ExportS(XmlWriter& xml) const {
    xml.Open("Sample");
    xml.Element("nSampleNm", Trim(SMPNM));
    const auto description = ParseDescription(SMPDESC);
    // "Not described" and "no sample" leave nothing but the number.
    if (description && description->Availability.empty()) {
        int step = 1;
        ExportInitial(xml, *description);
        for (const std::string& code : description->Purification) {
            ExportPurification(xml, ++step, code);
        }
        if (!description->Final.empty()) ExportFinal(xml, ++step, *description);
    }
    xml.Close();
}

} // namespace vexora
