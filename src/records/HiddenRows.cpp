#include "records/HiddenRows.h"

#include <bit>

#include "records/TiedSets.h"
#include "records/clsMV.h"
#include "reference/MixtureCodes.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

unsigned Bit(int component) {
    return 1U << component;
}

/// All components of a system but this one.
unsigned Others(int component, int components) {
    return ((1U << (components + 1)) - 2) & ~Bit(component);
}

} // namespace

int Presence::AbsentCount() const {
    return std::popcount(absent);
}

Presence& Presence::operator|=(const Presence& other) {
    absent |= other.absent;
    present |= other.present;
    return *this;
}

StatedContents::StatedContents(const clsMV& set)
    : components_(set.MixType), solvent_(ComponentsOfSolvent(set.SOLVENT)) {
    for (int n = set.Relation() == "A" ? 0 : 1; n <= set.nVar; ++n) {
        const std::string& code = n == 0 ? set.PRPCODE : set.VARIABLE(n);
        if (Content* const content = Prepare(code, set.PhaseFor(n)))
            content->column.emplace(set, n);
    }
    for (const HeldConstant& held : set.Constants()) {
        const UnitConversion unit = set.Conversion(held.item);
        if (!IsNumeric(held.value) || !unit.IsPossible()) continue;
        if (Content* const content = Prepare(held.code, held.phase))
            content->constant = unit.Absolute(Val(held.value));
    }
}

/// Null for what is no content of a component of the system.
StatedContents::Content* StatedContents::Prepare(const std::string& code,
                                                 const std::string& phase) {
    const int component = IsComposition(code) ? ComponentOf(code) : 0;
    if (component < 1 || component > components_) return nullptr;
    Content content;
    content.type = code[0];
    content.component = component;
    content.ofSolvent = code.ends_with('S');
    content.phase = phase;
    return &contents_.emplace_back(std::move(content));
}

std::optional<double> StatedContents::Content::GetValue(const clsData& row) const {
    if (!column) return constant;
    if (column->Converts(row)) return column->Of(row);
    // Nothing is nothing in every unit.
    const std::string_view typed = column->TextOf(row);
    return IsNumeric(typed) && Val(typed) == 0 ? std::optional(0.0) : std::nullopt;
}

Presence StatedContents::Of(const clsData& row) const {
    Presence presence;
    std::vector<std::optional<double>> values;
    values.reserve(contents_.size());
    for (const Content& content : contents_) {
        const std::optional<double> value = content.GetValue(row);
        values.push_back(value);
        if (!value) continue;
        (*value == 0 ? presence.absent : presence.present) |= Bit(content.component);
        if (!content.IsFraction()) continue;
        TakeFraction(content, *value, presence);
        for (std::size_t before = 0; before + 1 < values.size(); ++before)
            if (values[before])
                TakeSum(content, *value, contents_[before], *values[before], presence);
    }
    return presence;
}

/// The whole of a phase or a solvent leaves nothing for others; a part of two leaves the other.
void StatedContents::TakeFraction(const Content& content, double value, Presence& presence) const {
    unsigned others = Others(content.component, components_);
    int count = components_;
    if (content.ofSolvent) {
        unsigned inSolvent = 0;
        for (const int component : solvent_)
            inSolvent |= Bit(component);
        others &= inSolvent;
        count = static_cast<int>(solvent_.size());
    }
    if (Equal(value, 1))
        presence.absent |= others;
    else if (count == 2 && value > 0 && value < 1)
        presence.present |= others;
}

/// Of three, two fractions of one phase tell the third.
void StatedContents::TakeSum(const Content& content, double value, const Content& other,
                             double beside, Presence& presence) const {
    const bool arePair = !content.ofSolvent && !other.ofSolvent && content.type == other.type &&
                         content.phase == other.phase && content.component != other.component;
    if (!arePair || components_ == 2) return;
    const unsigned third = Others(content.component, components_) & ~Bit(other.component);
    const double sum = value + beside;
    if (Equal(sum, 1))
        presence.absent |= third;
    else if (sum < 1)
        presence.present |= third;
}

Presence HiddenRows::Of(const clsData& row) const {
    Presence presence = contents_.Of(row);
    if (presence.absent != 0 && !IsBlankField(row.TIELINE))
        presence.present |= OfTie(row.TIELINE).present;
    return presence;
}

const Presence& HiddenRows::OfTie(const std::string& number) const {
    if (!tied_) {
        tied_.emplace();
        for (const auto& other : TiedSets(set_)) {
            const StatedContents contents(*other);
            if (contents.IsEmpty()) continue;
            for (const clsData& row : other->recData)
                if (!IsBlankField(row.TIELINE)) (*tied_)[row.TIELINE] |= contents.Of(row);
        }
    }
    return (*tied_)[number];
}

} // namespace vexora
