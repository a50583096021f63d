#include "shell/KnownFile.h"

#include <charconv>
#include <utility>

#include "ui/FileSystem.h"

namespace vexora {

namespace {

/// FNV-1a of 64 bits.
std::uint64_t Checksum(std::string_view bytes) {
    constexpr std::uint64_t offset = 0xcbf29ce484222325;
    constexpr std::uint64_t prime = 0x100000001b3;
    std::uint64_t sum = offset;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * prime;
    return sum;
}

/// Takes a number and the blank behind it off the text; false when it begins otherwise.
template <class T>
bool TakeNumber(std::string_view& text, T& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto length = static_cast<std::size_t>(end - text.data());
    if (error != std::errc() || length >= text.size() || text[length] != ' ') return false;
    text.remove_prefix(length + 1);
    return true;
}

} // namespace

void KnownFile::Note(std::string path, std::string_view content) {
    Lines = {};
    path_ = std::move(path);
    size_ = content.size();
    checksum_ = Checksum(content);
}

bool KnownFile::IsChanged(ui::FileSystem& files, const std::string& path) const {
    if (path_.empty() || !files.Exists(path)) return false;
    if (path != path_ && files.Resolve(path) != files.Resolve(path_)) return false;
    std::string error;
    const auto present = files.Read(path, error);
    return !present || present->size() != size_ || Checksum(*present) != checksum_;
}

std::string KnownFile::ToText() const {
    if (path_.empty()) return {};
    return std::to_string(size_) + " " + std::to_string(checksum_) + " " + path_;
}

KnownFile KnownFile::FromText(std::string_view text) {
    KnownFile known;
    if (TakeNumber(text, known.size_) && TakeNumber(text, known.checksum_)) known.path_ = text;
    return known;
}

} // namespace vexora
