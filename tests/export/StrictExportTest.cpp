#include "export/ExportFixture.h"

#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <fstream>
#include <sstream>
#include <vector>

namespace vexora::test {

namespace {

/// A reader of public files: it knows the default name space and a few roads, and nothing else.
class PublicReader {
public:
    explicit PublicReader(const std::string& xml)
        : document_(xmlReadMemory(xml.data(), static_cast<int>(xml.size()), "", nullptr,
                                  XML_PARSE_NONET)),
          context_(xmlXPathNewContext(document_)) {
        xmlXPathRegisterNs(context_, BAD_CAST "t",
                           BAD_CAST "http://www.iupac.org/namespaces/ThermoML");
    }
    ~PublicReader() {
        xmlXPathFreeContext(context_);
        xmlFreeDoc(document_);
    }
    PublicReader(const PublicReader&) = delete;
    PublicReader& operator=(const PublicReader&) = delete;

    /// A line for each value: structure, property, phase, state, value, uncertainty at 95 %.
    std::string Lines() {
        std::string lines;
        for (xmlNode* data : All("//t:PureOrMixtureData", nullptr)) {
            for (xmlNode* values : All("t:NumValues", data)) {
                std::string line = Structure(Text("t:Component/t:RegNum/t:nOrgNum", data));
                line += "; " +
                        Text("t:Property/t:Property-MethodID/t:PropertyGroup/*/t:ePropName", data);
                line += "; " + Text("t:Property/t:PropPhaseID/t:ePropPhase", data);
                for (xmlNode* variable : All("t:Variable", data))
                    line += "; " + Text("t:VariableID/t:VariableType/*", variable) + " = " +
                            Text("t:VariableValue[t:nVarNumber=" + Text("t:nVarNumber", variable) +
                                     "]/t:nVarValue",
                                 values);
                line += "; " + Text("t:PropertyValue/t:nPropValue", values);
                if (Text("t:Property/t:PropUncertainty/t:nUncertLevOfConfid", data) == "95")
                    line += " +- " +
                            Text("t:PropertyValue/t:PropUncertainty/t:nExpandUncertValue", values);
                lines += line + "\n";
            }
        }
        return lines;
    }

private:
    std::vector<xmlNode*> All(const std::string& path, xmlNode* from) {
        context_->node = from ? from : xmlDocGetRootElement(document_);
        xmlXPathObject* found = xmlXPathEvalExpression(BAD_CAST path.c_str(), context_);
        std::vector<xmlNode*> nodes;
        if (found && found->nodesetval)
            nodes.assign(found->nodesetval->nodeTab,
                         found->nodesetval->nodeTab + found->nodesetval->nodeNr);
        xmlXPathFreeObject(found);
        return nodes;
    }
    std::string Text(const std::string& path, xmlNode* from) {
        const auto nodes = All(path, from);
        if (nodes.empty()) return "-";
        xmlChar* content = xmlNodeGetContent(nodes.front());
        std::string text(reinterpret_cast<const char*>(content));
        xmlFree(content);
        return text;
    }
    /// A compound without a structure is passed over.
    std::string Structure(const std::string& number) {
        return Text("//t:Compound[t:RegNum/*[1]='" + number + "']/t:sStandardInChI", nullptr);
    }

    xmlDoc* document_;
    xmlXPathContext* context_;
};

std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

} // namespace

class StrictExport : public ExportFixture {
protected:
    std::string Strict(const std::string& records) {
        Export(records);
        return DocumentAsXml({2026, 1, 5}, ExportFor::StrictReaders);
    }
};

TEST_F(StrictExport, APublicReaderGetsEveryValueOfTheExampleWithStateAndUncertainty) {
    globals.recR.Clear();
    const std::string xml = Strict(FileText(VEXORA_SOURCE_DIR "/examples/water/2002wagpru1.txt"));
    const std::string water = "InChI=1S/H2O/h1H2; ";
    const std::string fluid = "; Fluid (supercritical or subcritical phases); Temperature, K = ";
    const std::string lines = PublicReader(xml).Lines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 31);
    for (const std::string& line :
         {water + "Critical temperature, K; Liquid; 647.096",
          water + "Critical pressure, kPa; Liquid; 22064",
          water + "Vapor or sublimation pressure, kPa; Liquid; Temperature, K = 275; 0.698451167",
          water + "Mass density, kg/m3; Liquid; Temperature, K = 275; 999.887406 +- 0.0999887406",
          water + "Mass density, kg/m3" + fluid +
              "300; Pressure, kPa = 99.2418352; 996.5560 +- 0.996556",
          water + "Speed of sound, m/s" + fluid + "300; Pressure, kPa = 99.2418352; 1501.51914"})
        EXPECT_NE(lines.find(line + "\n"), std::string::npos) << line << "\n" << lines;
}

TEST_F(StrictExport, TheFrameNamesItsSpaceAndTheContentIsOtherwiseThatOfTheHouse) {
    const std::string records = kHead + kHeader + "^z 1 TC S 1 L G & 647.096 & & &\n";
    const std::string house = Export(records);
    std::string strict = Strict(records);
    const std::string attributes =
        " xmlns=\"http://www.iupac.org/namespaces/ThermoML\""
        " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
        " xsi:schemaLocation=\"http://www.iupac.org/namespaces/ThermoML ThermoML.xsd\"";
    const std::string structure =
        "\t\t<sStandardInChI>InChI=1S/H2O/h1H2</sStandardInChI>\n"
        "\t\t<sStandardInChIKey>XLYOFNOQVPJJNP-UHFFFAOYSA-N</sStandardInChIKey>\n";
    EXPECT_NE(strict.find(attributes), std::string::npos);
    EXPECT_NE(strict.find(structure + "\t\t<sCommonName>"), std::string::npos);
    strict = Replace(strict, structure, "");
    strict = Replace(strict, attributes,
                     " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
                     " xsi:SchemaLocation=\"ThermoML.xsd\"");
    EXPECT_EQ(strict, house);
}

TEST_F(StrictExport, FinalPuritiesStandInFrontOfTheMethodsAndNoMethodTwice) {
    const std::string xml =
        Strict(kSource + "^L 7732185 DNNNN S\n^S 1 cm,99m%,gc;;99.9m%,gc,0.1w%,gc,0.01h%,(KF)\n");
    EXPECT_NE(Line(xml, "Sample")
                  .find("<nStep>2</nStep>"
                        "<nPurityMol>99.9</nPurityMol>"
                        "<nPurityMolDigits>3</nPurityMolDigits>"
                        "<nPurityMass>0.1</nPurityMass>"
                        "<nPurityMassDigits>1</nPurityMassDigits>"
                        "<nWaterMassPerCent>0.01</nWaterMassPerCent>"
                        "<nWaterMassPerCentDigits>1</nWaterMassPerCentDigits>"
                        "<eAnalMeth>Gas chromatography</eAnalMeth>"
                        "<sAnalMeth>KF</sAnalMeth></purity>"),
              std::string::npos)
        << Line(xml, "Sample");
}

TEST_F(StrictExport, ACompoundWithoutAKnownStructureIsNamed) {
    const std::string records = kSource + "^L 99999005 NNNNN &\n^N 99999005 C8H10 stuff\n^S 1 &\n";
    Export(records);
    desktop.Expect("stuff: Public readers pass over this compound, for no table knows its structure"
                   " | Please review the export");
    DocumentAsXml({2026, 1, 5}, ExportFor::StrictReaders);
}

} // namespace vexora::test
