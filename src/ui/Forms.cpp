#include "ui/Forms.h"

#include <algorithm>
#include <stdexcept>

#include "ui/Desktop.h"

namespace vexora::ui {

namespace {

Forms* present = nullptr;

} // namespace

Forms::Forms(Desktop& desktop) : desktop_(desktop) {
    present = this;
}

Forms::~Forms() {
    instances_.clear();
    closed_.clear();
    if (present == this) present = nullptr;
}

Forms& Forms::Current() {
    if (!present) throw std::logic_error("no registry of forms");
    return *present;
}

bool Forms::IsPresent() {
    return present != nullptr;
}

void Forms::Register(std::string name, Maker maker) {
    makers_[std::move(name)] = std::move(maker);
}

bool Forms::Knows(std::string_view name) const {
    return makers_.contains(std::string(name));
}

std::vector<std::string> Forms::KnownNames() const {
    std::vector<std::string> names;
    for (const auto& [name, maker] : makers_)
        names.push_back(name);
    std::sort(names.begin(), names.end());
    return names;
}

Form& Forms::Get(std::string_view name) {
    for (const auto& form : instances_) {
        if (form->Name() == name) return *form;
    }
    const auto maker = makers_.find(std::string(name));
    if (maker == makers_.end()) throw std::logic_error("unknown form " + std::string(name));
    instances_.push_back(maker->second());
    return *instances_.back();
}

Form* Forms::Find(std::string_view name) const {
    const auto found = std::ranges::find(open_, name, &Form::Name);
    return found == open_.end() ? nullptr : *found;
}

Form* Forms::Front() const {
    if (!modal_.empty()) return modal_.back();
    const auto found = std::find_if(open_.rbegin(), open_.rend(),
                                    [](const Form* form) { return form->IsVisible(); });
    return found == open_.rend() ? nullptr : *found;
}

void Forms::NoteOpened(Form& form) {
    open_.push_back(&form);
    if (form.modal_) modal_.push_back(&form);
    Opened.Emit(form);
}

void Forms::Raise(Form& form) {
    std::erase(open_, &form);
    open_.push_back(&form);
    if (form.modal_) {
        std::erase(modal_, &form);
        modal_.push_back(&form);
    }
}

void Forms::NoteClosed(Form& form) {
    std::erase(open_, &form);
    const auto place = std::ranges::find(instances_, &form, &std::unique_ptr<Form>::get);
    if (place != instances_.end()) {
        closed_.push_back(std::move(*place));
        instances_.erase(place);
    }
    Closed.Emit(form);
}

void Forms::DropClosed() {
    const auto gone = std::move(closed_);
    closed_.clear();
}

void Forms::CloseAll() {
    while (!open_.empty()) {
        Form& form = *open_.back();
        form.open_ = form.shown_ = false;
        std::erase(modal_, &form);
        form.ShownChanged.Emit();
        NoteClosed(form);
    }
}

} // namespace vexora::ui
