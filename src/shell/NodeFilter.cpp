#include "shell/NodeFilter.h"

#include <algorithm>
#include <functional>

#include "chem/CommentTags.h"
#include "compounds/RegistryNumber.h"
#include "records/DataSet.h"
#include "records/SingleValue.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "records/clsZ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"
#include "reference/Vocabulary.h"
#include "shell/ReadingPage.h"

namespace vexora {

namespace {

constexpr std::size_t MostWords = 64; // as many as have a bit
constexpr std::string_view Dots = "..";

/// What stands between two texts that are searched as one; no word holds it.
constexpr char Between = '\n';

std::string NameOf(const SingleValue& value, int n) {
    return VariableName(value.VARIABLE(n), value.DataContext());
}

std::string NameOf(const DataSet& set, int n) {
    return set.VariableWords(n);
}

std::string CompoundText(const clsL& compound) {
    std::string text;
    for (const std::string& part :
         {compound.Name, compound.Formula, compound.RN, compound.EC, compound.PDB})
        text.append(part) += Between;
    if (compound.RN.size() > 3) text += DashedRegistryNumber(compound.RN) + Between;
    return text;
}

std::string VariableText(const std::string& name, const std::string& unit) {
    return name + Between + UnitText(DefaultUnit(name), unit, 0) + Between;
}

bool AnyBioValue(const BioSet& set, const std::function<bool(std::string_view)>& holds) {
    return std::ranges::any_of(set.Quantities(),
                               [&](const BioQuantity& one) { return holds(one.value); }) ||
           std::ranges::any_of(set.recD, [&](const clsBD& row) {
               return std::ranges::any_of(row.Cells,
                                          [&](const BioCell& cell) { return holds(cell.value); });
           });
}

/// All that is said of the compounds, the solution and the quantities of a bio set.
std::string BioText(const BioSet& set) {
    std::string text;
    const auto add = [&text](std::string_view part) { text.append(part) += Between; };
    std::vector<std::string> keys = set.ParticipantKeys();
    for (std::size_t n = 0; n < set.Components.size(); ++n) {
        keys.push_back(set.KeyOf(n));
        add(set.Components[n].function);
        add(set.Components[n].note);
    }
    for (const std::string& key : keys) {
        add(set.CompoundName(key));
        if (const auto compound = set.CompoundOf(key)) text += CompoundText(*compound);
    }
    for (const BioQuantity& quantity : set.Quantities()) {
        add(set.NameOf(quantity));
        add(quantity.unit);
    }
    for (const std::string& part : {set.Method, CommentDisplayText(set.Header.DATACOMMENT)})
        add(part);
    if (const auto* reaction = dynamic_cast<const clsBR*>(&set))
        add(reaction->Notation ? "chemical" : "biochemical");
    if (const auto* property = dynamic_cast<const clsBP*>(&set))
        for (const std::string& state : {property->State1, property->State2})
            add(state);
    return text;
}

/// The cell constants and distances of a structure.
std::vector<std::string> FiguresOf(const clsCrS& structure) {
    std::vector<std::string> figures = {structure.A,     structure.B,    structure.C,
                                        structure.Alpha, structure.Beta, structure.GammaText()};
    for (const CrystalDistance& one : structure.Distances)
        figures.push_back(one.DD);
    return figures;
}

/// What is said of a complex or its sample by its components.
template <class Components>
std::string ComponentText(const Components& components, const clsR* source) {
    std::string text;
    for (const auto& component : components) {
        const auto compound = source ? source->FindL(component.RN) : nullptr;
        text += compound ? CompoundText(*compound) : component.RN + Between;
        text += component.content.value + Between;
    }
    return text;
}

/// Hands on the values of a record as typed until the answer is true.
bool AnyValue(const Record* record, const std::function<bool(std::string_view)>& holds) {
    if (const auto* value = dynamic_cast<const SingleValue*>(record)) {
        const auto* pure = dynamic_cast<const clsZ*>(record);
        return holds(value->PRPVALUE) || (pure != nullptr && holds(pure->INDVARIABLE));
    }
    if (const auto* bio = dynamic_cast<const BioSet*>(record)) return AnyBioValue(*bio, holds);
    if (const auto* structure = dynamic_cast<const clsCrS*>(record))
        return std::ranges::any_of(FiguresOf(*structure), holds);
    if (const auto* complex = dynamic_cast<const clsComplex*>(record))
        return std::ranges::any_of(complex->Components,
                                   [&](const auto& one) { return holds(one.content.value); });
    if (const auto* sample = dynamic_cast<const clsComplexSample*>(record))
        return holds(sample->PrepT) || holds(sample->PrepP) ||
               std::ranges::any_of(sample->Components,
                                   [&](const auto& one) { return holds(one.content.value); });
    const auto* set = dynamic_cast<const DataSet*>(record);
    if (set == nullptr) return false;
    return std::any_of(set->recData.begin(), set->recData.end(), [&](const clsData& row) {
        return std::any_of(row.Values.begin(), row.Values.begin() + set->nVar + 1,
                           [&](const ShortText& text) { return holds(text); });
    });
}

} // namespace

bool NodeFilter::Range::Holds(double value) const {
    return (withLeast ? value >= least : value > least) &&
           (withMost ? value <= most : value < most);
}

bool NodeFilter::Word::IsIn(std::string_view value) const {
    if (range) return IsNumeric(value) && range->Holds(Val(value));
    return isNumber && (value.starts_with(text) || (IsNumeric(value) && Val(value) == Val(text)));
}

/// Nothing for a word that is no range.
std::optional<NodeFilter::Range> NodeFilter::RangeOf(std::string_view word, bool& isUnfinished) {
    Range range;
    std::string_view least, most;
    if (word.starts_with('>') || word.starts_with('<')) {
        const bool withEnd = word.substr(1).starts_with('=');
        const std::string_view end = word.substr(withEnd ? 2 : 1);
        (word.front() == '>' ? least : most) = end;
        (word.front() == '>' ? range.withLeast : range.withMost) = withEnd;
    } else if (const std::size_t dots = word.find(Dots); dots != word.npos) {
        least = word.substr(0, dots);
        most = word.substr(dots + Dots.size());
    } else {
        return {};
    }
    isUnfinished = least.empty() && most.empty();
    if ((!least.empty() && !IsNumeric(least)) || (!most.empty() && !IsNumeric(most))) return {};
    if (!least.empty()) range.least = Val(least);
    if (!most.empty()) range.most = Val(most);
    return range;
}

NodeFilter::NodeFilter(std::string_view words) {
    for (const std::string& word : Split(LowerAscii(words), ' '))
        Add(Trim(word));
}

void NodeFilter::Add(std::string_view word) {
    bool isUnfinished = word.empty();
    Word sought{std::string(word), RangeOf(word, isUnfinished), IsNumeric(word)};
    if (!isUnfinished && words_.size() < MostWords) words_.push_back(std::move(sought));
}

/// The comment with its method in words: those of the list that it was chosen from, and those of
/// the reading pane. Many records have the same one.
const std::string& NodeFilter::CommentText(const clsA& header, const std::string& propertyCode) {
    const auto [entry, isNew] = comments_.try_emplace(propertyCode + Between + header.DATACOMMENT);
    std::string& text = entry->second;
    if (!isNew) return text;
    text = CommentDisplayText(header.DATACOMMENT) + Between + MethodText(header, propertyCode);
    const std::string method = CommentTags(header.DATACOMMENT).TrimmedValue("Method");
    for (const MethodRow& row : MethodsOf(propertyCode))
        if (row.MethodCode == method) text += Between + row.Method;
    return text;
}

/// Label and record, in small letters.
std::string NodeFilter::TextOf(const ui::TreeNode& node) {
    std::string text = node.Text() + Between;
    const auto tag = node.Tag.lock();
    const auto add = [&text](std::string_view part) { text.append(part) += Between; };
    const auto addProperty = [&](const auto& data, int variables) {
        const PropertyLabel label = PropertyLabels::Of(data);
        add(label.name);
        add(label.unit);
        for (int n = 1; n <= variables; ++n)
            text += VariableText(NameOf(data, n), data.VAR_UNIT(n));
        add(CommentText(data.Header, data.PRPCODE));
    };
    const auto addCompound = [&text](const clsL& compound) { text += CompoundText(compound); };
    if (const auto* source = dynamic_cast<const clsR*>(tag.get())) {
        add(source->TTITLE);
    } else if (const auto* compound = dynamic_cast<const clsL*>(tag.get())) {
        addCompound(*compound);
    } else if (const auto* mixture = dynamic_cast<const clsM*>(tag.get())) {
        for (int n = 1; n <= mixture->MixType; ++n)
            if (const auto component = mixture->Component(n)) addCompound(*component);
    } else if (const auto* reaction = dynamic_cast<const clsQ*>(tag.get())) {
        add(ReactionType(reaction->REACTCLASS));
        for (int i = 1; i <= clsQ::MostParticipants; ++i)
            if (const auto participant = reaction->Compound(i)) addCompound(*participant);
        for (const std::string& rn : {reaction->SOLVENTRN, reaction->INERTRN})
            if (const auto other = reaction->Parent ? reaction->Parent->FindL(rn) : nullptr)
                addCompound(*other);
    } else if (const auto* value = dynamic_cast<const SingleValue*>(tag.get())) {
        addProperty(*value, value->VariableCount());
    } else if (const auto* set = dynamic_cast<const DataSet*>(tag.get())) {
        addProperty(*set, set->nVar);
    } else if (const auto* bioSet = dynamic_cast<const BioSet*>(tag.get())) {
        text += BioText(*bioSet);
    } else if (const auto* complex = dynamic_cast<const clsComplex*>(tag.get())) {
        text += ComponentText(complex->Components, complex->Parent);
        for (const ComplexComponent& component : complex->Components)
            add(component.function);
    } else if (const auto* part = dynamic_cast<const clsComplexSample*>(tag.get())) {
        text += ComponentText(part->Components, part->Parent ? part->Parent->Parent : nullptr);
        for (const std::string& said : {part->Method, CommentDisplayText(part->Header.DATACOMMENT)})
            add(said);
    } else if (const auto* structure = dynamic_cast<const clsCrS*>(tag.get())) {
        for (const std::string& said : {structure->SpaceGroup, structure->Method})
            add(said);
    }
    return LowerAscii(text);
}

bool NodeFilter::Hits(const ui::TreeNode& node) {
    const auto tag = node.Tag.lock();
    const auto* record = dynamic_cast<const Record*>(tag.get());
    const std::string text = TextOf(node);
    Found own = 0;
    for (std::size_t i = 0; i < words_.size(); ++i) {
        const Word& word = words_[i];
        const bool isInText = !word.range && text.find(word.text) != std::string::npos;
        if (isInText ||
            ((word.range || word.isNumber) &&
             AnyValue(record, [&](std::string_view value) { return word.IsIn(value); })))
            own |= Found{1} << i;
    }
    const auto above = found_.find(node.Parent());
    const Found all = own | (above == found_.end() ? 0 : above->second);
    found_[&node] = all;
    return own != 0 &&
           all == (words_.size() == MostWords ? ~Found{0} : (Found{1} << words_.size()) - 1);
}

} // namespace vexora
