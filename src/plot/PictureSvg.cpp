#include "plot/PictureSvg.h"

#include "reference/Numbers.h"
#include "reference/SafeFile.h"
#include "reference/Text.h"
#include "ui/Desktop.h"
#include "ui/Html.h"

namespace vexora {

namespace {

using Stroke = ui::Picture::Stroke;
using Shape = ui::Picture::Shape;
using Align = ui::Picture::Align;

constexpr double Radius = 5.5; // of a marker
constexpr double DenseRadius = 3.3;
constexpr double FontSize = 16;

std::string Number(double value) {
    return NumberText(Val(FormatFixed(value, 2)));
}

std::string Colour(int index) {
    if (index <= 0) return index < 0 ? "#d9d9d9" : "#000000";
    const unsigned colour =
        ui::PictureColours[static_cast<std::size_t>(index - 1) % ui::PictureColours.size()].light;
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4)
        text += "0123456789abcdef"[colour >> shift & 0xFU];
    return text;
}

std::string Attribute(const char* name, double value) {
    return std::string(" ") + name + "=\"" + Number(value) + "\"";
}

std::string Pen(const Stroke& stroke) {
    return " fill=\"none\" stroke=\"" + Colour(stroke.colour) + "\"";
}

std::string Circle(const Stroke& stroke, double r) {
    return "<circle" + Attribute("cx", stroke.x) + Attribute("cy", stroke.y) + Attribute("r", r);
}

/// Corners in units of the radius of a marker.
const char* CornersOf(int marker) {
    constexpr const char* corners[] = {"", "-0.9,-0.9 0.9,-0.9 0.9,0.9 -0.9,0.9",
                                       "-1.1,0.9 1.1,0.9 0,-1.1", "-1.1,0 0,-1.3 1.1,0 0,1.3",
                                       "-1.1,-0.9 1.1,-0.9 0,1.1"};
    return corners[marker];
}

std::string Marker(const Stroke& stroke) {
    const double size = stroke.dense ? DenseRadius : Radius;
    const std::string colour = Colour(stroke.colour);
    const std::string fill =
        stroke.hollow ? " fill=\"#ffffff\" stroke=\"" + colour + "\""
                      : " fill=\"" + colour + "\"" + (stroke.dense ? "" : " stroke=\"#ffffff\"");
    if (stroke.marker == 0) return Circle(stroke, size) + fill + "/>";
    const std::string place = " transform=\"translate(" + Number(stroke.x) + " " +
                              Number(stroke.y) + ") scale(" + Number(size) + ")\"";
    if (stroke.marker >= ui::Picture::MarkerCount - 1)
        return "<path d=\"M-1-1L1 1M-1 1L1-1\"" + place + Pen(stroke) + " stroke-width=\"0.5\"/>";
    return std::string("<polygon points=\"") + CornersOf(stroke.marker) + "\"" + place + fill +
           (stroke.dense ? "" : " stroke-width=\"0.18\"") + "/>";
}

std::string Text(const Stroke& stroke) {
    const char* anchor = stroke.align == Align::Left     ? "start"
                         : stroke.align == Align::Centre ? "middle"
                                                         : "end";
    return "<text" + Attribute("x", stroke.x) + Attribute("y", stroke.y + FontSize) +
           " text-anchor=\"" + anchor + "\">" + ui::HtmlOfText(stroke.text) + "</text>";
}

std::string Element(const Stroke& stroke) {
    switch (stroke.shape) {
    case Shape::Line:
        return "<line" + Attribute("x1", stroke.x) + Attribute("y1", stroke.y) +
               Attribute("x2", stroke.x2) + Attribute("y2", stroke.y2) + Pen(stroke) + "/>";
    case Shape::Rectangle:
        return "<rect" + Attribute("x", stroke.x) + Attribute("y", stroke.y) +
               Attribute("width", stroke.x2 - stroke.x) +
               Attribute("height", stroke.y2 - stroke.y) + Pen(stroke) + "/>";
    case Shape::Disc:
        return Circle(stroke, (stroke.x2 - stroke.x) / 2) + " fill=\"" + Colour(stroke.colour) +
               "\"/>";
    case Shape::Ring:
        return Circle(stroke, Radius * 2.2) + Pen(stroke) + " stroke-width=\"2\"/>";
    case Shape::Marker:
        return Marker(stroke);
    default:
        return Text(stroke);
    }
}

} // namespace

std::string SvgOf(const ui::Picture& picture, std::string_view title) {
    const std::string wide = Number(picture.Width());
    const std::string high = Number(picture.Height());
    std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                      wide + "\" height=\"" + high + "\" viewBox=\"0 0 " + wide + " " + high +
                      "\" font-family=\"sans-serif\" font-size=\"" + Number(FontSize) +
                      "\">\n<title>" + ui::HtmlOfText(title) +
                      "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
    for (const Stroke& stroke : picture.Strokes())
        svg += Element(stroke) + "\n";
    return svg + "</svg>\n";
}

/// The ending of the name tells what is written; without one it is a drawing.
void SavePicture(const ui::Picture& picture, std::string_view title, const std::string& proposed) {
    const auto chosen = ui::TheDesktop().Choose({true, {}, proposed, "Pictures (*.svg *.png)"});
    if (!chosen) return;
    const std::string name = LowerAscii(*chosen);
    const bool isPng = name.ends_with(".png");
    const std::string path = isPng || name.ends_with(".svg") ? *chosen : *chosen + ".svg";
    ui::FileSystem& files = ui::TheDesktop().Files();
    if (files.Exists(path) && !ui::AskYesNo(path + " exists already\nReplace it?")) return;
    const auto bytes = isPng ? ui::TheDesktop().PngOf(picture) : SvgOf(picture, title);
    if (!bytes)
        return ui::Say("A picture of points (.png) needs a screen\nSave it as a drawing (.svg)");
    const SaveOutcome outcome = WriteSafely(files, path, *bytes, false);
    if (const std::string told = outcome.Told("The file " + path); !told.empty()) ui::Say(told);
}

} // namespace vexora
