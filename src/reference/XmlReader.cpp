#include "reference/XmlReader.h"

#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <set>

namespace vexora {

namespace {

/// What a character means in a document.
enum Meaning : unsigned char {
    IsOfName = 1,
    EndsText = 2, // begins something else, or has to be looked at
    IsControl = 4,
    IsSpace = 8,
};

constexpr std::array<unsigned char, 256> Meanings = [] {
    std::array<unsigned char, 256> meanings{};
    for (std::size_t c = 0; c < meanings.size(); ++c) {
        const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c >= 0x80;
        if (isLetter || (c >= '0' && c <= '9') || c == '_' || c == ':' || c == '-' || c == '.')
            meanings[c] |= IsOfName;
        if (c == '<' || c == '&' || c == '>' || c == '\r' || c == '\n') meanings[c] |= EndsText;
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r')
            meanings[c] |= IsSpace;
        else if (c < ' ')
            meanings[c] |= IsControl | EndsText;
    }
    return meanings;
}();

bool Is(char c, unsigned meaning) {
    return (Meanings[static_cast<unsigned char>(c)] & meaning) != 0;
}

/// The bytes from here on are those of the name; in place, for a call would cost more than most
/// names.
bool AreSame(const char* bytes, std::string_view name) {
    std::size_t at = 0;
    for (std::uint64_t a = 0, b = 0; at + sizeof a <= name.size(); at += sizeof a) {
        std::memcpy(&a, bytes + at, sizeof a);
        std::memcpy(&b, name.data() + at, sizeof b);
        if (a != b) return false;
    }
    for (; at < name.size(); ++at)
        if (bytes[at] != name[at]) return false;
    return true;
}

int LinesIn(std::string_view text) {
    return static_cast<int>(std::ranges::count(text, '\n'));
}

bool IsAscii(std::string_view text) {
    // Without a way out of the loop, many characters are looked at together.
    unsigned char all = 0;
    for (const char c : text)
        all |= static_cast<unsigned char>(c);
    return all < 0x80;
}

} // namespace

void XmlReader::Read(std::string_view part) {
    text_ = part;
    at_ = 0;
    if (!IsAscii(text_) && !IsValidUtf8(text_)) Fail("no valid UTF-8");
    if (isAtStart_) Take("\xEF\xBB\xBF");
    while (!AtEnd())
        if (begin_.empty())
            ReadOutside();
        else
            ReadContent();
}

void XmlReader::Finish() {
    if (!begin_.empty()) Fail(std::string(NameInHand()) + " is not closed");
    if (!hasRoot_) Fail("no root element");
}

void XmlReader::Fail(const std::string& what) {
    throw XmlError("line " + std::to_string(line_) + ": " + what);
}

bool XmlReader::Take(std::string_view what) {
    // The first character decides for nearly all of the places that are looked at.
    if (AtEnd() || text_[at_] != what.front()) return false;
    if (text_.substr(at_, what.size()) != what) return false;
    at_ += what.size();
    return true;
}

bool XmlReader::TakeSign(char sign) {
    if (AtEnd() || text_[at_] != sign) return false;
    ++at_;
    return true;
}

bool XmlReader::SkipBlanks() {
    const std::size_t before = at_;
    for (; !AtEnd() && Is(text_[at_], IsSpace); ++at_)
        if (text_[at_] == '\n') ++line_;
    return at_ > before;
}

std::string_view XmlReader::Until(std::string_view end) {
    const std::size_t found = text_.find(end, at_);
    if (found == text_.npos) Fail("missing " + std::string(end));
    const std::string_view part = text_.substr(at_, found - at_);
    line_ += LinesIn(part);
    at_ = found + end.size();
    return part;
}

bool XmlReader::SkipAside() {
    if (Take("<!--")) {
        Until("--");
        if (!Take(">")) Fail("-- in a comment");
        return true;
    }
    if (!Take("<?")) return false;
    const std::string_view instruction = Until("?>");
    if (instruction.substr(0, 4) == "xml " && !isAtStart_) Fail("the declaration comes too late");
    return true;
}

/// One thing outside of the root element.
void XmlReader::ReadOutside() {
    if (!SkipBlanks() && !SkipAside()) {
        if (hasRoot_) Fail("text behind the root element");
        if (text_[at_] != '<') Fail("no root element");
        hasRoot_ = true;
        ReadOpening();
    }
    isAtStart_ = false;
}

std::string_view XmlReader::Name() {
    const std::size_t first = at_;
    while (!AtEnd() && Is(text_[at_], IsOfName))
        ++at_;
    const std::string_view name = text_.substr(first, at_ - first);
    if (name.empty() || name[0] == '-' || name[0] == '.' || (name[0] >= '0' && name[0] <= '9'))
        Fail("a name is missing");
    return name;
}

std::string XmlReader::Reference() {
    const std::string name(Until(";"));
    if (name == "lt") return "<";
    if (name == "gt") return ">";
    if (name == "amp") return "&";
    if (name == "quot") return "\"";
    if (name == "apos") return "'";
    if (!name.starts_with('#')) Fail("unknown reference &" + name + ";");
    return CharacterReference(name);
}

std::string XmlReader::CharacterReference(const std::string& name) {
    const bool hex = name.starts_with("#x");
    char32_t point = 0;
    const std::string digits = name.substr(hex ? 2 : 1);
    for (const char c : digits) {
        const auto digit = std::string_view("0123456789abcdef").find(LowerAscii({&c, 1}));
        if (digit == std::string::npos || (!hex && digit > 9) || point > 0x10FFFF)
            Fail("no character &" + name + ";");
        point = point * (hex ? 16 : 10) + static_cast<char32_t>(digit);
    }
    const bool isControl = point < U' ' && point != U'\t' && point != U'\n' && point != U'\r';
    if (digits.empty() || isControl || (point >= 0xD800 && point <= 0xDFFF))
        Fail("no character &" + name + ";");
    std::string text;
    AppendCodePoint(text, point);
    return text;
}

void XmlReader::ReadAttributes() {
    std::set<std::string_view> names;
    while (SkipBlanks() && !AtEnd() && Is(text_[at_], IsOfName)) {
        if (!names.insert(Name()).second) Fail("an attribute stands twice");
        SkipBlanks();
        if (!Take("=")) Fail("= is missing behind an attribute");
        SkipBlanks();
        const char quote = AtEnd() ? '\0' : text_[at_++];
        if (quote != '"' && quote != '\'') Fail("an attribute without quotes");
        while (!AtEnd() && text_[at_] != quote) {
            if (text_[at_] == '<') Fail("< in an attribute");
            if (text_[at_] == '\n') ++line_;
            if (text_[at_++] == '&') Reference();
        }
        if (AtEnd()) Fail("an attribute is not closed");
        ++at_;
    }
}

std::string_view XmlReader::NameInHand() const {
    return std::string_view(names_).substr(begin_.back());
}

void XmlReader::ReadOpening() {
    constexpr std::size_t deepest = 200;
    if (begin_.size() > deepest) Fail("nested too deep");
    const int line = line_;
    ++at_; // the sign of a tag
    const std::string_view name = Name();
    if (TakeSign('>')) {
        if (ReadLeaf(name, line)) return;
        handler_.Open(name, line);
    } else {
        ReadAttributes();
        handler_.Open(name, line);
        if (Take("/>")) return handler_.Close();
        if (!TakeSign('>')) Fail("> is missing behind " + std::string(name));
    }
    begin_.push_back(names_.size());
    names_ += name;
}

/// A text in one line and the closing tag of this name; false when something else follows.
bool XmlReader::ReadLeaf(std::string_view name, int line) {
    const std::size_t from = at_;
    std::size_t at = at_;
    while (at < text_.size() && !Is(text_[at], EndsText))
        ++at;
    const std::string_view rest = text_.substr(at);
    constexpr std::size_t signs = 3; // of a closing tag, beside its name
    if (at == from || rest.size() < name.size() + signs || rest[0] != '<' || rest[1] != '/' ||
        rest[name.size() + 2] != '>' || !AreSame(rest.data() + 2, name))
        return false;
    at_ = at + name.size() + signs;
    handler_.Leaf(name, line, text_.substr(from, at - from));
    return true;
}

void XmlReader::ReadClosing() {
    at_ += 2; // the sign of a closing tag
    const std::string_view name = NameInHand();
    const bool isAsOpened = text_.size() - at_ > name.size() && AreSame(text_.data() + at_, name) &&
                            text_[at_ + name.size()] == '>';
    if (isAsOpened) {
        at_ += name.size() + 1;
    } else {
        if (Name() != name) Fail(std::string(name) + " is closed by another name");
        SkipBlanks();
        if (!TakeSign('>')) Fail("> is missing behind " + std::string(name));
    }
    names_.resize(begin_.back());
    begin_.pop_back();
    handler_.Close();
}

/// One thing inside of an element.
void XmlReader::ReadContent() {
    if (text_[at_] != '<') return ReadCharacters();
    const char next = at_ + 1 < text_.size() ? text_[at_ + 1] : '\0';
    if (next == '/') return ReadClosing();
    if (next != '!' && next != '?') return ReadOpening();
    if (Take("<![CDATA["))
        handler_.Text(Until("]]>"));
    else if (!SkipAside())
        Fail("a name is missing");
}

/// In one walk over the characters, of which a document has many.
void XmlReader::ReadCharacters() {
    if (TakeSign('&')) return handler_.Text(Reference());
    const std::size_t from = at_;
    for (; !AtEnd(); ++at_) {
        const char c = text_[at_];
        if (!Is(c, EndsText)) continue;
        if (c == '<' || c == '&' || c == '\r') break;
        if (c == '\n') ++line_;
        if (Is(c, IsControl)) Fail("a control character");
        if (c == '>' && text_.substr(from, at_ - from).ends_with("]]")) Fail("]]> in a text");
    }
    handler_.Text(text_.substr(from, at_ - from));
    TakeSign('\r'); // a line end of two characters counts as one
}

void ReadXml(std::string_view document, XmlHandler& handler) {
    XmlReader reader(handler);
    reader.Read(document);
    reader.Finish();
}

} // namespace vexora
