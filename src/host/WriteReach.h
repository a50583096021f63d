#pragma once

#include <string>
#include <vector>

#include "ui/FileSystem.h"

namespace vexora::host {

/// The folders in which a script may change files, so that one from elsewhere harms nothing of the
/// user's. A folder stands for all below it; "..", and symbolic links on the way, are followed
/// before it is compared.
class WriteReach {
public:
    /// files must outlive it.
    explicit WriteReach(ui::FileSystem& files) : files_(files) {}

    void AllowAll() { isBounded_ = false; }
    void AllowFolder(const std::string& folder);
    /// The folder of a document that is there.
    void AllowFolderOf(const std::string& document);
    /// Why the file behind this path may not be written, with what would allow it; else empty.
    std::string WhyNot(const std::string& path) const;
    /// The same of the name itself: a link there may lead anywhere.
    std::string WhyNotName(const std::string& path) const;

private:
    std::string WhyNotResolved(const std::string& path) const;

    ui::FileSystem& files_;
    bool isBounded_ = true;
    std::vector<std::string> folders_; // resolved
};

/// The disk as a script has it: every change beyond its reach is refused with the reason.
class ReachedFileSystem : public ui::FileSystem {
public:
    /// Both must outlive it.
    ReachedFileSystem(ui::FileSystem& files, const WriteReach& reach)
        : files_(files), reach_(reach) {}

    bool Exists(const std::string& path) override { return files_.Exists(path); }
    bool IsFolder(const std::string& path) override { return files_.IsFolder(path); }
    long long Size(const std::string& path) override { return files_.Size(path); }
    std::string Resolve(const std::string& path) override { return files_.Resolve(path); }
    std::optional<std::string> Read(const std::string& path, std::string& error) override {
        return files_.Read(path, error);
    }
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
    std::string FlushFolder(const std::string& folder) override {
        return files_.FlushFolder(folder);
    }

private:
    ui::FileSystem& files_;
    const WriteReach& reach_;
};

} // namespace vexora::host
