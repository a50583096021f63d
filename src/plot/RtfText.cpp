#include "plot/RtfText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "reference/Text.h"

namespace vexora {

namespace {

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
        return out_;
    }

private:
    struct Group {
        bool skipped = false; // a destination that is no text of the page
        int fallbacks = 1;    // characters behind a \u that stand for it elsewhere
    };

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
            out_ += text;
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
        int number = 0;
        const auto parsed = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
        rest_.remove_prefix(static_cast<std::size_t>(parsed.ptr - rest_.data()));
        if (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
        Act(word, number);
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
};

} // namespace

std::string TextOfRtf(std::string_view rtf) {
    if (!rtf.starts_with("{\\rtf")) return std::string(rtf);
    return RtfReader(rtf).Read();
}

} // namespace vexora
