#include "qt/Look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

namespace vexora::qt {

namespace {

QPalette Palette(bool dark) {
    const QColor window = dark ? QColor(0x3C, 0x3F, 0x44) : QColor(0xF3, 0xF3, 0xF3);
    const QColor button = dark ? QColor(0x4A, 0x4E, 0x54) : QColor(0xF8, 0xF8, 0xF8);
    const QColor base = dark ? QColor(0x2A, 0x2C, 0x30) : QColor(0xFF, 0xFF, 0xFF);
    const QColor text = dark ? QColor(0xEC, 0xEC, 0xEC) : QColor(0x1B, 0x1B, 0x1B);
    const QColor faint = dark ? QColor(0x90, 0x90, 0x90) : QColor(0x8A, 0x8A, 0x8A);
    const QColor hint = dark ? QColor(0xB6, 0xB6, 0xB6) : QColor(0x70, 0x70, 0x70);
    const QColor accent = dark ? QColor(0x3D, 0x7E, 0xC4) : QColor(0x2F, 0x6F, 0xB5);
    QPalette palette(button, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, dark ? accent.lighter(150) : accent);
    palette.setColor(QPalette::PlaceholderText, hint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

/// The style of the platform, or the named one, with a mark around whatever has the keyboard: most
/// styles show it only where Tab was seen by the toolkit, and on lists not at all.
class MarkedStyle : public QProxyStyle {
public:
    MarkedStyle() = default;
    explicit MarkedStyle(const QString& base) : QProxyStyle(base) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const bool ofCell = qobject_cast<const QAbstractItemView*>(widget);
        if (element == PE_FrameFocusRect && !ofCell) return Mark(*option, *painter);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isField = element == PE_FrameLineEdit || (element == PE_Frame && IsArea(widget));
        if (isField && option->state.testFlag(State_HasFocus)) Mark(*option, *painter);
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        QProxyStyle::drawControl(element, option, painter, widget);
        const bool isButton = element == CE_PushButton || element == CE_TabBarTab;
        if (isButton && option->state.testFlag(State_HasFocus)) Mark(*option, *painter);
    }
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ComboBox && option->state.testFlag(State_HasFocus))
            Mark(*option, *painter);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        if (metric == PM_DefaultFrameWidth && IsArea(widget)) return MarkWidth;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

private:
    static constexpr int MarkWidth = 2; // [pixels]

    static bool IsArea(const QWidget* widget) {
        return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    }
    static void Mark(const QStyleOption& option, QPainter& painter) {
        constexpr int half = 128;
        constexpr int brighter = 150; // [per cent]
        const bool dark = option.palette.color(QPalette::Window).lightness() < half;
        const QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(dark ? accent.lighter(brighter) : accent);
        for (int inset = 0; inset < MarkWidth; ++inset)
            painter.drawRect(option.rect.adjusted(inset, inset, -inset - 1, -inset - 1));
        painter.restore();
    }
};

/// Draws the edge of marks to tick and the lines of tables: on a dark base the style's own cannot
/// be seen.
class EdgedStyle : public MarkedStyle {
public:
    using MarkedStyle::MarkedStyle;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        MarkedStyle::drawPrimitive(element, option, painter, widget);
        const bool isRound = element == PE_IndicatorRadioButton;
        const bool isMark =
            isRound || element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
        const bool isBox = element == PE_FrameGroupBox;
        const bool isField = element == PE_FrameLineEdit || element == PE_PanelLineEdit;
        if (!isMark && !isBox && !isField) return;
        if (isField && option->state.testFlag(State_HasFocus)) return; // it has its mark
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, isRound);
        painter->setBrush(Qt::NoBrush);
        QColor edge = option->palette.color(QPalette::PlaceholderText);
        if (!isMark) edge = Between(edge, option->palette.color(QPalette::Window));
        painter->setPen(edge);
        if (isRound)
            painter->drawEllipse(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
        else
            painter->drawRect(option->rect.adjusted(0, isBox ? BelowTitle(widget) : 0, -1, -1));
        painter->restore();
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_Table_GridLineColor && option)
            return static_cast<int>(option->palette.color(QPalette::Button).lighter(115).rgb());
        return MarkedStyle::styleHint(hint, option, widget, data);
    }

private:
    static int BelowTitle(const QWidget* widget) {
        const auto* group = qobject_cast<const QGroupBox*>(widget);
        return group && !group->title().isEmpty() ? group->fontMetrics().height() + 2 : 0;
    }
    static QColor Between(const QColor& one, const QColor& other) {
        return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
                (one.blue() + other.blue()) / 2};
    }
};

/// The palette that the desktop has given, before any of ours is taken.
const QPalette& OfDesktop() {
    static const QPalette palette = QApplication::palette();
    return palette;
}

} // namespace

void TakeLook(const std::string& look) {
    const QString plain = QStringLiteral("Fusion");
    constexpr int half = 128;
    const bool darkDesktop = OfDesktop().color(QPalette::Window).lightness() < half;
    if (look != "dark" && look != "light") {
        QApplication::setPalette(QPalette()); // that of the desktop again
        if (darkDesktop)
            QApplication::setStyle(new EdgedStyle);
        else
            QApplication::setStyle(new MarkedStyle);
        return;
    }
    if (look == "dark")
        QApplication::setStyle(new EdgedStyle(plain));
    else
        QApplication::setStyle(new MarkedStyle(plain));
    QApplication::setPalette(Palette(look == "dark"));
}

} // namespace vexora::qt
