// A reference as it stands in a list of references, in one of the usual styles. What is regular is
// its end (year, volume, pages in some order); the names in front are taken next, and the title and
// the journal are what is left between them.
#include <array>
#include <regex>

#include "reference/Text.h"
#include "sources/citation/CitationFormats.h"
#include "sources/citation/CleanText.h"
#include "sources/citation/PersonNames.h"
#include "sources/citation/ReferenceNames.h"

namespace vexora {

namespace {

/// Longer texts are no reference line, and the patterns would take long on them.
constexpr std::size_t LongestLine = 2000;

const std::string Volume = R"(([A-Z]?\d+[A-Za-z]?(?:[-/]\d+)?))";
const std::string Issue = R"((?: ?\(((?:No\. ?)?[^()]{1,15})\))?)";
const std::string Pages = R"((?:pp?\.? ?)?([A-Za-z]{0,2}\d[\w.]*(?: ?- ?[A-Za-z]{0,2}\d[\w.]*)?))";
const std::string Head = R"(^(.+?))";

/// The ends of references, with the places of year, volume, issue and pages in the match; the head
/// is the first.
struct Ending {
    std::regex pattern;
    std::array<std::size_t, 4> places;
};

const std::vector<Ending>& Endings() {
    static const std::vector<Ending> endings = [] {
        std::vector<Ending> made;
        const auto add = [&made](const std::string& tail, std::array<std::size_t, 4> places) {
            made.push_back({std::regex(Head + tail + "$"), places});
        };
        add(R"([.,]? (\d{4})(?: [A-Z][a-z]{2}(?: \d{1,2})?)?; ?)" + Volume + Issue + " ?: ?" +
                Pages,
            {2, 3, 4, 5});
        add(",? " + Volume + Issue + R"( ?\((\d{4})\),? )" + Pages, {4, 2, 3, 5});
        add(",? " + Volume + Issue + ", " + Pages + R"( \((\d{4})\))", {5, 2, 3, 4});
        add(R"(,? (\d{4}), )" + Volume + Issue + ",? " + Pages, {2, 3, 4, 5});
        add(R"(, [Vv]ol\. ?)" + Volume + R"((?:, [Nn]o\. ?([\w/-]{1,15}))?, )" + Pages +
                R"(, (?:[A-Z][a-z]{2,8}\.? )?(\d{4}))",
            {5, 2, 3, 4});
        return made;
    }();
    return endings;
}

const std::regex& EndingBehindYear() {
    static const std::regex pattern(Head + ",? " + Volume + Issue + " ?[,:] ?" + Pages + "$");
    return pattern;
}

const std::regex& YearBehindNames() {
    static const std::regex pattern(R"(^(.{3,}?),? (?:\((\d{4})[a-z]?\)[.,:]?|(\d{4})\.) (.+)$)");
    return pattern;
}

const std::regex& BookEnding() {
    static const std::regex pattern(
        R"(^(.+?)(?:, (\w+) [Ee]d\.?)?; ([^;:]+): ([^;:]+), (\d{4})(?:[;,] Vol\. ?(\w+))?(?:[;,] )" +
        Pages + ")?$");
    return pattern;
}

/// Without a number in front, and without the DOI or address behind.
std::string Bare(std::string_view text) {
    static const std::regex number(R"(^(?:\[\d+\]|\(\d+\)|\d{1,3}[.)]) ?)");
    static const std::regex address(
        R"([,.;]? ?(?:https?://|doi ?:|doi ?10\.|doi\.org|available (?:at|from)|pmid).*$)",
        std::regex::icase);
    std::string line = CleanMarkup(text);
    if (line.size() > LongestLine) return {};
    line = std::regex_replace(line, number, "", std::regex_constants::format_first_only);
    line = std::regex_replace(line, address, "");
    while (!line.empty() && std::string_view(" .,;").find(line.back()) != std::string_view::npos)
        line.pop_back();
    return line;
}

std::string Stripped(std::string_view text) {
    constexpr std::string_view signs = " ,.;:\"'";
    const std::size_t from = text.find_first_not_of(signs);
    if (from == text.npos) return {};
    const std::size_t to = text.find_last_not_of(signs);
    const bool closesName = text.substr(to + 1).starts_with('.') && to > 1 && text[to - 1] == '.';
    return std::string(text.substr(from, to + 1 - from + (closesName ? 1 : 0)));
}

/// Words that are cut short within the titles of journals: the point behind them ends no part.
constexpr std::string_view CutShort =
    " Acad. Adv. Afr. Am. Anal. Ann. Annu. Appl. Arab. Arch. Assoc. Aust. Ber. Biochem. Bioeng. "
    "Biol. Biophys. Biotechnol. Br. Braz. Bulg. Bull. Bur. Can. Chem. Chim. Chin. Clin. Collect. "
    "Commun. Comput. Conf. Croat. Curr. Czech. Dokl. Ed. Electrochem. Energ. Eng. Environ. "
    "Equilib. Eur. Exp. Fiz. Found. Fundam. Geochim. Helv. Ind. Inorg. Inst. Instrum. Int. Iran. "
    "Isr. Ital. Jpn. Khim. Kholod. Lett. Liq. Mater. Math. Meas. Mech. Med. Mex. Mol. Nat. Natl. "
    "Nucl. Org. Petrol. Pharm. Philos. Phys. Pol. Polym. Proc. Process. Prog. Prom. Publ. Recl. "
    "Ref. Refrig. Renew. Rep. Res. Rev. Rom. Russ. Sb. Sci. Sep. Ser. Soc. Sol. Spectrosc. Stand. "
    "Struct. Supercrit. Sustain. Symp. Technol. Tekh. Temp. Teor. Theor. Therm. Thermochim. "
    "Thermodyn. Thermophys. Trans. Turk. Ukr. Univ. Vys. Zeitschr. Zh. ";

bool IsCutShort(std::string_view word) {
    if (!word.ends_with('.') || !IsCapitalized(word)) return false;
    const bool isOneLetter = CodePointCount(word) == 2;
    return isOneLetter || CutShort.find(" " + std::string(word) + " ") != CutShort.npos;
}

/// Words of a journal's title begin with capitals but for a few small ones.
bool MayBeJournal(std::string_view text) {
    for (const std::string& word : Split(text, ' ')) {
        const bool isSmall = IsOneOf(word, {"of", "and", "&", "the", "for", "in", "de", "des",
                                            "der", "et", "fur", "für", "-"});
        const bool isPart = IsCapitalized(word) || word.find_first_of("0123456789(") == 0;
        if (!isSmall && !isPart) return false;
    }
    return IsCapitalized(text) && text.size() > 2;
}

/// Where parts of the text begin: its start and what follows ". ", ", " and their like.
std::vector<std::size_t> PartStarts(const std::string& text) {
    std::vector<std::size_t> starts = {0};
    for (std::size_t at = 1; at + 1 < text.size(); ++at) {
        const bool parts = text[at] == ' ' &&
                           std::string_view(".,?!\"").find(text[at - 1]) != std::string_view::npos;
        if (!parts) continue;
        const std::size_t word = text.rfind(' ', at - 1);
        const std::size_t from = word == text.npos ? 0 : word + 1;
        if (!IsCutShort(std::string_view(text).substr(from, at - from))) starts.push_back(at + 1);
    }
    return starts;
}

/// The place where the journal begins: the longest known one, else the last part of the text that
/// looks like one; npos for none.
std::size_t JournalStart(const std::string& text, const JournalNames& journals) {
    const auto starts = PartStarts(text);
    for (const std::size_t start : starts)
        if (journals.Find(text.substr(start))) return start;
    for (auto start = starts.rbegin(); start != starts.rend(); ++start)
        if (MayBeJournal(text.substr(*start))) return *start;
    return text.npos;
}

class PlainReference {
public:
    explicit PlainReference(const JournalNames& journals) : journals_(journals) {
        citation_.format = "reference line";
    }

