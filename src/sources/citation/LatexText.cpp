#include "sources/citation/LatexText.h"

#include <algorithm>
#include <utility>

#include "reference/Text.h"
#include "sources/citation/CleanText.h"

namespace vexora {

namespace {

using Named = std::pair<std::string_view, std::string_view>;

struct Accent {
    std::string_view command;
    char32_t mark; // combining
};
constexpr Accent Accents[] = {{"`", 0x300}, {"'", 0x301}, {"^", 0x302},  {"~", 0x303}, {"=", 0x304},
                              {"u", 0x306}, {".", 0x307}, {"\"", 0x308}, {"r", 0x30A}, {"H", 0x30B},
                              {"v", 0x30C}, {"d", 0x323}, {"c", 0x327},  {"k", 0x328}};

constexpr Named Signs[] = {{"ss", "ß"},
                           {"o", "ø"},
                           {"O", "Ø"},
                           {"l", "ł"},
                           {"L", "Ł"},
                           {"ae", "æ"},
                           {"AE", "Æ"},
                           {"oe", "œ"},
                           {"OE", "Œ"},
                           {"aa", "å"},
                           {"AA", "Å"},
                           {"i", "ı"},
                           {"j", "ȷ"},
                           {"dh", "ð"},
                           {"DH", "Ð"},
                           {"th", "þ"},
                           {"TH", "Þ"},
                           {"dj", "đ"},
                           {"DJ", "Đ"},
                           {"textendash", "-"},
                           {"textemdash", "-"},
                           {"textdegree", "°"},
                           {"degree", "°"},
                           {"circ", "°"},
                           {"pm", "±"},
                           {"times", "×"},
                           {"cdot", "·"},
                           {"le", "<="},
                           {"leq", "<="},
                           {"ge", ">="},
                           {"geq", ">="},
                           {"approx", "~"},
                           {"sim", "~"},
                           {"infty", "∞"},
                           {"rightarrow", "->"},
                           {"to", "->"},
                           {"alpha", "α"},
                           {"beta", "β"},
                           {"gamma", "γ"},
                           {"delta", "δ"},
                           {"epsilon", "ε"},
                           {"varepsilon", "ε"},
                           {"zeta", "ζ"},
                           {"eta", "η"},
                           {"theta", "θ"},
                           {"kappa", "κ"},
                           {"lambda", "λ"},
                           {"mu", "μ"},
                           {"nu", "ν"},
                           {"xi", "ξ"},
                           {"pi", "π"},
                           {"rho", "ρ"},
                           {"sigma", "σ"},
                           {"tau", "τ"},
                           {"phi", "φ"},
                           {"varphi", "φ"},
                           {"chi", "χ"},
                           {"psi", "ψ"},
                           {"omega", "ω"},
                           {"Gamma", "Γ"},
                           {"Delta", "Δ"},
                           {"Theta", "Θ"},
                           {"Lambda", "Λ"},
                           {"Sigma", "Σ"},
                           {"Phi", "Φ"},
                           {"Psi", "Ψ"},
                           {"Omega", "Ω"},
                           {"ldots", "..."},
                           {"dots", "..."},
                           {"textmu", "μ"},
                           {"textregistered", "®"},
                           {"copyright", "©"}};

/// Commands that only say how their text looks.
constexpr std::string_view Styles[] = {"emph",
                                       "textit",
                                       "textbf",
                                       "textrm",
                                       "textsc",
                                       "texttt",
                                       "textsf",
                                       "text",
                                       "mathrm",
                                       "mathit",
                                       "mathbf",
                                       "textsubscript",
                                       "textsuperscript",
                                       "ensuremath",
                                       "it",
                                       "bf",
                                       "rm",
                                       "sc",
                                       "em",
                                       "mbox",
                                       "hbox",
                                       "ce",
                                       "url",
                                       "uppercase",
                                       "noopsort",
                                       "relax",
                                       "protect",
                                       "textnormal",
                                       "textup",
                                       "mathsf",
                                       "rmfamily"};

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

const Named* FindSign(std::string_view command) {
    const auto* found = std::ranges::find(Signs, command, &Named::first);
    return found == std::end(Signs) ? nullptr : found;
}

class LatexReader {
public:
    LatexReader(std::string_view source, std::vector<std::string>& unknown)
        : source_(source), unknown_(unknown) {}

