#include "records/clsR.h"

#include "export/ExportDocument.h"
#include "export/XmlWriter.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/OpenRecord.h"
#include "records/Walk.h"
#include "records/clsAuthor.h"
#include "records/clsL.h"
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

// The part of a source text between two marks, empty when they are not both there.
std::string Between(std::string_view text, char mark) {
    const std::size_t first = text.find(mark);
    if (first == std::string_view::npos) return {};
    const std::size_t second = text.find(mark, first + 1);
    if (second == std::string_view::npos) return {};
    return std::string(Trim(text.substr(first + 1, second - first - 1)));
}

/// A source reads "@name@ $volume$(issue), pages", or has a comma behind the name.
std::string PublicationName(std::string_view source) {
    const std::string name = Between(source, '@');
    return name.empty() ? std::string(Trim(source.substr(0, source.find(',')))) : name;
}

// What stands in front of the pages where a source text tells other things behind its last comma:
// publisher, place or date.
constexpr CodeText PageMarks[] = {
    {", Pg. ", "B"}, {", pp", "M"}, {", pp", "D"}, {"", "R"}, {"", "P"}, {"", "T"}, {"", "C"},
};

/// Up to the next part of the text, which has a comma and a blank in front.
std::string MarkedPages(std::string_view source, std::string_view mark) {
    const std::size_t at = mark.empty() ? std::string_view::npos : source.find(mark);
    if (at == std::string_view::npos) return {};
    const std::string_view pages = source.substr(at + mark.size());
    return std::string(Trim(pages.substr(0, pages.find(", "))));
}

// Behind the volume the issue stands before the comma; the pages follow it.
std::string Pages(std::string_view source, std::string_view type) {
    std::size_t from = source.find('$');
    if (from != std::string_view::npos) from = source.find('$', from + 1);
    const auto* marked = std::ranges::find(PageMarks, type, &CodeText::code);
    if (from == std::string_view::npos && marked != std::end(PageMarks))
        return MarkedPages(source, marked->text);
    const std::size_t comma =
        from != std::string_view::npos ? source.find(',', from) : source.rfind(',');
    return comma == std::string_view::npos ? std::string()
                                           : std::string(Trim(source.substr(comma + 1)));
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
    xml.ElementIfAny("sVol", Transliterate(Between(SSOURCE, '$')));
    xml.ElementIfAny("sPage", Transliterate(Pages(SSOURCE, TYPDOC)));
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
    // Names of properties depend on the context; data begin with those of compounds.
    Globals().DataContext = "Pure";
    Walk(*this, [&xml](const Record& record) {
        const auto* const data = dynamic_cast<const OpenRecord*>(&record);
        if (!data) return;
        Globals().LineInHand = data->Line; // the place that is named with what is said of the data
        xml.Mark(data);
        data->ExportAll(xml);
    });
    xml.Mark(nullptr);
    Globals().LineInHand = 0;
}

} // namespace vexora
