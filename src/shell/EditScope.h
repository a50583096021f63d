#pragma once

namespace vexora {

/// Tells the dialog that it runs on an existing record, as long as it lasts.
class EditScope {
public:
    explicit EditScope(bool& flag) : flag_(flag) { flag_ = true; }
    ~EditScope() { flag_ = false; }
    EditScope(const EditScope&) = delete;
    EditScope& operator=(const EditScope&) = delete;

private:
    bool& flag_;
};

} // namespace vexora
