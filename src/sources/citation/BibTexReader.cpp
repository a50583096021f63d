// BibTeX: @type{key, name = {value}, ...}. A value stands in braces or quotation marks, or is a
// number or a macro; "#" joins several.
#include <algorithm>
#include <map>

#include "reference/Text.h"
#include "sources/citation/CitationFormats.h"
#include "sources/citation/CleanText.h"
#include "sources/citation/LatexText.h"
#include "sources/citation/PersonNames.h"
#include "sources/citation/TagLines.h"

namespace vexora {

namespace {

using Fields = std::map<std::string, std::string>; // values as they stand in the source

const std::map<std::string_view, std::string_view> Types = {{"article", cited::Article},
                                                            {"book", cited::Book},
                                                            {"inbook", cited::Book},
                                                            {"incollection", cited::Book},
                                                            {"booklet", cited::Book},
                                                            {"collection", cited::Book},
                                                            {"inproceedings", cited::Conference},
                                                            {"conference", cited::Conference},
                                                            {"proceedings", cited::Conference},
                                                            {"techreport", cited::Report},
                                                            {"report", cited::Report},
                                                            {"phdthesis", cited::Thesis},
                                                            {"mastersthesis", cited::Thesis},
                                                            {"thesis", cited::Thesis},
                                                            {"patent", cited::Patent},
                                                            {"unpublished", cited::Unpublished}};

constexpr TagPlace Places[] = {{"title", &Citation::title},
                               {"year", &Citation::year},
                               {"date", &Citation::date},
                               {"volume", &Citation::volume},
                               {"pages", &Citation::pages},
                               {"chapter", &Citation::chapter},
                               {"edition", &Citation::edition},
                               {"publisher", &Citation::publisher},
                               {"address", &Citation::place},
                               {"location", &Citation::place},
                               {"booktitle", &Citation::bookTitle},
                               {"abstract", &Citation::abstract},
                               {"school", &Citation::institution},
                               {"institution", &Citation::institution},
                               {"organization", &Citation::publisher},
                               {"type", &Citation::degree},
                               {"author", nullptr},
                               {"editor", nullptr},
                               {"journal", nullptr},
                               {"journaltitle", nullptr},
                               {"shortjournal", nullptr},
                               {"number", nullptr},
                               {"issue", nullptr},
                               {"eid", nullptr},
                               {"article-number", nullptr},
                               {"keywords", nullptr},
                               {"keyword", nullptr},
                               {"doi", nullptr},
                               {"url", nullptr},
                               {"issn", nullptr},
                               {"isbn", nullptr},
                               {"month", nullptr},
                               {"eprint", nullptr},
                               {"language", nullptr},
                               {"file", nullptr},
                               {"urldate", nullptr},
                               {"day", nullptr},
                               {"numpages", nullptr},
                               {"pmid", nullptr},
                               {"timestamp", nullptr},
                               {"series", nullptr},
                               {"copyright", nullptr},
                               {"abbreviated-title", nullptr},
                               {"bibsource", nullptr},
                               {"biburl", nullptr},
                               {"unique-id", nullptr},
                               {"note", nullptr},
                               {"holder", nullptr}};

constexpr std::string_view Incomplete =
    "The BibTeX entry is not complete: a brace or a quotation mark is not closed.";

class EntryReader {
public:
    explicit EntryReader(std::string_view text) : text_(text) {}

    /// The next entry but for comments; its macros are kept. False behind the last one.
    bool Next(std::string& type, Fields& fields) {
        while (true) {
            at_ = text_.find('@', at_);
            if (at_ == text_.npos) return false;
            ++at_;
            type = LowerAscii(Word());
            SkipBlanks();
            if (type.empty() || !IsOneOf(Here(), {"{", "("})) continue;
            ++at_;
            if (type == "comment" || type == "preamble") {
                SkipEntry();
            } else if (type == "string") {
                ReadFields(macros_);
            } else {
                fields.clear();
                Key();
                ReadFields(fields);
                return true;
            }
        }
    }

private:
    std::string_view Here() const { return text_.substr(std::min(at_, text_.size()), 1); }
    bool AtEnd() const { return at_ >= text_.size(); }

