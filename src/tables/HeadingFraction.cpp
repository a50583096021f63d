#include "tables/HeadingFraction.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <vector>

#include "reference/NameKey.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "tables/HeadingText.h"

namespace vexora {

namespace {

/// A heading as a bag of parts, each of which is taken once and must not contradict the others.
class FractionReader {
public:
    FractionReader(std::string_view plain, const NamedComponents& components)
        : plain_(plain), tokens_(HeadingTokens(plain)), components_(components) {
        for (const std::string& name : components.names)
            keys_.push_back(NameKey(name));
    }

    /// False when a part is not understood or contradicts another one.
    bool Read() {
        while (!AtEnd() && isConsistent_)
            if (!TakeName() && !TakeKind() && !TakePhase() && !TakeSymbol() && !TakeFiller())
                return false;
        return isConsistent_;
    }

    bool HasComponent() const { return component_ > 0; }
    bool HasSymbol() const { return letter_ != '\0'; }
    const PhaseMark& Mark() const { return mark_; }
    bool IsPerCent() const { return isPerCent_; }

    /// X, W, V or J; '\0' where it is open.
    char Kind() const {
        const char letter = LetterKind();
        if (!kind_ || !letter) return kind_ ? kind_ : letter;
        // x and y also stand for weight fractions in older papers, w for nothing else.
        return kind_ == letter || (letter == 'X' && kind_ != 'J') ? kind_ : '\0';
    }

    std::optional<HeadingFraction> Fraction() const {
        if (!HasComponent() || !Kind()) return std::nullopt;
        HeadingFraction fraction;
        fraction.quantity = Kind() + std::to_string(component_);
        fraction.isPerCent = isPerCent_;
        fraction.factor = isPerCent_ ? 0.01 : 1;
        fraction.isVaporLetter = letter_ == 'y' || letter_ == 'Y';
        fraction.isLiquidLetter = letter_ == 'x' || letter_ == 'X';
        fraction.mark = mark_;
        return fraction;
    }

private:
    using TokenKind = HeadingToken::Kind;

    bool AtEnd(std::size_t ahead = 0) const { return at_ + ahead >= tokens_.size(); }
    std::string_view Text(std::size_t ahead = 0) const {
        return AtEnd(ahead) ? std::string_view() : tokens_[at_ + ahead].text;
    }
    bool Is(std::size_t ahead, std::initializer_list<std::string_view> words) const {
        return IsOneOf(LowerAscii(Text(ahead)), words);
    }
    bool IsAdjacent(std::size_t ahead = 0) const {
        const std::size_t i = at_ + ahead;
        return i > 0 && i < tokens_.size() && tokens_[i - 1].end == tokens_[i].begin;
    }
    bool IsInBrackets() const { return at_ > 0 && tokens_[at_ - 1].text == "(" && Text(1) == ")"; }

    char LetterKind() const {
        if (!letter_) return '\0';
        return letter_ == 'w' || letter_ == 'W' ? 'W' : letter_ == 'c' ? 'J' : 'X';
    }

    void SetComponent(int number) {
        isConsistent_ = isConsistent_ && (component_ == 0 || component_ == number) &&
                        number <= components_.MixType();
        component_ = number;
    }
    void SetMark(const PhaseMark& mark) {
        isConsistent_ = isConsistent_ && (mark_.kind == PhaseMark::Kind::None || mark_ == mark);
        mark_ = mark;
    }
    void SetKind(char kind) {
        isConsistent_ = isConsistent_ && (!kind_ || kind_ == kind);
        kind_ = kind;
    }
    void SetPerCent() {
        isConsistent_ = isConsistent_ && !isPerCent_;
        isPerCent_ = true;
    }

    /// Past the name or formula of a component that begins at this byte; 0 for none.
    std::size_t EndOfName(std::size_t begin, int component) const {
        const auto i = static_cast<std::size_t>(component);
        if (i < components_.formulas.size() && IsOwnFormula(i)) {
            const std::string& formula = components_.formulas[i];
            if (plain_.substr(begin).starts_with(formula) && EndsAt(begin + formula.size()))
                return begin + formula.size();
        }
        if (keys_[i].empty()) return 0;
        for (std::size_t last = at_; last < tokens_.size(); ++last)
            if (NameKey(plain_.substr(begin, tokens_[last].end - begin)) == keys_[i])
                return tokens_[last].end;
        return 0;
    }
    /// One-letter symbols are formulas of elements, but also signs of quantities.
    bool IsOwnFormula(std::size_t i) const {
        const std::string& formula = components_.formulas[i];
        return formula.size() > 1 && std::ranges::count(components_.formulas, formula) == 1;
    }
    bool EndsAt(std::size_t byte) const {
        return std::ranges::any_of(tokens_,
                                   [byte](const HeadingToken& token) { return token.end == byte; });
    }

