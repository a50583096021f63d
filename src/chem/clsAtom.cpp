#include "chem/clsAtom.h"

#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
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

/// "(" or a symbol or "Error"; "" at the end of the text and at a closing bracket.
std::string NextSymbol(std::string_view& text) {
    if (text.empty()) return {};
    const char first = text.front();
    if (IsUpper(first)) return TakeElement(text);
    // A group is not looked up: its braces keep it apart from the elements.
    if (first == '{') {
        const std::size_t close = text.find('}');
        std::string symbol(text.substr(0, close == text.npos ? close : close + 1));
        text.remove_prefix(symbol.size());
        return symbol;
    }
    text.remove_prefix(1);
    if (first == '(') return "(";
    if (first != ')') return std::string(ErrorText);
    // A bracket that nobody opened ends the formula.
    if (!text.empty()) text.remove_prefix(1);
    return {};
}

double NextNumber(std::string_view& text) {
    const std::size_t length = std::min(text.find_first_not_of("0123456789."), text.size());
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
    for (std::string token = NextSymbol(text); !token.empty(); token = NextSymbol(text)) {
        if (token == ErrorText) {
            SetError();
            continue;
        }
        clsAtom B;
        if (token == "(") {
            B.Build(TakeGroup(text));
            if (B.Symbol == ErrorText || B.Symbol.empty()) SetError();
        } else {
            B.Symbol = token;
            B.Count = 1;
        }
        const double number = NextNumber(text);
        // Nobody states an element in order to say that there is none of it.
        if (number == 0) {
            SetError();
            continue;
        }
        B.Multiply(number);
        AddB(B);
    }
}

void clsAtom::Multiply(double factor) {
    for (clsAtom* node = this; node; node = node->nextAtom.get())
        node->Count *= factor;
}

// Each symbol stands once, in the order in which they were typed; only Formula sorts.
void clsAtom::AddB(clsAtom& B) {
    if (Symbol.empty()) {
        *this = std::move(B);
        return;
    }
    for (const clsAtom* item = &B; item; item = item->nextAtom.get()) {
        clsAtom* node = this;
        while (node->Symbol != item->Symbol && !node->isLast)
            node = node->nextAtom.get();
        if (node->Symbol != item->Symbol) {
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

double MolarMassOfFormula(std::string_view text) {
    clsAtom atom;
    atom.Build(Trim(text));
    return atom.Formula().empty() ? 0 : atom.MMass();
}

} // namespace vexora
