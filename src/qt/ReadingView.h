#pragma once

#include <string>
#include <vector>

#include "qt/BasicViews.h"

namespace vexora::ui {
class DocumentForm;
}

namespace vexora::qt {

/// The reading pane of the form that holds the document. While none is open it shows the page that
/// greets, whose links are followed by a click, or by Tab and Enter.
class ReadingView : public RichTextView {
public:
    ReadingView(FormWindow& window, ui::RichText& text, ui::DocumentForm& document);
    bool Wants(const ui::Key& key) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    std::string Page() const override;

private:
    bool HasLinkAhead(bool backwards) const;
    void Follow(const std::string& link);

    ui::DocumentForm& document_;
    mutable std::vector<std::string> recent_; // on the page; some may be gone since
};

} // namespace vexora::qt
