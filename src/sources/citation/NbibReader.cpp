// NBIB: a field a line, the tag filled up to four places, "PMID- " first; long fields go on in
// lines that begin with blanks.
#include <algorithm>

#include "reference/Text.h"
#include "sources/citation/CitationFormats.h"
#include "sources/citation/CleanText.h"
#include "sources/citation/PersonNames.h"
#include "sources/citation/TagLines.h"

namespace vexora {

namespace {

constexpr TagPlace Places[] = {{"TI", &Citation::title},
                               {"VI", &Citation::volume},
                               {"IP", &Citation::issue},
                               {"PG", &Citation::pages},
                               {"DP", &Citation::date},
                               {"AB", &Citation::abstract},
                               {"BTI", &Citation::bookTitle},
                               {"PB", &Citation::publisher},
                               {"EN", &Citation::edition},
                               {"PMID", nullptr},
                               {"OWN", nullptr},
                               {"STAT", nullptr},
                               {"DCOM", nullptr},
                               {"LR", nullptr},
                               {"IS", nullptr},
                               {"AID", nullptr},
                               {"LID", nullptr},
                               {"AD", nullptr},
                               {"LA", nullptr},
                               {"GR", nullptr},
                               {"DEP", nullptr},
                               {"PL", nullptr},
                               {"JID", nullptr},
                               {"SB", nullptr},
                               {"RN", nullptr},
                               {"EDAT", nullptr},
                               {"MHDA", nullptr},
                               {"CRDT", nullptr},
                               {"PHST", nullptr},
                               {"PST", nullptr},
                               {"SO", nullptr},
                               {"AUID", nullptr},
                               {"PMC", nullptr},
                               {"PMCR", nullptr},
                               {"OTO", nullptr},
                               {"DA", nullptr},
                               {"CI", nullptr},
                               {"COIS", nullptr},
                               {"OID", nullptr},
                               {"NM", nullptr},
                               {"RF", nullptr},
                               {"SI", nullptr},
                               {"CIN", nullptr},
                               {"CON", nullptr},
                               {"EIN", nullptr},
                               {"EFR", nullptr},
                               {"OAB", nullptr},
                               {"OABL", nullptr},
                               {"TT", nullptr},
                               {"ISBN", nullptr},
                               {"CTDT", nullptr},
                               {"MID", nullptr},
                               {"STAT", nullptr},
                               {"GN", nullptr},
                               {"IR", nullptr},
                               {"FIR", nullptr},
                               {"UOF", nullptr},
                               {"UIN", nullptr},
                               {"CTI", nullptr}};

/// Every full name comes with its short form, which is passed over then.
void PutNames(Citation& citation, const std::vector<TagLine>& lines) {
    const bool inFull = std::ranges::count(lines, "FAU", &TagLine::tag) > 0;
    const bool editorsInFull = std::ranges::count(lines, "FED", &TagLine::tag) > 0;
    for (const TagLine& line : lines) {
        const CitedName name = NameOf(line.text);
        if (line.tag == (inFull ? "FAU" : "AU") && AreOthers(line.text)) {
            citation.moreAuthors = true;
        } else if (line.tag == (inFull ? "FAU" : "AU")) {
            citation.authors.push_back(name);
        } else if (line.tag == "CN") {
            citation.authors.push_back({CleanText(line.text), {}, {}});
        } else if (line.tag == (editorsInFull ? "FED" : "ED")) {
            AddTo(citation.editors, name.last + (name.first.empty() ? "" : ", " + name.first));
        }
    }
}

bool PutOther(Citation& citation, const TagLine& line) {
    if (IsOneOf(line.tag, {"FAU", "AU", "CN", "FED", "ED"})) return true;
    if (line.tag == "TA" || line.tag == "JT") {
        citation.journals.push_back(line.text);
    } else if (line.tag == "OT" || line.tag == "MH") {
        AddTo(citation.keyWords, Replace(line.text, "*", ""));
    } else if (line.tag == "PT") {
        const std::string kind = LowerAscii(line.text);
        if (kind == "book" || kind == "book chapter") citation.type = cited::Book;
        if (kind == "academic dissertation") citation.type = cited::Thesis;
        if (kind == "congress" || kind == "congresses") citation.type = cited::Conference;
        if (kind == "technical report") citation.type = cited::Report;
    } else {
        return false;
    }
    return true;
}

} // namespace

Citation ReadNbib(std::string_view text) {
    const auto lines = ReadTagLines(text);
    const auto records = std::ranges::count(lines, "PMID", &TagLine::tag);
    if (records > 1)
        throw CitationError("The text holds " + std::to_string(records) +
                            " citations. Paste one of them.");
    Citation citation;
    citation.format = "NBIB";
    PutNames(citation, lines);
    for (const TagLine& line : lines) {
        if (!PutOther(citation, line) && !PutByTable(citation, line, Places))
            citation.notUnderstood.push_back(line.tag.empty() ? line.text
                                                              : line.tag + " - " + line.text);
    }
    citation.year = YearIn(citation.date);
    if (citation.type.empty() && !citation.journals.empty()) citation.type = cited::Article;
    return citation;
}

} // namespace vexora