    void MoveTo(std::size_t byte) {
        while (!AtEnd() && tokens_[at_].begin < byte)
            ++at_;
    }

    /// The longest name that stands here, so that "acetic acid" goes before "acetic".
    bool TakeNameFrom(std::size_t begin) {
        std::size_t end = 0;
        int component = 0;
        for (int i = 0; i < components_.MixType(); ++i) {
            const std::size_t found = EndOfName(begin, i);
            if (found <= end) continue;
            end = found;
            component = i + 1;
        }
        if (component == 0) return false;
        MoveTo(end);
        if (TakeRich(component)) return true;
        SetComponent(component);
        TakeNumberOf(component);
        return true;
    }
    bool TakeName() {
        const bool isMark = tokens_[at_].kind == TokenKind::Sign && Text().size() == 1;
        if (isMark && Text() != "(") return false;
        return TakeNameFrom(tokens_[at_].begin);
    }
    /// "water-rich phase" names a layer and no component.
    bool TakeRich(int component) {
        const std::size_t ahead = Text() == "-" ? 1 : 0;
        if (!Is(ahead, {"rich"})) return false;
        at_ += ahead + 1;
        TakePhaseWord();
        SetMark({PhaseMark::Kind::Layer, "rich in " + std::to_string(component)});
        return true;
    }
    /// "ethanol (1)"
    void TakeNumberOf(int component) {
        if (Text() != "(" || Text(2) != ")" || tokens_[at_ + 1].kind != TokenKind::Number) return;
        isConsistent_ = isConsistent_ && Text(1) == std::to_string(component);
        at_ += 3;
    }

    bool TakeKind() {
        char kind = '\0';
        std::size_t words = 1;
        if (Is(0, {"mole", "mol", "molar", "amount"})) kind = 'X';
        if (Is(0, {"mass", "weight", "wt"})) kind = 'W';
        if (Is(0, {"volume", "vol"})) kind = 'V';
        const bool isNamed = kind != '\0';
        if (isNamed && (Text(1) == "." || (Text(1) == "-" && Text(2) == "%"))) ++words;
        if (isNamed && Is(words, {"fraction", "fractions", "frac"})) return Kind(kind, words + 1);
        if (isNamed && kind == 'X' && Is(words, {"concentration"})) return Kind('J', words + 1);
        if (Is(0, {"molarity", "concentration"})) return Kind('J', 1);
        const std::size_t perCent = PerCentAt(isNamed ? words : 0);
        if (perCent == 0) return false;
        SetPerCent();
        if (!isNamed) return Kind('\0', perCent);
        return Kind(kind, words + perCent);
    }
    bool Kind(char kind, std::size_t tokens) {
        if (kind) SetKind(kind);
        at_ += tokens;
        return true;
    }
    /// How many tokens "%" or "per cent" takes there.
    std::size_t PerCentAt(std::size_t ahead) const {
        if (Is(ahead, {"%", "percent", "pct"})) return 1;
        return Is(ahead, {"per"}) && Is(ahead + 1, {"cent"}) ? 2 : 0;
    }

