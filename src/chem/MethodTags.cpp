#include "chem/MethodTags.h"

#include "chem/CommentTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "globals/KVOGlobal.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <array>
#include <cmath>

namespace vexora {

namespace {

constexpr std::array<std::string_view, 4> SampleFlags = {"fd", "db", "cm", "av"};

clsMethod& Method() {
    auto& method = Globals().CurrentMethod;
    if (!method) method = std::make_shared<clsMethod>();
    return *method;
}

/// A number, perhaps per cent: what may stand in a precision tag.
bool IsPrecision(std::string_view text) {
    text = TrimBlanks(text);
    if (text.ends_with('%')) text.remove_suffix(1);
    return IsNumeric(text);
}

void TakePrecision(clsProperty& item, CommentTags& tags) {
    const auto stated = tags.TakePrecision(item.PropertyCode);
    if (!stated) return;
    item.PrecisionText = *stated;
    if (stated->empty()) return;
    if (stated->find('%') == std::string::npos) {
        item.PRECISION = Val(*stated);
        return;
    }
    // A precision is never negative, be the value what it may.
    const std::string percent = Substring(*stated, 1, CodePointCount(*stated) - 1);
    item.PRECISION = std::abs(Val(percent) * item.Value) / 100;
}

} // namespace

void SplitCommentTags() {
    clsMethod& method = Method();
    CommentTags tags = CommentTags::OfTags(method.KeySaved);
    method.Method = tags.Take("Method").value_or("");
    const auto factor = tags.Take("UFactor");
    method.f = factor ? Val(*factor) : 1;
    method.KeySaved = tags.Stored();
}

void DecodePrecisionTags(clsProperty& head) {
    clsMethod& method = Method();
    if (method.KeyVolatile.empty()) method.KeyVolatile = "::";
    CommentTags tags = CommentTags::OfTags(method.KeySaved.empty() ? "::" : method.KeySaved);
    for (clsProperty* item = &head; item; item = item->isLast ? nullptr : item->NextItem.get())
        TakePrecision(*item, tags);
    // Where a file states two methods the second one holds.
    if (const auto code = tags.Take("Method", CommentTags::Colon::Goes)) method.Method = *code;
    method.KeySaved = tags.Stored();
    std::string& keyRest = Globals().KeyRest;
    keyRest = method.KeySaved;
    // One colon stays: the tags that a dialog puts in front end with none.
    while (keyRest.starts_with("::"))
        keyRest.erase(0, 1);
}

void EncodeTags(const clsProperty& head) {
    clsMethod& method = Method();
    std::string& keyRest = Globals().KeyRest;
    CommentTags rest = CommentTags::OfTags(keyRest.empty() || keyRest == "::" ? ":" : keyRest);
    rest.DropFactors(); // f of the method takes their place
    // Taking a free-text method off the end takes the colon of the tag in front of it as well.
    rest.Close();
    keyRest = rest.Tags().empty() ? ":" : rest.Stored();
    const std::string begin = method.Method.empty() ? ":" : "::Method:" + method.Method;
    CommentTags saved = CommentTags::OfTags(begin + keyRest);
    // Through the text once, so that the file holds the digits that were shown.
    if (method.f > 0 && method.f != 1) saved.Add("UFactor", NumberText(Val(NumberText(method.f))));
    for (const clsProperty* item = &head; item;
         item = item->isLast ? nullptr : item->NextItem.get()) {
        if (!IsPrecision(item->PrecisionText)) continue;
        saved.Add("d" + item->PropertyCode, TrimBlanks(item->PrecisionText));
    }
    method.KeySaved = saved.Stored();
}

std::string TakeSMethod(std::string_view comment) {
    CommentTags tags(comment);
    Method().sMethod = tags.TakeFreeMethod();
    return tags.Stored();
}

std::string AppendSMethod(std::string_view comment) {
    const clsMethod& method = Method();
    const bool asked = method.Method == "OTHER" || method.Method.empty();
    if (method.sMethod.empty() || !asked) return std::string(comment);
    // The comment ends with a colon, which opens this tag. A colon in the words would end them.
    return std::string(comment) + "sMethod:" + Replace(method.sMethod, ":", " ") + ":";
}

void SyncSampleFlags(std::string_view sampleDescription) {
    CommentTags flags = CommentTags::OfTags(":");
    for (const std::string_view word : SampleFlags)
        if (sampleDescription.find(word) != std::string_view::npos) flags.Set(word, true);
    Method().KeyVolatile = flags.Stored();
}

std::string BuildComment(std::string_view text, const clsProperty& head, std::string_view state) {
    EncodeTags(head);
    std::string tags = Method().KeySaved;
    // The empty pair opens the tags where no method does.
    if (Method().Method.empty()) tags.insert(1, ":Method:");
    std::string words = SingleLine(text);
    // A doubled colon would open the tags and end the operator's words.
    for (std::size_t at = words.find("::"); at != std::string::npos; at = words.find("::"))
        words.insert(at + 1, " ");
    std::string comment = CommentTags(words).Text();
    if (!comment.empty()) comment += " ";
    comment = AppendSMethod(comment + tags);
    if (!state.empty()) comment += std::string(state) + ":";
    return comment;
}

} // namespace vexora
