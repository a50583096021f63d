#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sources/EntryFields.h"
#include "ui/Form.h"

namespace vexora {

class frmDocument;

/// What the forms for the details of a publication have in common. Each asks for the parts of one
/// kind of publication, and on Accept builds from them the one source text of the description of
/// the document, which stands open below it. Opened again it shows the parts of the present text.
class MakeForm : public ui::Form {
public:
    void Load() override;

protected:
    /// A field for one part; the marks of the source text are kept out of it.
    class Part : public PlainTextBox {
    public:
        Part(ui::Form& form, std::string name);
    };

    MakeForm(std::string name, std::string caption);
    /// The form's own buttons; called at the end of its constructor.
    void UseButtons(ui::CommandButton& accept, ui::CommandButton& cancel);

    /// Fills lists before the parts are shown.
    virtual void Prepare() {}
    /// Tells what is missing and puts the focus there.
    virtual bool Check() = 0;
    virtual std::string Compose() const = 0;
    /// Fills the fields from a text that Compose may have built, as far as it can be taken apart.
    virtual void TakeApart(std::string_view source) = 0;

    /// False, with the message and the focus on the field, when nothing is entered.
    template <class Field>
    bool Require(Field& field, const std::string& message) {
        return !field.Entered().empty() || Refuse(field, message);
    }
    /// The description of the document below this form, or null.
    static frmDocument* Document();

private:
    void cmdAccept_Click();
};

/// The text with marks around it, "" for an empty text.
std::string PartText(std::string_view before, std::string_view text, std::string_view behind = {});
/// Without the characters that mark the parts of a source text.
std::string WithoutMarks(std::string_view text);

/// Takes a source text apart from its beginning.
class SourceReader {
public:
    explicit SourceReader(std::string_view text) : rest_(text) {}
    /// The text between two marks if it stands here.
    std::string Marked(char mark);
    /// Passes over a text if it stands here.
    bool Skip(std::string_view text);
    /// What stands in front of the first `end`, which is passed over; everything if there is none.
    std::string UpTo(std::string_view end);
    /// What stands in front of the last `end`, or everything; the reader keeps what is behind it.
    std::string UpToLast(std::string_view end);
    std::string Rest();
    bool AtEnd() const { return rest_.empty(); }

private:
    std::string Cut(std::size_t length, std::size_t passedOver);

    std::string rest_;
};

} // namespace vexora
