#include "chem/CommentTags.h"

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "globals/KVOGlobal.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace vexora {

namespace {

constexpr std::array<std::string_view, 4> kSampleFlags = {"fd", "db", "cm", "av"};

clsMethod& Method() {
    auto& method = Globals().CurrentMethod;
    if (!method) method = std::make_shared<clsMethod>();
    return *method;
}

/// The text without the characters from position `first` to position `last`.
std::string Cut(std::string_view text, std::size_t first, std::size_t last) {
    return Substring(text, 1, first - 1) + Substring(text, last + 1);
}

/// Characters behind position `from` and in front of position `end`.
std::string Between(std::string_view text, std::size_t from, std::size_t end) {
    return end > from + 1 ? Substring(text, from + 1, end - from - 1) : std::string();
}

/// Position of the next colon from a position on, one behind the text when there is none.
std::size_t ColonOrEnd(std::string_view text, std::size_t from) {
    const std::size_t colon = Find(text, ":", from);
    return colon ? colon : CodePointCount(text) + 1;
}

/// Takes the tag with this opening (":Name:") out of the text; its closing colon stays unless
/// asked.
std::optional<std::string> TakeTag(std::string& text, std::string_view opening, bool withColon) {
    const std::size_t p = Find(text, opening);
    if (p == 0) return std::nullopt;
    const std::size_t lastOfOpening = p + CodePointCount(opening) - 1;
    const std::size_t q = ColonOrEnd(text, lastOfOpening + 1);
    const std::string value = Between(text, lastOfOpening, q);
    text = Cut(text, p, withColon ? q : q - 1);
    return value;
}

struct FreeMethod {
    std::string text;   // free-text method
    std::string others; // the comment without it
};

FreeMethod SplitSMethod(std::string_view comment) {
    constexpr std::string_view opening = ":sMethod:";
    const std::size_t p = Find(comment, opening);
    if (p == 0) return {{}, std::string(comment)};
    const std::size_t valueAt = p + opening.size();
    const std::size_t length = CodePointCount(comment);
    const std::size_t colon = Find(comment, ":", valueAt);
    // A tag without its closing colon loses its last letter; stored comments are read that way.
    const std::size_t q = colon ? colon : length;
    const bool tagsFollow = colon != 0 && colon < length;
    return {Between(comment, valueAt - 1, q), Cut(comment, p, tagsFollow ? q - 1 : q)};
}

/// A number, perhaps per cent: what may stand in a precision tag.
bool IsPrecision(std::string_view text) {
    text = TrimBlanks(text);
    if (text.ends_with('%')) text.remove_suffix(1);
    return IsNumeric(text);
}

void TakePrecision(clsProperty& item, std::string& tags) {
    const std::string opening = ":d" + item.PropertyCode + ":";
    const std::size_t p = Find(tags, opening);
    if (p == 0) return;
    const std::size_t q = p + CodePointCount(opening) - 1;
    const std::size_t r = ColonOrEnd(tags, q + 1);
    item.PrecisionText = Between(tags, q, r);
    tags = Cut(tags, p + 1, r);
    if (item.PrecisionText.empty()) return;
    if (item.PrecisionText.find('%') == std::string::npos) {
        item.PRECISION = Val(item.PrecisionText);
        return;
    }
    const std::string percent =
        Substring(item.PrecisionText, 1, CodePointCount(item.PrecisionText) - 1);
    item.PRECISION = std::abs(Val(percent) * item.Value) / 100;
}

void DropStaleFactor(std::string& keyRest) {
    for (std::size_t p = Find(keyRest, "UFactor"); p != 0; p = Find(keyRest, "UFactor")) {
        const std::size_t q = Find(keyRest, ":", p + 8);
        const std::string front = Substring(keyRest, 1, p - 1);
        keyRest = q > p ? front + Substring(keyRest, q + 1) : front;
    }
}

} // namespace

void SplitCommentTags() {
    clsMethod& method = Method();
    method.Method = TakeTag(method.KeySaved, ":Method:", false).value_or("");
    const auto factor = TakeTag(method.KeySaved, ":UFactor:", false);
    method.f = factor ? Val(*factor) : 1;
}

void DecodePrecisionTags(clsProperty& head) {
    clsMethod& method = Method();
    if (method.KeySaved.empty()) method.KeySaved = "::";
    if (method.KeyVolatile.empty()) method.KeyVolatile = "::";
    for (clsProperty* item = &head; item; item = item->isLast ? nullptr : item->NextItem.get())
        TakePrecision(*item, method.KeySaved);
    if (const auto code = TakeTag(method.KeySaved, ":Method:", true)) method.Method = *code;
    std::string& keyRest = Globals().KeyRest;
    keyRest = method.KeySaved;
    while (keyRest.starts_with("::"))
        keyRest.erase(0, 1);
}

