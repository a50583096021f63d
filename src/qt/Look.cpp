#include "qt/Look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFrame>
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
    palette.setColor(QPalette::Disabled, QPalette::Base, window); // looks closed
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
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, faint);
    return palette;
}

/// Inside the rectangle, as wide on each side: at 150 % a pen would leave out the sides that fall
/// between two pixels.
void DrawEdge(QPainter& painter, const QRect& rect, int wide, const QColor& color) {
    painter.fillRect(rect.left(), rect.top(), rect.width(), wide, color);
    painter.fillRect(rect.left(), rect.bottom() + 1 - wide, rect.width(), wide, color);
    painter.fillRect(rect.left(), rect.top(), wide, rect.height(), color);
    painter.fillRect(rect.right() + 1 - wide, rect.top(), wide, rect.height(), color);
}

bool IsDark(const QPalette& palette) {
    constexpr int half = 128;
    return palette.color(QPalette::Window).lightness() < half;
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
        if (element == PE_FrameGroupBox && IsFlat(widget)) return; // some draw it all the same
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

protected:
    static bool IsArea(const QWidget* widget) {
        return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    }
    static bool IsFlat(const QWidget* widget) {
        const auto* group = qobject_cast<const QGroupBox*>(widget);
        return group && group->isFlat();
    }

private:
    static constexpr int MarkWidth = 2; // [pixels]

    static void Mark(const QStyleOption& option, QPainter& painter) {
        constexpr int brighter = 150; // [per cent]
        const QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
        DrawEdge(painter, option.rect, MarkWidth,
                 IsDark(option.palette) ? accent.lighter(brighter) : accent);
    }
};

/// Draws the edges of lists and tables, and on a dark ground those of fields, groups and marks to
/// tick and the lines of tables: there the style's own cannot be seen. The palette is asked each
/// time, for that of the desktop may change.
class EdgedStyle : public MarkedStyle {
public:
    using MarkedStyle::MarkedStyle;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const bool isDark = IsDark(option->palette);
        const bool hasFocus = option->state.testFlag(State_HasFocus);
        const bool isPanel = element == PE_Frame && (IsArea(widget) || IsPanel(widget));
        if (isPanel && !hasFocus && (isDark || IsPlain()))
            return DrawEdge(*painter, option->rect, 1, EdgeOf(option->palette));
        MarkedStyle::drawPrimitive(element, option, painter, widget);
        if (!isDark) return;
        if (element == PE_IndicatorRadioButton) return DrawRing(*option, *painter);
        const bool isMark =
            element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
        const bool isBox = element == PE_FrameGroupBox && !IsFlat(widget);
        const bool isField = element == PE_FrameLineEdit || element == PE_PanelLineEdit;
        if (!isMark && !isBox && (!isField || hasFocus)) return; // the focus has its mark
        DrawEdge(*painter, option->rect.adjusted(0, isBox ? BelowTitle(widget) : 0, 0, 0), 1,
                 isMark ? option->palette.color(QPalette::PlaceholderText)
                        : EdgeOf(option->palette));
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_Table_GridLineColor && option && IsDark(option->palette))
            return static_cast<int>(option->palette.color(QPalette::Button).lighter(115).rgb());
        return MarkedStyle::styleHint(hint, option, widget, data);
    }

private:
    bool IsPlain() const { return baseStyle()->name() == QLatin1String("fusion"); }
    /// Also of what draws its edge itself.
    static bool IsPanel(const QWidget* widget) {
        return !widget || widget->metaObject() == &QFrame::staticMetaObject;
    }
    static int BelowTitle(const QWidget* widget) {
        const auto* group = qobject_cast<const QGroupBox*>(widget);
        return group && !group->title().isEmpty() ? group->fontMetrics().height() + 2 : 0;
    }
    static QColor EdgeOf(const QPalette& palette) {
        constexpr int darker = 140; // [per cent]
        const QColor ground = palette.color(QPalette::Window);
        if (!IsDark(palette)) return ground.darker(darker);
        const QColor text = palette.color(QPalette::PlaceholderText);
        return {(text.red() + ground.red()) / 2, (text.green() + ground.green()) / 2,
                (text.blue() + ground.blue()) / 2};
    }
    static void DrawRing(const QStyleOption& option, QPainter& painter) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(option.palette.color(QPalette::PlaceholderText));
        painter.drawEllipse(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
        painter.restore();
    }
};

} // namespace

void TakeLook(const std::string& look) {
    const bool ofDesktop = look != "dark" && look != "light";
    if (ofDesktop)
        QApplication::setStyle(new EdgedStyle);
    else
        QApplication::setStyle(new EdgedStyle(QStringLiteral("Fusion")));
    QApplication::setPalette(ofDesktop ? QPalette() : Palette(look == "dark"));
}

} // namespace vexora::qt
