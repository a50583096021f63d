#include "export/ClosingCheck.h"

#include "export/ElementNames.h"
#include "export/ExpectedValues.h"
#include "export/XmlWriter.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/XmlReader.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace vexora {

namespace {

using Kind = ElementKind;

struct OpenElement {
    const ElementName* name = nullptr;
    bool hasContent = false;
};

/// A handful of texts, such as the numbers of the variables of a set.
class FewTexts {
public:
    bool Contains(std::string_view text) const {
        return std::find(texts_.begin(), texts_.end(), text) != texts_.end();
    }
    /// False when it is there already.
    bool Add(std::string_view text) {
        if (Contains(text)) return false;
        texts_.emplace_back(text);
        return true;
    }
    void Clear() { texts_.clear(); }
    auto begin() const { return texts_.begin(); }
    auto end() const { return texts_.end(); }

private:
    std::vector<std::string> texts_;
};

/// What data of one system refer to by number, and what numbers they give.
struct Numbers {
    FewTexts given, used;
    void Clear() {
        given.Clear();
        used.Clear();
    }
};

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
        return std::hash<std::string_view>()(text);
    }
};
using Texts = std::unordered_set<std::string, TextHash, std::equal_to<>>;
/// Numbers that data of a kind bear.
struct Counted {
    double upTo = 0; // in order
    Texts strays;    // above that
};
/// Numbers of the samples of each compound.
using Samples = std::unordered_map<std::string, Texts, TextHash, std::equal_to<>>;

bool IsData(Kind kind) {
    return kind == Kind::Data || kind == Kind::Reaction;
}
bool IsMember(Kind kind) {
    return kind == Kind::Component || kind == Kind::Participant;
}
constexpr const char* ValueIsMissing = "A value of the record is not in the file";

/// What their contents are is told by the elements in them, and they begin and end something.
bool IsFrame(Kind kind) {
    return IsData(kind) || IsMember(kind) || kind == Kind::NumValues || kind == Kind::Sample ||
           kind == Kind::PropertyValue || kind == Kind::VariableValue;
}

} // namespace

class ClosingCheck::Stranger : public XmlHandler {
public:
    explicit Stranger(const std::vector<XmlMark>& marks) : reader_(*this), marks_(marks) {}

    void Read(std::string_view part) {
        Try([&] { reader_.Read(part); });
    }
    std::vector<ExportFinding> Finish() {
        Try([&] { reader_.Finish(); });
        return std::move(findings_);
    }

    void Open(std::string_view name, int line) override {
        Begin(line);
        open_.push_back({&names_.Of(name)});
        text_.clear();
        const Kind kind = open_.back().name->kind;
        if (IsData(kind)) BeginData(kind);
        if (kind == Kind::NumValues) BeginBlock();
    }

    void Text(std::string_view text) override {
        if (!open_.back().hasContent) text_ += text;
    }

    void Close() override {
        const OpenElement element = open_.back();
        open_.pop_back();
        if (!element.hasContent) Content(*element.name, text_);
        const Kind kind = element.name->kind;
        if (kind == Kind::Sample || IsMember(kind)) CloseSample(kind);
        if (IsData(kind)) EndData();
        if (kind == Kind::NumValues) EndBlock();
        if (kind == Kind::VariableValue || kind == Kind::PropertyValue) inValue_.clear();
    }

    void Leaf(std::string_view name, int line, std::string_view text) override {
        const ElementName& element = names_.Of(name);
        if (IsFrame(element.kind)) return XmlHandler::Leaf(name, line, text);
        Begin(line);
        Content(element, text);
    }

private:
    /// Behind a place that makes no sense nothing is read.
    template <class Reading>
    void Try(Reading read) {
        if (isBroken_) return;
        try {
            read();
        } catch (const XmlError& error) {
            isBroken_ = true;
            Add(std::string("The file is not well formed: ") + error.what());
        }
    }
    void Add(std::string text) { findings_.push_back({std::move(text), record_}); }