    void SkipBlanks() {
        while (!AtEnd() && static_cast<unsigned char>(text_[at_]) <= ' ')
            ++at_;
    }

    std::string Word() {
        SkipBlanks();
        const std::size_t start = at_;
        while (!AtEnd() && static_cast<unsigned char>(text_[at_]) > ' ' &&
               std::string_view("{}()\",=#").find(text_[at_]) == std::string_view::npos)
            ++at_;
        return std::string(text_.substr(start, at_ - start));
    }

    void Key() {
        const std::size_t end = text_.find_first_of(",})", at_);
        if (end == text_.npos) throw CitationError(std::string(Incomplete));
        if (text_.substr(at_, end - at_).find('=') == text_.npos)
            at_ = end + (text_[end] == ',' ? 1 : 0);
    }

    void SkipEntry() {
        for (int depth = 1; depth > 0; ++at_) {
            if (AtEnd()) throw CitationError(std::string(Incomplete));
            if (text_[at_] == '{' || text_[at_] == '(') ++depth;
            if (text_[at_] == '}' || text_[at_] == ')') --depth;
        }
    }

    void ReadFields(Fields& fields) {
        while (true) {
            SkipBlanks();
            if (AtEnd()) throw CitationError(std::string(Incomplete));
            if (IsOneOf(Here(), {"}", ")"})) break;
            const std::string name = LowerAscii(Word());
            SkipBlanks();
            if (Here() == "=") {
                ++at_;
                const std::string value = Value();
                fields.emplace(name, value);
            } else if (!AtEnd() && !IsOneOf(Here(), {"}", ")"})) {
                ++at_; // a comma too many, or a stray sign
            }
        }
        ++at_;
    }

    std::string Value() {
        std::string value;
        while (true) {
            SkipBlanks();
            if (Here() == "{") {
                value += Enclosed('}');
            } else if (Here() == "\"") {
                value += Enclosed('"');
            } else {
                const std::string word = Word();
                const auto macro = macros_.find(LowerAscii(word));
                value += macro == macros_.end() ? word : macro->second;
            }
            SkipBlanks();
            if (Here() != "#") return value;
            ++at_;
        }
    }

    std::string Enclosed(char end) {
        const std::size_t start = ++at_;
        for (int depth = 0; !AtEnd(); ++at_) {
            const char c = text_[at_];
            if (c == '\\') {
                ++at_;
                continue;
            }
            if (c == end && depth == 0) return std::string(text_.substr(start, at_++ - start));
            if (c == '{') ++depth;
            if (c == '}') --depth;
        }
        throw CitationError(std::string(Incomplete));
    }

    std::string_view text_;
    std::size_t at_ = 0;
    Fields macros_;
};

// Signs that stand for a blank and a comma in braces while a name is taken apart.
constexpr std::string_view KeptBlank = "\u2400";
constexpr std::string_view KeptComma = "\u2401";

/// The source with blanks and commas in braces kept from parting a name. Braces around a command
/// only end it.
std::string WithKeptWords(std::string_view source) {
    std::string text;
    std::vector<bool> keeping = {false};
    for (std::size_t at = 0; at < source.size(); ++at) {
        const char c = source[at];
        if (c == '{') keeping.push_back(at + 1 < source.size() && source[at + 1] != '\\');
        if (c == '}' && keeping.size() > 1) keeping.pop_back();
        const bool isBlank = static_cast<unsigned char>(c) <= ' ';
        if (keeping.back() && (isBlank || c == ','))
            text += isBlank ? KeptBlank : KeptComma;
        else
            text += isBlank ? ' ' : c;
    }
    return text;
}

/// Names parted by "and"; what stands in braces is one word.
std::vector<std::string> SplitNames(std::string_view source) {
    std::vector<std::string> names(1);
    for (const std::string& word : Split(WithKeptWords(source), ' ')) {
        if (word == "and")
            names.emplace_back();
        else
            names.back() += (names.back().empty() ? "" : " ") + word;
    }
    std::erase_if(names, [](const std::string& one) { return TrimBlanks(one).empty(); });
    return names;
}

class BibTexCitation {
public:
    BibTexCitation(const std::string& type, Fields fields) : fields_(std::move(fields)) {
        citation_.format = "BibTeX";
        PutType(type);
        for (const auto& [name, value] : fields_) {
            if (!PutByTable(citation_, {name, Text(value)}, Places))
                citation_.notUnderstood.push_back(name + " = " + CleanText(value));
        }
        PutNames();
        PutNumbers(type);
        PutWords();
    }

