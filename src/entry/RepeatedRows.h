#pragma once

#include <cstddef>
#include <unordered_set>
#include <utility>
#include <vector>

namespace vexora {

/// Which of `count` things are equal to one in front of them, each with the first of its kind.
template <class Hash, class Equal>
std::vector<std::pair<std::size_t, std::size_t>> Repeated(std::size_t count, const Hash& hash,
                                                          const Equal& equal) {
    std::unordered_set<std::size_t, Hash, Equal> firsts(count, hash, equal);
    std::vector<std::pair<std::size_t, std::size_t>> repeated;
    for (std::size_t i = 0; i < count; ++i)
        if (const auto [first, isNew] = firsts.insert(i); !isNew) repeated.emplace_back(i, *first);
    return repeated;
}

} // namespace vexora