    void Begin(int line) {
        while (mark_ < marks_.size() && marks_[mark_].line <= line)
            record_ = marks_[mark_++].record;
        if (!open_.empty()) open_.back().hasContent = true;
    }
    Kind Above(std::size_t levels = 1) const {
        return open_.size() < levels ? Kind::Other : open_[open_.size() - levels].name->kind;
    }

    void BeginData(Kind kind) {
        kindOfData_ = kind;
        properties_.Clear();
        variables_.Clear();
        components_.Clear();
        values_.emplace(record_);
    }
    void EndData() {
        Missing(properties_, "nPropNumber");
        Missing(variables_, "nVarNumber");
        if (values_ && (values_->NextOfHead() || values_->NextConstant() || values_->Next()))
            Add(ValueIsMissing);
        values_.reset();
    }
    void BeginBlock() {
        inBlock_ = values_ && values_->Next();
        inRow_ = 0;
    }
    void EndBlock() {
        if (inBlock_ && inRow_ < values_->CountInBlock()) Add(ValueIsMissing);
        inBlock_ = false;
    }
    void Missing(const Numbers& numbers, const std::string& element) {
        for (const std::string& number : numbers.used)
            if (!numbers.given.Contains(number))
                Add(element + " " + number + " stands for nothing");
    }

    /// An element without others in it.
    void Content(const ElementName& element, std::string_view text) {
        text = Trim(text);
        if (text.empty()) return Add("The element " + element.text + " is empty");
        std::optional<double> value;
        if (element.isNumber) value = NumberIn(text);
        if (element.isNumber && !value)
            Add("The number " + element.text + " reads \"" + std::string(text) + "\"");
        else
            Understand(element, text, value.value_or(0));
        number_ = value ? text : std::string_view();
        valueOfNumber_ = value.value_or(0);
    }
    void Understand(const ElementName& element, std::string_view text, double value) {
        switch (element.kind) {
        case Kind::OrgNum:
            return Compound(text);
        case Kind::DataNumber:
        case Kind::ReactionNumber:
            if (!IsNewData(text, value, element.kind == Kind::DataNumber ? data_ : reactions_))
                Add(Said(element, text) + " stands twice");
            return;
        case Kind::SampleNumber:
            sample_ = text;
            return;
        case Kind::PropNumber:
        case Kind::VarNumber:
            quantity_ = {element.kind == Kind::PropNumber, static_cast<int>(ToInteger(value))};
            return Quantity(element, text, quantity_.isProperty ? properties_ : variables_);
        case Kind::PropValue:
        case Kind::VarValue:
            return Value(element, text, value);
        default:
            if (values_) Definition(element, text, value);
            if (element.isDigits) Digits(element, text, value);
        }
    }
    static std::string Said(const ElementName& element, std::string_view text) {
        return element.text + " " + std::string(text);
    }

