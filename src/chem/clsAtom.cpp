#include "chem/clsAtom.h"

#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vexora {

namespace {

// No symbol: it can never be met in a formula as typed, for no element has five letters.
constexpr std::string_view ErrorText = "Error";
// Brackets nested deeper are no formula that anybody typed; they must not exhaust the stack.
constexpr int DeepestBracket = 50;

bool IsUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
bool IsLower(char c) {
    return c >= 'a' && c <= 'z';
}

/// The case decides: "CO" is carbon and oxygen, "Co" is cobalt.
std::string TakeElement(std::string_view& text) {
    const std::size_t length = text.size() > 1 && IsLower(text[1]) ? 2 : 1;
    const std::string symbol(text.substr(0, length));
    text.remove_prefix(length);
    return AtomicMass(symbol) ? symbol : std::string(ErrorText);
}

/// "(" or a symbol or "Error"; "" at the end of the text.
std::string NextSymbol(std::string_view& text) {
    if (text.empty()) return {};
    const char first = text.front();
    if (IsUpper(first)) return TakeElement(text);
    // A group is not looked up: its braces keep it apart from the elements.
    if (first == '{') {
        const std::size_t close = text.find('}');
        std::string symbol(close == text.npos ? ErrorText : text.substr(0, close + 1));
        text.remove_prefix(close == text.npos ? text.size() : symbol.size());
        return symbol;
    }
    text.remove_prefix(1);
    return first == '(' ? "(" : std::string(ErrorText);
}

constexpr std::string_view NumberSigns = "0123456789.";

double NextNumber(std::string_view& text) {
    const std::size_t length = std::min(text.find_first_not_of(NumberSigns), text.size());
    if (length == 0) return 1;
    // Fractional counts occur in solid solutions and hydrates. Of "1.2.3" the value is 1.2.
    const double value = Val(text.substr(0, length));
    text.remove_prefix(length);
    return value;
}

/// What stands up to the closing bracket, which is cut off as well; "*", which is no symbol, when
/// there is none.
std::string_view TakeGroup(std::string_view& text) {
    int depth = 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '(') ++depth;
        if (text[i] == ')') --depth;
        if (depth > 0) continue;
        const std::string_view group = text.substr(0, i);
        text.remove_prefix(i + 1);
        return group;
    }
    text = {};
    return "*";
}

/// Bytes of the sign that stands here between the parts of an addition compound: a star, or a
/// raised dot as one of the fonts has it; 0 for any other text.
std::size_t DotLength(std::string_view text) {
    for (const std::string_view dot : {"*", "\u00B7", "\u2022", "\u2219", "\u22C5"})
        if (text.starts_with(dot)) return dot.size();
    return 0;
}

/// The texts between the dots that stand outside of brackets and braces.
std::vector<std::string_view> PartsOf(std::string_view text) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        depth += IsOneOf(text.substr(i, 1), {"(", "{"}) ? 1 : 0;
        depth -= IsOneOf(text.substr(i, 1), {")", "}"}) ? 1 : 0;
        const std::size_t dot = depth > 0 ? 0 : DotLength(text.substr(i));
        if (dot == 0) continue;
        parts.push_back(text.substr(start, i - start));
        start = i + dot;
        i = start - 1;
    }
    parts.push_back(text.substr(start));
    return parts;
}

/// Where the first point stands in each count that has one and is followed by an element or a
/// bracket.
std::vector<std::size_t> PointsInFrontOfElements(std::string_view text) {
    std::vector<std::size_t> points;
    bool isInBraces = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '{' || text[i] == '}') isInBraces = text[i] == '{';
        if (isInBraces || text[i] != '.') continue;
        const std::size_t end = std::min(text.find_first_not_of(NumberSigns, i), text.size());
        const bool isInFront = end < text.size() && (IsUpper(text[end]) || text[end] == '(');
        if (isInFront && i > 0) points.push_back(i);
        i = end - 1;
    }
    return points;
}

/// True for a count and the formula of water behind it.
bool IsWater(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(NumberSigns), text.size()));
    if (text.starts_with('(')) text.remove_prefix(1);
    return text.starts_with("H2O") || text.starts_with("D2O");
}

int DepthOf(std::string_view text) {
    int depth = 0;
    int deepest = 0;
    for (const char c : text) {
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        deepest = std::max(deepest, depth);
    }
    return deepest;
}

/// Place of a symbol in the canonical text: the Hill order, with D and T behind H.
/// E. A. Hill, J. Am. Chem. Soc. 1900, 22, 478: C, then H, then by the alphabet; without C all by
/// the alphabet.
std::string SortKey(const std::string& symbol, bool hasCarbon) {
    if (symbol == "D") return hasCarbon ? "A2" : "H2";
    if (symbol == "T") return hasCarbon ? "A3" : "H3";
    if (hasCarbon && symbol == "C") return "A";
    if (hasCarbon && symbol == "H") return "A1";
    return symbol;
}

} // namespace

/// Where the symbols of a list stand. A formula may have any number of groups, and a walk for each
/// of them would cost the square.
struct clsAtom::SymbolPlaces {
    /// The node with the symbol or null; first takes in what was put behind since the last call.
    clsAtom* Of(clsAtom& list, const std::string& symbol) {
        if (!last) Take(list);
        while (last->nextAtom)
            Take(*last->nextAtom);
        const auto found = nodes.find(symbol);
        return found == nodes.end() ? nullptr : found->second;
    }
    void Take(clsAtom& node) {
        last = &node;
        nodes.try_emplace(node.Symbol, &node);
    }

