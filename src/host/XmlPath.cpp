#include "host/XmlPath.h"

#include <algorithm>
#include <memory>

#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora::host {

namespace {

struct Element {
    std::string name;
    std::string text; // all character data below
    std::vector<std::unique_ptr<Element>> children;
};

/// Keeps all elements below one that stands for the document.
class ElementCollector : public XmlHandler {
public:
    explicit ElementCollector(Element& document) : open_{&document} {}
    void Open(std::string_view name, int) override {
        auto& children = open_.back()->children;
        children.push_back(std::make_unique<Element>());
        children.back()->name = name;
        open_.push_back(children.back().get());
    }
    void Text(std::string_view text) override {
        for (Element* element : open_)
            element->text += text;
    }
    void Close() override { open_.pop_back(); }

private:
    std::vector<Element*> open_;
};

/// One step of a path.
struct Step {
    bool anyDepth = false;
    std::string name;
    std::int64_t position = 0;                                 // 0 for all
    std::vector<std::pair<std::string, std::string>> children; // name and text asked for
};

/// Takes a path apart.
class PathReader {
public:
    explicit PathReader(std::string_view path) : path_(path) {}

    std::vector<Step> Steps() {
        std::vector<Step> steps;
        do
            steps.push_back(ReadStep());
        while (at_ < path_.size());
        return steps;
    }

private:
    [[noreturn]] void Fail() const { throw XmlError("no path: " + std::string(path_)); }

    bool Take(std::string_view what) {
        if (!path_.substr(at_).starts_with(what)) return false;
        at_ += what.size();
        return true;
    }

    Step ReadStep() {
        Step step;
        step.anyDepth = Take("//");
        if (!step.anyDepth) Take("/");
        const std::size_t end = std::min(path_.find_first_of("[/", at_), path_.size());
        step.name = path_.substr(at_, end - at_);
        if (step.name.empty()) Fail();
        at_ = end;
        while (Take("["))
            ReadCondition(step);
        if (at_ < path_.size() && path_[at_] != '/') Fail();
        return step;
    }

    void ReadCondition(Step& step) {
        bool inText = false;
        std::size_t end = at_;
        while (end < path_.size() && (inText || path_[end] != ']'))
            if (path_[end++] == '\'') inText = !inText;
        if (end == path_.size()) Fail();
        const std::string_view condition = path_.substr(at_, end - at_);
        at_ = end + 1;
        if (const auto number = ParseInteger(condition)) {
            if (*number < 1) Fail();
            step.position = *number;
            return;
        }
        const std::size_t sign = condition.find("='");
        if (sign == condition.npos || sign == 0 || sign + 3 > condition.size() ||
            !condition.ends_with('\''))
            Fail();
        step.children.emplace_back(condition.substr(0, sign),
                                   condition.substr(sign + 2, condition.size() - sign - 3));
    }

    std::string_view path_;
    std::size_t at_ = 0;
};

bool HasChild(const Element& element, const std::string& name, const std::string& text) {
    return std::ranges::any_of(element.children, [&](const auto& child) {
        return child->name == name && Trim(child->text) == text;
    });
}

using Found = std::vector<const Element*>;

void TakeStep(const Element& parent, const Step& step, Found& found) {
    std::int64_t position = 0;
    for (const auto& child : parent.children) {
        const bool named = step.name == "*" || child->name == step.name;
        const bool fits = named && std::ranges::all_of(step.children, [&](const auto& wanted) {
                              return HasChild(*child, wanted.first, wanted.second);
                          });
        const bool isMeant = fits && (++position == step.position || step.position == 0);
        if (isMeant && std::ranges::find(found, child.get()) == found.end())
            found.push_back(child.get());
        if (step.anyDepth) TakeStep(*child, step, found);
    }
}

} // namespace

std::vector<std::string> XmlTexts(std::string_view document, std::string_view path) {
    Element above;
    ElementCollector collector(above);
    ReadXml(document, collector);
    Found found{&above};
    for (const Step& step : PathReader(path).Steps()) {
        Found next;
        for (const Element* element : found)
            TakeStep(*element, step, next);
        found = std::move(next);
    }
    std::vector<std::string> texts;
    for (const Element* element : found)
        texts.emplace_back(Trim(element->text));
    return texts;
}

} // namespace vexora::host
