#include "reference/XmlReader.h"

#include "reference/Text.h"

#include <algorithm>
#include <set>

namespace vexora {

namespace {

bool IsNameCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           (c >= '0' && c <= '9') || c == '_' || c == ':' || c == '-' || c == '.';
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

class XmlReader {
public:
    XmlReader(std::string_view text, XmlHandler& handler) : text_(text), handler_(handler) {}

    void Document() {
        if (!IsValidUtf8(text_)) Fail("no valid UTF-8");
        Take("\xEF\xBB\xBF");
        start_ = at_;
        SkipOutside();
        if (AtEnd() || text_[at_] != '<') Fail("no root element");
        ReadElement(0);
        SkipOutside();
        if (!AtEnd()) Fail("text behind the root element");
    }

private:
    [[noreturn]] void Fail(const std::string& what) {
        throw XmlError("line " + std::to_string(LineInHand()) + ": " + what);
    }

    /// Counts on from the last place asked for: a document has many elements.
    int LineInHand() {
        const std::size_t end = std::min(at_, text_.size());
        line_ += static_cast<int>(std::ranges::count(text_.substr(counted_, end - counted_), '\n'));
        counted_ = end;
        return line_;
    }

    bool AtEnd() const { return at_ >= text_.size(); }

    bool Take(std::string_view what) {
        // The first character decides for nearly all of the places that are looked at.
        if (AtEnd() || text_[at_] != what.front()) return false;
        if (text_.substr(at_, what.size()) != what) return false;
        at_ += what.size();
        return true;
    }

    bool SkipBlanks() {
        const std::size_t before = at_;
        while (!AtEnd() && IsBlank(text_[at_]))
            ++at_;
        return at_ > before;
    }

    std::string_view Until(std::string_view end) {
        const std::size_t found = text_.find(end, at_);
        if (found == text_.npos) Fail("missing " + std::string(end));
        const std::string_view part = text_.substr(at_, found - at_);
        at_ = found + end.size();
        return part;
    }

    bool SkipAside() {
        if (Take("<!--")) {
            Until("--");
            if (!Take(">")) Fail("-- in a comment");
            return true;
        }
        const bool atStart = at_ == start_;
        if (!Take("<?")) return false;
        const std::string_view instruction = Until("?>");
        if (instruction.substr(0, 4) == "xml " && !atStart) Fail("the declaration comes too late");
        return true;
    }

    void SkipOutside() {
        while (SkipBlanks() || SkipAside()) {
        }
    }

    std::string_view Name() {
        const std::size_t first = at_;
        while (!AtEnd() && IsNameCharacter(text_[at_]))
            ++at_;
        const std::string_view name = text_.substr(first, at_ - first);
        if (name.empty() || name[0] == '-' || name[0] == '.' || (name[0] >= '0' && name[0] <= '9'))
            Fail("a name is missing");
        return name;
    }

    std::string Reference() {
        const std::string name(Until(";"));
        if (name == "lt") return "<";
        if (name == "gt") return ">";
        if (name == "amp") return "&";
        if (name == "quot") return "\"";
        if (name == "apos") return "'";
        if (!name.starts_with('#')) Fail("unknown reference &" + name + ";");
        return CharacterReference(name);
    }

    std::string CharacterReference(const std::string& name) {
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

    void ReadAttributes() {
        std::set<std::string_view> names;
        while (SkipBlanks() && !AtEnd() && IsNameCharacter(text_[at_])) {
            if (!names.insert(Name()).second) Fail("an attribute stands twice");
            SkipBlanks();
            if (!Take("=")) Fail("= is missing behind an attribute");
            SkipBlanks();
            const char quote = AtEnd() ? '\0' : text_[at_++];
            if (quote != '"' && quote != '\'') Fail("an attribute without quotes");
            while (!AtEnd() && text_[at_] != quote) {
                if (text_[at_] == '<') Fail("< in an attribute");
                if (text_[at_++] == '&') Reference();
            }
            if (AtEnd()) Fail("an attribute is not closed");
            ++at_;
        }
    }

    void ReadElement(int depth) {
        constexpr int deepest = 200;
        if (depth > deepest) Fail("nested too deep");
        const int line = LineInHand();
        if (!Take("<")) Fail("< is missing");
        const std::string_view name = Name();
        ReadAttributes();
        handler_.Open(name, line);
        if (!Take("/>")) {
            if (!Take(">")) Fail("> is missing behind " + std::string(name));
            while (!Take("</"))
                ReadContent(name, depth);
            if (Name() != name) Fail(std::string(name) + " is closed by another name");
            SkipBlanks();
            if (!Take(">")) Fail("> is missing behind " + std::string(name));
        }
        handler_.Close();
    }

    void ReadContent(std::string_view name, int depth) {
        if (AtEnd()) Fail(std::string(name) + " is not closed");
        if (SkipAside()) return;
        if (text_[at_] != '<')
            ReadText();
        else if (Take("<![CDATA["))
            handler_.Text(Until("]]>"));
        else
            ReadElement(depth + 1);
    }

    void ReadText() {
        if (Take("&"))
            handler_.Text(Reference());
        else
            ReadCharacters();
    }

    /// In one walk over the characters, of which a document has many.
    void ReadCharacters() {
        const std::size_t from = at_;
        for (; !AtEnd(); ++at_) {
            const char c = text_[at_];
            if (c == '<' || c == '&' || c == '\r') break;
            if (static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n')
                Fail("a control character");
            if (c == '>' && text_.substr(from, at_ - from).ends_with("]]")) Fail("]]> in a text");
        }
        handler_.Text(text_.substr(from, at_ - from));
        Take("\r"); // a line end of two characters counts as one
    }

    std::string_view text_;
    XmlHandler& handler_;
    std::size_t start_ = 0; // behind the byte-order mark
    std::size_t at_ = 0;
    std::size_t counted_ = 0; // up to here the lines are counted
    int line_ = 1;
};

} // namespace

void ReadXml(std::string_view document, XmlHandler& handler) {
    XmlReader(document, handler).Document();
}

} // namespace vexora
