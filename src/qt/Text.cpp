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
    std::size_t points = 0;
    for (qsizetype i = 0; i < position && i < text.size(); ++i) {
        if (!text[i].isLowSurrogate()) ++points;
    }
    return points;
}

int PositionAfter(const QString& text, std::size_t points) {
    qsizetype position = 0;
    while (points > 0 && position < text.size()) {
        position += text[position].isHighSurrogate() && position + 1 < text.size() ? 2 : 1;
        --points;
    }
    return static_cast<int>(position);
}

} // namespace vexora::qt
