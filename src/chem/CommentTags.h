#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vexora {

/// The tags that ride in the comment of a data set: words (":gasfree:") and pairs of name and value
/// (":Method:PYC:") between colons, behind the first "::" of the comment. A comment reads
///   text "::Method:" code tags ["UFactor:" f ":"] ["d" code ":" precision ":"]...
///   ["sMethod:" text ":"] ["FP:" | "PB:"]
/// Neighbours share their colon. Tags keep their order; what nobody asks for stays as it stands,
/// odd or not, so that a comment that was only read comes back byte by byte.
/// Whoever has a comment in hand makes one of these, changes it and puts Stored() back. It is the
/// only reader and writer of tags, so that a form and the export never disagree about one.
class CommentTags {
public:
    /// What happens to the closing colon of a pair that is taken out.
    /// Files close their tags in two ways, and what is not asked for must come back as it was.
    enum class Colon { Stays, Goes };

    /// The tags of a stored comment; none when it has no "::".
    explicit CommentTags(std::string_view comment);
    /// A text that is tags from end to end, such as KeyRest. For a whole comment it means that tags
    /// are found in the operator's text as well.
    static CommentTags OfTags(std::string_view tags);
    /// True for the words that mean something of their own, which no statement of a method may use.
    static bool IsOwnWord(std::string_view word);

    /// The operator's text: what stands in front of the tags, trimmed, "&" as empty.
    std::string Text() const;
    /// The tags with the "::" in front of them, or empty.
    const std::string& Tags() const { return tags_; }
    /// The whole text again.
    std::string Stored() const { return front_ + tags_; }

    /// Whether the word stands between two colons; never for the empty word.
    bool Has(std::string_view word) const;
    /// The value of the first pair of this name as it stands, up to the next colon or the end;
    /// empty when there is none.
    std::string Value(std::string_view name) const;
    /// The same without white space at its ends.
    std::string TrimmedValue(std::string_view name) const;
    /// The precision stated for a quantity, trimmed.
    /// The tag is "d" and the code of the quantity; "%" stands behind a figure that is relative.
    std::string Precision(std::string_view code) const;
    /// The value x of a tag ":P = x:", which all rows have in common, as it stands; empty when
    /// there is none.
    /// Always in the system unit of the variable (K, kPa, MHz; WL in A), since the tag names no
    /// unit.
    std::string Constant(std::string_view code) const;

    /// Puts a word in behind the others unless it is there, or takes it out wherever it stands. The
    /// tags then begin and end with a colon.
    /// An empty word only opens and closes the tags.
    void Set(std::string_view word, bool on);
    /// Puts a pair in behind the others, which are closed before.
    /// The value must hold no colon: it would end the value there.
    void Add(std::string_view name, std::string_view value);
    /// Gives tags that are there their last colon.
    void Close();

    /// Takes the first pair of this name out; the answer is its value as it stands. One that is not
    /// closed reaches to the end and takes its leading colon along.
    std::optional<std::string> Take(std::string_view name, Colon closing = Colon::Stays);
    /// Takes the precision of a quantity out; its leading colon stays, also where it is not closed.
    std::optional<std::string> TakePrecision(std::string_view code);
    /// Takes the free-text method out, and at the end of the tags its closing colon too. One that
    /// is not closed loses its last letter; stored comments are read that way.
    std::string TakeFreeMethod();
    /// Takes the first tag ":PB:", else ":FP:", out; the answer is "PB", "FP" or empty. It is to
    /// run before TakeFreeMethod, which would cut the colon that both tags share.
    std::string TakeState();
    /// Takes out all tags that begin with these words, each to the next colon; ":" is left of none.
    void DropBeginning(std::string_view words);
    /// Takes out every "UFactor" and the value behind it, in a longer word too.
    void DropFactors();

    /// Puts `changed(code, typed)` in the place of each precision that is closed.
    void ChangePrecisions(
        const std::function<std::string(const std::string&, const std::string&)>& changed);
    /// Puts `changed(code)` in the place of the code of each of them.
    void ChangePrecisionCodes(const std::function<std::string(const std::string&)>& changed);

private:
    struct Pair {
        std::size_t begin = 0, valueAt = 0, end = 0; // its leading colon, its value, the next colon
        bool isClosed = false;                       // else `end` is the end of the tags
    };

    CommentTags() = default;
    /// Puts other text in the place of "code:precision" wherever it stands closed.
    void RewritePrecisions(
        const std::function<std::string(const std::string&, const std::string&)>& rewritten);
    std::optional<Pair> Find(std::string_view opening) const;
    std::string ValueOf(const Pair& pair) const;
    /// Gives the tags their first and their last colon.
    void Open();

    std::string front_; // operator's text as it stands, with the blank behind it
    std::string tags_;
    bool isComment_ = true; // else the text is tags from end to end
};

/// A stored comment as trees and reports show it.
/// Method and flags read as words there and a precision as an equation; the text is for reading and
/// is never parsed again.
std::string CommentDisplayText(std::string_view comment);

} // namespace vexora
