#pragma once

#include <string>
#include <vector>

#include "ui/Control.h"

namespace vexora::ui {

/// A drawing surface in units of its own, from (0, 0) at the upper left to its width and height.
/// The form states what is to be seen as a list of shapes; the view only paints them.
class Picture : public Control {
public:
    enum class Shape { Line, Rectangle, Disc, Text, Marker };
    enum class Align { Left, Centre, Right }; // of a text, by its place
    /// Kinds of markers: disc, square, triangle, diamond, triangle on its tip, cross.
    static constexpr int MarkerCount = 6;
    struct Stroke {
        Shape shape = Shape::Line;
        double x = 0, y = 0, x2 = 0, y2 = 0;
        int colour = 0; // index into the palette of the view, 0 the text colour, -1 faint
        std::string text;
        Align align = Align::Left;
        int marker = 0; // 0 to 5; a marker keeps its size when the surface grows
    };

    Picture(Form& form, std::string name, double width, double height);
    double Width() const { return width_; }
    double Height() const { return height_; }
    const std::vector<Stroke>& Strokes() const { return strokes_; }
    void Strokes(std::vector<Stroke> strokes);
    std::string Display() const override { return {}; }

    std::function<void(double x, double y)> OnPress;
    std::function<void(double x, double y)> OnMove;
    std::function<void(double x, double y)> OnRelease;

    void UserDrag(double x, double y, double x2, double y2);
    void UserHover(double x, double y);

private:
    double width_;
    double height_;
    std::vector<Stroke> strokes_;
};

} // namespace vexora::ui
