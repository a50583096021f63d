#include "sources/MakeForm.h"

#include <utility>

#include "reference/Text.h"
#include "sources/frmDocument.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr std::string_view Marks = "@$";

} // namespace

MakeForm::Part::Part(ui::Form& form, std::string name)
    : PlainTextBox(form, std::move(name), Lines::One, Marks) {}

MakeForm::MakeForm(std::string name, std::string caption)
    : Form(std::move(name), std::move(caption)) {
    PreferredColumns = 60;
}

void MakeForm::UseButtons(ui::CommandButton& accept, ui::CommandButton& cancel) {
    DefaultButton = &accept;
    CancelButton = &cancel;
    accept.OnClick = [this] { cmdAccept_Click(); };
    cancel.OnClick = [this] { Close(); };
}

void MakeForm::Load() {
    const ui::FillingScope filling(*this);
    Prepare();
    if (Document() == nullptr) return;
    const std::string source = Document()->Source();
    if (!source.empty()) TakeApart(source);
}

void MakeForm::cmdAccept_Click() {
    if (!Check()) return;
    if (Document() != nullptr) Document()->Source(Compose());
    Close();
}

frmDocument* MakeForm::Document() {
    return ui::Forms::Current().Find<frmDocument>("frmDocument");
}

std::string PartText(std::string_view before, std::string_view text, std::string_view behind) {
    if (text.empty()) return {};
    return std::string(before) + std::string(text) + std::string(behind);
}

std::string WithoutMarks(std::string_view text) {
    return Replace(Replace(text, "@", ""), "$", "");
}

std::string SourceReader::Marked(char mark) {
    if (!rest_.starts_with(mark)) return {};
    const std::size_t end = rest_.find(mark, 1);
    if (end == std::string::npos) return {};
    const std::string text = rest_.substr(1, end - 1);
    rest_.erase(0, end + 1);
    return text;
}

bool SourceReader::Skip(std::string_view text) {
    if (!rest_.starts_with(text)) return false;
    rest_.erase(0, text.size());
    return true;
}

std::string SourceReader::UpTo(std::string_view end) {
    const std::size_t place = rest_.find(end);
    return place == std::string::npos ? Rest() : Cut(place, end.size());
}

std::string SourceReader::UpToLast(std::string_view end) {
    const std::size_t place = rest_.rfind(end);
    return place == std::string::npos ? Rest() : Cut(place, end.size());
}

std::string SourceReader::Rest() {
    return Cut(rest_.size(), 0);
}

std::string SourceReader::Cut(std::size_t length, std::size_t passedOver) {
    std::string text = rest_.substr(0, length);
    rest_.erase(0, length + passedOver);
    return text;
}

} // namespace vexora
