#include "host/ScriptParser.h"

#include <filesystem>

#include "host/PosixFileSystem.h"
#include "host/ScriptGrammar.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora::host {

namespace {

constexpr int DeepestInclude = 20;
// Two scripts that include each other twice would otherwise go on for a million files.
constexpr int MostIncludes = 1000;
constexpr std::string_view Blanks = " \t\r";

std::string FolderOf(const std::string& file) {
    const std::string folder = std::filesystem::path(file).parent_path().string();
    return folder.empty() ? "." : folder;
}

/// Reads the words of one line.
class LineScanner {
public:
    LineScanner(std::string_view text, const ScriptVariables& variables)
        : text_(text), variables_(variables) {}

    std::vector<ScriptWord> Words() {
        while (SkipBlanks())
            words_.push_back(text_[at_] == '"' ? QuotedWord() : PlainWord());
        return std::move(words_);
    }

private:
    bool SkipBlanks() {
        at_ = std::min(text_.find_first_not_of(Blanks, at_), text_.size());
        return at_ < text_.size() && (text_[at_] != '#' || IsPosition());
    }

    // "#3" is a list position where a command takes an entry, anywhere else a comment.
    bool IsPosition() const {
        const std::size_t end = std::min(text_.find_first_of(Blanks, at_), text_.size());
        const std::string_view digits = text_.substr(at_ + 1, end - at_ - 1);
        return !digits.empty() && digits.find_first_not_of("0123456789") == digits.npos &&
               TakesEntryNext(words_);
    }

    ScriptWord QuotedWord() {
        ScriptWord word{{}, true};
        ++at_;
        while (at_ < text_.size() && text_[at_] != '"') {
            if (text_[at_] == '\\')
                word.text += Escaped();
            else if (!TakeVariable(word.text))
                word.text += text_[at_++];
        }
        if (at_ == text_.size()) throw std::runtime_error("the quotes are not closed");
        ++at_;
        if (at_ < text_.size() && Blanks.find(text_[at_]) == Blanks.npos) {
            throw std::runtime_error("a blank is missing behind the quotes");
        }
        return word;
    }

    char Escaped() {
        const char c = at_ + 1 < text_.size() ? text_[at_ + 1] : '\0';
        at_ += 2;
        switch (c) {
        case '"':
        case '\\':
            return c;
        case 'n':
            return '\n';
        case 't':
            return '\t';
        default:
            throw std::runtime_error("\\ stands before \", \\, n or t only");
        }
    }

    ScriptWord PlainWord() {
        ScriptWord word;
        while (at_ < text_.size() && Blanks.find(text_[at_]) == Blanks.npos) {
            if (text_[at_] == '"') throw std::runtime_error("quotes in the middle of a word");
            if (!TakeVariable(word.text)) word.text += text_[at_++];
        }
        return word;
    }

    bool TakeVariable(std::string& into) {
        if (text_.substr(at_, 2) != "${") return false;
        const std::size_t end = text_.find('}', at_);
        if (end == text_.npos) throw std::runtime_error("${ is not closed");
        const std::string name(text_.substr(at_ + 2, end - at_ - 2));
        const auto found = variables_.find(name);
        if (found == variables_.end()) throw std::runtime_error("unknown variable " + name);
        into += found->second;
        at_ = end + 1;
        return true;
    }

    std::string_view text_;
    const ScriptVariables& variables_;
    std::vector<ScriptWord> words_;
    std::size_t at_ = 0;
};

/// Reads one file and the files that it includes.
class FileParser {
public:
    FileParser(Script& script, std::string file, ScriptVariables variables, int depth,
               int& includes)
        : script_(script), file_(std::move(file)), variables_(std::move(variables)), depth_(depth),
          includes_(includes) {
        variables_["SCRIPT_DIR"] = FolderOf(file_);
    }

    void Parse(std::string_view text) {
        if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
        lines_ = LinesOf(text);
        for (at_ = 0; at_ < lines_.size(); ++at_) {
            const std::size_t first = at_;
            try {
                ParseLine();
            } catch (const ScriptError&) {
                throw;
            } catch (const std::runtime_error& error) {
                throw ScriptError(file_ + ":" + std::to_string(first + 1) +
                                  ": error: " + error.what());
            }
        }
    }

private:
    void ParseLine() {
        ScriptLine line;
        line.file = file_;
        line.number = static_cast<int>(at_ + 1);
        line.words = LineScanner(lines_[at_], variables_).Words();
        if (line.words.empty()) return;
        line.source.emplace_back(Trim(lines_[at_]));
        const ScriptWord& last = line.words.back();
        if (!last.quoted && last.text.starts_with("<<")) TakeBlock(line);
        if (const std::string wrong = WhatIsWrong(line); !wrong.empty()) {
            throw std::runtime_error(wrong);
        }
        script_.push_back(line);
        if (line.Is(0, "include")) Include(line.Text(1));
    }

    void TakeBlock(ScriptLine& line) {
        const std::string end = line.words.back().text.substr(2);
        if (end.empty()) throw std::runtime_error("<< needs the word that ends the block");
        line.words.pop_back();
        line.block.emplace();
        for (++at_; at_ < lines_.size(); ++at_) {
            line.source.push_back(lines_[at_]);
            if (lines_[at_] == end) return;
            line.block->push_back(Replaced(lines_[at_]));
        }
        throw std::runtime_error("the block is not ended by " + end);
    }

    std::string Replaced(std::string text) const {
        for (const auto& [name, value] : variables_)
            text = Replace(text, "${" + name + "}", value);
        return text;
    }

    void Include(const std::string& path) {
        if (depth_ >= DeepestInclude) throw std::runtime_error("includes too deep: " + path);
        if (++includes_ > MostIncludes) throw std::runtime_error("too many includes: " + path);
        const auto full = std::filesystem::path(FolderOf(file_)) / path;
        std::string error;
        const auto text = PosixFileSystem().Read(full.string(), error);
        if (!text) throw std::runtime_error("cannot read " + full.string() + ": " + error);
        FileParser(script_, full.string(), variables_, depth_ + 1, includes_).Parse(*text);
    }

    Script& script_;
    std::string file_;
    ScriptVariables variables_;
    int depth_;
    int& includes_; // so far, of all files together
    std::vector<std::string> lines_;
    std::size_t at_ = 0;
};

} // namespace

int ScriptLine::Int(std::size_t word) const {
    return static_cast<int>(ParseInteger(Text(word)).value_or(0));
}

std::string ScriptLine::BlockText() const {
    std::string text;
    if (!block) return text;
    for (std::size_t i = 0; i < block->size(); ++i) {
        if (i > 0) text += '\n';
        text += (*block)[i];
    }
    return text;
}

Script ReadScript(const std::string& path, const ScriptVariables& variables) {
    std::string error;
    const auto text = PosixFileSystem().Read(path, error);
    if (!text) throw ScriptError(path + ": cannot be read: " + error);
    return ParseScript(*text, path, variables);
}

Script ParseScript(std::string_view text, const std::string& name,
                   const ScriptVariables& variables) {
    Script script;
    int includes = 0;
    FileParser(script, name, variables, 0, includes).Parse(text);
    return script;
}

std::optional<std::string> FileText(const std::string& path) {
    std::string error;
    return PosixFileSystem().Read(path, error);
}

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string line(text.substr(0, end));
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(std::move(line));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        if (c == '\n')
            quoted += "\\n";
        else if (c == '\t')
            quoted += "\\t";
        else if (c != '\r')
            quoted += c;
    }
    return quoted + '"';
}

} // namespace vexora::host
