#pragma once

#include <string>

namespace vexora::ui {

/// A form that takes files dropped on its window derives from this besides.
class FileTarget {
public:
    virtual ~FileTarget() = default;
    /// A person drops a file. One that is of no use is told and changes nothing.
    virtual void TakeFile(const std::string& path) = 0;
};

} // namespace vexora::ui
