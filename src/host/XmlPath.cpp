#include "host/XmlPath.h"

#include <algorithm>
#include <memory>
#include <set>

#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora::host {

namespace {

struct Element {
    std::string name;
    std::string text; // all character data below
    std::vector<std::unique_ptr<Element>> children;
};

bool IsNameCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           (c >= '0' && c <= '9') || c == '_' || c == ':' || c == '-' || c == '.';
}

/// Reads a document of elements, attributes, character data, comments, CDATA and instructions. A
/// document type is refused: nothing written here has one.
class XmlReader {
public:
    explicit XmlReader(std::string_view text) : text_(text) {}

    std::unique_ptr<Element> Document() {
        if (!IsValidUtf8(text_)) Fail("no valid UTF-8");
        Take("\xEF\xBB\xBF");
        start_ = at_;
        SkipOutside();
        if (AtEnd() || text_[at_] != '<') Fail("no root element");
        auto root = ReadElement(0);
        SkipOutside();
        if (!AtEnd()) Fail("text behind the root element");
        return root;
    }

private:
    [[noreturn]] void Fail(const std::string& what) const {
        const auto line = std::ranges::count(text_.substr(0, at_), '\n');
        throw XmlError("line " + std::to_string(line + 1) + ": " + what);
    }

    bool AtEnd() const { return at_ >= text_.size(); }

    bool Take(std::string_view what) {
        if (text_.substr(std::min(at_, text_.size()), what.size()) != what) return false;
        at_ += what.size();
        return true;
    }

    bool SkipBlanks() {
        const std::size_t before = at_;
        at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size());
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

    std::string Name() {
        const std::size_t first = at_;
        while (!AtEnd() && IsNameCharacter(text_[at_]))
            ++at_;
        std::string name(text_.substr(first, at_ - first));
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
        std::set<std::string> names;
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

    std::unique_ptr<Element> ReadElement(int depth) {
        if (depth > 200) Fail("nested too deep");
        auto element = std::make_unique<Element>();
        if (!Take("<")) Fail("< is missing");
        element->name = Name();
        ReadAttributes();
        if (Take("/>")) return element;
        if (!Take(">")) Fail("> is missing behind " + element->name);
        while (!Take("</"))
            ReadContent(*element, depth);
        if (Name() != element->name) Fail(element->name + " is closed by another name");
        SkipBlanks();
        if (!Take(">")) Fail("> is missing behind " + element->name);
        return element;
    }

    void ReadContent(Element& element, int depth) {
        if (AtEnd()) Fail(element.name + " is not closed");
        if (SkipAside()) return;
        if (Take("<![CDATA[")) {
            element.text += Until("]]>");
        } else if (text_[at_] == '<') {
            element.children.push_back(ReadElement(depth + 1));
            element.text += element.children.back()->text;
        } else {
            const char c = text_[at_++];
            if (static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r')
                Fail("a control character");
            if (c == '>' && at_ >= 3 && text_.substr(at_ - 3, 3) == "]]>") Fail("]]> in a text");
            if (c == '&')
                element.text += Reference();
            else if (c != '\r')
                element.text += c;
        }
    }

    std::string_view text_;
    std::size_t start_ = 0; // behind the byte-order mark
    std::size_t at_ = 0;
};

/// One step of a path.
struct Step {
    bool anyDepth = false;
    std::string name;
    std::int64_t position = 0;                                 // 0 for all
    std::vector<std::pair<std::string, std::string>> children; // name and text asked for
};

/// Takes a path apart.
class PathReader {
public:
    explicit PathReader(std::string_view path) : path_(path) {}

    std::vector<Step> Steps() {
        std::vector<Step> steps;
        do
            steps.push_back(ReadStep());
        while (at_ < path_.size());
        return steps;
    }

private:
    [[noreturn]] void Fail() const { throw XmlError("no path: " + std::string(path_)); }

    bool Take(std::string_view what) {
        if (!path_.substr(at_).starts_with(what)) return false;
        at_ += what.size();
        return true;
    }

    Step ReadStep() {
        Step step;
        step.anyDepth = Take("//");
        if (!step.anyDepth) Take("/");
        const std::size_t end = std::min(path_.find_first_of("[/", at_), path_.size());
        step.name = path_.substr(at_, end - at_);
        if (step.name.empty()) Fail();
        at_ = end;
        while (Take("["))
            ReadCondition(step);
        if (at_ < path_.size() && path_[at_] != '/') Fail();
        return step;
    }

    void ReadCondition(Step& step) {
        bool inText = false;
        std::size_t end = at_;
        while (end < path_.size() && (inText || path_[end] != ']'))
            if (path_[end++] == '\'') inText = !inText;
        if (end == path_.size()) Fail();
        const std::string_view condition = path_.substr(at_, end - at_);
        at_ = end + 1;
        if (const auto number = ParseInteger(condition)) {
            if (*number < 1) Fail();
            step.position = *number;
            return;
        }
        const std::size_t sign = condition.find("='");
        if (sign == condition.npos || sign == 0 || sign + 3 > condition.size() ||
            !condition.ends_with('\''))
            Fail();
        step.children.emplace_back(condition.substr(0, sign),
                                   condition.substr(sign + 2, condition.size() - sign - 3));
    }

    std::string_view path_;
    std::size_t at_ = 0;
};

bool HasChild(const Element& element, const std::string& name, const std::string& text) {
    return std::ranges::any_of(element.children, [&](const auto& child) {
        return child->name == name && Trim(child->text) == text;
    });
}

using Found = std::vector<const Element*>;

void TakeStep(const Element& parent, const Step& step, Found& found) {
    std::int64_t position = 0;
    for (const auto& child : parent.children) {
        const bool named = step.name == "*" || child->name == step.name;
        const bool fits = named && std::ranges::all_of(step.children, [&](const auto& wanted) {
                              return HasChild(*child, wanted.first, wanted.second);
                          });
        const bool isMeant = fits && (++position == step.position || step.position == 0);
        if (isMeant && std::ranges::find(found, child.get()) == found.end())
            found.push_back(child.get());
        if (step.anyDepth) TakeStep(*child, step, found);
    }
}

} // namespace

std::vector<std::string> XmlTexts(std::string_view document, std::string_view path) {
    Element above;
    above.children.push_back(XmlReader(document).Document());
    Found found{&above};
    for (const Step& step : PathReader(path).Steps()) {
        Found next;
        for (const Element* element : found)
            TakeStep(*element, step, next);
        found = std::move(next);
    }
    std::vector<std::string> texts;
    for (const Element* element : found)
        texts.emplace_back(Trim(element->text));
    return texts;
}

} // namespace vexora::host
