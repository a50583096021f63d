#include "qt/HelpWindow.h"

#include <algorithm>

#include <QAction>
#include <QFileInfo>
#include <QHeaderView>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>

#include "qt/Text.h"

namespace vexora::qt {

namespace {

constexpr int TopicRole = Qt::UserRole;
constexpr int WindowColumns = 140;
constexpr int WindowRows = 40;
constexpr int ListColumns = 50;
constexpr int SearchColumns = 49;
constexpr int IndentColumns = 2;
constexpr int PageMargin = 12; // pixels
constexpr const char* PageStyle = "td { padding: 1px 14px 1px 0px; }";

/// Shows a page; a picture that is wider than the page is made to fit.
class PageBrowser : public QTextBrowser {
protected:
    QVariant loadResource(int type, const QUrl& url) override {
        const QVariant resource = QTextBrowser::loadResource(type, url);
        if (type != QTextDocument::ImageResource) return resource;
        QImage image;
        if (resource.userType() == QMetaType::QByteArray)
            image.loadFromData(resource.toByteArray());
        else
            image = resource.value<QImage>();
        const int first = fontMetrics().averageCharWidth() * (WindowColumns - ListColumns);
        const int edges = 4 * PageMargin + verticalScrollBar()->sizeHint().width();
        const int most = std::max(viewport()->width(), first) - edges;
        if (image.isNull() || image.width() <= most) return resource;
        // Of a picture with few colours the smooth one has many.
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
            .scaledToWidth(most, Qt::SmoothTransformation);
    }
};

} // namespace

HelpWindow::HelpWindow(const std::string& folder, HelpPages pages, QWidget* parent)
    : QMainWindow(parent, Qt::Window), folder_(folder), pages_(std::move(pages)),
      search_(new QLineEdit), list_(new QTreeWidget), browser_(new PageBrowser) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("HelpWindow"));
    AddTools();
    list_->setHeaderHidden(true);
    list_->setAccessibleName(tr("Contents"));
    list_->setWordWrap(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    browser_->setAccessibleName(tr("Page"));
    list_->setIndentation(fontMetrics().averageCharWidth() * IndentColumns);
    browser_->document()->setDefaultStyleSheet(QString::fromLatin1(PageStyle));
    browser_->document()->setDocumentMargin(PageMargin);
    auto* split = new QSplitter(this);
    split->addWidget(list_);
    split->addWidget(browser_);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(1, 1);
    const int letter = fontMetrics().averageCharWidth();
    split->setSizes({letter * ListColumns, letter * (WindowColumns - ListColumns)});
    setCentralWidget(split);
    PlaceOnScreen({letter * WindowColumns, fontMetrics().lineSpacing() * WindowRows});
    connect(browser_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& page) { FollowPage(page); });
    connect(search_, &QLineEdit::textChanged, this, [this] { Search(); });
    connect(list_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const QString topic = item ? item->data(0, TopicRole).toString() : QString();
        if (!topic.isEmpty()) Open(FromQt(topic));
    });
    ShowContents();
}

// In the middle of what it was asked from, and no part of it beyond the edge of the screen.
void HelpWindow::PlaceOnScreen(const QSize& wanted) {
    constexpr int title = 40; // of the frame around it [pixels]
    const QScreen* screen = parentWidget() ? parentWidget()->screen() : this->screen();
    const QRect room = screen->availableGeometry().adjusted(0, title, 0, 0);
    resize(wanted.boundedTo(room.size()));
    const QRect around = parentWidget() ? parentWidget()->frameGeometry() : room;
    QPoint corner = around.center() - rect().center();
    corner.setX(std::clamp(corner.x(), room.left(), room.right() - width() + 1));
    corner.setY(std::clamp(corner.y(), room.top(), room.bottom() - height() + 1));
    move(corner);
}

void HelpWindow::AddTools() {
    QToolBar& bar = *addToolBar(tr("Help"));
    bar.setMovable(false);
    bar.setContextMenuPolicy(Qt::PreventContextMenu);
    search_->setPlaceholderText(tr("Search all pages (Ctrl+F)"));
    search_->setAccessibleName(tr("Search"));
    search_->setClearButtonEnabled(true);
    search_->setFixedWidth(fontMetrics().averageCharWidth() * SearchColumns);
    search_->installEventFilter(this);
    bar.addWidget(search_);
    AddNavigation(bar);
    const auto hidden = [this](const QKeySequence& key, const std::function<void()>& action) {
        auto* entry = new QAction(this);
        entry->setShortcut(key);
        connect(entry, &QAction::triggered, this, action);
        addAction(entry);
    };
    hidden(Qt::Key_Escape, [this] { close(); });
    hidden(QKeySequence::Find, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
}

void HelpWindow::AddNavigation(QToolBar& bar) {
    const auto add = [&](const QString& text, const QKeySequence& key) {
        QAction* action = bar.addAction(text);
        action->setShortcut(key);
        action->setToolTip(text + QStringLiteral(" (") + key.toString() + QStringLiteral(")"));
        return action;
    };
    QAction* back = add(tr("Back"), QKeySequence(Qt::ALT | Qt::Key_Left));
    QAction* forward = add(tr("Forward"), QKeySequence(Qt::ALT | Qt::Key_Right));
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    bar.addSeparator();
    QAction* next = add(tr("Next hit"), QKeySequence(Qt::Key_F3));
    QAction* last = add(tr("Previous hit"), QKeySequence(Qt::SHIFT | Qt::Key_F3));
    connect(next, &QAction::triggered, this, [this] { StepHits(1); });
    connect(last, &QAction::triggered, this, [this] { StepHits(-1); });
}

// From the search box the keyboard goes on into the list of hits.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QMainWindow::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    list_->setFocus(Qt::TabFocusReason);
    if (!list_->currentItem()) list_->setCurrentItem(list_->topLevelItem(0));
    return true;
}

