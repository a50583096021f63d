#include "sources/citation/ReferenceNames.h"

#include <cstddef>

#include "reference/Text.h"
#include "sources/citation/PersonNames.h"

namespace vexora {

namespace {

constexpr std::size_t MostSurnameWords = 3; // besides particles

/// A word without the signs behind it, and those signs.
struct Word {
    std::string text;
    std::string signs; // of , ; :
};

Word WordOf(const std::string& raw) {
    const std::size_t end = raw.find_last_not_of(",;:");
    if (end == raw.npos) return {"", raw};
    return {raw.substr(0, end + 1), raw.substr(end + 1)};
}

/// "E.W.", "J.-P.", "Yu."
bool AreInitials(std::string_view word) {
    while (!word.empty()) {
        if (!IsCapitalized(word)) return false;
        std::size_t at = 0;
        NextCodePoint(word, at);
        const bool isPair =
            IsOneOf(word.substr(0, at + 1), {"Yu", "Ya", "Ch", "Th", "Zh", "Kh", "Sh"});
        word.remove_prefix(at + (isPair ? 1 : 0));
        if (!word.starts_with('.')) return false;
        word.remove_prefix(1);
        if (word.starts_with('-')) word.remove_prefix(1);
    }
    return true;
}

enum class Order { LastFirst, FirstLast, BareInitials };

class NameTaker {
public:
    NameTaker(const std::string& text, Order order) : raw_(Split(text, ' ')), order_(order) {}

    NamesInFront Take() {
        NamesInFront taken;
        bool goesOn = true;
        while (goesOn && at_ < raw_.size()) {
            const std::size_t before = at_;
            SkipAnd(taken);
            if (TakeOthers()) {
                taken.more = true;
                break;
            }
            CitedName name;
            if (!TakeName(name)) {
                at_ = before;
                break;
            }
            taken.names.push_back(name);
            goesOn = ends_ != End::OfList && (ends_ == End::OfName || IsJoined());
        }
        for (; at_ < raw_.size(); ++at_)
            taken.rest += (taken.rest.empty() ? "" : " ") + raw_[at_];
        return taken;
    }

private:
    enum class End { None, OfName, OfList };

    bool IsJoined() const {
        return at_ < raw_.size() && IsOneOf(WordOf(raw_[at_]).text, {"and", "&", "et"});
    }

    /// Passes over "and"; three points in front of the last name leave out those between.
    void SkipAnd(NamesInFront& taken) {
        for (; at_ < raw_.size() && IsOneOf(raw_[at_], {"and", "&", "..."}); ++at_)
            taken.more = taken.more || raw_[at_] == "...";
    }

    bool TakeOthers() {
        if (at_ >= raw_.size()) return false;
        const std::string next = at_ + 1 < raw_.size() ? WordOf(raw_[at_ + 1]).text : "";
        const bool isOthers = (WordOf(raw_[at_]).text == "et" && IsOneOf(next, {"al", "al."}));
        if (isOthers) at_ += 2;
        return isOthers;
    }

    bool TakeName(CitedName& name) {
        ends_ = End::None;
        switch (order_) {
        case Order::LastFirst:
            return TakeSurname(name, true) && TakeInitials(name);
        case Order::FirstLast:
            return TakeInitials(name) && ends_ == End::None && TakeSurname(name, false);
        case Order::BareInitials:
            return TakeSurnameAndBare(name);
        }
        return false;
    }

    /// Up to a comma; in front of first names the comma has to be there.
    bool TakeSurname(CitedName& name, bool needsComma) {
        std::size_t words = 0;
        while (at_ < raw_.size() && words < MostSurnameWords) {
            const Word word = WordOf(raw_[at_]);
            const bool isParticle = IsParticle(word.text);
            if (!isParticle && !IsSurnameWord(word.text))
                return words > 0 && !needsComma && IsJoined();
            ++at_;
            if (!isParticle) ++words;
            name.last += (name.last.empty() ? "" : " ") + word.text;
            if (!word.signs.empty()) {
                ends_ = End::OfName;
                TakeSuffix(name);
                return words > 0 && (!needsComma || word.signs == ",");
            }
            if (!needsComma && words > 0 && (IsJoined() || at_ == raw_.size())) return true;
        }
        return words > 0 && !needsComma && IsJoined();
    }

    static bool IsSurnameWord(std::string_view word) {
        constexpr std::string_view foreign = ".()[]\"0123456789:?!";
        return IsCapitalized(word) && word.find_first_of(foreign) == word.npos;
    }

    bool TakeInitials(CitedName& name) {
        ends_ = End::None;
        bool any = false;
        while (at_ < raw_.size() && ends_ == End::None) {
            const Word word = WordOf(raw_[at_]);
            if (!AreInitials(word.text)) break;
            name.first += (any ? " " : "") + word.text;
            any = true;
            ++at_;
            if (!word.signs.empty()) ends_ = End::OfName;
        }
        if (any && order_ == Order::LastFirst) TakeSuffix(name);
        return any;
    }

    void TakeSuffix(CitedName& name) {
        if (at_ >= raw_.size() || !name.suffix.empty()) return;
        const Word word = WordOf(raw_[at_]);
        if (!IsNameSuffix(word.text)) return;
        name.suffix = word.text;
        ends_ = word.signs.empty() ? End::None : End::OfName;
        ++at_;
    }

    bool TakeSurnameAndBare(CitedName& name) {
        std::size_t words = 0;
        for (; at_ < raw_.size() && words <= MostSurnameWords; ++at_) {
            const Word word = WordOf(raw_[at_]);
            const bool endsList = word.text.ends_with('.') || word.signs == ":";
            const std::string bare = word.text.substr(0, word.text.find_last_not_of('.') + 1);
            if (words > 0 && AreBareInitials(bare)) {
                for (const char c : bare)
                    name.first += std::string(1, c) + ".";
                ++at_;
                ends_ = endsList ? End::OfList : word.signs.empty() ? End::None : End::OfName;
                TakeSuffix(name);
                return true;
            }
            const bool isParticle = IsParticle(word.text);
            if (!word.signs.empty() || (!isParticle && !IsSurnameWord(word.text))) return false;
            if (!isParticle) ++words;
            name.last += (name.last.empty() ? "" : " ") + word.text;
        }
        return false;
    }

    std::vector<std::string> raw_;
    Order order_;
    std::size_t at_ = 0;
    End ends_ = End::None; // what the signs behind the last word end
};

} // namespace

NamesInFront TakeNames(const std::string& text) {
    NamesInFront best{{}, false, text};
    for (const Order order : {Order::LastFirst, Order::FirstLast, Order::BareInitials}) {
        NamesInFront taken = NameTaker(text, order).Take();
        if (taken.names.size() > best.names.size()) best = std::move(taken);
    }
    return best;
}

} // namespace vexora
