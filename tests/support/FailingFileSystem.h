#pragma once

#include <map>
#include <memory>
#include <string>

#include "host/PosixFileSystem.h"

namespace vexora::test {

/// The disk, but the n-th call of an operation fails: what a full or broken disk does to a save.
/// Operations are named as in FileSystem and OutputFile ("Write", "Rename", ...). A failing write
/// leaves half of its bytes behind.
class FailingFileSystem : public ui::FileSystem {
public:
    /// The call counted from 1 at which the operation fails, with this reason.
    void FailAt(const std::string& operation, int call = 1,
                std::string reason = "No space left on device") {
        failAt_[operation] = call;
        reason_ = std::move(reason);
    }
    /// Fails at that call and at every later one.
    void FailFrom(const std::string& operation, int call) {
        FailAt(operation, call);
        failsOn_ = true;
    }
    /// A renaming that fails has happened all the same, as over a network.
    bool FailsAfterwards = false;
    int Calls(const std::string& operation) { return calls_[operation]; }

    bool Exists(const std::string& path) override { return disk_.Exists(path); }
    bool IsFolder(const std::string& path) override { return disk_.IsFolder(path); }
    long long Size(const std::string& path) override {
        return Fails("Size") ? 0 : disk_.Size(path);
    }
    std::string Resolve(const std::string& path) override { return disk_.Resolve(path); }
    std::string WhyNotWritable(const std::string& path) override {
        return Fails("WhyNotWritable") ? reason_ : disk_.WhyNotWritable(path);
    }
    std::optional<std::string> Read(const std::string& path, std::string& error) override {
        if (!Fails("Read")) return disk_.Read(path, error);
        error = reason_;
        return {};
    }
    std::unique_ptr<ui::OutputFile> CreateBeside(const std::string& target,
                                                 std::string& temporaryPath,
                                                 std::string& error) override {
        if (Fails("CreateBeside")) {
            error = reason_;
            return nullptr;
        }
        auto file = disk_.CreateBeside(target, temporaryPath, error);
        if (!file) return nullptr;
        return std::make_unique<File>(*this, std::move(file));
    }
    std::vector<std::string> Leftovers(const std::string& target) override {
        return disk_.Leftovers(target);
    }
    std::string MakeFolder(const std::string& path) override {
        return Fails("MakeFolder") ? reason_ : disk_.MakeFolder(path);
    }
    std::string Remove(const std::string& path) override {
        return Fails("Remove") ? reason_ : disk_.Remove(path);
    }
    std::string Rename(const std::string& source, const std::string& target) override {
        if (!Fails("Rename")) return disk_.Rename(source, target);
        if (FailsAfterwards) disk_.Rename(source, target);
        return reason_;
    }
    std::string Link(const std::string& source, const std::string& name) override {
        return Fails("Link") ? reason_ : disk_.Link(source, name);
    }
    std::string Copy(const std::string& source, const std::string& target) override {
        return Fails("Copy") ? reason_ : disk_.Copy(source, target);
    }
    std::string FlushFolder(const std::string& folder) override {
        return Fails("FlushFolder") ? reason_ : disk_.FlushFolder(folder);
    }

private:
    class File : public ui::OutputFile {
    public:
        File(FailingFileSystem& owner, std::unique_ptr<ui::OutputFile> file)
            : owner_(owner), file_(std::move(file)) {}
        std::string Write(std::string_view bytes) override {
            if (!owner_.Fails("Write")) return file_->Write(bytes);
            file_->Write(bytes.substr(0, bytes.size() / 2));
            return owner_.reason_;
        }
        std::string Flush() override {
            return owner_.Fails("Flush") ? owner_.reason_ : file_->Flush();
        }
        std::string Close() override {
            const std::string error = file_->Close();
            return owner_.Fails("Close") ? owner_.reason_ : error;
        }

    private:
        FailingFileSystem& owner_;
        std::unique_ptr<ui::OutputFile> file_;
    };

    bool Fails(const std::string& operation) {
        const int call = ++calls_[operation];
        const auto found = failAt_.find(operation);
        return found != failAt_.end() &&
               (found->second == call || (failsOn_ && call > found->second));
    }

    host::PosixFileSystem disk_;
    std::map<std::string, int> failAt_;
    std::map<std::string, int> calls_;
    std::string reason_;
    bool failsOn_ = false;
};

} // namespace vexora::test
