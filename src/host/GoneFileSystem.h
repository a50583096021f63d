#pragma once

#include "ui/FileSystem.h"

namespace vexora::host {

/// The disk for a program that is over while some of its handlers still return: it may look, and
/// every change is refused, so that nothing is saved.
class GoneFileSystem : public ui::FileSystem {
public:
    explicit GoneFileSystem(ui::FileSystem& files) : files_(files) {}

    bool Exists(const std::string& path) override { return files_.Exists(path); }
    bool IsFolder(const std::string& path) override { return files_.IsFolder(path); }
    long long Size(const std::string& path) override { return files_.Size(path); }
    std::string Resolve(const std::string& path) override { return files_.Resolve(path); }
    std::optional<std::string> Read(const std::string& path, std::string& error) override {
        return files_.Read(path, error);
    }
    std::string WhyNotWritable(const std::string&) override { return gone; }
    std::unique_ptr<ui::OutputFile> CreateBeside(const std::string&, std::string&,
                                                 std::string& error) override {
        error = gone;
        return nullptr;
    }
    std::vector<std::string> Leftovers(const std::string&) override { return {}; }
    std::string MakeFolder(const std::string&) override { return gone; }
    std::string Remove(const std::string&) override { return gone; }
    std::string Rename(const std::string&, const std::string&) override { return gone; }
    std::string Link(const std::string&, const std::string&) override { return gone; }
    std::string Copy(const std::string&, const std::string&) override { return gone; }
    std::string FlushFolder(const std::string&) override { return gone; }

private:
    static constexpr const char* gone = "the program is over";
    ui::FileSystem& files_;
};

} // namespace vexora::host
