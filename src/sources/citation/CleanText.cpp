#include "sources/citation/CleanText.h"

#include <array>
#include <cctype>
#include <utility>

#include "reference/Text.h"

namespace vexora {

namespace {

// A letter and the character it makes with the mark, pair by pair (canonical compositions of the
// Unicode character database).
constexpr std::array<std::pair<char32_t, std::string_view>, 14> Composed{{
    {0x300, "AÀEÈIÌNǸOÒUÙWẀYỲaàeèiìnǹoòuùwẁyỳ"},
    {0x301, "AÁCĆEÉGǴIÍKḰLĹMḾNŃOÓPṔRŔSŚUÚWẂYÝZŹaácćeégǵiíkḱlĺmḿnńoópṕrŕsśuúwẃyýzź"},
    {0x302, "AÂCĈEÊGĜHĤIÎJĴOÔSŜUÛWŴYŶZẐaâcĉeêgĝhĥiîjĵoôsŝuûwŵyŷzẑ"},
    {0x303, "AÃEẼIĨNÑOÕUŨVṼYỸaãeẽiĩnñoõuũvṽyỹ"},
    {0x304, "AĀEĒGḠIĪOŌUŪYȲaāeēgḡiīoōuūyȳ"},
    {0x306, "AĂEĔGĞIĬOŎUŬaăeĕgğiĭoŏuŭ"},
    {0x307, "AȦBḂCĊDḊEĖFḞGĠHḢIİMṀNṄOȮPṖRṘSṠTṪWẆXẊYẎZŻaȧbḃcċdḋeėfḟgġhḣmṁnṅoȯpṗrṙsṡtṫwẇxẋyẏzż"},
    {0x308, "AÄEËHḦIÏOÖUÜWẄXẌYŸaäeëhḧiïoötẗuüwẅxẍyÿ"},
    {0x30A, "AÅUŮaåuůwẘyẙ"},
    {0x30B, "OŐUŰoőuű"},
    {0x30C, "AǍCČDĎEĚGǦHȞIǏKǨLĽNŇOǑRŘSŠTŤUǓZŽaǎcčdďeěgǧhȟiǐjǰkǩlľnňoǒrřsštťuǔzž"},
    {0x323, "AẠBḄDḌEẸHḤIỊKḲLḶMṂNṆOỌRṚSṢTṬUỤVṾWẈYỴZẒaạbḅdḍeẹhḥiịkḳlḷmṃnṇoọrṛsṣtṭuụvṿwẉyỵzẓ"},
    {0x327, "CÇDḐEȨGĢHḨKĶLĻNŅRŖSŞTŢcçdḑeȩgģhḩkķlļnņrŗsştţ"},
    {0x328, "AĄEĘIĮOǪUŲaąeęiįoǫuų"},
}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 27> Plainer{
    {{"\u2010", "-"},  {"\u2011", "-"},  {"\u2012", "-"},  {"\u2013", "-"},   {"\u2014", "-"},
     {"\u2015", "-"},  {"\u2212", "-"},  {"\u2018", "'"},  {"\u2019", "'"},   {"\u201A", "'"},
     {"\u2032", "'"},  {"\u201C", "\""}, {"\u201D", "\""}, {"\u201E", "\""},  {"\u2033", "\""},
     {"\u00A0", " "},  {"\u2009", " "},  {"\u202F", " "},  {"\u2002", " "},   {"\u2003", " "},
     {"\u200B", ""},   {"\u00AD", ""},   {"\uFEFF", ""},   {"\u2026", "..."}, {"\uFB01", "fi"},
     {"\uFB02", "fl"}, {"\uFB00", "ff"}}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 7> Entities{{{"&lt;", "<"},
                                                                                 {"&gt;", ">"},
                                                                                 {"&quot;", "\""},
                                                                                 {"&apos;", "'"},
                                                                                 {"&nbsp;", " "},
                                                                                 {"&#39;", "'"},
                                                                                 {"&amp;", "&"}}};

/// Stands in front of the tags in abstracts that come from the archives of journals.
constexpr std::string_view ArticleTags = "jats:";

constexpr char32_t FirstMark = 0x300;
constexpr char32_t LastMark = 0x36F;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == text.npos;
}

std::string WithMarksJoined(std::string_view text) {
    std::string joined;
    std::size_t last = 0; // where the last character began
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = at;
        const char32_t c = NextCodePoint(text, at);
        if (c >= FirstMark && c <= LastMark) {
            joined.replace(last, joined.npos, WithMark(joined.substr(last), c));
            continue;
        }
        last = joined.size();
        joined += text.substr(start, at - start);
    }
    return joined;
}

std::string WithSingleBlanks(std::string_view text) {
    std::string line;
    for (const char c : text) {
        const bool isBlank = static_cast<unsigned char>(c) <= ' ';
        if (!isBlank)
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    return std::string(TrimBlanks(line));
}

/// The tags that titles and abstracts come with; any other "<" is a sign of the text.
std::string WithoutTags(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::size_t end = text[at] == '<' ? text.find('>', at) : text.npos;
        if (end != text.npos) {
            std::string_view name = text.substr(at + 1, end - at - 1);
            if (name.starts_with('/')) name.remove_prefix(1);
            name = name.substr(0, name.find_first_of(" /"));
            if (name.starts_with(ArticleTags)) name.remove_prefix(ArticleTags.size());
            if (IsOneOf(LowerAscii(name), {"sub", "sup", "i", "b", "em", "strong", "inf", "p", "br",
                                           "title", "span", "sec", "italic", "bold"})) {
                if (IsOneOf(LowerAscii(name), {"p", "br", "title", "sec"})) plain += ' ';
                at = end;
                continue;
            }
        }
        plain += text[at];
    }
    return plain;
}

/// The character of "&#956;" or "&#x3BC;" that begins here, and its length; 0 for none.
std::pair<char32_t, std::size_t> NumberedEntity(std::string_view text) {
    constexpr char32_t highest = 0x10FFFF;
    constexpr std::size_t longest = 10;
    const std::size_t end = text.substr(0, longest).find(';');
    if (!text.starts_with("&#") || end == text.npos) return {0, 0};
    const bool isHex = text[2] == 'x' || text[2] == 'X';
    char32_t value = 0;
    for (const char c : LowerAscii(text.substr(isHex ? 3 : 2, end - (isHex ? 3 : 2)))) {
        if (!std::isxdigit(static_cast<unsigned char>(c)) || (!isHex && !IsDigit(c))) return {0, 0};
        const int digit = IsDigit(c) ? c - '0' : c - 'a' + 10;
        value = value * (isHex ? 16 : 10) + static_cast<char32_t>(digit);
        if (value > highest) return {0, 0};
    }
    return {value, value == 0 ? 0 : end + 1};
}

std::string WithoutEntities(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size();) {
        const auto [character, length] = NumberedEntity(text.substr(at));
        if (length > 0)
            AppendCodePoint(plain, character);
        else
            plain += text[at];
        at += length > 0 ? length : 1;
    }
    for (const auto& [entity, sign] : Entities)
        plain = Replace(plain, entity, sign);
    return plain;
}

} // namespace

