#pragma once

#include <QStringList>

#include "ui/Form.h"
#include "ui/TextBox.h"

namespace vexora::qt {

/// What a person reads of a prompt: one that is written in capitals as a sentence, the words that a
/// button or the trade writes in capitals excepted.
QString PromptInWords(const QString& prompt);

/// The prompt stands in the field as its text: nothing has been entered.
bool IsPrompted(const ui::Control& field, const std::string& text);

/// What the widget of a text field holds: the text, nothing where it is the prompt, what is
/// readable of a text that is stored with marks while nobody edits it.
QString ShownText(const ui::TextBox& box);
QString ShownText(const ui::ComboBox& box);

/// The entries of a list as they are drawn: its prompt in words, and in place of entries that are
/// stored with marks the lines of what is readable of it, one an entry.
QStringList ShownEntries(const ui::ItemList& list);

/// The text with each quoted first word of a button of the form ("Create") in its full caption, as
/// a person sees it there.
QString WithCaptions(QString text, const ui::Form& form);

} // namespace vexora::qt
