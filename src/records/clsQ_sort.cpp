// Reactions with their participants in the order that all reactions have: what names a participant
// bears its new number.
#include "chem/CommentTags.h"
#include "records/ReactionText.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsQ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <utility>

namespace vexora {

namespace {

/// In any equation these stand behind the others, in this order.
constexpr std::string_view LastCompounds[] = {"124389",  "1333740", "7727379",
                                              "7732185", "7782425", "7782447"};

/// Ordinary compounds by their number, then those, then empty slots.
std::pair<int, std::int64_t> SortKey(const std::string& rn) {
    if (rn.empty()) return {2, 0};
    const auto* const last = std::ranges::find(LastCompounds, rn);
    if (last != std::end(LastCompounds)) return {1, last - std::begin(LastCompounds)};
    return {0, ToInteger(Val(rn))}; // numbers have up to ten digits
}

template <class Texts>
void Move(Texts& texts, const ParticipantOrder& number) {
    Texts moved;
    for (std::size_t i = 0; i < texts.size(); ++i)
        moved[static_cast<std::size_t>(number[i + 1] - 1)] = std::move(texts[i]);
    texts = std::move(moved);
}

/// The digits of participants, in ascending order again.
std::string Renumbered(std::string digits, const ParticipantOrder& number) {
    for (char& c : digits)
        if (c >= '1' && c <= '8')
            c = static_cast<char>('0' + number[static_cast<std::size_t>(c - '0')]);
    std::ranges::sort(digits);
    return digits;
}

std::string RenumberedCode(const std::string& code, const ParticipantOrder& number) {
    const ParticipantCode parts = ParticipantCodeOf(code);
    if (parts.participant == 0) return code;
    return parts.code + std::to_string(number[static_cast<std::size_t>(parts.participant)]);
}

} // namespace

ParticipantOrder clsQ::AscendingOrder() const {
    std::array<int, MostParticipants> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<int>(i) + 1;
    std::ranges::stable_sort(order, {}, [this](int i) { return SortKey(RN(i)); });
    ParticipantOrder number{};
    for (std::size_t i = 0; i < order.size(); ++i)
        number[static_cast<std::size_t>(order[i])] = static_cast<int>(i) + 1;
    return number;
}

bool clsQ::Sort() {
    const ParticipantOrder number = AscendingOrder();
    if (std::ranges::is_sorted(number)) return false;
    for (const auto& value : recC)
        value->Sort(number);
    for (const auto& set : recE)
        set->Sort(number);
    Move(slots_, number);
    return true;
}

void clsC::Sort(const ParticipantOrder& number) {
    for (ParticipantTexts* const texts : Groups())
        Move(*texts, number);
}

void clsE::Sort(const ParticipantOrder& number) {
    ParticipantTexts coefficients, samples;
    for (int i = 1; i <= clsQ::MostParticipants; ++i) {
        // One that had no room here may get some now.
        const bool isHere = i <= Participants || Parent == nullptr;
        const auto at = static_cast<std::size_t>(number[static_cast<std::size_t>(i)] - 1);
        coefficients[at] = isHere ? PARTICIPANT_COEFF(i) : Parent->Coeff(i);
        samples[at] = isHere ? SMPNM(i) : Parent->SMPNM(i);
    }
    std::copy_n(coefficients.begin(), coefficients_.size(), coefficients_.begin());
    std::copy_n(samples.begin(), samples_.size(), samples_.begin());
    for (std::string& digits : components_)
        digits = Renumbered(digits, number);
    const auto renumbered = [&number](const std::string& code) {
        return RenumberedCode(code, number);
    };
    for (Four* const codes : {&variables_, &constants_})
        std::ranges::transform(*codes, codes->begin(), renumbered);
    for (clsX& item : UX)
        item.ChangeCodes(renumbered);
    for (clsX& item : OtherX)
        item.ChangeCodes(renumbered);
    CommentTags tags(Header.DATACOMMENT);
    tags.ChangePrecisionCodes(renumbered);
    Header.DATACOMMENT = tags.Stored();
}

} // namespace vexora
