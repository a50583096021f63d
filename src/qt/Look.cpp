#include "qt/Look.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace vexora::qt {

namespace {

QPalette Palette(bool dark) {
    const QColor window = dark ? QColor(0x3C, 0x3F, 0x44) : QColor(0xF3, 0xF3, 0xF3);
    const QColor button = dark ? QColor(0x4A, 0x4E, 0x54) : QColor(0xF8, 0xF8, 0xF8);
    const QColor base = dark ? QColor(0x2A, 0x2C, 0x30) : QColor(0xFF, 0xFF, 0xFF);
    const QColor text = dark ? QColor(0xEC, 0xEC, 0xEC) : QColor(0x1B, 0x1B, 0x1B);
    const QColor faint = dark ? QColor(0x9A, 0x9A, 0x9A) : QColor(0x8A, 0x8A, 0x8A);
    const QColor accent = dark ? QColor(0x3D, 0x7E, 0xC4) : QColor(0x2F, 0x6F, 0xB5);
    QPalette palette(button, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, dark ? accent.lighter(150) : accent);
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

} // namespace

void TakeLook(const std::string& look) {
    if (look != "dark" && look != "light") return;
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(Palette(look == "dark"));
}

} // namespace vexora::qt
