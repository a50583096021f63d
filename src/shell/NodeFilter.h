#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "records/PropertyLabels.h"
#include "ui/TreeView.h"

namespace vexora {

class clsA;

/// Which nodes hold the words that are looked for. A node hits when it holds one of them in its
/// label or its record, and it and the nodes above it hold all: "water viscosity" finds the
/// viscosities of water. Letters are compared without regard to case. A number is sought among the
/// values as typed too, and so is a range: "298..300", ">500", "<=2"; one that is still being typed
/// asks for nothing.
class NodeFilter {
public:
    explicit NodeFilter(std::string_view words);
    /// No word asks for anything.
    bool IsEmpty() const { return words_.empty(); }
    /// To be asked of each node behind those above it.
    bool Hits(const ui::TreeNode& node);

private:
    struct Range {
        double least = -std::numeric_limits<double>::infinity();
        double most = std::numeric_limits<double>::infinity();
        bool withLeast = true, withMost = true; // the ends belong to it
        bool Holds(double value) const;
    };
    struct Word {
        std::string text;           // in small letters
        std::optional<Range> range; // in its place
        bool isNumber = false;
        bool IsIn(std::string_view value) const;
    };
    using Found = std::uint64_t; // a bit for each word

    static std::optional<Range> RangeOf(std::string_view word, bool& isUnfinished);
    void Add(std::string_view word);
    std::string TextOf(const ui::TreeNode& node);
    const std::string& CommentText(const clsA& header, const std::string& propertyCode);

    std::vector<Word> words_;
    std::unordered_map<const ui::TreeNode*, Found> found_;  // in the node and those above it
    std::unordered_map<std::string, std::string> comments_; // in words, by what was typed
    PropertyLabels labels_;                                 // looked up once each
};

} // namespace vexora
