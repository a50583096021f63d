#include "records/clsL.h"

#include "export/RegNum.h"
#include "export/XmlWriter.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"

namespace vexora {

void ExportRegNum(XmlWriter& xml, const clsL& compound) {
    // The place serves as number, for compounds of unknown registry number need one too.
    const std::size_t position = compound.Parent ? compound.Parent->recL.Position(&compound) : 0;
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
