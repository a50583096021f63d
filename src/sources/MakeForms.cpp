#include "sources/MakeForms.h"

#include <functional>
#include <utility>

#include "globals/KVOGlobal.h"
#include "reference/Text.h"
#include "sources/EntryFields.h"
#include "sources/frmDocument.h"

namespace vexora {

namespace {

constexpr std::string_view Marks = "@$"; // they part a source text

/// The text with marks around it, "" for an empty text.
std::string PartText(std::string_view before, std::string_view text, std::string_view behind = {}) {
    if (text.empty()) return {};
    return std::string(before) + std::string(text) + std::string(behind);
}

std::string WithoutMarks(std::string_view text) {
    return Replace(Replace(text, "@", ""), "$", "");
}

/// Takes a source text apart from its beginning.
class SourceReader {
public:
    explicit SourceReader(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }
    bool Holds(std::string_view text) const { return rest_.find(text) != std::string::npos; }

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

private:
    std::string Cut(std::size_t length, std::size_t passedOver) {
        std::string text = rest_.substr(0, length);
        rest_.erase(0, length == std::string::npos ? length : length + passedOver);
        return text;
    }

    std::string rest_;
};

/// What these forms have in common. The fields stand below one another in their order of
/// declaration.
class MakeForm : public ui::Form {
public:
    void Load() override {
        Arrange();
        const ui::FillingScope filling(*this);
        Prepare();
        const std::string source = Document() ? Document()->Source() : "";
        if (!source.empty()) TakeApart(SourceReader(source));
    }

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
             std::string missing = {})
            : PlainTextBox(form, std::move(name), Lines::One, Marks) {
            form.Ask(*this, ui::Field(label, *this), frame, std::move(missing));
        }
    };

    /// A list for a part that has to be chosen or typed.
    class Choice : public CompletingCombo {
    public:
        Choice(MakeForm& form, std::string name, const std::string& label, std::string missing,
               std::string prompt, std::string table, std::string column)
            : CompletingCombo(form, std::move(name), std::move(prompt), std::move(table),
                              std::move(column)) {
            form.Ask(*this, ui::Field(label, *this), {", ", ""}, std::move(missing));
        }
    };

    struct Asked {
        ui::Layout layout;
        ui::Control* field = nullptr;
        std::function<std::string()> entered = {};
        Frame frame = {};
        std::string missing = {};
    };

    MakeForm(std::string name, std::string caption) : Form(std::move(name), std::move(caption)) {
        PreferredColumns = 60;
        UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
    }

    /// Fills lists before the parts are shown.
    virtual void Prepare() {}
    /// The source text, here one part behind the other.
    virtual std::string Compose() const {
        std::string text;
        for (const Asked& one : asked_) {
            if (!one.entered) continue;
            const std::string entered = WithoutMarks(one.entered());
            text += PartText(one.frame.before, entered, one.frame.behind);
        }
        return text;
    }
    /// Fills the fields from a text that Compose may have built, as far as it can be taken apart.
    virtual void TakeApart(SourceReader reader) = 0;

    bool IsManuscript() const { return Document() && Document()->IsManuscript(); }

    std::vector<Asked> asked_;

private:
    template <class Field>
    void Ask(Field& field, ui::Layout layout, Frame frame, std::string missing) {
        asked_.push_back({std::move(layout), &field, [&field] { return field.Entered(); }, frame,
                          std::move(missing)});
    }

    void Arrange() {
        for (Asked& one : asked_)
            Arrangement.parts.push_back(one.layout);
        Arrangement.parts.push_back(ui::Stretch());
        Arrangement.parts.push_back(ui::ButtonRow({cmdAccept, cmdCancel}));
        TabAlongArrangement();
    }

    void Accept() {
        for (const Asked& one : asked_) {
            if (one.missing.empty() || !one.entered().empty()) continue;
            Refuse(*one.field, one.missing);
            return;
        }
        if (Document()) Document()->Source(Compose());
        Close();
    }

    /// The description of the document below this form, or null.
    static frmDocument* Document() { return ui::Forms::Current().Find<frmDocument>("frmDocument"); }

    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
};

/// The last two parts are a text and a date, and one may be missing; only a date has figures.
void TakeTextAndDate(SourceReader& reader, ui::TextBox& text, ui::TextBox& date) {
    const std::string first = reader.UpToLast(", ");
    const bool dateAlone = reader.AtEnd() && first.find_first_of("0123456789") != first.npos;
    text.Text(dateAlone ? "" : first);
    date.Text(dateAlone ? first : reader.Rest());
}

