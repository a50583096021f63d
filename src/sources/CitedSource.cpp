#include "sources/CitedSource.h"

#include <algorithm>

#include "globals/KVOGlobal.h"
#include "records/clsAuthor.h"
#include "reference/Text.h"
#include "reference/Transliteration.h"
#include "sources/DocumentTypes.h"
#include "sources/MakeForms.h"
#include "sources/citation/CitationReader.h"
#include "sources/frmAuthor.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

JournalNames JournalsOfTable() {
    JournalNames journals;
    if (!Globals().LocalDb().IsOpen()) return journals;
    auto rows = Globals().LocalDb().Query("select * from Journals order by rowid");
    for (; !rows.IsEnd(); rows.MoveNext())
        journals.Add(rows.Text("ShortTitle"), rows.Text("Title"));
    return journals;
}

std::string PlainText(std::string_view text) {
    return std::string(TrimBlanks(Transliterate(text)));
}

/// Texts for the fields of the form that asks for the details of this type.
DetailTexts DetailTextsOf(const CitedSource& cited) {
    const Citation& c = cited.citation;
    if (c.type == cited::Article || c.type == cited::Manuscript)
        return {{"cboJournal", cited.journal},
                {"txtVolume", c.volume},
                {"txtIssue", c.issue},
                {"txtPages", c.pages}};
    if (c.type == cited::Book)
        return {{"txtTitle", c.bookTitle},    {"txtEdition", c.edition}, {"txtVolume", c.volume},
                {"txtChapter", c.chapter},    {"txtPages", c.pages},     {"txtEditor", c.editors},
                {"cboPublisher", c.publisher}};
    if (c.type == cited::Conference)
        return {{"txtName", c.bookTitle},
                {"txtLoc", c.place},
                {"txtDate", c.date},
                {"txtPages", c.pages}};
    if (c.type == cited::Report)
        return {{"txtName", c.title},
                {"txtNo", c.number},
                {"txtInst", c.institution},
                {"txtLoc", c.place}};
    if (c.type == cited::Thesis)
        return {{"txtDegree", c.degree}, {"txtInst", c.institution}, {"txtLoc", c.place}};
    if (c.type == cited::Patent)
        return {{"txtCountry", c.place},
                {"txtNo", c.number},
                {"txtOwner", c.institution},
                {"txtDate", c.date}};
    return {};
}

/// The letters of a text that have no plain form and would be left out.
std::string LostLetters(std::string_view text) {
    std::string lost;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = at;
        NextCodePoint(text, at);
        const std::string_view letter = text.substr(start, at - start);
        const bool isLost = letter.size() > 1 && PlainText(letter).empty();
        if (isLost && lost.find(letter) == lost.npos) lost += letter;
    }
    return lost;
}

/// Nobody is the author of one paper twice, so a second one of that name is a namesake.
bool IsAmong(const clsAuthor& author, const std::vector<CitedAuthor>& cited) {
    return std::ranges::any_of(cited, [&author](const CitedAuthor& other) {
        return other.known && other.known->LASTNM == author.LASTNM &&
               other.known->INITNM == author.INITNM;
    });
}

CitedAuthor AuthorOf(const CitedName& name, const std::vector<CitedAuthor>& before) {
    CitedAuthor author;
    author.last = PlainText(name.last);
    // What stands behind "]" in the first names is kept behind the initials.
    author.first = PlainText(name.first + (name.suffix.empty() ? "" : "] " + name.suffix));
    if (author.last.empty() || !Globals().CompoundDb().IsOpen()) return author;
    const clsAuthor typed = author.Typed();
    for (const auto& known : frmAuthor::KnownAuthors(author.last, author.first)) {
        if (!typed.CompareName(known->FULLNM) || IsAmong(*known, before)) continue;
        if (author.known)
            author.hasNamesakes = true;
        else
            author.known = known;
    }
    return author;
}

