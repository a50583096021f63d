#include "plot/RtfText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include "reference/Text.h"

namespace vexora {

namespace {

constexpr int LargeHalfPoints = 28;                          // letters of headings
constexpr std::string_view TabWidth = "\u00a0\u00a0\u00a0 "; // a page knows no tabs

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Reads the marks of a rich text file one by one.
class RtfReader {
public:
    explicit RtfReader(std::string_view rtf) : rest_(rtf) {}

    std::string Read() {
        while (!rest_.empty())
            Step();
        Wear({});
        return out_;
    }

private:
    struct Look {
        bool bold = false;
        bool italic = false;
        bool underlined = false;
        bool raised = false;
        bool lowered = false;
        bool large = false;
        bool operator==(const Look&) const = default;
    };
    struct Group {
        bool skipped = false; // a destination that is no text of the page
        int fallbacks = 1;    // characters behind a \u that stand for it elsewhere
        Look look = {};
    };
    struct Mark {
        bool Look::*flag;
        std::string_view open, close;
    };
    static constexpr Mark Marks[] = {{&Look::large, "<span style=\"font-size:large\">", "</span>"},
                                     {&Look::bold, "<b>", "</b>"},
                                     {&Look::italic, "<i>", "</i>"},
                                     {&Look::underlined, "<u>", "</u>"},
                                     {&Look::raised, "<sup>", "</sup>"},
                                     {&Look::lowered, "<sub>", "</sub>"}};

    void Step() {
        const char c = Take();
        if (c == '{') {
            groups_.push_back(groups_.back());
        } else if (c == '}') {
            if (groups_.size() > 1) groups_.pop_back();
        } else if (c == '\\') {
            Control();
        } else if (c != '\r' && c != '\n') {
            Put(std::string(1, c));
        }
    }

    char Take() {
        const char c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }

    void Put(std::string_view text) {
        if (groups_.back().skipped) return;
        if (passOver_ > 0)
            --passOver_;
        else
            Write(text);
    }

    void Write(std::string_view text) {
        Wear(groups_.back().look);
        out_ += text == "\t" ? std::string(TabWidth) : HtmlOfText(text);
    }

    /// Closes the marks in force and opens those of another look.
    void Wear(const Look& look) {
        if (look == worn_) return;
        for (std::size_t i = std::size(Marks); i-- > 0;)
            if (worn_.*Marks[i].flag) out_ += Marks[i].close;
        for (const Mark& mark : Marks)
            if (look.*mark.flag) out_ += mark.open;
        worn_ = look;
    }

    void Control() {
        if (rest_.empty()) return;
        if (IsLetter(rest_.front())) return Word();
        const char c = Take();
        if (c == '\'')
            HexCharacter();
        else if (c == '*')
            groups_.back().skipped = true;
        else if (c == '~')
            Put(" ");
        else if (c == '\n' || c == '\r')
            Put("\n");
        else if (c != '-' && c != '_')
            Put(std::string(1, c));
        else if (c == '_')
            Put("-");
    }

    void HexCharacter() {
        const std::string_view digits = rest_.substr(0, 2);
        unsigned value = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        rest_.remove_prefix(digits.size());
        const char byte = static_cast<char>(value);
        Put(FromWindows1252(std::string_view(&byte, 1)));
    }

    void Word() {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsLetter);
        const std::string word(rest_.begin(), end);
        rest_.remove_prefix(word.size());
        std::optional<int> number;
        int value = 0;
        const auto parsed = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        if (parsed.ec == std::errc()) number = value;
        rest_.remove_prefix(static_cast<std::size_t>(parsed.ptr - rest_.data()));
        if (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
        if (!Dress(word, number)) Act(word, number.value_or(0));
    }

    /// A word that changes the look of what follows; without a number it switches that on.
    bool Dress(std::string_view word, std::optional<int> number) {
        static constexpr std::pair<std::string_view, bool Look::*> switches[] = {
            {"b", &Look::bold},
            {"i", &Look::italic},
            {"ul", &Look::underlined},
            {"super", &Look::raised},
            {"sub", &Look::lowered}};
        Look& look = groups_.back().look;
        for (const auto& [name, flag] : switches) {
            if (word != name) continue;
            look.*flag = number != 0;
            return true;
        }
        if (word == "fs")
            look.large = number.value_or(0) >= LargeHalfPoints;
        else if (word == "ulnone")
            look.underlined = false;
        else if (word == "nosupersub")
            look.raised = look.lowered = false;
        else if (word == "plain")
            look = {};
        else
            return false;
        return true;
    }

    void Act(const std::string& word, int number) {
        static constexpr std::array noText = {"fonttbl", "colortbl", "stylesheet",
                                              "info",    "pict",     "header",
                                              "footer",  "object",   "listtable"};
        if (word == "par" || word == "line" || word == "row") return Put("\n");
        if (word == "tab" || word == "cell") return Put("\t");
        if (word == "emdash" || word == "endash") return Put("-");
        if (word == "lquote" || word == "rquote") return Put("'");
        if (word == "ldblquote" || word == "rdblquote") return Put("\"");
        if (word == "uc") groups_.back().fallbacks = number;
        if (word == "u") return Unicode(number);
        if (std::find(noText.begin(), noText.end(), word) != noText.end())
            groups_.back().skipped = true;
    }

    void Unicode(int number) {
        std::string letter;
        AppendCodePoint(letter, static_cast<char32_t>(number < 0 ? number + 65536 : number));
        Put(letter);
        if (!groups_.back().skipped) passOver_ = groups_.back().fallbacks;
    }

    std::string_view rest_;
    std::string out_;
    std::vector<Group> groups_{Group{}};
    int passOver_ = 0;
    Look worn_; // the marks that are open
};

} // namespace

std::string HtmlOfRtf(std::string_view rtf) {
    if (!rtf.starts_with("{\\rtf")) return HtmlOfText(rtf);
    return RtfReader(rtf).Read();
}

} // namespace vexora
