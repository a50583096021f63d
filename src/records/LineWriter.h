#pragma once

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vexora {

/// Takes the lines of a record file, into memory or, part by part, to whoever wants them. The
/// framing is one for all classes: fields parted by blanks, "&" for an empty field, "\n" at the
/// line's end.
class LineWriter {
public:
    using Taker = std::function<void(std::string_view)>;
    /// Collects the text.
    LineWriter() = default;
    /// Hands the text on in parts of some size, the last one with Flush.
    explicit LineWriter(Taker taker) : taker_(std::move(taker)) {}

    /// Writes one field of a line, a blank in front of all but the first; End ends the line.
    void Field(std::string_view field);
    void End();
    /// Writes one line as it stands; line breaks inside become blanks.
    void Line(std::string_view line);
    /// Writes the fields parted by one blank, "&" for each empty one.
    void Fields(const std::vector<std::string>& fields);
    /// The same, and behind them the rest of the line as it stands ("&" when empty).
    void Fields(const std::vector<std::string>& fields, std::string_view rest);
    void Blank();
    /// What a record has to say to the user about its lines; writing goes on.
    void Tell(std::string notice) { notices_.push_back(std::move(notice)); }

    /// Also what the record file leaves out: compounds and mixtures that nothing hangs on yet.
    bool WritesAll = false;

    void Flush();

    /// What has been collected.
    const std::string& Text() const { return text_; }
    std::string TakeText() { return std::move(text_); }
    const std::vector<std::string>& Notices() const { return notices_; }
    std::vector<std::string> TakeNotices() { return std::move(notices_); }

private:
    Taker taker_;
    std::string text_;
    std::size_t lineBegin_ = 0; // of the line that is being written
    std::vector<std::string> notices_;
};

/// A record that cannot be written without falsifying it; the text names it for the user. Saving
/// stops before the file is touched.
class SaveRefused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Appends a field to a line that begins: a blank in front, "&" for an empty one, and "_" for each
/// blank inside, which would shift all words behind it.
/// An empty field must not vanish: reading counts words.
void AppendField(std::string& line, std::string_view field);
/// "&" for an empty field, else the field.
std::string OrPlaceholder(std::string_view field);
/// A field as it was before OrPlaceholder: "&" is empty.
std::string WithoutPlaceholder(std::string_view field);
/// Blanks of a field that is one word in the file, and back.
std::string BlanksToUnderscores(std::string_view field);
std::string UnderscoresToBlanks(std::string_view field);

} // namespace vexora
