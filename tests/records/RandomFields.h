#pragma once

#include "reference/Numbers.h"

#include <random>
#include <string>
#include <vector>

namespace vexora::test {

/// Texts of all kinds that a field may hold, none among them.
class RandomFields {
public:
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }
    std::string Text() {
        static const std::vector<std::string> parts = {
            "a", "Z", "7", "\u00E4", "\u03A9", "-", "\u6C34", "#", "%", "\U0001F9EA", ".", ":"};
        std::string text;
        for (int length = Below(3) == 0 ? 0 : 1 + Below(6); length > 0; --length)
            text += parts[static_cast<std::size_t>(Below(static_cast<int>(parts.size())))];
        return text == "&" ? "" : text;
    }
    std::string Number() {
        if (Below(4) == 0) return {};
        return NumberText((Below(20'001) - 10'000) / 1000.0);
    }
    std::string Of(const std::vector<std::string>& texts) {
        return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
    }

private:
    std::mt19937 engine_{20261122};
};

} // namespace vexora::test