    bool Read(const std::string& line) {
        return ReadYearInFront(line) || ReadBook(line) || ReadYearBehind(line);
    }
    Citation Take() { return std::move(citation_); }

private:
    /// Names (year) title, journal, volume, pages.
    bool ReadYearInFront(const std::string& line) {
        std::smatch year, end;
        if (!std::regex_match(line, year, YearBehindNames())) return false;
        const NamesInFront names = TakeNames(year[1]);
        if (names.names.empty() || !Stripped(names.rest).empty()) return false;
        const std::string rest = year[4];
        if (!std::regex_match(rest, end, EndingBehindYear())) return false;
        TakePeople(names);
        citation_.year = year[2].matched ? year[2] : year[3];
        citation_.volume = end[2];
        citation_.issue = end[3];
        citation_.pages = end[4];
        PutTitleAndJournal(end[1]);
        return true;
    }

    bool ReadYearBehind(const std::string& line) {
        for (const Ending& ending : Endings()) {
            std::smatch match;
            if (!std::regex_match(line, match, ending.pattern)) continue;
            citation_.year = match[ending.places[0]];
            citation_.volume = match[ending.places[1]];
            citation_.issue = match[ending.places[2]];
            citation_.pages = match[ending.places[3]];
            return ReadHead(match[1]);
        }
        return false;
    }

    /// A journal that follows the names at once must not be taken for one of them.
    bool ReadHead(std::string head) {
        const std::size_t start = JournalStart(head, journals_);
        const bool known = start != head.npos && journals_.Find(head.substr(start));
        if (known) {
            citation_.journals = {head.substr(start)};
            head = head.substr(0, start);
        }
        const NamesInFront names = TakeNames(std::string(TrimBlanks(head)));
        TakePeople(names);
        if (known)
            citation_.title = Stripped(names.rest);
        else
            PutTitleAndJournal(names.rest);
        citation_.type = cited::Article;
        return !citation_.authors.empty();
    }

    bool ReadBook(const std::string& line) {
        std::smatch match;
        if (!std::regex_match(line, match, BookEnding())) return false;
        const NamesInFront names = TakeNames(match[1]);
        if (names.names.empty()) return false;
        TakePeople(names);
        citation_.type = cited::Book;
        citation_.title = Stripped(names.rest);
        citation_.edition = match[2];
        citation_.publisher = match[3];
        citation_.place = match[4];
        citation_.year = match[5];
        citation_.volume = match[6];
        citation_.pages = match[7];
        return true;
    }

    void TakePeople(const NamesInFront& names) {
        citation_.authors = names.names;
        citation_.moreAuthors = names.more;
    }

    void PutTitleAndJournal(const std::string& text) {
        citation_.type = cited::Article;
        const std::size_t start = JournalStart(text, journals_);
        if (start == text.npos) {
            citation_.title = Stripped(text);
            citation_.notUnderstood.emplace_back("Where the title ends and the journal begins.");
            return;
        }
        citation_.title = Stripped(text.substr(0, start));
        citation_.journals = {text.substr(start)};
    }

    const JournalNames& journals_;
    Citation citation_;
};

} // namespace

Citation ReadPlainReference(std::string_view text, const JournalNames& journals) {
    const std::string line = Bare(text);
    PlainReference reference(journals);
    if (line.empty() || !reference.Read(line))
        throw CitationError("No citation was found in the text.\n"
                            "It is neither RIS, BibTeX nor NBIB, nor a reference line with "
                            "authors, year, volume and pages.");
    return reference.Take();
}

} // namespace vexora