    std::string Read() {
        std::string text;
        while (at_ < source_.size())
            text += Next();
        return text;
    }

private:
    std::string Next() {
        const char c = source_[at_];
        if (c == '\\') return Command();
        for (const auto& [signs, text] :
             {Named{"---", "-"}, {"--", "-"}, {"``", "\""}, {"''", "\""}, {"~", " "}}) {
            if (!source_.substr(at_).starts_with(signs)) continue;
            at_ += signs.size();
            return std::string(text);
        }
        if (c == '$') inMath_ = !inMath_;
        const bool isMark = c == '{' || c == '}' || c == '$' || (inMath_ && (c == '_' || c == '^'));
        if (isMark) {
            ++at_;
            return {};
        }
        return Character();
    }

    std::string Character() {
        const std::size_t start = at_;
        NextCodePoint(source_, at_);
        return std::string(source_.substr(start, at_ - start));
    }

    std::string Command() {
        ++at_;
        const std::string name = CommandName();
        for (const Accent& accent : Accents)
            if (accent.command == name) return Accented(accent.mark);
        if (const Named* sign = FindSign(name)) return std::string(sign->second);
        if (name.empty() || std::ranges::find(Styles, name) != std::end(Styles)) return {};
        if (IsLetter(name[0])) {
            unknown_.push_back("\\" + name);
            return {};
        }
        if (IsOneOf(name, {"-", "/", "(", ")", "[", "]", "!"})) return {};
        return IsOneOf(name, {",", ";", ":", "\\"}) ? " " : name;
    }

    /// The blanks behind a name of letters belong to it.
    std::string CommandName() {
        if (at_ >= source_.size()) return {};
        if (!IsLetter(source_[at_])) return Character();
        const std::size_t start = at_;
        while (at_ < source_.size() && IsLetter(source_[at_]))
            ++at_;
        std::string name(source_.substr(start, at_ - start));
        SkipBlanks();
        return name;
    }

    void SkipBlanks() {
        while (at_ < source_.size() && source_[at_] == ' ')
            ++at_;
    }

    /// The letter that an accent stands on, in braces or bare, itself maybe a command.
    std::string Accented(char32_t mark) {
        SkipBlanks();
        std::string group = Argument();
        if (group == "ı") group = "i";
        if (group == "ȷ") group = "j";
        std::size_t end = 0;
        if (!group.empty()) NextCodePoint(group, end);
        return WithMark(group.substr(0, end), mark) + group.substr(end);
    }

    std::string Argument() {
        if (at_ >= source_.size()) return {};
        if (source_[at_] == '\\') return Command();
        if (source_[at_] != '{') return Character();
        std::string group;
        const std::size_t close = ClosingBrace();
        LatexReader inner(source_.substr(at_ + 1, close - at_ - 1), unknown_);
        group = inner.Read();
        at_ = std::min(close + 1, source_.size());
        return group;
    }

    std::size_t ClosingBrace() const {
        int depth = 0;
        for (std::size_t i = at_; i < source_.size(); ++i) {
            if (source_[i] == '{') ++depth;
            if (source_[i] == '}' && --depth == 0) return i;
        }
        return source_.size();
    }

    std::string_view source_;
    std::vector<std::string>& unknown_;
    std::size_t at_ = 0;
    bool inMath_ = false;
};

} // namespace

std::string TextOfLatex(std::string_view source, std::vector<std::string>& unknown) {
    return LatexReader(source, unknown).Read();
}

} // namespace vexora