    /// Data are counted on from 1; what is not in order is remembered by itself.
    static bool IsNewData(std::string_view text, double value, Counted& counted) {
        if (value <= counted.upTo) return false;
        if (value > counted.upTo + 1 || !counted.strays.empty())
            return counted.strays.emplace(text).second;
        ++counted.upTo;
        return true;
    }
    void Compound(std::string_view number) {
        compound_ = number;
        if (Above() == Kind::RegNum && Above(2) == Kind::Compound) {
            if (!samples_.try_emplace(compound_).second)
                Add("nOrgNum " + compound_ + " stands for two compounds");
        } else if (!samples_.contains(number)) {
            Add("nOrgNum " + compound_ + " stands for no compound");
        } else if (IsMember(Above(2))) {
            components_.Add(number);
        } else if (Above(2) == Kind::Outsider && kindOfData_ == Kind::Reaction) {
            return; // of the source, but no participant
        } else if (values_ && !components_.Contains(number)) {
            Add("nOrgNum " + compound_ + " stands for no component of these data");
        }
    }
    void CloseSample(Kind element) {
        const auto found = samples_.find(compound_);
        if (found == samples_.end() || sample_.empty()) return;
        if (element == Kind::Sample && !found->second.insert(sample_).second)
            Add("nSampleNm " + sample_ + " stands for two samples");
        if (IsMember(element) && !found->second.contains(sample_))
            Add("nSampleNm " + sample_ + " stands for no sample");
        sample_.clear();
    }
    void Quantity(const ElementName& element, std::string_view number, Numbers& numbers) {
        if (Above() == Kind::PropertyValue || Above() == Kind::VariableValue) {
            numbers.used.Add(number);
            inValue_ = number;
        } else if (!numbers.given.Add(number)) {
            Add(Said(element, number) + " stands twice");
        }
    }
    void Value(const ElementName& element, std::string_view text, double value) {
        if (!values_ || !inBlock_ || inValue_.empty()) return;
        ++inRow_;
        Compare(element, text, value, values_->Of(quantity_));
    }
    /// What the heads say of the numbers below.
    void Definition(const ElementName& element, std::string_view text, double value) {
        if (element.kind == Kind::PropName || Above() == Kind::VariableType) Unit(text);
        if (element.kind == Kind::ConstraintValue)
            Compare(element, text, value, values_->NextConstant());
        if (element.kind == Kind::HeadValue) Compare(element, text, value, values_->NextOfHead());
    }
    /// Behind the last comma of the name; without one it is a pure number.
    void Unit(std::string_view text) {
        constexpr std::string_view mark = ", ";
        const std::size_t at = text.rfind(mark);
        const std::string unit = values_->UnitOf(quantity_);
        if (!unit.empty() && unit != (at == text.npos ? "1" : text.substr(at + mark.size())))
            Add("\"" + std::string(text) + "\" does not name the unit of the numbers, " + unit);
    }
    void Compare(const ElementName& element, std::string_view text, double value,
                 const std::optional<ExpectedValue>& expected) {
        if (expected && std::abs(value - expected->value) > expected->tolerance)
            Add(element.text + " reads " + std::string(text) + " where the record says " +
                NumberText(expected->value));
    }
    /// The count stands behind its number. A zero has decimals, but no digit that counts.
    void Digits(const ElementName& element, std::string_view text, double count) {
        if (number_.empty() || valueOfNumber_ == 0) return;
        if (ToInteger(count) <= SignificantDigits(number_)) return;
        Add(Said(element, text) + " is more than the digits of " + number_);
    }

    XmlReader reader_;
    const std::vector<XmlMark>& marks_;
    std::size_t mark_ = 0;
    const Record* record_ = nullptr;
    std::vector<ExportFinding> findings_;
    bool isBroken_ = false;
    ElementNames names_;
    std::vector<OpenElement> open_;
    std::string text_;         // character data in hand
    std::string number_;       // the last element, if it was a number
    double valueOfNumber_ = 0; // its value
    Samples samples_;
    Counted data_, reactions_;
    Kind kindOfData_ = Kind::Other; // of those in hand
    FewTexts components_;           // compounds of those in hand
    std::string compound_, sample_; // the numbers read last
    Numbers properties_, variables_;
    std::optional<ExpectedValues> values_;
    bool inBlock_ = false;
    std::string inValue_;       // number of the quantity whose value is being read
    std::size_t inRow_ = 0;     // values of the block so far
    NumberedQuantity quantity_; // the number read last
};

ClosingCheck::ClosingCheck(const std::vector<XmlMark>& marks)
    : stranger_(std::make_unique<Stranger>(marks)) {}

ClosingCheck::~ClosingCheck() = default;

void ClosingCheck::Read(std::string_view part) {
    stranger_->Read(part);
}

std::vector<ExportFinding> ClosingCheck::Finish() {
    return stranger_->Finish();
}

std::vector<ExportFinding> CheckExport(std::string_view xml, const std::vector<XmlMark>& marks) {
    ClosingCheck check(marks);
    check.Read(xml);
    return check.Finish();
}

} // namespace vexora