    clsAtom* last = nullptr;
    std::unordered_map<std::string, clsAtom*> nodes;
};

clsAtom::clsAtom() = default;
clsAtom::clsAtom(clsAtom&&) noexcept = default;
clsAtom& clsAtom::operator=(clsAtom&&) noexcept = default;

clsAtom::~clsAtom() {
    // One node at a time: the default would recurse along the whole list.
    while (nextAtom)
        nextAtom = std::move(nextAtom->nextAtom);
}

// What is read later is put behind this node, so that the error stays in front.
void clsAtom::SetError() {
    Symbol = ErrorText;
    isLast = true;
    nextAtom = nullptr;
}

void clsAtom::Build(std::string_view text) {
    *this = clsAtom();
    if (DepthOf(text) > DeepestBracket) return SetError();
    const std::vector<std::string_view> parts = PartsOf(text);
    SymbolPlaces places;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        std::string_view part = parts[i];
        // A dot without a number may be a slip of the typist.
        const bool hasNumber = !part.empty() && NumberSigns.find(part.front()) != part.npos;
        const double times = i == 0 ? 1 : hasNumber ? NextNumber(part) : 0;
        clsAtom B;
        B.BuildPart(part);
        const bool isMissing = B.Symbol.empty() && parts.size() > 1;
        if (times == 0 || isMissing || B.Symbol == ErrorText) return SetError();
        B.Multiply(times);
        AddB(B, places);
    }
    if (!HasPlainCounts()) SetError();
}

// The canonical text has to give each count back, which it writes plainly.
bool clsAtom::HasPlainCounts() const {
    constexpr double least = 1e-9;
    constexpr double most = 1e12;
    for (const clsAtom* node = this; node; node = node->nextAtom.get())
        if (!node->Symbol.empty() && !(node->Count >= least && node->Count <= most)) return false;
    return true;
}

void clsAtom::BuildPart(std::string_view text) {
    SymbolPlaces places;
    const auto fail = [&] {
        places = {};
        SetError();
    };
    for (std::string token = NextSymbol(text); !token.empty(); token = NextSymbol(text)) {
        if (token == ErrorText) {
            fail();
            continue;
        }
        clsAtom B;
        if (token == "(") {
            B.Build(TakeGroup(text));
            if (B.Symbol == ErrorText || B.Symbol.empty()) fail();
        } else {
            B.Symbol = token;
            B.Count = 1;
        }
        const double number = NextNumber(text);
        // Nobody states an element in order to say that there is none of it.
        if (number == 0) {
            fail();
            continue;
        }
        B.Multiply(number);
        AddB(B, places);
    }
}

void clsAtom::Multiply(double factor) {
    for (clsAtom* node = this; node; node = node->nextAtom.get())
        node->Count *= factor;
}

// Each symbol stands once, in the order in which they were typed; only Formula sorts.
void clsAtom::AddB(clsAtom& B) {
    SymbolPlaces places;
    AddB(B, places);
}

void clsAtom::AddB(clsAtom& B, SymbolPlaces& places) {
    if (Symbol.empty()) {
        places = {};
        *this = std::move(B);
        return;
    }
    for (const clsAtom* item = &B; item; item = item->nextAtom.get()) {
        clsAtom* node = places.Of(*this, item->Symbol);
        if (!node) {
            node = places.last;
            node->nextAtom = std::make_unique<clsAtom>();
            node->isLast = false;
            node = node->nextAtom.get();
            node->Symbol = item->Symbol;
        }
        node->Count += item->Count;
    }
}

std::string clsAtom::Formula() const {
    if (Symbol.empty() || Symbol == ErrorText) return {};
    bool hasCarbon = false;
    for (const clsAtom* node = this; node; node = node->nextAtom.get())
        hasCarbon = hasCarbon || node->Symbol == "C";
    std::vector<std::pair<std::string, std::string>> pieces; // sort key, text
    for (const clsAtom* node = this; node; node = node->nextAtom.get()) {
        const std::string count =
            node->Count == 1 ? std::string() : NormalizeNumber(NumberText(node->Count));
        pieces.emplace_back(SortKey(node->Symbol, hasCarbon), node->Symbol + count);
    }
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::string text;
    for (const auto& [key, piece] : pieces)
        text += piece;
    std::erase_if(text, [](char c) { return c == ' ' || c == '/'; });
    return text;
}

double clsAtom::MMass() const {
    double sum = 0;
    for (const clsAtom* node = this; node; node = node->nextAtom.get())
        sum += AtomicMass(node->Symbol).value_or(0) * node->Count;
    return sum;
}

std::string CanonicalFormula(std::string_view text) {
    clsAtom atom;
    atom.Build(Trim(text));
    return atom.Formula();
}

std::string HydrateReading(std::string_view text) {
    const std::vector<std::size_t> points = PointsInFrontOfElements(text);
    if (points.empty()) return {};
    // Counts of a solid solution stand in front of the water; without water the last one is meant.
    const auto water = std::ranges::find_if(
        points, [text](std::size_t point) { return IsWater(text.substr(point + 1)); });
    std::string meant(text);
    for (auto point = water == points.end() ? points.end() - 1 : water; point != points.end();
         ++point)
        meant[*point] = '*';
    return CanonicalFormula(meant);
}

double MolarMassOfFormula(std::string_view text) {
    clsAtom atom;
    atom.Build(Trim(text));
    return atom.Formula().empty() ? 0 : atom.MMass();
}

} // namespace vexora
