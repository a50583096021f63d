#pragma once

#include <functional>

namespace vexora {

enum class Look { OfDesktop, Light, Dark };

/// The look of the windows that a person has chosen. It belongs to a screen and not to a workplace,
/// so the front that has windows keeps it beside their sizes; without windows it has no effect.
struct LookChoice {
    Look Chosen = Look::OfDesktop;
    /// Told of every choice.
    std::function<void(Look)> OnTaken;

    void Take(Look look);
};

LookChoice& TheLook();

} // namespace vexora
