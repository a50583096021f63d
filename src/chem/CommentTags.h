#pragma once

#include <string>
#include <string_view>

namespace vexora {

class clsProperty;

/// The tags that ride in the comment of a data set behind "::". A comment reads
///   text "::Method:" code KeyRest ["UFactor:" f ":"] ["d" code ":" precision ":"]...
///   ["sMethod:" text ":"] ["FP:" | "PB:"]
/// All functions work on CurrentMethod and KeyRest of the globals.

/// Takes f and Method out of KeySaved, which begins at the "::" of the comment.
void SplitCommentTags();
/// Takes the precision of each item of the chain out of KeySaved; what is left goes into KeyRest.
void DecodePrecisionTags(clsProperty& head);
/// Composes KeySaved from Method, KeyRest, f and the precisions of the chain.
void EncodeTags(const clsProperty& head);
/// Takes the free-text method out of a comment into sMethod; the answer is the comment without it.
std::string TakeSMethod(std::string_view comment);
/// The comment with the free-text method behind it, when there is one and the method code asks for
/// it.
std::string AppendSMethod(std::string_view comment);
/// A stored comment as trees and reports show it.
std::string CommentDisplayText(std::string_view comment);
/// Brings the flag tags of KeyVolatile in line with the words of a sample's description.
void SyncSampleFlags(std::string_view sampleDescription);

/// The operator's text of a comment: what stands in front of the first "::", trimmed, "&" as empty.
std::string CommentText(std::string_view comment);
/// The tags of a comment from the first "::" on, or empty.
std::string CommentTagPart(std::string_view comment);
/// The text of one tag of a comment, such as "Method" or "sMethod"; empty when it is not there.
std::string CommentTag(std::string_view comment, std::string_view name);
/// Takes the tag ":PB:" or ":FP:" out of a comment; the answer is "PB", "FP" or empty. It is to run
/// before TakeSMethod, which would cut the colon that both tags share.
std::string TakeState(std::string& comment);
/// Builds the comment of a data set from the operator's text, the globals and the chain. state is
/// "FP", "PB" or empty. The operator's text is cut at "::".
std::string BuildComment(std::string_view text, const clsProperty& head, std::string_view state);

} // namespace vexora
