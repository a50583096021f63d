#pragma once

#include <stdexcept>
#include <string>

namespace vexora::host {

/// A line of a script that does not hold: what it wants and what is there instead.
class PlayFailure : public std::runtime_error {
public:
    PlayFailure(std::string wanted, std::string found, bool expectation)
        : std::runtime_error(wanted + "; found " + found), Wanted(std::move(wanted)),
          Found(std::move(found)), IsExpectation(expectation) {}

    std::string Wanted;
    std::string Found;
    bool IsExpectation;
};

/// Something that a person could not do.
[[noreturn]] inline void CannotDo(std::string wanted, std::string found) {
    throw PlayFailure(std::move(wanted), std::move(found), false);
}

/// Something that is not seen as expected.
[[noreturn]] inline void NotSeen(std::string wanted, std::string found) {
    throw PlayFailure(std::move(wanted), std::move(found), true);
}

} // namespace vexora::host
