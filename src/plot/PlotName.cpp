#include "plot/PlotName.h"

#include "globals/Sitting.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::size_t LongestName = 120;

/// A file of this name can be kept on any disk.
std::string AsFileName(std::string text) {
    constexpr std::string_view forbidden = "/\\:*?\"<>|";
    for (char& one : text)
        if (static_cast<unsigned char>(one) < ' ' || forbidden.find(one) != forbidden.npos)
            one = '-';
    return text;
}

} // namespace

std::string WithoutUnit(std::string_view caption) {
    const std::size_t unit = caption.ends_with(')') ? caption.rfind(" (") : caption.npos;
    return std::string(caption.substr(0, unit));
}

std::string Shortened(const std::string& text, std::size_t most) {
    if (text.size() <= most) return text;
    std::size_t end = most - 3;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return text.substr(0, end) + "...";
}

std::string ProposedName(const PlotTable& table) {
    const std::string& document = TheSitting().DocumentPath;
    const std::size_t folder = document.find_last_of("/\\") + 1; // 0 for none
    std::string name = document.substr(folder);
    name = name.substr(0, name.rfind('.'));
    const auto add = [&name](const std::string& part) {
        if (!part.empty()) name += (name.empty() ? "" : " ") + part;
    };
    add(table.System);
    add(table.YName.empty() ? table.Title : WithoutUnit(table.YName));
    if (!table.SetNumber.empty()) add("set " + table.SetNumber);
    if (name.empty()) name = "plot";
    return document.substr(0, folder) + Shortened(AsFileName(name), LongestName) + ".svg";
}

} // namespace vexora
