#include "shell/KnownFile.h"

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

} // namespace vexora
