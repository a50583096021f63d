#include "qt/Prompts.h"

#include "qt/Text.h"

namespace vexora::qt {

// A word with a small letter in it tells that the others are meant to stand as they are.
QString PromptInWords(const QString& prompt) {
    const qsizetype quote = prompt.indexOf(u'"');
    const QString head = prompt.left(quote < 0 ? prompt.size() : quote);
    if (head.size() < 2 || head != head.toUpper() || head == head.toLower()) return prompt;
    QString words = head.toLower();
    words[0] = words[0].toUpper();
    if (quote < 0) return words;
    const qsizetype end = prompt.indexOf(u'"', quote + 1);
    const qsizetype behind = end < 0 ? prompt.size() : end + 1;
    return words + prompt.mid(quote, behind - quote) + prompt.mid(behind).toLower();
}

QString WithCaptions(QString text, const ui::Form& form) {
    for (const ui::Control* control : form.Controls()) {
        if (control->Kind() != ui::ControlKind::CommandButton) continue;
        const QString caption = ToQt(control->Display()).simplified();
        const QString first = caption.section(u' ', 0, 0);
        if (first != caption)
            text.replace(u'"' + first + u'"', u'"' + caption + u'"', Qt::CaseSensitive);
    }
    return text;
}

bool IsPrompted(const ui::Control& field, const std::string& text) {
    return !field.Hint().empty() && text == field.Hint();
}

QString ShownText(const ui::TextBox& box) {
    if (IsPrompted(box, box.Text())) return {};
    const bool reads = !box.Readable().empty() && (box.Locked() || !box.HasFocus());
    return ToQt(reads ? box.Readable() : box.Text());
}

QString ShownText(const ui::ComboBox& box) {
    return IsPrompted(box, box.Text()) ? QString() : ToQt(box.Text());
}

QStringList ShownEntries(const ui::ItemList& list) {
    QStringList texts;
    for (const std::string& item : list.Items())
        texts << ToQt(item);
    const QStringList lines = ToQt(list.Readable()).split(u'\n');
    if (!list.Readable().empty() && lines.size() == texts.size()) texts = lines;
    if (list.FirstIsPrompt && !texts.isEmpty())
        texts.front() = PromptInWords(WithCaptions(texts.front(), list.Owner()));
    return texts;
}

} // namespace vexora::qt
