#pragma once

#include <memory>
#include <string>
#include <vector>

#include "shell/RecoveryFolder.h"

namespace vexora::host {

/// Copies in a folder of the disk, "PID-N.recovery". Beside each stands a file that its program
/// keeps locked, which the system unlocks when the program ends, however it ends.
class PosixRecoveryFolder : public RecoveryFolder {
public:
    explicit PosixRecoveryFolder(std::string folder);
    /// A copy that stands there stays; what was locked for nothing goes.
    ~PosixRecoveryFolder() override;
    PosixRecoveryFolder(const PosixRecoveryFolder&) = delete;
    PosixRecoveryFolder& operator=(const PosixRecoveryFolder&) = delete;

    std::string Own(std::string& error) override;
    std::vector<std::string> Orphans() override;
    void Adopt(const std::string& copy) override;
    void LeaveOthers() override;

private:
    struct Held {
        std::string copy;
        int lock = -1;
    };
    static void Release(const Held& held);

    std::string folder_;
    Held own_;
    std::vector<Held> orphans_;
};

/// That of the programs of an application folder.
std::shared_ptr<RecoveryFolder> RecoveryBelow(const std::string& home);

} // namespace vexora::host
