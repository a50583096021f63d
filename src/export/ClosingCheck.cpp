#include "export/ClosingCheck.h"

#include "export/ExpectedValues.h"
#include "export/XmlWriter.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/XmlReader.h"

#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace vexora {

namespace {

struct OpenElement {
    std::string_view name;
    bool hasContent = false;
};

/// What data of one system refer to by number, and what numbers they give.
struct Numbers {
    std::set<std::string> given, used;
};

class StrangeReader : public XmlHandler {
public:
    explicit StrangeReader(const std::vector<XmlMark>& marks) : marks_(marks) {}

    void Open(std::string_view name, int line) override {
        FollowMarks(line);
        if (!open_.empty()) open_.back().hasContent = true;
        open_.push_back({name});
        text_.clear();
        if (name == "PureOrMixtureData") BeginData();
        if (name == "NumValues" && values_) inBlock_ = values_->Next();
    }

    void Text(std::string_view text) override { text_ += text; }

    void Close() override {
        const OpenElement element = open_.back();
        const std::string text(Trim(text_));
        text_.clear();
        open_.pop_back();
        if (!element.hasContent) {
            if (text.empty())
                Add("The element " + std::string(element.name) + " is empty");
            else
                Leaf(element.name, text);
        }
        if (element.name == "Sample" || element.name == "Component") CloseSample(element.name);
        if (element.name == "PureOrMixtureData") EndData();
        if (element.name == "VariableValue" || element.name == "PropertyValue") inValue_.clear();
    }

    std::vector<ExportFinding> Take() { return std::move(findings_); }
    void Add(std::string text) { findings_.push_back({std::move(text), record_}); }

private:
    void FollowMarks(int line) {
        while (mark_ < marks_.size() && marks_[mark_].line <= line)
            record_ = marks_[mark_++].record;
    }
    std::string_view Above() const { return open_.empty() ? "" : open_.back().name; }
    std::string_view Above(std::size_t levels) const {
        return open_.size() < levels ? "" : open_[open_.size() - levels].name;
    }

    void BeginData() {
        properties_ = variables_ = {};
        components_.clear();
        values_.emplace(record_);
    }
    void EndData() {
        Missing(properties_, "nPropNumber");
        Missing(variables_, "nVarNumber");
        if (values_ && values_->Next()) Add("A value of the record is not in the file");
        values_.reset();
    }
    void Missing(const Numbers& numbers, const std::string& element) {
        for (const std::string& number : numbers.used)
            if (!numbers.given.contains(number))
                Add(element + " " + number + " stands for nothing");
    }

    void Leaf(std::string_view name, const std::string& text) {
        const bool isNumber = name.size() > 1 && name[0] == 'n' && name[1] >= 'A' && name[1] <= 'Z';
        const std::string before = std::exchange(number_, isNumber && IsNumeric(text) ? text : "");
        if (isNumber && !IsNumeric(text))
            return Add("The number " + std::string(name) + " reads \"" + text + "\"");
        if (name == "nOrgNum")
            Compound(text);
        else if (name == "nPureOrMixtureDataNumber" && !data_.insert(text).second)
            Add(std::string(name) + " " + text + " stands twice");
        else if (name == "nSampleNm")
            sample_ = text;
        else if (name == "nPropNumber" || name == "nVarNumber")
            Quantity(name, text);
        else if (name == "nPropValue" || name == "nVarValue")
            Value(name, text);
        else
            Definition(name, text);
        if (name.ends_with("Digits")) Digits(name, text, before);
    }

