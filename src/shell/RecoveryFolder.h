#pragma once

#include <string>
#include <vector>

namespace vexora {

/// Where each of the programs that run at once keeps one recovery copy, and where those of programs
/// that have ended without removing theirs are found.
class RecoveryFolder {
public:
    virtual ~RecoveryFolder() = default;

    /// Full path of the copy of this program, whether it stands there or not; no other program
    /// takes it as long as this one lives. Empty, with the reason in error, when there can be none.
    virtual std::string Own(std::string& error) = 0;
    /// The copies of programs that have ended, the latest first. No other program is given them
    /// until LeaveOthers.
    virtual std::vector<std::string> Orphans() = 0;
    /// An orphan becomes the copy of this program.
    virtual void Adopt(const std::string& copy) = 0;
    /// Other programs may have the orphans that this one has not adopted.
    virtual void LeaveOthers() = 0;
};

} // namespace vexora