void HelpWindow::Open(const std::string& topic) {
    if (topic == topic_) return;
    const HelpPage* page = pages_.Find(topic);
    if (page) browser_->setSource(QUrl::fromLocalFile(ToQt(folder_ + "/" + page->file)));
}

// Told while the browser still names the page before as its source.
void HelpWindow::FollowPage(const QUrl& url) {
    topic_ = FromQt(QFileInfo(url.path()).completeBaseName());
    const HelpPage* page = pages_.Find(topic_);
    setWindowTitle(page ? tr("Help - ") + ToQt(page->title) : tr("Help"));
    SelectCurrent();
    MarkHits();
}

void HelpWindow::Search() {
    list_->clear();
    if (HelpWords(FromQt(search_->text())).empty())
        ShowContents();
    else
        ShowHits();
    SelectCurrent();
    MarkHits();
}

void HelpWindow::AddPage(const HelpPage& page, QTreeWidgetItem* section, const QString& text) {
    auto* item = new QTreeWidgetItem({text});
    item->setData(0, TopicRole, ToQt(page.topic));
    item->setToolTip(0, ToQt(page.title));
    if (section)
        section->addChild(item);
    else
        list_->addTopLevelItem(item);
}

void HelpWindow::ShowContents() {
    QTreeWidgetItem* section = nullptr;
    list_->setRootIsDecorated(true);
    for (const HelpPage& page : pages_.Pages()) {
        const QString name = ToQt(page.section);
        if (!section || section->text(0) != name) {
            section = new QTreeWidgetItem(list_, {name});
            QFont bold = list_->font();
            bold.setBold(true);
            section->setFont(0, bold);
        }
        AddPage(page, section, ToQt(page.title));
    }
    list_->expandAll();
}

void HelpWindow::ShowHits() {
    list_->setRootIsDecorated(false);
    for (const HelpHit& hit : pages_.Search(FromQt(search_->text())))
        AddPage(*hit.page, nullptr, ToQt(hit.page->title + "\n" + hit.excerpt));
    if (list_->topLevelItemCount() > 0) return;
    auto* none = new QTreeWidgetItem(list_, {tr("No page holds all these words")});
    none->setFlags(Qt::NoItemFlags);
}

void HelpWindow::SelectCurrent() {
    const QSignalBlocker quiet(list_);
    list_->setCurrentItem(nullptr);
    for (QTreeWidgetItemIterator item(list_); *item; ++item) {
        if ((*item)->data(0, TopicRole).toString() == ToQt(topic_)) list_->setCurrentItem(*item);
    }
}

void HelpWindow::MarkHits() {
    QTextEdit::ExtraSelection mark;
    mark.format.setBackground(palette().highlight());
    mark.format.setForeground(palette().highlightedText());
    QList<QTextEdit::ExtraSelection> marks;
    for (const std::string& word : HelpWords(FromQt(search_->text()))) {
        mark.cursor = QTextCursor(browser_->document());
        while (!(mark.cursor = browser_->document()->find(ToQt(word), mark.cursor)).isNull())
            marks.append(mark);
    }
    std::ranges::sort(marks, {}, [](const auto& one) { return one.cursor.selectionStart(); });
    browser_->setExtraSelections(marks);
    if (!marks.isEmpty()) StepHits(0);
}

// The cursor of the browser stands at the hit looked at last; a new page has it at its beginning.
void HelpWindow::StepHits(int by) {
    const auto marks = browser_->extraSelections();
    if (marks.isEmpty()) return;
    const int here = browser_->textCursor().selectionStart();
    auto found = std::ranges::find_if(marks, [&](const auto& mark) {
        const int start = mark.cursor.selectionStart();
        return by > 0 ? start > here : start >= here;
    });
    if (by < 0) found = found == marks.begin() ? marks.end() - 1 : found - 1;
    if (found == marks.end()) found = marks.begin();
    QTextCursor cursor = found->cursor;
    cursor.setPosition(cursor.selectionStart());
    browser_->setTextCursor(cursor);
    browser_->ensureCursorVisible();
}

bool HelpWindow::Show(const std::string& folder, int context, ui::FileSystem& files,
                      QWidget* parent) {
    auto* window = parent ? parent->findChild<HelpWindow*>(QStringLiteral("HelpWindow"),
                                                           Qt::FindDirectChildrenOnly)
                          : nullptr;
    const std::string topic = std::to_string(context);
    if (!window) {
        HelpPages pages = HelpPages::Read(folder, files);
        if (!pages.Find(topic)) return false;
        window = new HelpWindow(folder, std::move(pages), parent);
    } else if (!window->pages_.Find(topic)) {
        return false;
    }
    window->search_->clear();
    window->Open(topic);
    window->show();
    window->raise();
    window->activateWindow();
    window->browser_->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace vexora::qt
