#pragma once

#include <string>
#include <string_view>

namespace vexora {

class clsProperty;

// The tags of a comment between the record and the dialog that is open: what CurrentMethod of the
// globals and the chain of quantities hold of them, and KeyRest, which keeps all others.
// SplitCommentTags and DecodePrecisionTags run once, when a dialog opens; EncodeTags and
// BuildComment when it is accepted. They work on the globals and so belong to one dialog at a time.

/// Takes f and Method out of KeySaved, which begins at the "::" of the comment.
/// A comment without "UFactor" has the factor 1.
void SplitCommentTags();
/// Takes the precision of each item of the chain out of KeySaved; what is left goes into KeyRest.
/// Per cent becomes a figure of the value that the item holds now, as an absolute value.
void DecodePrecisionTags(clsProperty& head);
/// Composes KeySaved from Method, KeyRest, f and the precisions of the chain.
/// A precision that is no number is not written, a factor of 1 neither.
void EncodeTags(const clsProperty& head);
/// Takes the free-text method out of a comment into sMethod; the answer is the comment without it.
std::string TakeSMethod(std::string_view comment);
/// The comment with the free-text method behind it, when there is one and the method code asks for
/// it.
std::string AppendSMethod(std::string_view comment);
/// Brings the flag tags of KeyVolatile in line with the words of a sample's description.
/// They tell how the sample was treated ("fd", fractional distillation), are of the sample and
/// never stored with the data.
void SyncSampleFlags(std::string_view sampleDescription);
/// Builds the comment of a data set from the operator's text, the globals and the chain. state is
/// "FP", "PB" or empty. The operator's text is cut at "::".
std::string BuildComment(std::string_view text, const clsProperty& head, std::string_view state);

} // namespace vexora
