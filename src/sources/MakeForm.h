#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "sources/EntryFields.h"
#include "sources/MakeForms.h"
#include "sources/frmDocument.h"

namespace vexora {

/// The text with what stands before and behind it, "" for an empty text.
std::string PartText(std::string_view before, std::string_view text, std::string_view behind = {});
/// A part of a source text without the marks that part such a text.
std::string WithoutMarks(std::string_view text);

/// Takes a source text apart from its beginning.
class SourceReader {
public:
    explicit SourceReader(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }

    /// The text between two marks if it stands here.
    std::string Marked(char mark) {
        if (!rest_.starts_with(mark) || rest_.find(mark, 1) == std::string::npos) return {};
        rest_.erase(0, 1);
        return UpTo(std::string(1, mark));
    }

    /// Passes over a text if it stands here.
    bool Skip(std::string_view text) {
        if (!rest_.starts_with(text)) return false;
        rest_.erase(0, text.size());
        return true;
    }

    /// What stands in front of the first `end`, which is passed over; everything if there is none.
    std::string UpTo(std::string_view end) { return Cut(rest_.find(end), end.size()); }
    /// What stands in front of the last `end`, or everything; the reader keeps what is behind it.
    std::string UpToLast(std::string_view end) { return Cut(rest_.rfind(end), end.size()); }
    std::string Rest() { return Cut(std::string::npos, 0); }
    /// True when the first text stands here in front of the second one.
    bool IsBefore(std::string_view first, std::string_view second) const {
        return rest_.find(first) < rest_.find(second);
    }

private:
    std::string Cut(std::size_t length, std::size_t passedOver) {
        std::string text = rest_.substr(0, length);
        rest_.erase(0, length == std::string::npos ? length : length + passedOver);
        return text;
    }

    std::string rest_;
};

/// What the forms for the details of a publication have in common. The fields stand below one
/// another in their order of declaration. Accepted unchanged, a form leaves the source text alone;
/// the parts of a text that was built here are shown as they were typed, as long as the description
/// of the document is open, for the text alone does not tell what a comma parts.
class MakeForm : public ui::Form {
public:
    void Load() override;

    /// Puts a text into a field; a name that is not there is passed over.
    void Enter(std::string_view name, const std::string& text);
    /// What the fields as they stand make.
    SourceText Made() const;

protected:
    /// What stands before and behind a part in the source text.
    struct Frame {
        std::string_view before, behind;
    };

    /// A field for one part; the marks of the source text are kept out of it. One that has to be
    /// filled says what is missing.
    class Part : public PlainTextBox {
    public:
        Part(MakeForm& form, std::string name, const std::string& label, Frame frame = {},
             std::string missing = {});
    };

    /// A list for a part that has to be chosen or typed.
    class Choice : public CompletingCombo {
    public:
        Choice(MakeForm& form, std::string name, const std::string& label, std::string missing,
               std::string prompt, std::string table, std::string column);
    };

    struct Asked {
        ui::Layout layout;
        ui::Control* field = nullptr;
        std::function<std::string()> entered = {};
        std::function<void(const std::string&)> enter = {};
        Frame frame = {};
        std::string missing = {};

        bool IsMissing() const { return !missing.empty() && entered().empty(); }
    };

    MakeForm(std::string name, std::string caption);

    /// Fills lists before the parts are shown.
    virtual void Prepare() {}
    /// The source text, here one part behind the other.
    virtual std::string Compose() const;
    /// Fills the fields from a text that Compose may have built, as far as it can be taken apart.
    virtual void TakeApart(SourceReader reader) = 0;

    bool IsManuscript() const { return Document() && Document()->IsManuscript(); }

    std::vector<Asked> asked_;

private:
    void Arrange();
    void Show(const std::string& source);
    std::vector<std::string> Entered() const;
    void Accept();

    /// The description of the document below this form, or null.
    static frmDocument* Document();

    std::vector<std::string> shown_; // parts as the form opened with them
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
};

} // namespace vexora