    Citation Take() { return std::move(citation_); }

private:
    std::string Raw(const std::string& name) const {
        const auto found = fields_.find(name);
        return found == fields_.end() ? std::string() : found->second;
    }

    std::string Text(const std::string& source) {
        return CleanMarkup(TextOfLatex(source, citation_.notUnderstood));
    }

    void PutType(const std::string& type) {
        const auto found = Types.find(type);
        if (found != Types.end())
            citation_.type = found->second;
        else if (type == "misc" && fields_.contains("journal"))
            citation_.type = cited::Article;
        else
            citation_.notUnderstood.push_back("@" + type);
    }

    std::vector<CitedName> Names(const std::string& field) {
        std::vector<CitedName> names;
        for (const std::string& source : SplitNames(Raw(field))) {
            if (AreOthers(source)) {
                citation_.moreAuthors = citation_.moreAuthors || field == "author";
                continue;
            }
            CitedName name = NameOf(TextOfLatex(source, citation_.notUnderstood));
            for (std::string* part : {&name.last, &name.first, &name.suffix})
                *part = Replace(Replace(*part, KeptBlank, " "), KeptComma, ",");
            names.push_back(name);
        }
        return names;
    }

    void PutNames() {
        citation_.authors = Names("author");
        for (const CitedName& name : Names("editor"))
            AddTo(citation_.editors, name.last + (name.first.empty() ? "" : ", " + name.first));
    }

    void PutNumbers(const std::string& type) {
        const std::string number = Text(Raw("number"));
        citation_.issue = Text(Raw("issue"));
        if (citation_.issue.empty()) citation_.issue = number;
        citation_.number = number;
        for (const char* field : {"eid", "article-number"})
            if (citation_.pages.empty()) citation_.pages = Text(Raw(field));
        if (citation_.year.empty()) citation_.year = citation_.date;
        if (citation_.type == cited::Patent) citation_.institution = Text(Raw("holder"));
        if (citation_.type != cited::Thesis) citation_.degree.clear();
        if (type == "phdthesis" || citation_.degree == "phdthesis") citation_.degree = "Ph.D.";
        if (type == "mastersthesis" || citation_.degree == "mathesis") citation_.degree = "M.S.";
    }

    void PutWords() {
        for (const char* field : {"journal", "journaltitle", "shortjournal"})
            if (const std::string name = Text(Raw(field)); !name.empty())
                citation_.journals.push_back(name);
        for (const char* field : {"keywords", "keyword"}) {
            for (const std::string& word : Split(Replace(Text(Raw(field)), ";", ","), ','))
                AddTo(citation_.keyWords, std::string(TrimBlanks(word)));
        }
    }

    Fields fields_;
    Citation citation_;
};

} // namespace

Citation ReadBibTex(std::string_view text) {
    EntryReader reader(text);
    std::string type, nextType;
    Fields fields, nextFields;
    if (!reader.Next(type, fields))
        throw CitationError("The text holds no BibTeX entry that describes a publication.");
    if (fields.empty()) throw CitationError("The BibTeX entry @" + type + " holds no field.");
    int entries = 1;
    while (reader.Next(nextType, nextFields))
        ++entries;
    if (entries > 1)
        throw CitationError("The text holds " + std::to_string(entries) +
                            " citations. Paste one of them.");
    return BibTexCitation(type, std::move(fields)).Take();
}

} // namespace vexora
