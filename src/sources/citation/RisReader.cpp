// RIS: a field a line, "TY  - JOUR" first, "ER  -" last.
#include <algorithm>
#include <map>

#include "reference/Text.h"
#include "sources/citation/CitationFormats.h"
#include "sources/citation/PersonNames.h"
#include "sources/citation/TagLines.h"

namespace vexora {

namespace {

constexpr TagPlace Places[] = {{"TI", &Citation::title},
                               {"T1", &Citation::title},
                               {"VL", &Citation::volume},
                               {"IS", &Citation::issue},
                               {"CP", &Citation::issue},
                               {"ET", &Citation::edition},
                               {"SE", &Citation::chapter},
                               {"BT", &Citation::bookTitle},
                               {"PB", &Citation::publisher},
                               {"CY", &Citation::place},
                               {"PP", &Citation::place},
                               {"AB", &Citation::abstract},
                               {"N2", &Citation::abstract},
                               {"PY", &Citation::year},
                               {"Y1", &Citation::year},
                               {"DA", &Citation::date},
                               {"M1", &Citation::number},
                               {"M3", &Citation::degree},
                               {"AD", nullptr},
                               {"AN", nullptr},
                               {"AV", nullptr},
                               {"C1", nullptr},
                               {"C2", nullptr},
                               {"C4", nullptr},
                               {"C5", nullptr},
                               {"C6", nullptr},
                               {"C8", nullptr},
                               {"CA", nullptr},
                               {"CN", nullptr},
                               {"DB", nullptr},
                               {"DO", nullptr},
                               {"DP", nullptr},
                               {"ID", nullptr},
                               {"L1", nullptr},
                               {"L2", nullptr},
                               {"L3", nullptr},
                               {"L4", nullptr},
                               {"LA", nullptr},
                               {"LB", nullptr},
                               {"LK", nullptr},
                               {"M2", nullptr},
                               {"N1", nullptr},
                               {"NV", nullptr},
                               {"OP", nullptr},
                               {"RN", nullptr},
                               {"RP", nullptr},
                               {"SN", nullptr},
                               {"ST", nullptr},
                               {"TT", nullptr},
                               {"UR", nullptr},
                               {"Y2", nullptr},
                               {"ER", nullptr},
                               {"T3", nullptr}};

/// What begins a line of the kind of publication, and its name here.
const std::map<std::string_view, std::string_view> Types = {
    {"JOUR", cited::Article},     {"JFULL", cited::Article},     {"EJOUR", cited::Article},
    {"MGZN", cited::Article},     {"BOOK", cited::Book},         {"EBOOK", cited::Book},
    {"CHAP", cited::Book},        {"ECHAP", cited::Book},        {"EDBOOK", cited::Book},
    {"RPRT", cited::Report},      {"PAT", cited::Patent},        {"THES", cited::Thesis},
    {"CONF", cited::Conference},  {"CPAPER", cited::Conference}, {"PCOMM", cited::Communication},
    {"UNPB", cited::Unpublished}, {"INPR", cited::InPress},      {"MANSCPT", cited::Manuscript}};

/// Fields that mean one thing or another by the type, or stand several times.
struct Loose {
    std::string firstPage, lastPage, articleNumber, host, conference;
};

bool PutName(Citation& citation, const TagLine& line) {
    if (!IsOneOf(line.tag, {"AU", "A1", "A2", "A3", "A4", "ED"})) return false;
    if (line.text.empty()) return true;
    const CitedName name = NameOf(line.text);
    if (AreOthers(line.text))
        citation.moreAuthors = true;
    else if (line.tag == "AU" || line.tag == "A1")
        citation.authors.push_back(name);
    else if (line.tag != "A4")
        AddTo(citation.editors, name.last + (name.first.empty() ? "" : ", " + name.first));
    return true;
}

bool PutLoose(Citation& citation, const TagLine& line, Loose& loose) {
    const std::map<std::string_view, std::string*> places = {
        {"SP", &loose.firstPage},     {"EP", &loose.lastPage}, {"C7", &loose.articleNumber},
        {"AR", &loose.articleNumber}, {"T2", &loose.host},     {"C3", &loose.conference}};
    if (const auto found = places.find(line.tag); found != places.end()) {
        *found->second = line.text;
    } else if (IsOneOf(line.tag, {"JO", "JF", "JA", "J1", "J2"})) {
        citation.journals.push_back(line.text);
    } else if (line.tag == "KW") {
        AddTo(citation.keyWords, line.text);
    } else {
        return false;
    }
    return true;
}

std::string Pages(const Loose& loose) {
    if (loose.firstPage.empty()) return loose.articleNumber;
    return loose.firstPage + (loose.lastPage.empty() ? "" : "-" + loose.lastPage);
}

void PlaceByType(Citation& citation, const Loose& loose) {
    citation.pages = Pages(loose);
    if (!loose.host.empty()) citation.journals.push_back(loose.host);
    if (citation.type == cited::Book || citation.type == cited::Conference) {
        for (const std::string& title : {loose.conference, loose.host})
            if (citation.bookTitle.empty()) citation.bookTitle = title;
        citation.journals.clear();
    }
    if (citation.number.empty()) citation.number = citation.issue;
    if (citation.type != cited::Thesis) citation.degree.clear();
    if (citation.type == cited::Thesis || citation.type == cited::Report)
        citation.institution = citation.publisher;
    if (citation.type == cited::Patent) citation.institution = citation.publisher;
}

void PutType(Citation& citation, const std::string& code) {
    const auto found = Types.find(code);
    if (found != Types.end())
        citation.type = found->second;
    else
        citation.notUnderstood.push_back("TY  - " + code);
}

} // namespace

Citation ReadRis(std::string_view text) {
    const auto lines = ReadTagLines(text);
    const auto types = std::ranges::count(lines, "TY", &TagLine::tag);
    if (types == 0)
        throw CitationError("The RIS citation has no beginning: its line TY is missing.");
    if (types > 1)
        throw CitationError("The text holds " + std::to_string(types) +
                            " citations. Paste one of them.");
    Citation citation;
    citation.format = "RIS";
    Loose loose;
    for (const TagLine& line : lines) {
        if (line.tag == "TY")
            PutType(citation, line.text);
        else if (!PutName(citation, line) && !PutLoose(citation, line, loose) &&
                 !PutByTable(citation, line, Places))
            citation.notUnderstood.push_back(line.tag.empty() ? line.text
                                                              : line.tag + "  - " + line.text);
    }
    if (std::ranges::count(lines, "ER", &TagLine::tag) == 0)
        citation.notUnderstood.emplace_back(
            "The end of the citation (ER) is missing: part of it may "
            "have been cut off.");
    PlaceByType(citation, loose);
    return citation;
}

} // namespace vexora
