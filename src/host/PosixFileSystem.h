#pragma once

#include "ui/FileSystem.h"

namespace vexora::host {

/// The disk itself. Writes are looped until all bytes are out, and nothing is reported as written
/// that a later flush may still lose. Only files are read and replaced: a pipe, a socket, a device
/// or a folder is refused with the reason.
class PosixFileSystem : public ui::FileSystem {
public:
    static constexpr long long UsualMostBytes = 1LL << 30; // of a file that is read, 1 GiB

    /// A file with more bytes is refused before it is read.
    explicit PosixFileSystem(long long mostBytes = UsualMostBytes) : mostBytes_(mostBytes) {}

    bool Exists(const std::string& path) override;
    bool IsFolder(const std::string& path) override;
    std::optional<std::string> Read(const std::string& path, std::string& error) override;
    long long Size(const std::string& path) override;
    std::string Resolve(const std::string& path) override;
    std::string WhyNotWritable(const std::string& path) override;
    std::unique_ptr<ui::OutputFile> CreateBeside(const std::string& target,
                                                 std::string& temporaryPath,
                                                 std::string& error) override;
    std::vector<std::string> Leftovers(const std::string& target) override;
    std::string MakeFolder(const std::string& path) override;
    std::string Remove(const std::string& path) override;
    std::string Rename(const std::string& source, const std::string& target) override;
    std::string Link(const std::string& source, const std::string& name) override;
    std::string Copy(const std::string& source, const std::string& target) override;
    std::string FlushFolder(const std::string& folder) override;

private:
    long long mostBytes_;
};

} // namespace vexora::host
