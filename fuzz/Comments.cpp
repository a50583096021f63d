#include <optional>
#include <string>

#include "FuzzRoom.h"
#include "Target.h"
#include "chem/CommentTags.h"

namespace vexora::fuzz {

namespace {

/// Words and pairs go in and come out again; the operator's text stays.
void TryChanges(std::string_view comment) {
    CommentTags tags(comment);
    const std::string front = tags.Text();
    if (!tags.Has("gasfree")) {
        tags.Set("gasfree", true);
        Must(tags.Has("gasfree"), "a word that was put in is there");
        tags.Set("gasfree", false);
        Must(!tags.Has("gasfree"), "a word that was taken out is gone");
    }
    const bool hadMethod = tags.Stored().find("Method:") != std::string::npos;
    tags.Add("Method", "PYC");
    Must(hadMethod || tags.Value("Method") == "PYC", "a pair that was put in is read");
    tags.Take("Method");
    tags.TakePrecision("T");
    tags.TakeState();
    tags.TakeFreeMethod();
    tags.DropBeginning("P =");
    tags.DropFactors();
    tags.ChangePrecisions([](const std::string&, const std::string& typed) { return typed; });
    tags.ChangePrecisionCodes([](const std::string& code) { return code; });
    Must(tags.Text() == front, "work on the tags leaves the text of the operator");
}

} // namespace

void Try(std::string_view text) {
    static Room room;
    const CommentTags tags(text);
    Must(tags.Stored() == text, "a comment that is only read comes back byte by byte");
    for (const std::string_view code : {"T", "P", "X1"}) {
        tags.Precision(code);
        tags.Constant(code);
    }
    tags.TrimmedValue("sMethod");
    CommentDisplayText(text);
    CommentTags::OfTags(text).Close();
    TryChanges(text);
}

} // namespace vexora::fuzz
