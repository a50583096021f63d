#include "records/clsAuthor.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "reference/Text.h"

#include <array>
#include <vector>

namespace vexora {

namespace {

constexpr std::size_t CodeLength = 6;
/// Letters even for a name without first names, for authors are looked up by them.
constexpr std::string_view NoFirstName = "zz";

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Spelling of names varies in dots, hyphens and blanks, hardly in letters.
std::string LettersOf(std::string_view text) {
    std::string letters;
    for (const char c : LowerAscii(text))
        if (IsLetter(c)) letters += c;
    return letters;
}

std::string WithoutTrailingBlanks(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

/// The first names as initials in print: "Ann Mary" is "A.M.", "Jean-Paul" is "J. - P.".
struct Initials {
    std::string printed;
    std::vector<std::string> letters;
    std::string remainder; // the first word's rest behind its initial
};

Initials InitialsOf(std::string_view firstName) {
    Initials result;
    bool atWordStart = true;
    bool afterHyphen = false;
    for (std::size_t at = 0; at < firstName.size();) {
        const std::size_t start = at;
        NextCodePoint(firstName, at);
        const std::string_view character = firstName.substr(start, at - start);
        if (character == " " || character == "." || character == "-") {
            atWordStart = true;
            afterHyphen = afterHyphen || character == "-";
            continue;
        }
        if (!atWordStart) {
            if (result.letters.size() == 1) result.remainder += character;
            continue;
        }
        if (afterHyphen && !result.letters.empty()) result.printed += " - ";
        result.printed += std::string(character) + ".";
        result.letters.push_back(LowerAscii(character));
        atWordStart = afterHyphen = false;
    }
    return result;
}

/// What stands behind "]" in the first names, set apart from them.
std::string TakeBracketed(std::string& firstName) {
    const std::size_t bracket = firstName.find(']');
    if (bracket == std::string::npos) return {};
    std::string extension(TrimBlanks(std::string_view(firstName).substr(bracket + 1)));
    firstName.resize(bracket);
    return extension;
}

/// A word of first names that is written out, as "Jr." is and "J." is not.
bool IsWrittenOut(std::string_view word) {
    std::size_t at = 0;
    if (!word.empty()) NextCodePoint(word, at);
    return at < word.size() && word[at] != '.' && word[at] != '-';
}

} // namespace

std::string clsAuthor::PrintedName() const {
    const std::string_view name = TrimBlanks(FULLNM);
    if (!name.empty()) return std::string(name.substr(0, name.find_last_not_of(", ") + 1));
    std::string codes(TrimBlanks(LASTNM));
    const std::string initials(TrimBlanks(Substring(INITNM, 1, NoFirstName.size())));
    if (initials == NoFirstName) return codes;
    if (!initials.empty()) codes += ",";
    for (std::size_t at = 0; at < initials.size();) {
        const std::size_t start = at;
        NextCodePoint(initials, at);
        codes += initials.substr(start, at - start) + ".";
    }
    return codes;
}

void clsAuthor::SplitName() {
    if (!LastName.empty()) return;
    const std::string name = PrintedName();
    const std::size_t comma = name.find(',');
    LastName = TrimBlanks(std::string_view(name).substr(0, comma));
    if (comma == std::string::npos) return;
    for (const std::string& word :
         Split(TrimBlanks(std::string_view(name).substr(comma + 1)), ' ')) {
        // Behind initials it is no first name but a "Jr." or "van".
        const bool isExtension = FirstName.ends_with('.') && IsWrittenOut(word) &&
                                 FirstName.find(']') == std::string::npos;
        FirstName += std::string(FirstName.empty() ? "" : isExtension ? "] " : " ") + word;
    }
}

void clsAuthor::CreateAbbr() {
    LASTNM = LettersOf(TrimBlanks(LastName)).substr(0, CodeLength);
    LASTNM.resize(CodeLength, ' ');
    std::string firstName(TrimBlanks(FirstName));
    const std::string bracketed = TakeBracketed(firstName);
    const Initials initials = InitialsOf(firstName);
    Extension = bracketed.empty() ? initials.remainder : bracketed;
    INITNM = NoFirstName;
    if (!initials.letters.empty())
        INITNM = initials.letters[0] + (initials.letters.size() > 1 ? initials.letters[1] : " ");
    FULLNM = TrimBlanks(LastName);
    if (!initials.printed.empty()) FULLNM += "," + initials.printed;
    if (!bracketed.empty()) FULLNM += " " + bracketed;
}

bool clsAuthor::CompareName(std::string_view fullName) const {
    return LettersOf(FULLNM) == LettersOf(fullName);
}

std::optional<std::string> clsAuthor::KnownName() const {
    const Database& known = Globals().CompoundDb();
    if (!known.IsOpen()) return {};
    const Recordset row =
        known.Query("select FULLNM from SOURCE_AUTHOR where rtrim(LASTNM) = ? "
                    "and rtrim(INITNM) = ? order by rowid",
                    {WithoutTrailingBlanks(LASTNM), WithoutTrailingBlanks(INITNM)});
    if (row.IsEnd()) return {};
    return row.Text("FULLNM");
}

Notices clsAuthor::Load(std::string_view line) {
    std::string text(line);
    NextHashField(text);
    AUTHSEQNO = NextHashField(text);
    LASTNM = NextHashField(text);
    INITNM = NextHashField(text);
    FULLNM = Trim(NextHashField(text));
    isNew = !FULLNM.empty();
    if (isNew) return {};
    FULLNM = KnownName().value_or("");
    if (!FULLNM.empty()) return {};
    return {{"Undefined author " + LASTNM + INITNM + ":", {}}};
}

void clsAuthor::Print(LineWriter& out) const {
    std::string line = "^I";
    for (const std::string& field : {AUTHSEQNO, LASTNM, INITNM})
        line += "#" + Replace(SingleLine(field), "#", " ");
    out.Line(line + "#" + Replace(SingleLine(Trim(FULLNM)), "#", " "));
}

} // namespace vexora
