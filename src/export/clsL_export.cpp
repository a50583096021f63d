#include "records/clsL.h"

#include "export/RegNum.h"
#include "export/XmlWriter.h"
#include "records/clsComplex.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

// The place serves as number, for compounds of unknown registry number need one too.
std::size_t PlaceInFile(const Substance& substance) {
    const clsR* const source = substance.Parent;
    if (source == nullptr) return 0;
    if (const auto* complex = dynamic_cast<const clsComplex*>(&substance))
        return source->recL.Count() + source->recComplex.Position(complex);
    return source->recL.Position(static_cast<const clsL*>(&substance));
}

} // namespace

void ExportRegNum(XmlWriter& xml, const Substance& substance) {
    const std::size_t position = PlaceInFile(substance);
    xml.Open("RegNum");
    xml.Element("nOrgNum", std::to_string(position));
    xml.Close();
}

std::optional<StructureIdentifiers> PublicStructure(const clsL& compound) {
    // A number that the document has given to a compound of its own tells nothing.
    if (compound.isNew) return std::nullopt;
    return StructureOf(ToInteger(Val(compound.RN)));
}

namespace {

void ExportStructure(XmlWriter& xml, const clsL& compound) {
    const auto structure = PublicStructure(compound);
    if (!structure) return;
    xml.ElementIfAny("sStandardInChI", structure->InChI);
    xml.ElementIfAny("sStandardInChIKey", structure->InChIKey);
}

} // namespace

void clsL::ExportL(XmlWriter& xml) const {
    ExportRegNum(xml, *this);
    if (xml.IsStrict()) ExportStructure(xml, *this);
    // A compound that nobody has named would be told from no other.
    xml.Element("sCommonName", ShowKey());
    xml.ElementIfAny("sFormulaMolec", Formula);
    // Enzyme Commission number and Protein Data Bank entry.
    if (!isBio || (EC.empty() && PDB.empty())) return;
    xml.Open("bio");
    xml.ElementIfAny("sECNumber", EC);
    xml.ElementIfAny("sPDBNumber", PDB);
    xml.Close();
}

void clsL::ExportAll(XmlWriter& xml) const {
    xml.Open("Compound");
    ExportL(xml);
    for (const auto& sample : recS)
        sample->ExportS(xml);
    xml.Close();
}

} // namespace vexora
