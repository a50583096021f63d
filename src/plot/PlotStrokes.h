#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ui/Picture.h"

namespace vexora {

// The strokes that all plots are made of, in units of their surface.

struct PlotPlace {
    double x = 0, y = 0;
};

using PlotStrokes = std::vector<ui::Picture::Stroke>;

inline constexpr double LineHeight = 24; // of a text
inline constexpr double TextMiddle = 10; // below the top of a text
inline constexpr double HeadLine = 8;
inline constexpr double CharacterWidth = 10;
inline constexpr double TickLength = 6;
inline constexpr int ColourCount = static_cast<int>(ui::PictureColours.size());
inline constexpr int Faint = -1;

inline ui::Picture::Stroke PlotLine(PlotPlace from, PlotPlace to, int colour = 0) {
    return {ui::Picture::Shape::Line, from.x, from.y, to.x, to.y, colour, {}};
}

/// The place is the middle or an end of the text's upper edge.
inline ui::Picture::Stroke PlotLabel(PlotPlace place, std::string text, ui::Picture::Align align) {
    ui::Picture::Stroke stroke{ui::Picture::Shape::Text, place.x, place.y, 0, 0, 0,
                               std::move(text)};
    stroke.align = align;
    return stroke;
}

/// Neighbouring families differ in colour and in shape, so that either is enough.
inline ui::Picture::Stroke PlotMarker(PlotPlace place, int group) {
    ui::Picture::Stroke stroke{ui::Picture::Shape::Marker, place.x, place.y, 0, 0,
                               1 + group % ColourCount,    {}};
    stroke.marker = group % ui::Picture::MarkerCount;
    return stroke;
}

inline ui::Picture::Stroke PlotRing(PlotPlace place) {
    return {ui::Picture::Shape::Ring, place.x, place.y, 0, 0, 0, {}};
}

} // namespace vexora