    void Compound(const std::string& number) {
        compound_ = number;
        if (Above() == "RegNum" && Above(2) == "Compound") {
            if (!samples_.emplace(number, std::set<std::string>()).second)
                Add("nOrgNum " + number + " stands for two compounds");
        } else if (!samples_.contains(number)) {
            Add("nOrgNum " + number + " stands for no compound");
        } else if (Above(2) == "Component") {
            components_.insert(number);
        } else if (values_ && !components_.contains(number)) {
            Add("nOrgNum " + number + " stands for no component of these data");
        }
    }
    void CloseSample(std::string_view element) {
        const auto found = samples_.find(compound_);
        if (found == samples_.end() || sample_.empty()) return;
        if (element == "Sample" && !found->second.insert(sample_).second)
            Add("nSampleNm " + sample_ + " stands for two samples");
        if (element == "Component" && !found->second.contains(sample_))
            Add("nSampleNm " + sample_ + " stands for no sample");
        sample_.clear();
    }
    void Quantity(std::string_view name, const std::string& number) {
        Numbers& numbers = name == "nPropNumber" ? properties_ : variables_;
        if (name == "nVarNumber") variable_ = static_cast<int>(ToInteger(Val(number)));
        if (Above() == "PropertyValue" || Above() == "VariableValue") {
            numbers.used.insert(number);
            inValue_ = number;
        } else if (!numbers.given.insert(number).second) {
            Add(std::string(name) + " " + number + " stands twice");
        }
    }
    void Value(std::string_view name, const std::string& text) {
        if (!values_ || !inBlock_ || inValue_.empty()) return;
        const int n = name == "nPropValue" ? 0 : static_cast<int>(ToInteger(Val(inValue_)));
        Compare(name, text, values_->Of(n));
    }
    /// What the heads say of the numbers below.
    void Definition(std::string_view name, const std::string& text) {
        if (!values_) return;
        if (name == "ePropName") Unit(text, 0);
        if (Above() == "VariableType") Unit(text, variable_);
        if (name == "nConstraintValue") Compare(name, text, values_->NextConstant());
    }
    /// Behind the last comma of the name; without one it is a pure number.
    void Unit(const std::string& text, int n) {
        constexpr std::string_view mark = ", ";
        const std::size_t at = text.rfind(mark);
        const std::string unit = values_->UnitOf(n);
        if (!unit.empty() && unit != (at == text.npos ? "1" : text.substr(at + mark.size())))
            Add("\"" + text + "\" does not name the unit of the numbers, " + unit);
    }
    void Compare(std::string_view name, const std::string& text,
                 const std::optional<ExpectedValue>& expected) {
        if (expected && std::abs(Val(text) - expected->value) > expected->tolerance)
            Add(std::string(name) + " reads " + text + " where the record says " +
                NumberText(expected->value));
    }
    /// The count stands behind its number. A zero has decimals, but no digit that counts.
    void Digits(std::string_view name, const std::string& text, const std::string& number) {
        if (number.empty() || Val(number) == 0) return;
        if (ToInteger(Val(text)) <= SignificantDigits(number)) return;
        Add(std::string(name) + " " + text + " is more than the digits of " + number);
    }

    const std::vector<XmlMark>& marks_;
    std::size_t mark_ = 0;
    const Record* record_ = nullptr;
    std::vector<ExportFinding> findings_;
    std::vector<OpenElement> open_;
    std::string text_, number_; // character data in hand; the last number
    std::map<std::string, std::set<std::string>> samples_; // numbers of each compound's samples
    std::set<std::string> data_, components_; // numbers of all data; compounds of those in hand
    std::string compound_, sample_;           // the numbers read last
    Numbers properties_, variables_;
    std::optional<ExpectedValues> values_;
    bool inBlock_ = false;
    std::string inValue_; // number of the quantity whose value is being read
    int variable_ = 0;    // the number read last
};

} // namespace

std::vector<ExportFinding> CheckExport(std::string_view xml, const std::vector<XmlMark>& marks) {
    StrangeReader reader(marks);
    try {
        ReadXml(xml, reader);
    } catch (const XmlError& error) {
        reader.Add(std::string("The file is not well formed: ") + error.what());
    }
    return reader.Take();
}

} // namespace vexora
