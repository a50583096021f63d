#include "qt/ReadingView.h"

#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

#include "qt/FormWindow.h"
#include "qt/Text.h"
#include "qt/Windows.h"
#include "ui/DocumentForm.h"

namespace vexora::qt {

ReadingView::ReadingView(FormWindow& window, ui::RichText& text, ui::DocumentForm& document)
    : RichTextView(window, text), document_(document) {
    own_->document()->setDocumentMargin(own_->fontMetrics().averageCharWidth() * 1.5);
    document_.DocumentAltered.Connect([self = QPointer<ReadingView>(this)] {
        if (self && !self->Window().IsDetached()) self->Window().MarkDirty(*self);
    });
    QObject::connect(own_, &QTextBrowser::anchorClicked, this,
                     [this](const QUrl& url) { Follow(FromQt(url.toString())); });
}

std::string ReadingView::Page() const {
    recent_ = Window().All().RecentDocuments();
    const std::string page = document_.WelcomePage(recent_);
    return page.empty() ? RichTextView::Page() : page;
}

/// Tab goes from link to link before it leaves the pane.
bool ReadingView::Wants(const ui::Key& key) const {
    if (key.name == "Tab" && !key.control && !key.alt) return HasLinkAhead(key.shift);
    if (key.FullName() == "Enter") return !own_->textCursor().charFormat().anchorHref().isEmpty();
    return RichTextView::Wants(key);
}

bool ReadingView::HasLinkAhead(bool backwards) const {
    const QTextCursor cursor = own_->textCursor();
    const bool isInside = cursor.hasSelection();
    for (QTextBlock block = own_->document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment words = part.fragment();
            if (!words.charFormat().isAnchor()) continue;
            const int end = words.position() + words.length();
            const bool isAhead = backwards ? end <= cursor.selectionStart()
                                           : words.position() >= cursor.selectionEnd();
            if (!isInside || isAhead) return true;
        }
    }
    return false;
}

/// Who comes back begins with the first link again.
bool ReadingView::eventFilter(QObject* watched, QEvent* event) {
    const bool isLeft = event->type() == QEvent::FocusOut && watched == own_;
    if (isLeft && !Window().IsDetached()) { // the document may have gone before its window
        QTextCursor cursor = own_->textCursor();
        cursor.clearSelection();
        const bool isGreeting = !document_.WelcomePage({}).empty();
        if (isGreeting) own_->setTextCursor(cursor);
    }
    return RichTextView::eventFilter(watched, event);
}

void ReadingView::Follow(const std::string& link) {
    constexpr std::string_view recent = "recent:";
    if (!link.starts_with(recent)) return Act([&] { document_.FollowLink(link); });
    const auto place = static_cast<std::size_t>(ToQt(link.substr(recent.size())).toUInt());
    if (place >= recent_.size()) return;
    const std::string file = recent_[place]; // the page changes when it is open
    Window().OpenDropped(file);
}

} // namespace vexora::qt
