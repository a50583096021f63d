#include "records/clsR.h"

#include "export/Complexes.h"
#include "export/DataHead.h"
#include "export/ExportDocument.h"
#include "export/XmlWriter.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/OpenRecord.h"
#include "records/SourceText.h"
#include "records/Walk.h"
#include "records/clsAuthor.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsQ.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Text.h"
#include "reference/Transliteration.h"

#include <algorithm>
#include <iterator>

namespace vexora {

namespace {

// Texts of the schema (eType) beside the codes of TYPDOC.
constexpr CodeText DocumentTypes[] = {
    {"book", "B"},
    {"journal", "J"},
    {"report", "R"},
    {"patent", "P"},
    {"thesis", "T"},
    {"conferenceProceedings", "M"},
    {"personalCorrespondence", "C"},
    {"archivedDocument", "D"},
    {"journal", "S"},
};

// Where the compiler read it (eSourceType), "&" being a field left empty.
constexpr CodeText SourceTypes[] = {
    {"Original", "O"},          {"BiblioBulChemThermo", "B"}, {"KVOGeneral", "&"},
    {"KVOGeneralChecked", "S"}, {"KVODataCard", "C"},         {"ChemicalAbstracts", "A"},
};

std::string TextOr(CodeTexts table, std::string_view code, std::string_view otherwise) {
    const std::string text = TextOfCode(table, code);
    return text.empty() ? std::string(otherwise) : text;
}

/// Left to the transliteration "<" would become "less than" without blanks about it.
std::string AbstractText(std::string_view text) {
    const std::string words = Replace(Replace(text, "<", " less than "), ">", " greater than ");
    return Replace(Transliterate(words), "|", "");
}

/// Both marks occur between keywords; what stands between two of them side by side is none.
void ExportKeywords(XmlWriter& xml, std::string_view keywords) {
    for (const std::string& keyword : Split(Replace(keywords, ";", ","), ',')) {
        xml.ElementIfAny("sKeyword", Transliterate(Trim(keyword)));
    }
}

/// The key by which the house finds the source again.
void ExportIdentity(XmlWriter& xml, const clsR& source) {
    xml.Open("KVORefID");
    xml.Element("yrYrPub", source.YEARPUB);
    xml.Element("sAuthor1", source.AUTHOR1);
    xml.ElementIfAny("sAuthor2", WithoutPlaceholder(source.AUTHOR2));
    xml.Element("nAuthorn", source.AUTHORN);
    xml.Close();
}

} // namespace

void clsR::ExportR(XmlWriter& xml, const ui::Date& today) const {
    xml.Open("Citation");
    ExportIdentity(xml, *this);
    xml.Element("eType", TextOr(DocumentTypes, TYPDOC, "unspecified"));
    xml.Element("eSourceType", TextOr(SourceTypes, SOURCEDOC.empty() ? "&" : SOURCEDOC, "Other"));
    for (const auto& author : recAuthor)
        xml.ElementIfAny("sAuthor", Transliterate(author->PrintedName()));
    xml.ElementIfAny("sPubName", Transliterate(PublicationName(SSOURCE)));
    xml.Element("yrPubYr", Trim(YEARPUB));
    xml.Element("dateCit", IsoDate(today));
    xml.ElementIfAny("sTitle", Transliterate(Trim(TTITLE)));
    xml.ElementIfAny("sAbstract", AbstractText(ABSTRACT));
    ExportKeywords(xml, KEYWORDS);
    xml.ElementIfAny("sVol", Transliterate(VolumeOf(SSOURCE)));
    xml.ElementIfAny("sPage", Transliterate(PagesOf(SSOURCE, TYPDOC)));
    xml.Close();
}

void clsR::ExportAll(XmlWriter& xml, const ui::Date& today) {
    PrepareOutput();
    CheckPresence();
    xml.Mark(this);
    ExportR(xml, today);
    for (const auto& compound : recL) {
        xml.Mark(compound.get());
        compound->ExportAll(xml);
    }
    ExportComplexes(xml, *this);
    // Names of properties depend on the context; data begin with those of compounds.
    Globals().DataContext = "Pure";
    for (const auto& compound : recL)
        Walk(*compound, [&xml](const Record& record) {
            if (const auto* data = dynamic_cast<const OpenRecord*>(&record))
                ExportRecord(xml, *data);
        });
    for (const auto& mixture : recM)
        mixture->ExportAll(xml);
    for (const auto& reaction : recQ)
        reaction->ExportAll(xml);
    for (const auto& set : recBR)
        ExportRecord(xml, *set);
    for (const auto& set : recBP)
        ExportRecord(xml, *set);
    ExportDataOfComplexes(xml, *this);
    xml.Mark(nullptr);
    Globals().LineInHand = 0;
}

} // namespace vexora
