#include <string>

#include "FuzzRoom.h"
#include "Target.h"
#include "reference/Text.h"
#include "sources/citation/CitationReader.h"

namespace vexora::fuzz {

namespace {

void TryText(const std::string& text) {
    Must(IsValidUtf8(text), "a text of a citation is UTF-8");
    Must(text.find_first_of("\n\r\t") == text.npos, "a text of a citation is one line");
}

JournalNames FewJournals() {
    JournalNames journals;
    journals.Add("J. Chem. Thermodyn.", "The Journal of Chemical Thermodynamics");
    journals.Add("Fluid Phase Equilib.", "Fluid Phase Equilibria");
    journals.Add("J. Phys. Chem. Ref. Data", "Journal of Physical and Chemical Reference Data");
    return journals;
}

} // namespace

void Try(std::string_view text) {
    static const JournalNames journals = FewJournals();
    const CitationReading read = ReadCitation(text, journals);
    Must(read.citation.has_value() != !read.error.empty(), "a citation, or the reason for none");
    if (!read.citation) return;
    const Citation& citation = *read.citation;
    for (const std::string* part :
         {&citation.type, &citation.title, &citation.year, &citation.bookTitle, &citation.edition,
          &citation.volume, &citation.issue, &citation.chapter, &citation.pages, &citation.editors,
          &citation.publisher, &citation.place, &citation.institution, &citation.number,
          &citation.degree, &citation.date, &citation.abstract, &citation.keyWords}) {
        TryText(*part);
    }
    for (const CitedName& author : citation.authors) {
        TryText(author.last);
        TryText(author.first);
        TryText(author.suffix);
    }
    for (const std::string& journal : citation.journals)
        TryText(journal);
}

} // namespace vexora::fuzz
