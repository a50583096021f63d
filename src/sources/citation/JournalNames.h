#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vexora {

/// The journals of the reference table, found by short or full title whatever the case, the points
/// and the small words in it.
class JournalNames {
public:
    void Add(const std::string& shortTitle, std::string_view fullTitle);
    /// The short title in the table, nothing for a journal that is not in it. What stands behind a
    /// colon or in brackets at the end need not fit.
    std::optional<std::string> Find(std::string_view name) const;

private:
    std::unordered_map<std::string, std::string> byWords_;
};

} // namespace vexora
