// The two fields in which a dialog asks how much of a component there is.
#pragma once

#include <optional>
#include <string>

#include "records/clsComplex.h"
#include "ui/Lists.h"
#include "ui/TextBox.h"

namespace vexora {

/// What is wrong with a content, in words for the user, and in which of its fields.
struct ContentFault {
    std::string text;
    bool ofKind = false;
};
/// Nothing for a content that is right; one that states nothing is.
std::optional<ContentFault> FaultOf(const ComplexContent& content);
/// "0.148 mole fraction"; "" for a content that states nothing.
std::string ContentInWords(const ComplexContent& content);

/// The value and its kind ("Mole fraction", "Moles"). The dialog owns the fields and this.
class ContentFields {
public:
    ContentFields(ui::TextBox& value, ui::ComboBox& kind) : value_(value), kind_(kind) {}

    /// A kind that a file has and nobody knows joins the list as it is.
    void Show(const ComplexContent& content);
    /// As typed, with the number in its plain form.
    ComplexContent Content() const;
    void Enabled(bool enabled);
    /// The field that a fault is to be mended in.
    ui::Control& FieldOf(const ContentFault& fault) const;

private:
    ui::TextBox& value_;
    ui::ComboBox& kind_;
};

} // namespace vexora
