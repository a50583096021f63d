#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace vexora {

/// A text for records that stand in memory by the million: twelve bytes, with up to eleven
/// characters in place and a longer text on the heap. Numbers as typed and codes nearly always fit.
/// It is read as a string_view and written by assignment.
/// Copies are deep. A view of it ends with the next assignment.
class ShortText {
public:
    static constexpr std::size_t MostInPlace = 11;

    ShortText() = default;
    ShortText(std::string_view text) { Take(text); }
    ShortText(const std::string& text) { Take(text); }
    ShortText(const char* text) { Take(text); }
    ShortText(const ShortText& other) { Copy(other); }
    ShortText(ShortText&& other) noexcept : bytes_(other.bytes_) { other.bytes_ = {}; }
    ~ShortText() { Drop(); }

    /// By value: the text may be a part of this one.
    ShortText& operator=(ShortText other) noexcept {
        std::swap(bytes_, other.bytes_);
        return *this;
    }

    // A heap block holds the length and then the characters.
    operator std::string_view() const {
        if (!IsOnHeap()) return {bytes_.data(), Mark()};
        const char* block = Block();
        std::uint64_t length = 0;
        std::memcpy(&length, block, sizeof length);
        return {block + sizeof length, static_cast<std::size_t>(length)};
    }
    operator std::string() const { return std::string(View()); }

    std::string_view View() const { return *this; }
    bool empty() const { return Mark() == 0; }
    std::size_t size() const { return View().size(); }
    void clear() { *this = ShortText(); }
    bool starts_with(std::string_view text) const { return View().starts_with(text); }
    bool starts_with(char c) const { return View().starts_with(c); }
    std::size_t find(std::string_view text) const { return View().find(text); }

    friend bool operator==(const ShortText& a, const ShortText& b) { return a.View() == b.View(); }
    friend bool operator==(const ShortText& a, std::string_view b) { return a.View() == b; }
    friend bool operator==(const ShortText& a, const std::string& b) { return a.View() == b; }
    friend bool operator==(const ShortText& a, const char* b) { return a.View() == b; }
    friend std::string operator+(const ShortText& a, std::string_view b) {
        return std::string(a).append(b);
    }
    friend std::string operator+(std::string_view a, const ShortText& b) {
        return std::string(a).append(b.View());
    }

private:
    static constexpr std::uint8_t OnHeap = 0xFF;

    /// The count of characters in place, or OnHeap.
    std::uint8_t Mark() const { return static_cast<std::uint8_t>(bytes_.back()); }
    void Mark(std::size_t mark) { bytes_.back() = static_cast<char>(mark); }
    bool IsOnHeap() const { return Mark() == OnHeap; }
    /// The address stands in the first bytes, which need not lie at a boundary for one.
    char* Block() const {
        char* block = nullptr;
        std::memcpy(&block, bytes_.data(), sizeof block);
        return block;
    }
    void Take(std::string_view text) {
        if (text.size() <= MostInPlace) {
            if (!text.empty()) std::memcpy(bytes_.data(), text.data(), text.size());
            return Mark(text.size());
        }
        const std::uint64_t length = text.size();
        char* block = new char[sizeof length + text.size()];
        std::memcpy(block, &length, sizeof length);
        std::memcpy(block + sizeof length, text.data(), text.size());
        std::memcpy(bytes_.data(), &block, sizeof block);
        Mark(OnHeap);
    }
    void Copy(const ShortText& other) {
        if (other.IsOnHeap())
            Take(other);
        else
            bytes_ = other.bytes_;
    }
    void Drop() {
        if (IsOnHeap()) delete[] Block();
    }

    std::array<char, MostInPlace + 1> bytes_{};
};

// A set of a million rows is made of these; padding to a pointer's boundary would cost a third
// more.
static_assert(sizeof(ShortText) == 12);

} // namespace vexora
