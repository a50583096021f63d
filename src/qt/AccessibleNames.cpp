#include "qt/AccessibleNames.h"

#include <QStringList>

#include "qt/FormWindow.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

using Kind = ui::Layout::Kind;

bool SaysItself(ui::ControlKind kind) {
    using enum ui::ControlKind;
    return kind == Label || kind == CommandButton || kind == CheckBox || kind == OptionButton ||
           kind == Frame || kind == MenuItem || kind == Toolbar;
}

QString LabelText(const ui::Layout& layout) {
    QString text = ToQt(layout.label ? layout.label->Display() : layout.text).simplified();
    text.remove(u'&');
    while (text.endsWith(u':'))
        text.chop(1);
    return text;
}

/// The walk over a layout: the nearest label, and the captions around it from the outside in.
struct Walk {
    const FormWindow& window;

    void Name(const ui::Control& control, const QString& label, const QString& around) const {
        const View* view = window.ViewFor(control);
        if (!view || !view->Widget() || SaysItself(control.Kind())) return;
        if (!control.AccessibleName().empty()) return;
        const QString name = label.isEmpty() ? around : label;
        if (view->Widget()->accessibleName() != name) view->Widget()->setAccessibleName(name);
        // Boxes of the same label are told apart by their group.
        const QString more = label.isEmpty() ? QString() : around;
        if (view->Widget()->accessibleDescription() != more)
            view->Widget()->setAccessibleDescription(more);
    }

    void Over(const ui::Layout& layout, QString label, QString around) const {
        if (layout.kind == Kind::Field) {
            // A mark in front of a row of fields is the caption of them all.
            const bool marks = layout.label && layout.label->Kind() == ui::ControlKind::CheckBox;
            if (marks) around = LabelText(layout);
            label = LabelText(layout);
        }
        if (layout.kind == Kind::Group)
            around = layout.control ? ToQt(layout.control->Display()) : ToQt(layout.text);
        if (layout.kind == Kind::Group || layout.kind == Kind::Pages) label.clear();
        if (layout.control) Name(*layout.control, label, around);
        for (const ui::Layout& part : layout.parts)
            Over(part, label, around);
    }
};

} // namespace

void NameFields(const FormWindow& window) {
    const QString caption = ToQt(window.Model().Caption());
    const Walk walk{window};
    for (const ui::Control* control : window.Model().Controls())
        if (control->Kind() == ui::ControlKind::ToolButton ||
            control->Kind() == ui::ControlKind::TreeView)
            walk.Name(*control, ToQt(control->Display()), caption);
    walk.Over(window.Model().Arrangement, {}, caption);
}

} // namespace vexora::qt
