#pragma once

#include <string>

#include "globals/KVOGlobal.h"

namespace vexora {

/// Keeps what is selected while a dialog makes a compound or sample on the way: that one makes
/// current what it shows, which is not what the form behind it is about.
class SelectionScope {
public:
    SelectionScope()
        : compound_(Globals().CurrentL), sample_(Globals().CurrentS),
          context_(Globals().DataContext) {}
    ~SelectionScope() {
        Globals().CurrentL = compound_;
        Globals().CurrentS = sample_;
        Globals().DataContext = context_;
    }
    SelectionScope(const SelectionScope&) = delete;
    SelectionScope& operator=(const SelectionScope&) = delete;

private:
    decltype(KVOGlobal::CurrentL) compound_;
    decltype(KVOGlobal::CurrentS) sample_;
    std::string context_;
};

} // namespace vexora
