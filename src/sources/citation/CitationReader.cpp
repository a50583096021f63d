#include "sources/citation/CitationReader.h"

#include <algorithm>

#include "reference/Text.h"
#include "sources/citation/CitationFormats.h"
#include "sources/citation/CleanText.h"
#include "sources/citation/PersonNames.h"
#include "sources/citation/TagLines.h"

namespace vexora {

namespace {

/// No citation is longer; a whole paper pasted by mistake is.
constexpr std::size_t LongestText = 200'000;

bool HoldsTag(const std::vector<TagLine>& lines, std::string_view tag) {
    return std::ranges::find(lines, tag, &TagLine::tag) != lines.end();
}

Citation ReadAny(std::string_view text, const JournalNames& journals) {
    if (text.starts_with('@')) return ReadBibTex(text);
    const auto lines = ReadTagLines(text);
    if (HoldsTag(lines, "PMID") || HoldsTag(lines, "FAU")) return ReadNbib(text);
    if (HoldsTag(lines, "TY") || HoldsTag(lines, "ER") || HoldsTag(lines, "AU"))
        return ReadRis(text);
    if (text.find("\n@") != text.npos) return ReadBibTex(text);
    return ReadPlainReference(text, journals);
}

/// "5" and "5th edition" are both the 5th.
std::string Ordinal(const std::string& text) {
    std::string edition = text;
    for (const std::string_view word : {" edition", " edn.", " edn", " ed.", " ed"})
        if (LowerAscii(edition).ends_with(word)) edition.resize(edition.size() - word.size());
    if (edition.empty() || edition.find_first_not_of("0123456789") != edition.npos) return edition;
    const bool isTeen = edition.size() > 1 && edition[edition.size() - 2] == '1';
    switch (isTeen ? '0' : edition.back()) {
    case '1':
        return edition + "st";
    case '2':
        return edition + "nd";
    case '3':
        return edition + "rd";
    default:
        return edition + "th";
    }
}

/// A title in brackets is one that was translated.
std::string CleanTitle(std::string_view text) {
    std::string title = WithoutFinalPoint(CleanMarkup(text));
    if (title.starts_with('[') && title.ends_with(']')) title = title.substr(1, title.size() - 2);
    return title;
}

void Clean(Citation& citation) {
    citation.title = CleanTitle(citation.title);
    citation.bookTitle = CleanTitle(citation.bookTitle);
    citation.year = YearIn(citation.year);
    if (citation.year.empty()) citation.year = YearIn(citation.date);
    citation.pages = CleanPages(citation.pages);
    citation.edition = Ordinal(CleanText(citation.edition));
    for (std::string* text :
         {&citation.volume, &citation.issue, &citation.chapter, &citation.editors,
          &citation.publisher, &citation.place, &citation.institution, &citation.number,
          &citation.degree, &citation.date, &citation.abstract, &citation.keyWords})
        *text = CleanMarkup(*text);
    const bool keepsDate = citation.type == cited::Patent || citation.type == cited::Conference;
    if (!keepsDate || citation.date == citation.year) citation.date.clear();
    while (citation.date.ends_with('/'))
        citation.date.pop_back();
    for (std::string& journal : citation.journals)
        journal = CleanMarkup(journal.substr(0, journal.find_last_not_of(" ,;") + 1));
    std::erase(citation.journals, "");
    std::vector<std::string> all;
    for (const std::string& one : citation.notUnderstood)
        if (const std::string text = CleanText(one); std::ranges::find(all, text) == all.end())
            all.push_back(text);
    citation.notUnderstood = std::move(all);
    std::erase_if(citation.authors, [](const CitedName& name) { return name.last.empty(); });
    if (citation.type == cited::Book && citation.bookTitle.empty())
        citation.bookTitle = citation.title;
}

} // namespace

CitationReading ReadCitation(std::string_view bytes, const JournalNames& journals) {
    if (bytes.size() > LongestText) return {{}, "The text is too long for a citation."};
    if (bytes.find('\0') != bytes.npos)
        return {{}, "This is no text, but some other kind of file."};
    const std::string utf8 = Replace(Replace(ToUtf8(bytes), "\r\n", "\n"), "\r", "\n");
    std::string_view text = utf8;
    if (text.starts_with("\uFEFF")) text.remove_prefix(std::string_view("\uFEFF").size());
    text = Trim(text);
    if (text.empty()) return {{}, "There is no text to read a citation from."};
    try {
        Citation citation = ReadAny(text, journals);
        Clean(citation);
        if (citation.title.empty() && citation.authors.empty())
            return {{},
                    "The " + citation.format + " citation names neither a title nor an author."};
        return {citation, {}};
    } catch (const CitationError& error) {
        return {{}, error.what()};
    }
}

} // namespace vexora
