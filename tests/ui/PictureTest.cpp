#include "ui/Picture.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace vexora::ui::test {
namespace {

using Triple = std::array<double, 3>;

Triple Linear(unsigned colour) {
    Triple light{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double part = static_cast<double>(colour >> (16 - 8 * i) & 0xFFU) / 255;
        light[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return light;
}

double Luminance(unsigned colour) {
    const Triple light = Linear(colour);
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

/// Contrast of two grounds, WCAG 2.
double Contrast(unsigned one, unsigned other) {
    const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

// What eyes without red, green or blue receptors see; Machado, Oliveira and Fernandes, 2009.
constexpr double sights[4][3][3] = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
                                    {{0.152286, 1.052583, -0.204868},
                                     {0.114503, 0.786281, 0.099216},
                                     {-0.003882, -0.048116, 1.051998}},
                                    {{0.367322, 0.860646, -0.227968},
                                     {0.280085, 0.672501, 0.047413},
                                     {-0.011820, 0.042940, 0.968881}},
                                    {{1.255528, -0.076749, -0.178779},
                                     {-0.078411, 0.930809, 0.147602},
                                     {0.004733, 0.691367, 0.303900}}};

/// Place in the CIE L*a*b* space.
Triple Lab(const Triple& light) {
    const auto root = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const double x = root((0.4124 * light[0] + 0.3576 * light[1] + 0.1805 * light[2]) / 0.9505);
    const double y = root(0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2]);
    const double z = root((0.0193 * light[0] + 0.1192 * light[1] + 0.9505 * light[2]) / 1.089);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

Triple Seen(unsigned colour, const double (&sight)[3][3]) {
    const Triple light = Linear(colour);
    Triple seen{};
    for (std::size_t i = 0; i < 3; ++i)
        seen[i] = std::clamp(
            sight[i][0] * light[0] + sight[i][1] * light[1] + sight[i][2] * light[2], 0.0, 1.0);
    return Lab(seen);
}

double Apart(unsigned one, unsigned other, const double (&sight)[3][3]) {
    const Triple a = Seen(one, sight);
    const Triple b = Seen(other, sight);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

TEST(PictureColours, AreToldApartByAllEyesAndSeenOnTheirGround) {
    for (std::size_t i = 0; i < PictureColours.size(); ++i) {
        EXPECT_GE(Contrast(PictureColours[i].light, 0xFFFFFF), 3) << i;
        EXPECT_GE(Contrast(PictureColours[i].dark, 0x2A2C30), 3) << i;
        for (std::size_t j = 0; j < i; ++j) {
            for (const auto& sight : sights) {
                EXPECT_GT(Apart(PictureColours[i].light, PictureColours[j].light, sight), 25)
                    << i << " and " << j;
                EXPECT_GT(Apart(PictureColours[i].dark, PictureColours[j].dark, sight), 25)
                    << i << " and " << j;
            }
        }
    }
}

} // namespace
} // namespace vexora::ui::test
