#pragma once

#include <array>
#include <string>
#include <vector>

#include "ui/Control.h"

namespace vexora::ui {

/// A colour for light surroundings and its fellow for dark ones, as 0xRRGGBB.
struct PictureColour {
    unsigned light, dark;
};
/// Told apart by people with any of the colour deficiencies, and seen well on their ground.
inline constexpr std::array<PictureColour, 7> PictureColours{{{0x0077AA, 0x55BBEE},
                                                              {0xFF4411, 0xDD8811},
                                                              {0x220088, 0xFFEE00},
                                                              {0xAA33FF, 0xCC22FF},
                                                              {0xCC7777, 0x998855},
                                                              {0x880000, 0xBBFF88},
                                                              {0x661144, 0xEE1199}}};

/// A drawing surface in units of its own, from (0, 0) at the upper left to its width and height.
/// The form states what is to be seen as a list of shapes; the view only paints them. What changes
/// with the mouse lies above it, so that the many shapes below need not be painted again.
class Picture : public Control {
public:
    enum class Shape { Line, Rectangle, Disc, Text, Marker, Ring };
    enum class Align { Left, Centre, Right }; // of a text, by its place
    /// Kinds of markers: disc, square, triangle, diamond, triangle on its tip, cross.
    static constexpr int MarkerCount = 6;
    static constexpr int Reticle = 6; // a further marker, which points at another
    struct Stroke {
        Shape shape = Shape::Line;
        double x = 0, y = 0, x2 = 0, y2 = 0;
        int colour = 0; // 1 to 7 of PictureColours, 0 the text colour, -1 faint
        std::string text;
        Align align = Align::Left;
        int marker = 0;      // markers and rings keep their size when the surface grows
        bool yields = false; // a text that is left out where it would cover one of its kind
        bool boxed = false;  // a text on a ground of its own
        bool hollow = false; // a marker of which only the edge has its colour
        bool dense = false;  // a marker among very many: small, and no edge that hides others
    };

    Picture(Form& form, std::string name, double width, double height)
        : Control(form, ControlKind::Picture, std::move(name)), width_(width), height_(height) {}
    double Width() const { return width_; }
    double Height() const { return height_; }
    /// On: a unit across is as long as one down, whatever room there is, so that angles are true.
    bool KeepsShape() const { return keepsShape_; }
    void KeepsShape(bool keeps);
    const std::vector<Stroke>& Strokes() const { return strokes_; }
    void Strokes(std::vector<Stroke> strokes);
    const std::vector<Stroke>& Overlay() const { return overlay_; }
    void Overlay(std::vector<Stroke> strokes);
    /// Counts the changes of what lies below the overlay.
    int Revision() const { return revision_; }
    std::string Display() const override { return {}; }
    /// One that answers to nothing is only looked at.
    bool TakesFocus() const override {
        return OnPress || OnMove || OnRelease || OnKey || OnClick || OnDoubleClick;
    }

    std::function<void(double x, double y)> OnPress;
    std::function<void(double x, double y)> OnMove;
    std::function<void(double x, double y)> OnRelease;

    void UserDrag(double x, double y, double x2, double y2);
    void UserHover(double x, double y);

private:
    double width_;
    double height_;
    std::vector<Stroke> strokes_;
    std::vector<Stroke> overlay_;
    int revision_ = 0;
    bool keepsShape_ = false;
};

} // namespace vexora::ui