void TakeAuthors(CitedSource& cited) {
    for (const CitedName& name : cited.citation.authors) {
        CitedAuthor author = AuthorOf(name, cited.authors);
        if (author.last.empty())
            cited.remarks.push_back("An author cannot be written in plain letters: " + name.last);
        else if (author.hasNamesakes)
            cited.remarks.push_back("Several authors are known by the name " +
                                    author.known->FULLNM + ". The first is taken.");
        if (!author.last.empty()) cited.authors.push_back(std::move(author));
    }
    if (cited.authors.empty()) cited.remarks.emplace_back("The authors are missing.");
    if (cited.citation.moreAuthors)
        cited.remarks.emplace_back(
            "The citation leaves out further authors. Take all from the paper.");
}

void TakeJournal(CitedSource& cited, const JournalNames& journals) {
    const auto& names = cited.citation.journals;
    if (names.empty()) return;
    cited.journal = names.front();
    for (const std::string& name : names) {
        const auto known = journals.Find(name);
        if (!known) continue;
        cited.journal = *known;
        cited.isKnownJournal = true;
        return;
    }
    if (cited.citation.type == cited::Article)
        cited.remarks.push_back("The journal is not in the list of journals: " + cited.journal);
}

void TakeSource(CitedSource& cited) {
    const auto* type = std::ranges::find(DocumentTypes, std::string_view(cited.citation.type),
                                         &DocumentType::text);
    if (type == DocumentTypes.end()) {
        cited.remarks.emplace_back("The type of document is not told. Select it.");
        return;
    }
    if (type->detailForm.empty()) {
        cited.source = type->text;
        return;
    }
    const SourceText made = ComposeSource(type->detailForm, DetailTextsOf(cited));
    cited.source = made.text;
    cited.detailForm = type->detailForm;
    cited.parts = made.parts;
    if (!made.missing.empty())
        cited.remarks.push_back("The source details are not complete: " + made.missing);
}

void Remark(CitedSource& cited) {
    const Citation& c = cited.citation;
    if (c.title.empty()) cited.remarks.emplace_back("The title is missing.");
    if (c.year.empty()) cited.remarks.emplace_back("The year is missing.");
    const std::string lost = LostLetters(c.title + c.abstract + c.keyWords);
    if (!lost.empty())
        cited.remarks.push_back("Letters that have no plain form and are left out: " + lost);
    for (const std::string& one : c.notUnderstood)
        cited.remarks.push_back("Not understood: " + one);
}

} // namespace

clsAuthor CitedAuthor::Typed() const {
    clsAuthor typed;
    typed.LastName = last;
    typed.FirstName = first;
    typed.CreateAbbr();
    return typed;
}

std::vector<std::string> CitedSource::Details() const {
    const Citation& c = citation;
    const std::pair<std::string_view, std::string> found[] = {
        {"Journal", journal.empty() || isKnownJournal ? journal : journal + " (not in the list)"},
        {"Book or conference", c.bookTitle},
        {"Edition", c.edition},
        {"Volume", c.volume},
        {"Issue", c.issue},
        {"Chapter", c.chapter},
        {"Pages", c.pages},
        {"Editors", c.editors},
        {"Publisher", c.publisher},
        {"Institution", c.institution == c.publisher ? "" : c.institution},
        {"Place", c.place},
        {"Number", c.number == c.issue ? "" : c.number},
        {"Degree", c.degree},
        {"Date", c.date}};
    std::vector<std::string> lines;
    for (const auto& [name, text] : found)
        if (!text.empty()) lines.push_back(std::string(name) + ": " + text);
    return lines;
}

std::optional<CitedSource> CitedSourceIn(std::string_view text) {
    try {
        const JournalNames journals = JournalsOfTable();
        auto reading = ReadCitation(text, journals);
        if (!reading.citation) {
            ui::Say(reading.error, "Paste citation");
            return std::nullopt;
        }
        CitedSource cited;
        cited.citation = std::move(*reading.citation);
        TakeJournal(cited, journals);
        TakeSource(cited);
        TakeAuthors(cited);
        Remark(cited);
        return cited;
    } catch (const DatabaseError& error) {
        ui::Say(error.what());
        return std::nullopt;
    }
}

std::optional<CitedSource> CitedSourceInFile(const std::string& path) {
    std::string error;
    const auto text = ui::TheDesktop().Files().Read(path, error);
    if (text) return CitedSourceIn(*text);
    ui::Say("The file " + path + " cannot be read.\n" + error);
    return std::nullopt;
}

} // namespace vexora
