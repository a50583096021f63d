#include "qt/Mnemonics.h"

#include <QSet>

#include "qt/Text.h"
#include "ui/Form.h"
#include "ui/Menus.h"

namespace vexora::qt {

namespace {

/// Where the caption marks its letter, else -1.
qsizetype MarkOf(const QString& caption) {
    for (qsizetype at = caption.indexOf(u'&'); at >= 0; at = caption.indexOf(u'&', at + 2)) {
        if (at + 1 < caption.size() && caption[at + 1] != u'&') return at;
    }
    return -1;
}

bool Claim(QSet<QChar>& taken, QChar letter) {
    if (!letter.isLetterOrNumber() || taken.contains(letter.toLower())) return false;
    taken.insert(letter.toLower());
    return true;
}

QString Marked(const QString& caption, QSet<QChar>& taken) {
    const auto begins = [&](qsizetype at) { return at == 0 || caption[at - 1] == u' '; };
    for (const bool atBeginning : {true, false}) {
        for (qsizetype at = 0; at < caption.size(); ++at) {
            if (begins(at) == atBeginning && Claim(taken, caption[at]))
                return QString(caption).insert(at, u'&');
        }
    }
    return caption;
}

QSet<QChar> LettersOf(const ui::Form& form) {
    QSet<QChar> taken;
    const auto take = [&](const std::string& text) {
        const QString caption = ToQt(text);
        if (const qsizetype at = MarkOf(caption); at >= 0) Claim(taken, caption[at + 1]);
    };
    for (const ui::Control* control : form.Controls()) {
        if (const auto* menu = dynamic_cast<const ui::MenuItem*>(control)) {
            if (!menu->Parent()) take(menu->Caption());
        } else if (const auto* button = dynamic_cast<const ui::CommandButton*>(control)) {
            take(button->Caption());
        }
    }
    return taken;
}

} // namespace

QString WithMnemonic(const ui::CommandButton& button) {
    const ui::Form& form = button.Owner();
    QSet<QChar> taken = LettersOf(form);
    for (const ui::Control* control : form.Controls()) {
        const auto* other = dynamic_cast<const ui::CommandButton*>(control);
        if (!other || other == form.DefaultButton || other == form.CancelButton) continue;
        const QString caption = ToQt(other->Caption());
        QString marked = MarkOf(caption) < 0 ? Marked(caption, taken) : caption;
        if (other == &button) return marked;
    }
    return ToQt(button.Caption());
}

} // namespace vexora::qt
