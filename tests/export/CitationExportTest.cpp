#include "export/ExportDocument.h"

#include "export/ExportFixture.h"
#include "records/clsR.h"

namespace vexora {
namespace {

class CitationExport : public test::ExportFixture {
protected:
    std::string Citation(const std::string& description) {
        return Part(Export("\n^R 2002 wag & 7\n" + description), "Citation");
    }
};

TEST_F(CitationExport, ADocumentWithoutDataIsFrameCitationAndCompounds) {
    EXPECT_EQ(Export(kSource + "^I#1#wagner#w  #Wagner,W.\n^L 7732185 NNNNN &\n^S 1 ns\n"),
              R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Created by Vexora )" VEXORA_VERSION R"( -->
<DataReport xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xsi:SchemaLocation="ThermoML.xsd">
	<Version>
		<nVersionMajor>2</nVersionMajor>
		<nVersionMinor>0</nVersionMinor>
	</Version>
	<Citation>
		<KVORefID>
			<yrYrPub>2002</yrYrPub>
			<sAuthor1>wag</sAuthor1>
			<sAuthor2>pru</sAuthor2>
			<nAuthorn>1</nAuthorn>
		</KVORefID>
		<eType>journal</eType>
		<eSourceType>Original</eSourceType>
		<sAuthor>Wagner,W.</sAuthor>
		<sPubName>J. Phys. Chem. Ref. Data</sPubName>
		<yrPubYr>2002</yrPubYr>
		<dateCit>2026-01-05</dateCit>
		<sTitle>T</sTitle>
		<sAbstract>A</sAbstract>
		<sVol>31</sVol>
		<sPage>387-535</sPage>
	</Citation>
	<Compound>
		<RegNum>
			<nOrgNum>1</nOrgNum>
		</RegNum>
		<sCommonName>water</sCommonName>
		<sFormulaMolec>H2O</sFormulaMolec>
		<Sample>
			<nSampleNm>1</nSampleNm>
		</Sample>
	</Compound>
</DataReport>
)");
}

TEST_F(CitationExport, EveryAuthorLeavesByTheNameOfTheDocumentAboveAll) {
    desktop.Expect("Undefined author nobodyxy1:");
    desktop.Expect("Undefined author noonezz :");
    desktop.Expect("Undefined author smithx :");
    EXPECT_EQ(Line(Citation("^J#J#O#S##\n^I#1#nobody#xy1#\n^I#2#noone#zz #\n^I#3#smith#x #\n"
                            "^I#4#wagner#w  #\n^I#5#wagner#w  #Wagner,Wolfgang\n"),
                   "sAuthor"),
              "<sAuthor>nobody,x.y.</sAuthor><sAuthor>noone</sAuthor><sAuthor>smith,x.</sAuthor>"
              "<sAuthor>Wagner, W.</sAuthor><sAuthor>Wagner,Wolfgang</sAuthor>");
}

TEST_F(CitationExport, TypesFollowTheLettersOfTheDocument) {
    const std::string types[][2] = {{"B", "book"},
                                    {"J", "journal"},
                                    {"R", "report"},
                                    {"P", "patent"},
                                    {"T", "thesis"},
                                    {"M", "conferenceProceedings"},
                                    {"S", "journal"},
                                    {"C", "personalCorrespondence"},
                                    {"D", "archivedDocument"},
                                    {"Q", "unspecified"},
                                    {"", "unspecified"}};
    for (const auto& [code, text] : types) {
        const std::string xml = Citation("^J#" + code + "#O#S##\n");
        EXPECT_EQ(Part(xml, "eType"), "<eType>" + text + "</eType>") << code;
    }
    const std::string sources[][2] = {
        {"O", "Original"}, {"C", "KVODataCard"}, {"A", "ChemicalAbstracts"},
        {"L", "Other"},    {"Z", "Other"},       {"X", "Other"}};
    for (const auto& [code, text] : sources) {
        const std::string xml = Citation("^J#J#" + code + "#S##\n");
        EXPECT_EQ(Part(xml, "eSourceType"), "<eSourceType>" + text + "</eSourceType>") << code;
    }
}

TEST_F(CitationExport, AnUnknownSourceIsAskedForBeforeAnythingIsWritten) {
    desktop.ExpectInput("Enter the source of document 2002 wag & 7", "x");
    EXPECT_EQ(Part(Citation("^J#J##S##\n"), "eSourceType"), "<eSourceType>Other</eSourceType>");
    EXPECT_EQ(globals.recR.Item(std::size_t{1})->SOURCEDOC, "X");
    desktop.ExpectInput("Enter the source of document", std::nullopt);
    EXPECT_EQ(Part(Citation("^J#J##S##\n"), "eSourceType"),
              "<eSourceType>KVOGeneral</eSourceType>");
}

TEST_F(CitationExport, VolumeAndPagesComeFromTheTextOfTheSource) {
    const auto places = [this](const std::string& source) {
        const std::string xml = Citation("^J#J#O#" + source + "##\n");
        return Line(xml, "sPubName") + Line(xml, "sVol") + Line(xml, "sPage");
    };
    EXPECT_EQ(places("@J. Chem.@, 2002, $31$(2), 387-535, 540"),
              "<sPubName>J. Chem.</sPubName><sVol>31</sVol><sPage>387-535, 540</sPage>");
    EXPECT_EQ(places("@J. Chem. & Eng., A@, 2002, $31$, 7"),
              "<sPubName>J. Chem. &amp; Eng., A</sPubName><sVol>31</sVol><sPage>7</sPage>");
    EXPECT_EQ(places("J. Chem., 2002, 31, 387-535"),
              "<sPubName>J. Chem.</sPubName><sPage>387-535</sPage>");
    EXPECT_EQ(places("Private"), "<sPubName>Private</sPubName>");
}

TEST_F(CitationExport, AWordThatIsNoPageIsNotTakenForOne) {
    const std::string sources[][3] = {
        {"B", "@Ice@, 2nd ed., Vol. 1, Ch. 3, Pg. 11-40, Franks, F., Ed., Plenum", "11-40"},
        {"B", "@Ice@, Franks, F., Ed., Plenum", ""},
        {"R", "@Release@ R6-95@ Steam Assoc., Paris", ""},
        {"P", "US Patent 4123456, Steam & Sons, 1980-05-03", ""},
        {"T", "Ph.D. Thesis, Univ. of Idaho, Moscow, ID", ""},
        {"M", "@Conf.@, Prague, 2008, pp 5-9", "5-9"},
        {"M", "@Conf.@, Prague, 2008", ""},
        {"D", "@Deposited Document@ 1234-80 Archive, pp12", "12"},
        {"C", "Letter to A. Compiler, Paris", ""},
        {"S", "@J. Chem. Eng. Data@, je000490a", "je000490a"},
        {"J", "@J. Chem.@ No. 3, 7-9", "7-9"},
        {"J", "@Z. Phys., Abt. A@", ""},
        {"J", "@Z. Phys., Abt. A@, 7, 9", "7, 9"},
        {"M", "@J. Chem. Symp.@ $31$(2), 5-9", "5-9"}};
    for (const auto& [type, source, pages] : sources)
        EXPECT_EQ(Line(Citation("^J#" + type + "#O#" + source + "##\n"), "sPage"),
                  pages.empty() ? "" : "<sPage>" + pages + "</sPage>")
            << source;
}

TEST_F(CitationExport, TextsOfTheCitationBecomePlainAndWellFormed) {
    const std::string xml = Citation(
        "^J#J#O#S#Pruß & \"Co\" -- a|b é<Ω #water; , steam;H2O#x < 1 | y > 2 µ\x01\x7F &#n##0####\n"
        "^I#1#mueller#a  #Müller,A.\n");
    EXPECT_EQ(Part(xml, "KVORefID"), "<KVORefID>\n"
                                     "\t<yrYrPub>2002</yrYrPub>\n"
                                     "\t<sAuthor1>wag</sAuthor1>\n"
                                     "\t<nAuthorn>7</nAuthorn>\n"
                                     "</KVORefID>");
    EXPECT_EQ(Line(xml, "sAuthor"), "<sAuthor>Muller,A.</sAuthor>");
    EXPECT_EQ(Line(xml, "sTitle"), "<sTitle>Pruss &amp; \"Co\" -- a|b eless thanOmega</sTitle>");
    EXPECT_EQ(Line(xml, "sAbstract"),
              "<sAbstract>x  less than  1  y  greater than  2 micro  &amp;</sAbstract>");
    EXPECT_EQ(Line(xml, "sKeyword"), "<sKeyword>water</sKeyword><sKeyword>steam</sKeyword>"
                                     "<sKeyword>H2O</sKeyword>");
}

TEST_F(CitationExport, CompoundsAndSamplesKeepEveryLetterAndEveryDigit) {
    const std::string xml = Export(
        kSource + "^L 1003 NNNNN &\n^N 1003 C8H10 α-<new> & \"β\" \xF0\x9D\x9B\xBE\x02\n"
                  "^S 1 cm,99m%,gc;dist,(frozen <twice>);99.950m%,gc,0.010h%,(Karl & Fischer)\n"
                  "BL 1014 3.2.1.17 1LYZ & -3 lysozyme\n");
    EXPECT_EQ(Part(xml, "Compound"), R"(<Compound>
	<RegNum>
		<nOrgNum>1</nOrgNum>
	</RegNum>
	<sCommonName>&#945;-&lt;new&gt; &amp; "&#946;" &#120574;</sCommonName>
	<sFormulaMolec>C8H10</sFormulaMolec>
	<Sample>
		<nSampleNm>1</nSampleNm>
		<purity>
			<nStep>1</nStep>
			<nPurityMol>99</nPurityMol>
			<nPurityMolDigits>2</nPurityMolDigits>
			<eSource>Commercial source</eSource>
			<eAnalMeth>Gas chromatography</eAnalMeth>
		</purity>
		<purity>
			<nStep>2</nStep>
			<ePurifMethod>Distillation</ePurifMethod>
		</purity>
		<purity>
			<nStep>3</nStep>
			<sPurifMethod>frozen &lt;twice&gt;</sPurifMethod>
		</purity>
		<purity>
			<nStep>4</nStep>
			<nPurityMol>99.950</nPurityMol>
			<nPurityMolDigits>5</nPurityMolDigits>
			<eAnalMeth>Gas chromatography</eAnalMeth>
			<nWaterMassPerCent>0.010</nWaterMassPerCent>
			<nWaterMassPerCentDigits>2</nWaterMassPerCentDigits>
			<sAnalMeth>Karl &amp; Fischer</sAnalMeth>
		</purity>
	</Sample>
</Compound>
<Compound>
	<RegNum>
		<nOrgNum>2</nOrgNum>
	</RegNum>
	<sCommonName>lysozyme</sCommonName>
	<bio>
		<sECNumber>3.2.1.17</sECNumber>
		<sPDBNumber>1LYZ</sPDBNumber>
	</bio>
</Compound>)");
}

TEST(ExportDates, OnlyRealDaysLeave) {
    const std::string dates[][2] = {{"12/25/2004", "2004-12-25"},
                                    {"1/5/2026", "2026-01-05"},
                                    {"2/29/2024", "2024-02-29"},
                                    {"2/29/2023", ""},
                                    {"13/1/2004", ""},
                                    {"257/1/2004", ""},
                                    {"0/1/2004", ""},
                                    {"1/5/04", ""},
                                    {"2026/01/05", ""},
                                    {"&", ""},
                                    {"", ""},
                                    {"a/b/c", ""}};
    for (const auto& [record, iso] : dates)
        EXPECT_EQ(IsoDate(record), iso) << record;
}

} // namespace
} // namespace vexora