    static int NumberOf(std::string_view text) {
        if (IsOneOf(text, {"1", "I", "'", "\u03b1"})) return 1;
        if (IsOneOf(text, {"2", "II", "''", "\u03b2"})) return 2;
        return IsOneOf(text, {"3", "III", "'''", "\u03b3"}) ? 3 : 0;
    }
    void TakePhaseWord() {
        if (Is(0, {"phase", "layer", "mixture"})) ++at_;
    }
    bool TakePhase() {
        PhaseMark mark;
        if (Is(0, {"liquid", "liq"})) mark.kind = PhaseMark::Kind::Liquid;
        if (Is(0, {"vapor", "vapour", "vap", "gas", "gaseous"})) mark.kind = PhaseMark::Kind::Gas;
        if (IsInBrackets() && Is(0, {"l"})) mark.kind = PhaseMark::Kind::Liquid;
        if (IsInBrackets() && Is(0, {"g", "v"})) mark.kind = PhaseMark::Kind::Gas;
        if (Is(0,
               {"aqueous", "organic", "upper", "lower", "top", "bottom", "extract", "raffinate"}))
            mark = {PhaseMark::Kind::Layer, LowerAscii(Text())};
        if (Is(0, {"l"}) && IsAdjacent(1) && NumberOf(Text(1)) > 0 && !IsAdjacent())
            mark.kind = PhaseMark::Kind::Liquid;
        const bool isPhase = Is(0, {"phase", "layer"}) && NumberOf(Text(1)) > 0;
        if (mark.kind == PhaseMark::Kind::None && !isPhase) return TakeNumberedMark();
        ++at_;
        if (!isPhase) TakePhaseWord();
        return TakePhaseNumber(mark);
    }
    bool TakePhaseNumber(PhaseMark mark) {
        const bool isLiquid = mark.kind != PhaseMark::Kind::Gas && mark.name.empty();
        if (const int number = isLiquid ? NumberOf(Text()) : 0) {
            mark = {PhaseMark::Kind::Numbered, {}, number};
            ++at_;
        }
        SetMark(mark);
        return true;
    }
    /// Primes, "I", "α" beside a symbol, raised, in brackets or in front of the word "phase".
    bool TakeNumberedMark() {
        const std::size_t ahead = Text() == "^" ? 1 : 0;
        const bool isNumber = !AtEnd(ahead) && tokens_[at_ + ahead].kind == TokenKind::Number;
        const int number = isNumber ? 0 : NumberOf(Text(ahead));
        if (number == 0 || !(HasSymbol() || Is(ahead + 1, {"phase", "layer"}))) return false;
        at_ += ahead + 1;
        TakePhaseWord();
        SetMark({PhaseMark::Kind::Numbered, {}, number});
        return true;
    }

    /// A letter; its index and primes follow, the component by name may stand anywhere.
    bool TakeSymbol() {
        if (Is(0, {"component", "comp"})) return TakeIndex(1);
        const std::string_view word = Text();
        if (HasSymbol() || tokens_[at_].kind != TokenKind::Word) return false;
        if (std::string_view("xyXYwWc").find(word.front()) == word.npos) return false;
        if (word.size() > 1 && !TakeNameFrom(tokens_[at_].begin + 1)) return false; // "xethanol"
        letter_ = word.front();
        if (word.size() > 1) return true;
        ++at_;
        if (Text() == "^" && NumberOf(Text(1)) > 0 && Text(1).front() == '\'') ++at_;
        if (Text().starts_with('\'')) TakeNumberedMark();
        if (Text() == "_") ++at_;
        if (Text() == "(" && Text(2) == ")") return TakeIndex(1, true);
        TakeIndex(0);
        return true;
    }
    /// A number of a component that stands here or behind so many tokens.
    bool TakeIndex(std::size_t ahead, bool mayLack = false) {
        const std::string_view number = Text(ahead);
        if (!IsOneOf(number, {"1", "2", "3"})) return mayLack;
        at_ += ahead + 1;
        SetComponent(number.front() - '0');
        return true;
    }

    bool TakeFiller() {
        if (!Is(0, {"of", "in", "the", "composition", "exp", "expt", "experimental", ",", "/", "(",
                    ")", "[", "]", ":", ";", "_", "."}))
            return false;
        ++at_;
        return true;
    }

    std::string_view plain_;
    std::vector<HeadingToken> tokens_;
    const NamedComponents& components_;
    std::vector<std::string> keys_;
    std::size_t at_ = 0;
    bool isConsistent_ = true;

    int component_ = 0; // from 1, 0 for none yet
    char letter_ = '\0', kind_ = '\0';
    bool isPerCent_ = false;
    PhaseMark mark_;
};

} // namespace

std::optional<HeadingFraction> ReadFraction(std::string_view plain,
                                            const NamedComponents& components) {
    FractionReader reader(plain, components);
    return reader.Read() ? reader.Fraction() : std::nullopt;
}

std::optional<PhaseMark> ReadPhaseAlone(std::string_view plain, const NamedComponents& components) {
    FractionReader reader(plain, components);
    const bool isPhase = reader.Read() && reader.Mark().kind != PhaseMark::Kind::None;
    if (!isPhase || reader.HasComponent() || reader.Kind() || reader.IsPerCent())
        return std::nullopt;
    return reader.Mark();
}

bool IsHeadOverComponents(std::string_view plain, const NamedComponents& components) {
    FractionReader reader(plain, components);
    if (!reader.Read() || reader.HasComponent() || reader.HasSymbol()) return false;
    return reader.Kind() || reader.Mark().kind != PhaseMark::Kind::None;
}

} // namespace vexora
