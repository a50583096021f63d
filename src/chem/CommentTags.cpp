#include "chem/CommentTags.h"

#include "reference/Text.h"

#include <algorithm>
#include <array>

namespace vexora {

namespace {

// An operator writes single colons in a remark; a doubled one only opens the tags.
constexpr std::string_view FirstTag = "::";

// V1 keeps the variable of a set whose record line has no field for it.
constexpr std::array<std::string_view, 6> OwnWords = {"UFactor", "Method", "sMethod",
                                                      "FP",      "PB",     "V1"};

std::string Enclosed(std::string_view word) {
    return ":" + std::string(word) + ":";
}

} // namespace

CommentTags::CommentTags(std::string_view comment) {
    const std::size_t at = std::min(comment.find(FirstTag), comment.size());
    front_ = comment.substr(0, at);
    tags_ = comment.substr(at);
}

CommentTags CommentTags::OfTags(std::string_view tags) {
    CommentTags all;
    all.tags_ = tags;
    all.isComment_ = false;
    return all;
}

bool CommentTags::IsOwnWord(std::string_view word) {
    return std::ranges::find(OwnWords, word) != OwnWords.end();
}

std::string CommentTags::Text() const {
    const std::string_view text = TrimBlanks(front_);
    // "&" fills an empty field of a record line.
    return text == "&" ? std::string() : std::string(text);
}

std::optional<CommentTags::Pair> CommentTags::Find(std::string_view opening) const {
    Pair pair;
    pair.begin = tags_.find(opening);
    if (pair.begin == std::string::npos) return std::nullopt;
    pair.valueAt = pair.begin + opening.size();
    pair.end = tags_.find(':', pair.valueAt);
    pair.isClosed = pair.end != std::string::npos;
    if (!pair.isClosed) pair.end = tags_.size();
    return pair;
}

std::string CommentTags::ValueOf(const Pair& pair) const {
    return tags_.substr(pair.valueAt, pair.end - pair.valueAt);
}

bool CommentTags::Has(std::string_view word) const {
    return !word.empty() && tags_.find(Enclosed(word)) != std::string::npos;
}

// The first one counts: other writers may have left a second pair behind it.
std::string CommentTags::Value(std::string_view name) const {
    const auto pair = Find(Enclosed(name));
    return pair ? ValueOf(*pair) : std::string();
}

std::string CommentTags::TrimmedValue(std::string_view name) const {
    return std::string(Trim(Value(name)));
}

std::string CommentTags::Precision(std::string_view code) const {
    return TrimmedValue("d" + std::string(code));
}

std::string CommentTags::Constant(std::string_view code) const {
    const auto pair = Find(":" + std::string(code) + " = ");
    return pair ? ValueOf(*pair) : std::string();
}

/// Makes sure that another tag can be put behind the last one.
void CommentTags::Open() {
    if (isComment_ && tags_.empty()) {
        if (!front_.empty()) front_ += ' ';
        tags_ = FirstTag;
    }
    if (!tags_.starts_with(':')) tags_.insert(0, ":");
    Close();
}

void CommentTags::Close() {
    if (!tags_.empty() && !tags_.ends_with(':')) tags_ += ':';
}

void CommentTags::Set(std::string_view word, bool on) {
    Open();
    if (word.empty() || Has(word) == on) return;
    if (on) {
        tags_ += std::string(word) + ":";
        return;
    }
    const std::string tag = Enclosed(word);
    for (std::size_t at = tags_.find(tag); at != std::string::npos; at = tags_.find(tag))
        tags_.replace(at, tag.size(), ":");
}

void CommentTags::Add(std::string_view name, std::string_view value) {
    Open();
    tags_.append(name).append(":").append(value).append(":");
}

std::optional<std::string> CommentTags::Take(std::string_view name, Colon closing) {
    const auto pair = Find(Enclosed(name));
    if (!pair) return std::nullopt;
    std::string value = ValueOf(*pair);
    const std::size_t end = closing == Colon::Goes ? pair->end + 1 : pair->end;
    tags_.erase(pair->begin, end - pair->begin);
    return value;
}

std::optional<std::string> CommentTags::TakePrecision(std::string_view code) {
    const auto pair = Find(":d" + std::string(code) + ":");
    if (!pair) return std::nullopt;
    std::string value = ValueOf(*pair);
    // Precisions are written again behind all other tags; what follows keeps a colon in front of
    // it.
    tags_.erase(pair->begin + 1, pair->end - pair->begin);
    return value;
}

std::string CommentTags::TakeFreeMethod() {
    const auto pair = Find(Enclosed("sMethod"));
    if (!pair) return {};
    std::string text = ValueOf(*pair);
    if (!pair->isClosed && !text.empty()) text = Substring(text, 1, CodePointCount(text) - 1);
    // Where tags follow, their leading colon is the one that closes the text; to take it as well
    // would weld the next tag to the one in front.
    const bool tagsFollow = pair->isClosed && pair->end + 1 < tags_.size();
    tags_.erase(pair->begin, tagsFollow ? pair->end - pair->begin : std::string::npos);
    return text;
}

std::string CommentTags::TakeState() {
    // A phase boundary goes before a fixed pressure: it says the state more closely.
    for (const std::string_view state : {"PB", "FP"}) {
        const std::string tag = Enclosed(state);
        const std::size_t at = tags_.find(tag);
        if (at == std::string::npos) continue;
        tags_.replace(at, tag.size(), tags_.size() == tag.size() ? "" : ":");
        return std::string(state);
    }
    return {};
}

void CommentTags::DropBeginning(std::string_view words) {
    const std::string opening = ":" + std::string(words);
    for (auto pair = Find(opening); pair; pair = Find(opening))
        tags_.erase(pair->begin, pair->end - pair->begin);
    if (tags_.empty()) tags_ = ":";
}

void CommentTags::DropFactors() {
    constexpr std::string_view name = "UFactor";
    for (std::size_t at = tags_.find(name); at != std::string::npos; at = tags_.find(name)) {
        const std::size_t colon = tags_.find(':', at + name.size() + 1); // behind its own colon
        tags_.erase(at, colon == std::string::npos ? colon : colon + 1 - at);
    }
}

void CommentTags::ChangePrecisions(
    const std::function<std::string(const std::string&, const std::string&)>& changed) {
    RewritePrecisions([&](const std::string& code, const std::string& typed) {
        return code + ":" + changed(code, typed);
    });
}

void CommentTags::ChangePrecisionCodes(
    const std::function<std::string(const std::string&)>& changed) {
    RewritePrecisions([&](const std::string& code, const std::string& typed) {
        return changed(code) + ":" + typed;
    });
}

void CommentTags::RewritePrecisions(
    const std::function<std::string(const std::string&, const std::string&)>& rewritten) {
    if (tags_.empty()) return;
    const std::size_t first = isComment_ ? 1 : 0; // behind the first of the two that open the tags
    std::string result = tags_.substr(0, first);
    for (std::size_t at = first; at < tags_.size();) {
        const std::size_t codeEnd = tags_.find(':', at + 1);
        const std::size_t valueEnd =
            codeEnd == std::string::npos ? codeEnd : tags_.find(':', codeEnd + 1);
        const bool isPrecision = tags_.compare(at, 2, ":d") == 0;
        if (!isPrecision || valueEnd == std::string::npos) {
            result += tags_.substr(at, codeEnd == std::string::npos ? codeEnd : codeEnd - at);
            at = std::min(codeEnd, tags_.size());
            continue;
        }
        const std::string code = tags_.substr(at + 2, codeEnd - at - 2);
        const std::string typed = tags_.substr(codeEnd + 1, valueEnd - codeEnd - 1);
        result += ":d" + rewritten(code, typed);
        at = valueEnd;
    }
    tags_ = std::move(result);
}

std::string CommentDisplayText(std::string_view comment) {
    CommentTags tags(comment);
    tags.TakeFreeMethod();
    std::string text = tags.Stored();
    const std::size_t firstPrecision = text.find(":d");
    // The mark of a precision goes, its colon reads as "=".
    for (std::size_t at = firstPrecision; at != std::string::npos; at = text.find(":d", at))
        text[at] = ' ';
    if (firstPrecision != std::string::npos)
        std::replace(text.begin() + static_cast<std::ptrdiff_t>(firstPrecision), text.end(), ':',
                     '=');
    // In "::Method:PYC:" the colons behind the name of the first tag read as blanks; the two that
    // open the tags stay.
    const std::size_t eighth = ByteOffset(text, 8);
    std::replace(text.begin() + static_cast<std::ptrdiff_t>(eighth), text.end(), ':', ' ');
    return text;
}

} // namespace vexora
