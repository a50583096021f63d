#include "export/Complexes.h"

#include <set>

#include "export/DataHead.h"
#include "export/RegNum.h"
#include "export/XmlWriter.h"
#include "globals/KVOGlobal.h"
#include "records/RegistryNumbers.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Registry numbers of the complexes that reactions of the source name.
std::set<std::string> ComplexesInReactions(const clsR& source) {
    std::set<std::string> numbers;
    const auto take = [&numbers](const std::string& rn) {
        if (NamesComplex(rn)) numbers.insert(rn);
    };
    for (const auto& reaction : source.recQ) {
        for (int i = 1; i <= clsQ::MostParticipants; ++i)
            take(reaction->RN(i));
        take(reaction->SOLVENTRN);
        take(reaction->INERTRN);
    }
    for (const auto& set : source.recBR)
        for (const std::string& key : set->Keys())
            take(BioSet::RNOfKey(key));
    return numbers;
}

bool HasEquilibria(const clsComplex& complex) {
    for (const auto& sample : complex.recS)
        if (!sample->recBP.IsEmpty()) return true;
    return false;
}

void ExportComplex(XmlWriter& xml, const clsComplex& complex) {
    xml.Open("Compound");
    ExportRegNum(xml, complex);
    xml.Element("sCommonName", complex.ShowKey());
    const std::string formula = complex.FormulaText();
    if (formula != "Error") xml.ElementIfAny("sFormulaMolec", formula);
    for (const auto& sample : complex.recS) {
        xml.Open("Sample");
        xml.Element("nSampleNm", Trim(sample->SMPNM));
        xml.Close();
    }
    xml.Close();
}

std::string Counted(std::size_t count, const std::string& what) {
    if (count == 0) return {};
    return ", " + std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

} // namespace

std::vector<std::shared_ptr<clsComplex>> ExportedComplexes(const clsR& source) {
    std::vector<std::shared_ptr<clsComplex>> exported;
    const std::set<std::string> inReactions = ComplexesInReactions(source);
    for (const auto& complex : source.recComplex)
        if (inReactions.contains(complex->RN) || HasEquilibria(*complex))
            exported.push_back(complex);
    return exported;
}

void ExportComplexes(XmlWriter& xml, const clsR& source) {
    for (const auto& complex : ExportedComplexes(source)) {
        xml.Mark(complex.get());
        ExportComplex(xml, *complex);
    }
}

void ExportDataOfComplexes(XmlWriter& xml, const clsR& source) {
    for (const auto& complex : source.recComplex)
        for (const auto& sample : complex->recS)
            for (const auto& set : sample->recBP)
                ExportRecord(xml, *set);
}

std::string DataOfComplexesLeftOut() {
    std::size_t values = 0, sets = 0, structures = 0;
    for (const auto& source : Globals().recR)
        for (const auto& complex : source->recComplex)
            for (const auto& sample : complex->recS) {
                values += sample->recZ.Count();
                sets += sample->recTwo.Count();
                structures += sample->recCrS.Count();
            }
    const std::string counts = Counted(values, "single value") + Counted(sets, "data set") +
                               Counted(structures, "crystal structure");
    return counts.empty() ? "" : "Data of complexes have no place in the file: " + counts.substr(2);
}

} // namespace vexora
