#pragma once

#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vexora::host {

/// One word of a script line; a quoted one may hold blanks and is never a keyword.
struct ScriptWord {
    std::string text;
    bool quoted = false;
    bool Is(std::string_view keyword) const { return !quoted && text == keyword; }
};

/// One command of a script with where it stands, for messages and the transcript.
struct ScriptLine {
    std::string file;
    int number = 0;                  // of the line in its file, from 1
    std::vector<std::string> source; // as written, variables not replaced, the block included
    std::vector<ScriptWord> words;
    std::optional<std::vector<std::string>> block;

    const std::string& Text(std::size_t word) const { return words.at(word).text; }
    bool Has(std::size_t word) const { return word < words.size(); }
    bool Is(std::size_t word, std::string_view keyword) const {
        return Has(word) && words[word].Is(keyword);
    }
    /// A word that the grammar has found to be a number from 0.
    int Int(std::size_t word) const;
    /// The block as one text, lines parted by line feeds.
    std::string BlockText() const;
};

using Script = std::vector<ScriptLine>;
using ScriptVariables = std::map<std::string, std::string>;

/// A script that cannot be understood; the text begins with "file:line: ".
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads a script file with everything that it includes (paths are taken from the folder of the
/// including file) and checks each line against the grammar. ${NAME} is replaced in words, and in
/// blocks where the name is known. Throws ScriptError.
Script ReadScript(const std::string& path, const ScriptVariables& variables);

/// The same for a text; name stands for the file in messages and gives the folder of the script.
Script ParseScript(std::string_view text, const std::string& name,
                   const ScriptVariables& variables);

/// The whole content of a file, nothing when it cannot be read.
std::optional<std::string> FileText(const std::string& path);
/// The lines of a text, without their ends.
std::vector<std::string> LinesOf(std::string_view text);

/// A text as a script writes it: in quotes, with \" \\ \n and \t.
std::string Quoted(std::string_view text);

} // namespace vexora::host
