#include "sources/MakeForm.h"

#include <algorithm>
#include <utility>

#include "reference/Text.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr std::string_view Marks = "@$"; // they part a source text

} // namespace

std::string PartText(std::string_view before, std::string_view text, std::string_view behind) {
    if (text.empty()) return {};
    return std::string(before) + std::string(text) + std::string(behind);
}

std::string WithoutMarks(std::string_view text) {
    return Replace(Replace(text, "@", ""), "$", "");
}

MakeForm::Part::Part(MakeForm& form, std::string name, const std::string& label, Frame frame,
                     std::string missing)
    : PlainTextBox(form, std::move(name), Lines::One, Marks) {
    form.asked_.push_back({ui::Field(label, *this), this, [this] { return Entered(); },
                           [this](const std::string& text) { Text(text); }, frame,
                           std::move(missing)});
}

MakeForm::Choice::Choice(MakeForm& form, std::string name, const std::string& label,
                         std::string missing, std::string prompt, std::string table,
                         std::string column)
    : CompletingCombo(form, std::move(name), std::move(prompt), std::move(table),
                      std::move(column)) {
    form.asked_.push_back({ui::Field(label, *this),
                           this,
                           [this] { return Entered(); },
                           [this](const std::string& text) { Enter(text); },
                           {", ", ""},
                           std::move(missing)});
}

MakeForm::MakeForm(std::string name, std::string caption)
    : Form(std::move(name), std::move(caption)) {
    PreferredColumns = 60;
    HelpContext = 227;
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
}

void MakeForm::Load() {
    Arrange();
    const ui::FillingScope filling(*this);
    Prepare();
    const std::string source = Document() ? Document()->Source() : "";
    if (source.empty()) return;
    Show(source);
    shown_ = Entered();
}

void MakeForm::Show(const std::string& source) {
    const auto* parts = Document()->Parts(Name(), source);
    if (parts == nullptr) return TakeApart(SourceReader(source));
    auto part = parts->begin();
    for (const Asked& one : asked_)
        if (one.enter) one.enter(*part++);
}

void MakeForm::Enter(std::string_view name, const std::string& text) {
    for (const Asked& one : asked_)
        if (one.field && one.field->Name() == name) one.enter(text);
}

SourceText MakeForm::Made() const {
    const auto one = std::ranges::find_if(asked_, &Asked::IsMissing);
    return {Compose(), one == asked_.end() ? "" : one->missing, Entered()};
}

std::string MakeForm::Compose() const {
    std::string text;
    for (const Asked& one : asked_) {
        if (one.field)
            text += PartText(one.frame.before, WithoutMarks(one.entered()), one.frame.behind);
    }
    return text;
}

void MakeForm::Arrange() {
    for (Asked& one : asked_)
        Arrangement.parts.push_back(one.layout);
    Arrangement.parts.push_back(ui::Stretch());
    Arrangement.parts.push_back(ui::ButtonRow({cmdAccept, cmdCancel}));
    TabAlongArrangement();
}

std::vector<std::string> MakeForm::Entered() const {
    std::vector<std::string> parts;
    for (const Asked& one : asked_)
        if (one.entered) parts.push_back(WithoutMarks(one.entered()));
    return parts;
}

void MakeForm::Accept() {
    const auto parts = Entered();
    if (parts == shown_) {
        Close();
        return;
    }
    for (const Asked& one : asked_) {
        if (!one.IsMissing()) continue;
        Refuse(*one.field, one.missing);
        return;
    }
    if (Document()) {
        Document()->Source(Compose());
        Document()->KeepParts(Name(), parts);
    }
    Close();
}

frmDocument* MakeForm::Document() {
    return ui::Forms::Current().Find<frmDocument>("frmDocument");
}

} // namespace vexora
