#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <QString>

namespace vexora::qt {

QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

/// The text with its "&" doubled, for widgets that would read one as a mnemonic.
QString Literal(std::string_view text);

/// Code points before a position counted in UTF-16 units, and the way back.
std::size_t PointsBefore(const QString& text, qsizetype position);
int PositionAfter(const QString& text, std::size_t points);

} // namespace vexora::qt