class frmMakeBook : public MakeForm {
public:
    frmMakeBook() : MakeForm("frmMakeBook", "Book or portion of a book") {}

private:
    Part title_{*this, "txtTitle", "Book title:", {"@", "@"}, "Enter book title"};
    Part edition_{*this, "txtEdition", "Edition:", {", ", " ed."}};
    Part volume_{*this, "txtVolume", "Volume:", {", Vol. ", ""}};
    Part chapter_{*this, "txtChapter", "Chapter:", {", Ch. ", ""}};
    Part pages_{*this, "txtPages", "Page(s):", {", Pg. ", ""}};
    Part editor_{*this, "txtEditor", "Editor(s):", {", ", ", Ed."}};
    Choice publisher_{*this,
                      "cboPublisher",
                      "Publisher:",
                      "Select or type the publisher",
                      "SELECT OR TYPE THE PUBLISHER HERE",
                      "Publishers",
                      "Publisher"};

    void Prepare() override { publisher_.Fill(); }

    void TakeApart(SourceReader reader) override {
        title_.Text(reader.Marked('@'));
        reader.Skip(", ");
        std::string unmarked; // parts that bear no word of their own: editors, then the publisher
        while (!reader.AtEnd()) {
            const std::string part = reader.UpTo(", ");
            if (part == "Ed.")
                editor_.Text(std::exchange(unmarked, {}));
            else if (!TakeLabelled(part))
                unmarked += PartText(unmarked.empty() ? "" : ", ", part);
        }
        publisher_.Enter(unmarked);
    }

    bool TakeLabelled(const std::string& part) {
        if (part.ends_with(" ed.") && edition_.IsEmpty()) {
            edition_.Text(part.substr(0, part.size() - 4));
            return true;
        }
        const std::pair<std::string_view, Part*> labelled[] = {
            {"Vol. ", &volume_}, {"Ch. ", &chapter_}, {"Pg. ", &pages_}};
        for (const auto& [label, field] : labelled) {
            if (!part.starts_with(label) || !field->IsEmpty()) continue;
            field->Text(part.substr(label.size()));
            return true;
        }
        return false;
    }
};

/// An article, or a submitted manuscript, which has an identifier in place of pages.
class frmMakeJournal : public MakeForm {
public:
    frmMakeJournal() : MakeForm("frmMakeJournal", "Journal article") {
        asked_.back().layout = ui::Field(lblPages_, pages_);
    }

private:
    Choice journal_{*this,
                    "cboJournal",
                    "Journal:",
                    "Enter journal title",
                    "SELECT OR TYPE JOURNAL TITLE HERE",
                    "Journals",
                    "ShortTitle"};
    Part volume_{*this, "txtVolume", "Volume:"};
    Part issue_{*this, "txtIssue", "Issue:"};
    ui::Label lblPages_{*this, "lblPages", "Page(s): First ( - Last)"};
    Part pages_{*this, "txtPages", "", {}, "Enter page(s)"};

    void Prepare() override {
        journal_.Fill();
        if (!IsManuscript()) return;
        Caption("Submitted manuscript");
        asked_.back().missing = "Enter manucsript ID";
        const bool knownJournal = Globals().ContributorCode == "JCE";
        lblPages_.Caption(knownJournal ? "Manuscript ID: (e.g., je000490a)" : "Manuscript ID:");
        if (knownJournal) journal_.Enter("J.Chem.Eng.Data");
    }

    std::string Compose() const override {
        const std::string volume = volume_.Entered();
        const std::string issue = issue_.Entered();
        const std::string number = volume.empty() ? PartText(" No. ", issue)
                                                  : " $" + volume + "$" + PartText("(", issue, ")");
        return "@" + WithoutMarks(journal_.Entered()) + "@" + number +
               PartText(", ", pages_.Entered());
    }

    void TakeApart(SourceReader reader) override {
        journal_.Enter(reader.Marked('@'));
        reader.Skip(" ");
        volume_.Text(reader.Marked('$'));
        if (reader.Skip("("))
            issue_.Text(reader.UpTo(")"));
        else if (reader.Skip("No. "))
            issue_.Text(reader.UpToLast(", "));
        reader.Skip(", ");
        pages_.Text(reader.Rest());
    }
};

class frmMakeReport : public MakeForm {
public:
    frmMakeReport() : MakeForm("frmMakeReport", "Report") {}

private:
    Part name_{*this, "txtName", "Report name:", {"@", "@ "}, "Enter report name"};
    Part no_{*this, "txtNo", "Report No:", {"", "@ "}, "Enter report No"};
    Part institution_{*this, "txtInst", "Institution:", {}, "Enter institution name"};
    Part location_{*this, "txtLoc", "Location:", {", ", ""}};

