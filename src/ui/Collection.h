#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vexora::ui {

/// An ordered list of records, reached by position (from 1) and by exact text key, both in constant
/// time. It owns its entries; a miss is an empty result. A key that is taken is stored with "~2",
/// "~3", ... behind it, so that adding never fails. Documents hold many small records, so an entry
/// costs little more than its pointer and its key.
template <class T>
class Collection {
public:
    using Pointer = std::shared_ptr<T>;

    /// Adds at the end; the answer is the key under which the entry really stands.
    std::string Add(Pointer entry, std::string_view key = {}) {
        std::string unique = Unique(key);
        if (!positions_.empty()) positions_[entry.get()] = entries_.size();
        entries_.push_back(std::move(entry));
        keys_.push_back(unique);
        if (slots_.size() < 2 * keys_.size())
            IndexKeys(4 * keys_.size());
        else
            IndexKey(keys_.size() - 1);
        return unique;
    }

    /// Adds at a position counted from 1, at the end for one that is beyond it; the answer as of
    /// Add.
    std::string Insert(Pointer entry, std::string_view key, std::size_t position) {
        if (position < 1 || position > entries_.size()) return Add(std::move(entry), key);
        std::string unique = Unique(key);
        const auto index = static_cast<std::ptrdiff_t>(position - 1);
        entries_.insert(entries_.begin() + index, std::move(entry));
        keys_.insert(keys_.begin() + index, unique);
        positions_.clear();
        IndexKeys(4 * keys_.size());
        return unique;
    }

    std::size_t Count() const { return entries_.size(); }
    bool IsEmpty() const { return entries_.empty(); }

    /// The entry at a position counted from 1, or nothing.
    Pointer Item(std::size_t position) const {
        return position >= 1 && position <= entries_.size() ? entries_[position - 1] : nullptr;
    }

    Pointer Item(std::string_view key) const { return Item(PositionOf(key)); }

    /// Position of an entry counted from 1, 0 when it is not here.
    std::size_t Position(const T* entry) const {
        if (positions_.empty()) { // most collections are never asked
            for (std::size_t i = 0; i < entries_.size(); ++i)
                positions_[entries_[i].get()] = i;
        }
        const auto found = positions_.find(entry);
        return found == positions_.end() ? 0 : found->second + 1;
    }

    /// Takes the entry out; false when it is not here. Later entries move up by one.
    bool Remove(const T* entry) {
        const std::size_t position = Position(entry);
        if (position == 0) return false;
        const auto index = static_cast<std::ptrdiff_t>(position - 1);
        entries_.erase(entries_.begin() + index);
        keys_.erase(keys_.begin() + index);
        positions_.clear();
        IndexKeys(slots_.size());
        return true;
    }

    /// Gives an entry another key at the same position; the answer is the key under which it really
    /// stands, empty when it is not here.
    std::string Rekey(const T* entry, std::string_view key) {
        const std::size_t position = Position(entry);
        if (position == 0) return {};
        std::string& stored = keys_[position - 1];
        if (stored == key) return stored;
        DropKey(position - 1);
        stored = Unique(key);
        IndexKey(position - 1);
        return stored;
    }

    void Clear() {
        entries_.clear();
        keys_.clear();
        slots_.clear();
        positions_.clear();
    }

    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

private:
    std::string Unique(std::string_view key) const {
        std::string unique(key);
        for (int n = 2; !unique.empty() && PositionOf(unique) != 0; ++n)
            unique = std::string(key) + "~" + std::to_string(n);
        return unique;
    }

    // Keys are found through slots that hold positions, several slots a key: the one that its hash
    // names, or the next free one behind it.

    std::size_t PositionOf(std::string_view key) const {
        if (slots_.empty() || key.empty()) return 0;
        for (std::size_t at = SlotOf(key); slots_[at] != 0; at = (at + 1) % slots_.size())
            if (keys_[slots_[at] - 1] == key) return slots_[at];
        return 0;
    }
    std::size_t SlotOf(std::string_view key) const {
        return std::hash<std::string_view>()(key) % slots_.size();
    }
    void IndexKey(std::size_t index) {
        if (keys_[index].empty()) return;
        std::size_t at = SlotOf(keys_[index]);
        while (slots_[at] != 0)
            at = (at + 1) % slots_.size();
        slots_[at] = static_cast<std::uint32_t>(index + 1);
    }
    /// Frees the slot of a key; those behind it that would not be found any more move up.
    void DropKey(std::size_t index) {
        if (keys_[index].empty()) return;
        const std::size_t count = slots_.size();
        std::size_t hole = SlotOf(keys_[index]);
        while (slots_[hole] != index + 1)
            hole = (hole + 1) % count;
        for (std::size_t at = (hole + 1) % count; slots_[at] != 0; at = (at + 1) % count) {
            const std::size_t home = SlotOf(keys_[slots_[at] - 1]);
            if ((at + count - home) % count < (at + count - hole) % count) continue;
            slots_[hole] = slots_[at];
            hole = at;
        }
        slots_[hole] = 0;
        keys_[index].clear();
    }
    void IndexKeys(std::size_t slots) {
        slots_.assign(slots, 0);
        for (std::size_t i = 0; i < keys_.size(); ++i)
            IndexKey(i);
    }

    std::vector<Pointer> entries_;
    std::vector<std::string> keys_;
    std::vector<std::uint32_t> slots_;
    mutable std::unordered_map<const T*, std::size_t> positions_; // empty until it is asked for
};

} // namespace vexora::ui
