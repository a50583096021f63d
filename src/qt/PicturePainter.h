#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QPainter>
#include <QPalette>

#include "ui/Picture.h"

class QPrinter;

namespace vexora::qt {

/// Paints shapes in the units of a picture onto a surface of this size, in the colours of a
/// palette.
void PaintStrokes(QPainter& painter, const ui::Picture& picture,
                  const std::vector<ui::Picture::Stroke>& strokes, QSizeF size,
                  const QPalette& palette);

/// The picture on white paper: as the bytes of a PNG file, or on one page.
std::optional<std::string> PngBytes(const ui::Picture& picture);
void PrintOn(QPrinter& printer, const ui::Picture& picture);

} // namespace vexora::qt
