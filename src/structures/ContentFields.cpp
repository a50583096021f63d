#include "structures/ContentFields.h"

#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

struct ContentKind {
    const char* code;
    const char* text;
    const char* unit; // behind the number
};
constexpr ContentKind Kinds[] = {{"X", "Mole fraction", "mole fraction"}, {"n", "Moles", "mol"}};

} // namespace

std::optional<ContentFault> FaultOf(const ComplexContent& content) {
    if (content.value.empty()) return std::nullopt;
    if (!IsNumeric(content.value)) return ContentFault{"Content is not numeric", false};
    if (content.kind.empty()) return ContentFault{"Content representation is not selected", true};
    const double value = Val(content.value);
    if (value < 0 || (content.kind == "X" && value > 1))
        return ContentFault{"Illegal content", false};
    return std::nullopt;
}

std::string ContentInWords(const ComplexContent& content) {
    std::string unit = content.kind;
    for (const ContentKind& kind : Kinds)
        if (content.kind == kind.code) unit = kind.unit;
    if (content.value.empty()) return {};
    return content.value + (unit.empty() ? "" : " ") + unit;
}

void ContentFields::Show(const ComplexContent& content) {
    value_.Text(content.value);
    std::vector<std::string> texts;
    std::string chosen = content.kind;
    for (const ContentKind& kind : Kinds) {
        texts.emplace_back(kind.text);
        if (content.kind == kind.code) chosen = kind.text;
    }
    kind_.Assign(std::move(texts));
    if (!chosen.empty() && kind_.Find(chosen) < 0) kind_.Add(chosen);
    kind_.Choose(chosen);
}

ComplexContent ContentFields::Content() const {
    std::string code = kind_.Chosen();
    for (const ContentKind& kind : Kinds)
        if (code == kind.text) code = kind.code;
    return {NormalizeNumber(std::string(Trim(value_.Text()))), code};
}

void ContentFields::Enabled(bool enabled) {
    value_.Enabled(enabled);
    kind_.Enabled(enabled);
}

ui::Control& ContentFields::FieldOf(const ContentFault& fault) const {
    if (fault.ofKind) return kind_;
    return value_;
}

} // namespace vexora