void EncodeTags(const clsProperty& head) {
    clsMethod& method = Method();
    std::string& keyRest = Globals().KeyRest;
    method.KeySaved = ":";
    if (!method.Method.empty()) method.KeySaved += ":Method:" + method.Method;
    if (keyRest.empty() || keyRest == "::") keyRest = ":";
    DropStaleFactor(keyRest);
    // Taking a free-text method off the end takes the colon of the tag in front of it as well.
    if (!keyRest.ends_with(':')) keyRest += ':';
    method.KeySaved += keyRest;
    if (method.f > 0 && method.f != 1)
        method.KeySaved += "UFactor:" + NumberText(Val(NumberText(method.f))) + ":";
    for (const clsProperty* item = &head; item;
         item = item->isLast ? nullptr : item->NextItem.get()) {
        if (!IsPrecision(item->PrecisionText)) continue;
        method.KeySaved +=
            "d" + item->PropertyCode + ":" + std::string(TrimBlanks(item->PrecisionText)) + ":";
    }
}

std::string TakeSMethod(std::string_view comment) {
    FreeMethod parts = SplitSMethod(comment);
    Method().sMethod = std::move(parts.text);
    return std::move(parts.others);
}

std::string AppendSMethod(std::string_view comment) {
    const clsMethod& method = Method();
    const bool asked = method.Method == "OTHER" || method.Method.empty();
    if (method.sMethod.empty() || !asked) return std::string(comment);
    return std::string(comment) + "sMethod:" + Replace(method.sMethod, ":", " ") + ":";
}

std::string CommentDisplayText(std::string_view comment) {
    std::string text = SplitSMethod(comment).others;
    const std::size_t firstPrecision = text.find(":d");
    for (std::size_t at = firstPrecision; at != std::string::npos; at = text.find(":d", at))
        text[at] = ' ';
    if (firstPrecision != std::string::npos)
        std::replace(text.begin() + static_cast<std::ptrdiff_t>(firstPrecision), text.end(), ':',
                     '=');
    const std::size_t eighth = ByteOffset(text, 8);
    std::replace(text.begin() + static_cast<std::ptrdiff_t>(eighth), text.end(), ':', ' ');
    return text;
}

void SyncSampleFlags(std::string_view sampleDescription) {
    std::string& tags = Method().KeyVolatile;
    tags = ":";
    for (const std::string_view word : kSampleFlags) {
        const std::size_t tagAt = Find(tags, ":" + std::string(word) + ":");
        const std::size_t wordAt = Find(sampleDescription, word);
        // The positions are compared bit by bit; stored data were made so.
        if ((~tagAt & wordAt) != 0) tags += std::string(word) + ":";
    }
    for (const std::string_view word : kSampleFlags) {
        const std::size_t p = Find(tags, ":" + std::string(word) + ":");
        if (p != 0 && Find(sampleDescription, word) == 0)
            tags = Substring(tags, 1, p) + Substring(tags, p + 3);
    }
}

std::string CommentText(std::string_view comment) {
    const std::string_view text = TrimBlanks(comment.substr(0, comment.find("::")));
    return text == "&" ? std::string() : std::string(text);
}

std::string CommentTagPart(std::string_view comment) {
    const std::size_t at = comment.find("::");
    return at == std::string_view::npos ? std::string() : std::string(comment.substr(at));
}

std::string CommentTag(std::string_view comment, std::string_view name) {
    const std::string tags = CommentTagPart(comment);
    const std::string mark = ":" + std::string(name) + ":";
    const std::size_t at = tags.find(mark);
    if (at == std::string::npos) return {};
    const std::size_t from = at + mark.size();
    return std::string(Trim(std::string_view(tags).substr(from, tags.find(':', from) - from)));
}

std::string TakeState(std::string& comment) {
    for (const std::string_view tag : {":PB:", ":FP:"}) {
        const std::size_t at = comment.find(tag);
        if (at == std::string::npos) continue;
        const bool alone = comment.size() == tag.size();
        comment.replace(at, tag.size(), alone ? "" : ":");
        return std::string(tag.substr(1, 2));
    }
    return {};
}

std::string BuildComment(std::string_view text, const clsProperty& head, std::string_view state) {
    EncodeTags(head);
    std::string tags = Method().KeySaved;
    if (Method().Method.empty()) tags.insert(1, ":Method:");
    std::string comment = CommentText(SingleLine(text));
    if (!comment.empty()) comment += " ";
    comment = AppendSMethod(comment + tags);
    if (!state.empty()) comment += std::string(state) + ":";
    return comment;
}

} // namespace vexora
