#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vexora::ui {

/// An ordered list of records, reached by position (from 1) and by exact text key, both in constant
/// time. It owns its entries; a miss is an empty result. A key that is taken is stored with "~2",
/// "~3", ... behind it, so that adding never fails.
template <class T>
class Collection {
public:
    using Pointer = std::shared_ptr<T>;

    /// Adds at the end; the answer is the key under which the entry really stands.
    std::string Add(Pointer entry, std::string_view key = {}) {
        std::string unique = Unique(key);
        if (!unique.empty()) byKey_[unique] = entry.get();
        positions_[entry.get()] = entries_.size();
        entries_.push_back(std::move(entry));
        keys_.push_back(unique);
        return unique;
    }

    std::size_t Count() const { return entries_.size(); }
    bool IsEmpty() const { return entries_.empty(); }

    /// The entry at a position counted from 1, or nothing.
    Pointer Item(std::size_t position) const {
        return position >= 1 && position <= entries_.size() ? entries_[position - 1] : nullptr;
    }

    Pointer Item(std::string_view key) const {
        const auto found = byKey_.find(std::string(key));
        return found == byKey_.end() ? nullptr : Item(Position(found->second));
    }

    /// Position of an entry counted from 1, 0 when it is not here.
    std::size_t Position(const T* entry) const {
        const auto found = positions_.find(entry);
        return found == positions_.end() ? 0 : found->second + 1;
    }

    /// Takes the entry out; false when it is not here. Later entries move up by one.
    bool Remove(const T* entry) {
        const std::size_t position = Position(entry);
        if (position == 0) return false;
        const std::size_t index = position - 1;
        if (!keys_[index].empty()) byKey_.erase(keys_[index]);
        positions_.erase(entry);
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
        keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(index));
        for (std::size_t i = index; i < entries_.size(); ++i)
            positions_[entries_[i].get()] = i;
        return true;
    }

    /// Gives an entry another key at the same position; the answer is the key under which it really
    /// stands, empty when it is not here.
    std::string Rekey(const T* entry, std::string_view key) {
        const std::size_t position = Position(entry);
        if (position == 0) return {};
        std::string& stored = keys_[position - 1];
        if (!stored.empty()) byKey_.erase(stored);
        stored = Unique(key);
        if (!stored.empty()) byKey_[stored] = entry;
        return stored;
    }

    void Clear() {
        entries_.clear();
        keys_.clear();
        byKey_.clear();
        positions_.clear();
    }

    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

private:
    std::string Unique(std::string_view key) const {
        std::string unique(key);
        for (int n = 2; !unique.empty() && byKey_.contains(unique); ++n)
            unique = std::string(key) + "~" + std::to_string(n);
        return unique;
    }

    std::vector<Pointer> entries_;
    std::vector<std::string> keys_;
    std::unordered_map<std::string, const T*> byKey_;
    std::unordered_map<const T*, std::size_t> positions_;
};

} // namespace vexora::ui
