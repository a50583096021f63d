#include "qt/Text.h"

namespace vexora::qt {

QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) {
    return text.toStdString();
}

QString Literal(std::string_view text) {
    return ToQt(text).replace(u'&', QStringLiteral("&&"));
}

std::size_t PointsBefore(const QString& text, qsizetype position) {
    return text.left(position).toStdU32String().size();
}

int PositionAfter(const QString& text, std::size_t points) {
    const auto before = QString::fromStdU32String(text.toStdU32String().substr(0, points));
    return static_cast<int>(before.size());
}

} // namespace vexora::qt