    void TakeApart(SourceReader reader) override {
        name_.Text(reader.Marked('@'));
        reader.Skip(" ");
        no_.Text(reader.UpTo("@ "));
        institution_.Text(reader.UpTo(", "));
        location_.Text(reader.Rest());
    }
};

class frmMakePatent : public MakeForm {
public:
    frmMakePatent() : MakeForm("frmMakePatent", "Patent") {}

private:
    Part country_{*this, "txtCountry", "Country:", {"", " Patent "}, "Enter country"};
    Part no_{*this, "txtNo", "Patent No:", {}, "Enter patent No"};
    Part owner_{*this, "txtOwner", "Owner:", {", ", ""}};
    Part date_{*this, "txtDate", "Date:", {", ", ""}};

    void TakeApart(SourceReader reader) override {
        country_.Text(reader.UpTo(" Patent "));
        no_.Text(reader.UpTo(", "));
        TakeTextAndDate(reader, owner_, date_);
    }
};

class frmMakeThesis : public MakeForm {
public:
    frmMakeThesis() : MakeForm("frmMakeThesis", "Thesis/Dissertation") {
        asked_.insert(asked_.begin() + 1, Asked{ui::Row({optT_, optD_})});
        optT_.Value(true);
    }

private:
    Part degree_{*this, "txtDegree", "Degree:", {}, "Enter degree"};
    ui::OptionButton optT_{*this, "optT", "Thesis"};
    ui::OptionButton optD_{*this, "optD", "Dissertation"};
    Part institution_{*this, "txtInst", "Institution:", {}, "Enter institution name"};
    Part location_{*this, "txtLoc", "Location:"};

    std::string Compose() const override {
        return degree_.Entered() + (optD_.Value() ? " Dissertation" : " Thesis") +
               PartText(", ", institution_.Entered()) + PartText(", ", location_.Entered());
    }

    void TakeApart(SourceReader reader) override {
        const bool isThesis = reader.Holds(" Thesis");
        degree_.Text(reader.UpTo(isThesis ? " Thesis" : " Dissertation"));
        (isThesis ? optT_ : optD_).Value(true);
        reader.Skip(", ");
        institution_.Text(reader.UpTo(", "));
        location_.Text(reader.Rest());
    }
};

/// A contribution to a conference.
class frmMakeConf : public MakeForm {
public:
    frmMakeConf() : MakeForm("frmMakeConf", "Conference proceedings") {}

private:
    Part name_{*this, "txtName", "Conference name:", {"@", "@"}, "Enter conference name"};
    Part location_{*this, "txtLoc", "Location:", {", ", ""}};
    Part date_{*this, "txtDate", "Date:", {", ", ""}};
    Part pages_{*this, "txtPages", "Page(s):", {", pp ", ""}};

    void TakeApart(SourceReader reader) override {
        name_.Text(reader.Marked('@'));
        SourceReader place(reader.UpToLast(", pp "));
        pages_.Text(reader.Rest());
        place.Skip(", ");
        TakeTextAndDate(place, location_, date_);
    }
};

class frmMakeDeposited : public MakeForm {
public:
    frmMakeDeposited() : MakeForm("frmMakeDeposited", "Deposited document") {}

private:
    Part no_{*this, "txtNo", "Document No:", {"@Deposited Document@ ", " "}, "Enter document No"};
    Part institution_{*this, "txtInst", "Institution:", {}, "Enter institution name"};
    Part pages_{*this, "txtPages", "Page(s):", {", pp", ""}};

    void TakeApart(SourceReader reader) override {
        reader.Marked('@');
        reader.Skip(" ");
        no_.Text(reader.UpTo(" "));
        institution_.Text(reader.UpToLast(", pp"));
        pages_.Text(reader.Rest());
    }
};

} // namespace

void RegisterMakeForms(ui::Forms& forms) {
    forms.Register<frmMakeBook>("frmMakeBook");
    forms.Register<frmMakeJournal>("frmMakeJournal");
    forms.Register<frmMakeReport>("frmMakeReport");
    forms.Register<frmMakePatent>("frmMakePatent");
    forms.Register<frmMakeThesis>("frmMakeThesis");
    forms.Register<frmMakeConf>("frmMakeConf");
    forms.Register<frmMakeDeposited>("frmMakeDeposited");
}

} // namespace vexora