std::string WithMark(std::string_view letter, char32_t mark) {
    for (const auto& [known, pairs] : Composed) {
        if (known != mark) continue;
        for (std::size_t at = 0; at < pairs.size();) {
            const std::size_t base = at++;
            const std::size_t start = at;
            NextCodePoint(pairs, at);
            if (letter == pairs.substr(base, 1))
                return std::string(pairs.substr(start, at - start));
        }
    }
    return std::string(letter);
}

std::string CleanText(std::string_view text) {
    std::string plain = ToUtf8(text);
    for (const auto& [sign, plainer] : Plainer)
        plain = Replace(plain, sign, plainer);
    return WithSingleBlanks(WithMarksJoined(plain));
}

std::string CleanMarkup(std::string_view text) {
    return CleanText(WithoutEntities(WithoutTags(text)));
}

std::string CleanPages(std::string_view text) {
    std::string pages = CleanText(text);
    for (const std::string_view label : {"pp.", "pp", "p."})
        if (LowerAscii(pages).starts_with(label)) {
            pages = TrimBlanks(std::string_view(pages).substr(label.size()));
            break;
        }
    while (pages.find("--") != pages.npos)
        pages = Replace(pages, "--", "-");
    pages = Replace(Replace(pages, " -", "-"), "- ", "-");
    const std::size_t dash = pages.find('-');
    if (dash == pages.npos) return pages;
    std::string first = pages.substr(0, dash);
    const std::string last = pages.substr(dash + 1);
    if (last.empty() || first == last) return first;
    if (!IsNumber(first) || !IsNumber(last) || last.size() >= first.size()) return pages;
    const std::string whole = first.substr(0, first.size() - last.size()) + last;
    return whole > first ? first + "-" + whole : pages;
}

std::string WithoutFinalPoint(std::string_view text) {
    const std::size_t length = text.size();
    const bool endsWord = length > 2 && text.ends_with('.') && text[length - 2] != '.' &&
                          text[length - 3] != ' ' && text[length - 3] != '.';
    return std::string(endsWord ? text.substr(0, length - 1) : text);
}

std::string YearIn(std::string_view text) {
    constexpr std::size_t yearLength = 4;
    std::string digits;
    for (const char c : std::string(text) + " ") {
        if (IsDigit(c)) {
            digits += c;
            continue;
        }
        if (digits.size() == yearLength && digits > "1500" && digits < "2200") return digits;
        digits.clear();
    }
    return {};
}

} // namespace vexora
