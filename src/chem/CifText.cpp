#include "chem/CifText.h"

#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::size_t MostBytes = 8U << 20U;

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

struct Token {
    enum class Kind { End, Name, Value, Loop, Block, Fault };
    Kind kind = Kind::End;
    int line = 0;
    std::string text; // of a value, the name of an item or block, or what is wrong
    bool isBare = true;
};

class CifTokens {
public:
    explicit CifTokens(std::string_view text) : text_(text) {}

    Token Next() {
        PassBlanks();
        if (at_ >= text_.size()) return {Token::Kind::End, line_, {}};
        const char c = text_[at_];
        if (c == ';' && IsAtLineStart()) return TextField();
        if (c == '\'' || c == '"') return Quoted(c);
        return Word();
    }

private:
    bool IsAtLineStart() const { return at_ == 0 || text_[at_ - 1] == '\n'; }

    void PassBlanks() {
        for (; at_ < text_.size(); ++at_) {
            if (text_[at_] == '#')
                at_ = EndOfLine();
            else if (!IsBlank(text_[at_]))
                return;
            if (at_ < text_.size() && text_[at_] == '\n') ++line_;
        }
    }

    std::size_t EndOfLine() const {
        const std::size_t end = text_.find('\n', at_);
        return end == text_.npos ? text_.size() : end;
    }

    /// Up to a line that begins with a semicolon.
    Token TextField() {
        const std::size_t from = at_ + 1;
        const std::size_t end = text_.find("\n;", at_);
        if (end == text_.npos)
            return {Token::Kind::Fault, line_, "the text that begins here has no closing \";\""};
        Token token{Token::Kind::Value, line_, std::string(text_.substr(from, end - from)), false};
        for (const char c : text_.substr(at_, end + 1 - at_))
            line_ += c == '\n' ? 1 : 0;
        at_ = end + 2;
        return token;
    }

    /// A quotation mark closes only in front of a blank: 'a dog's life' is one text.
    Token Quoted(char mark) {
        const std::size_t lineEnd = EndOfLine();
        for (std::size_t end = at_ + 1; end < lineEnd; ++end) {
            if (text_[end] != mark || (end + 1 < text_.size() && !IsBlank(text_[end + 1])))
                continue;
            Token token{Token::Kind::Value, line_,
                        std::string(text_.substr(at_ + 1, end - at_ - 1)), false};
            at_ = end + 1;
            return token;
        }
        return {Token::Kind::Fault, line_, "a quotation mark is not closed"};
    }

    Token Word() {
        const std::size_t from = at_;
        while (at_ < text_.size() && !IsBlank(text_[at_]))
            ++at_;
        const std::string word(text_.substr(from, at_ - from));
        const std::string lower = LowerAscii(word);
        if (lower.starts_with('_')) return {Token::Kind::Name, line_, Replace(lower, ".", "_")};
        if (lower == "loop_") return {Token::Kind::Loop, line_, word};
        if (lower.starts_with("data_")) return {Token::Kind::Block, line_, word.substr(5)};
        if (lower.starts_with("save_") || lower == "global_" || lower == "stop_")
            return {Token::Kind::Fault, line_, "\"" + word + "\" has no place in a structure"};
        return {Token::Kind::Value, line_, word};
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;
};

/// Puts the tokens together; it stops at the first fault.
class CifParser {
public:
    explicit CifParser(std::string_view text) : tokens_(text) { Take(); }

    CifBlocks Read() {
        while (result_.fault.empty() && token_.kind != Token::Kind::End)
            ReadOne();
        if (result_.fault.empty() && result_.blocks.empty())
            result_.fault = "This is no CIF: it has no data block";
        return std::move(result_);
    }

private:
    void Take() { token_ = tokens_.Next(); }
    void Fail(int line, const std::string& what) {
        if (result_.fault.empty()) result_.fault = "Line " + std::to_string(line) + ": " + what;
    }

    void ReadOne() {
        using enum Token::Kind;
        if (token_.kind == Fault) return Fail(token_.line, token_.text);
        if (token_.kind == Block) {
            result_.blocks.push_back({token_.text, {}});
            return Take();
        }
        if (result_.blocks.empty())
            return Fail(token_.line, "this is no CIF: \"" + token_.text.substr(0, 40) +
                                         "\" stands in front of the first data block");
        if (token_.kind == Loop) return ReadLoop();
        if (token_.kind == Value)
            return Fail(token_.line,
                        "the value \"" + token_.text.substr(0, 40) + "\" belongs to no name");
        CifItem* item = AddName(0);
        if (!item) return;
        const std::string name = token_.text;
        Take();
        if (token_.kind == Fault) return Fail(token_.line, token_.text);
        if (token_.kind != Value) return Fail(item->line, name + " has no value");
        TakeValue(*item);
    }

    CifItem* AddName(std::size_t loop) {
        const auto [entry, isNew] = result_.blocks.back().items.try_emplace(token_.text);
        if (!isNew) {
            Fail(token_.line, token_.text + " stands twice, first in line " +
                                  std::to_string(entry->second.line));
            return nullptr;
        }
        entry->second.line = token_.line;
        entry->second.loop = loop;
        return &entry->second;
    }

    void TakeValue(CifItem& item) {
        item.values.push_back({std::move(token_.text), token_.isBare, token_.line});
        Take();
    }

    void ReadLoop() {
        const int line = token_.line;
        const std::size_t number = ++loops_;
        std::vector<CifItem*> columns;
        for (Take(); token_.kind == Token::Kind::Name; Take()) {
            columns.push_back(AddName(number));
            if (!columns.back()) return;
        }
        std::size_t count = 0;
        for (; token_.kind == Token::Kind::Value && !columns.empty(); ++count)
            TakeValue(*columns[count % columns.size()]);
        if (token_.kind == Token::Kind::Fault) return Fail(token_.line, token_.text);
        if (columns.empty()) return Fail(line, "the loop has no names");
        if (count == 0) return Fail(line, "the loop has no values");
        if (count % columns.size() != 0)
            Fail(line, "the loop has " + std::to_string(columns.size()) + " names and " +
                           std::to_string(count) + " values, so that a row is not complete");
    }

    CifTokens tokens_;
    Token token_;
    std::size_t loops_ = 0;
    CifBlocks result_;
};

} // namespace

CifBlocks ReadCifBlocks(std::string_view text) {
    if (text.size() > MostBytes) return {{}, "This file is too large for a CIF of a structure"};
    if (text.find('\0') != text.npos) return {{}, "This is no CIF: it is no text"};
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    // Line ends of old systems, of which a CIF may come from any.
    const std::string lines = Replace(Replace(ToUtf8(text), "\r\n", "\n"), "\r", "\n");
    return CifParser(lines).Read();
}

} // namespace vexora
