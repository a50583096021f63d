#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

#include "records/clsData.h"

namespace vexora {

/// The rows of a data set by position from 1, in few blocks of memory that grow with the set. A row
/// keeps its address as long as it is here.
/// One vector would move all rows whenever it grows, and hold them twice meanwhile.
class RowList {
public:
    RowList() = default;
    RowList(const RowList& other) {
        for (const clsData& row : other)
            Add(row);
    }
    RowList(RowList&& other) noexcept
        : blocks_(std::move(other.blocks_)), count_(std::exchange(other.count_, 0)) {}
    RowList& operator=(RowList other) noexcept {
        blocks_.swap(other.blocks_);
        std::swap(count_, other.count_);
        return *this;
    }

    /// Adds at the end.
    /// The reference holds until the rows are cleared or assigned.
    clsData& Add(clsData row) { return Add() = std::move(row); }
    /// Adds an empty row, which is to be filled where it stands.
    clsData& Add() {
        if (blocks_.empty() || blocks_.back().size() == blocks_.back().capacity()) Grow();
        ++count_;
        return blocks_.back().emplace_back();
    }
    /// Takes back the row that was added last.
    void DropLast() {
        blocks_.back().pop_back();
        if (blocks_.back().empty()) blocks_.pop_back();
        --count_;
    }
    void Clear() {
        blocks_.clear();
        count_ = 0;
    }

    std::size_t Count() const { return count_; }
    bool IsEmpty() const { return count_ == 0; }
    /// The row at a position counted from 1, or null.
    clsData* Item(std::size_t position) {
        return position >= 1 && position <= count_ ? &At(position - 1) : nullptr;
    }
    const clsData* Item(std::size_t position) const {
        return const_cast<RowList*>(this)->Item(position);
    }
    clsData* Last() { return Item(count_); }

    template <class List, class Row>
    class Walker {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = clsData;
        using difference_type = std::ptrdiff_t;
        using pointer = Row*;
        using reference = Row&;

        Walker() = default;
        Walker(List* list, std::size_t block) : list_(list), block_(block) {}
        Row& operator*() const { return list_->blocks_[block_][at_]; }
        Row* operator->() const { return &**this; }
        // No block is ever empty: one is made only for the row that goes into it.
        Walker& operator++() {
            if (++at_ < list_->blocks_[block_].size()) return *this;
            at_ = 0;
            ++block_;
            return *this;
        }
        Walker operator++(int) {
            const Walker before = *this;
            ++*this;
            return before;
        }
        bool operator==(const Walker&) const = default;

    private:
        List* list_ = nullptr;
        std::size_t block_ = 0, at_ = 0;
    };
    using iterator = Walker<RowList, clsData>;
    using const_iterator = Walker<const RowList, const clsData>;
    iterator begin() { return {this, 0}; }
    iterator end() { return {this, blocks_.size()}; }
    const_iterator begin() const { return {this, 0}; }
    const_iterator end() const { return {this, blocks_.size()}; }

private:
    // Blocks hold 16, 32, 64, ... rows, and from the tenth on this many.
    static constexpr std::size_t FirstBlock = 16;
    static constexpr std::size_t LargestBlock = 8192;
    static constexpr std::size_t GrowingRows =
        2 * LargestBlock - FirstBlock; // of the growing blocks

    void Grow() {
        const std::size_t rows =
            blocks_.empty() ? FirstBlock : std::min(blocks_.back().capacity() * 2, LargestBlock);
        blocks_.emplace_back().reserve(rows);
    }
    // Growing block b begins at row 16 (2^b - 1), so the bit width of the index tells the block.
    clsData& At(std::size_t index) {
        if (index >= GrowingRows) {
            const std::size_t behind = index - GrowingRows;
            constexpr std::size_t growing =
                std::bit_width(LargestBlock / FirstBlock); // count of those blocks
            return blocks_[growing + behind / LargestBlock][behind % LargestBlock];
        }
        const std::size_t block = std::bit_width(index / FirstBlock + 1) - 1;
        const std::size_t first = FirstBlock * ((std::size_t{1} << block) - 1);
        return blocks_[block][index - first];
    }

    std::vector<std::vector<clsData>> blocks_;
    std::size_t count_ = 0;
};

} // namespace vexora
