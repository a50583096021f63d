#include "qt/ListViews.h"

#include <algorithm>
#include <utility>

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include "qt/FormWindow.h"
#include "qt/Prompts.h"
#include "qt/Text.h"

namespace vexora::qt {

// The closed field of a list draws its text as that of a button.
void DropBox::paintEvent(QPaintEvent* event) {
    if (!IsPrompted || isEditable() || !isEnabled()) return QComboBox::paintEvent(event);
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    for (const auto role : {QPalette::ButtonText, QPalette::Text, QPalette::WindowText})
        option.palette.setColor(role, palette().color(QPalette::PlaceholderText));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void DropBox::showPopup() {
    QPointer<DropBox> self(this);
    if (OnPopup) OnPopup();
    if (self && self->isEnabled() && self->isVisible()) QComboBox::showPopup();
}

void DropBox::keyPressEvent(QKeyEvent* event) {
    const bool isBlank = event->key() == Qt::Key_Space;
    const bool isSearch =
        typed_.isValid() && typed_.elapsed() < QApplication::keyboardInputInterval();
    const QString text = event->text();
    if (!isEditable() && !text.isEmpty() && text.front().isPrint() && (!isBlank || isSearch))
        typed_.start();
    else
        typed_.invalidate();
    if (isBlank && typed_.isValid()) return FindBehindBlank();
    QComboBox::keyPressEvent(event);
}

/// What the combo box does itself with letters.
void DropBox::FindBehindBlank() {
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn(), rootModelIndex()));
    view()->keyboardSearch(QStringLiteral(" "));
    const int row = view()->currentIndex().row();
    if (row < 0 || row == currentIndex()) return;
    setCurrentIndex(row);
    emit activated(row);
}

ComboView::ComboView(FormWindow& window, ui::ComboBox& combo)
    : ViewOf(window, combo, new DropBox(&window)) {
    own_->setEditable(combo.IsEditable());
    own_->setInsertPolicy(QComboBox::NoInsert);
    own_->setMaxVisibleItems(20);
    // Entries that come while a person types must not widen the form.
    own_->setSizeAdjustPolicy(combo.IsEditable() ? QComboBox::AdjustToMinimumContentsLengthWithIcon
                                                 : QComboBox::AdjustToContents);
    // What an editable one asks for is no entry; it is to be read as well.
    constexpr std::size_t shortest = 12;
    constexpr std::size_t longest = 40;
    const std::size_t first =
        combo.IsEditable() ? std::max(combo.Text().size(), combo.Hint().size()) : 0;
    own_->setMinimumContentsLength(static_cast<int>(std::clamp(first, shortest, longest)));
    own_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    own_->setFocusPolicy(Qt::StrongFocus); // the wheel must not change a value in passing
    own_->OnPopup = [this] { ActAndRefresh([this] { model_.UserDropDown(); }); };
    QObject::connect(own_, &QComboBox::activated, this, [this](int index) {
        ActAndRefresh([this, index] { model_.UserChoose(index); });
    });
    if (!combo.IsEditable()) return;
    own_->setCompleter(nullptr);
    QObject::connect(own_, &QComboBox::editTextChanged, this, [this](const QString& text) {
        if (IsDrawing()) return;
        // Picked from the list: that comes by another signal.
        const int row = own_->currentIndex();
        if (row >= 0 && row != model_.Index() && own_->itemText(row) == text) return;
        ActAndRefresh([this, &text] { model_.UserEdited(FromQt(text)); });
    });
}

bool ComboView::Wants(const ui::Key& key) const {
    const std::string name = key.FullName();
    if (key.character >= U' ' || IsOneOf(name, {"F4", "Alt+Down", "Alt+Up"})) return true;
    return model_.IsEditable() &&
           (IsOneOf(key.name, {"Backspace", "Delete", "Left", "Right", "Home", "End"}) ||
            IsOneOf(name, {"Ctrl+A", "Ctrl+C", "Ctrl+V", "Ctrl+X", "Ctrl+Z"}));
}

void ComboView::Draw() {
    const QString before = own_->currentText();
    const int caret = model_.IsEditable() ? own_->lineEdit()->cursorPosition() : 0;
    if (shown_ != model_.Items()) {
        shown_ = model_.Items();
        const QStringList texts = ShownEntries(model_);
        own_->clear();
        own_->addItems(texts);
        if (model_.FirstIsPrompt && !texts.isEmpty())
            own_->setItemData(0, own_->palette().brush(QPalette::PlaceholderText),
                              Qt::ForegroundRole);
    }
    if (own_->currentIndex() != model_.Index()) own_->setCurrentIndex(model_.Index());
    const bool prompted = model_.FirstIsPrompt && model_.Index() == 0;
    if (std::exchange(own_->IsPrompted, prompted) != prompted) own_->update();
    const QString text = ShownText(model_);
    if (model_.IsEditable())
        own_->lineEdit()->setPlaceholderText(PromptInWords(ToQt(model_.Hint())));
    if (model_.IsEditable() && own_->currentText() != text) {
        own_->setEditText(text);
        if (!own_->hasFocus() && !model_.HasFocus())
            own_->lineEdit()->home(false); // a long text shows its beginning
    }
    // New entries take the caret to the end; a selection that nothing touched has to stay.
    if (model_.IsEditable() && before == text && own_->lineEdit()->cursorPosition() != caret)
        own_->lineEdit()->setCursorPosition(caret);
    if (model_.IsEditable()) Shade(*own_, !model_.IsUsable());
    DrawSelection(text);
    DrawEntries();
}

/// A part of the window and no window of its own: a native list that drops down takes the keyboard,
/// and the typing would end.
void ComboView::DrawEntries() {
    if (!model_.IsUnfolded()) {
        if (entries_) entries_->hide();
        return;
    }
    if (!entries_) {
        own_->window()->installEventFilter(this);
        entries_ = new QListWidget(own_->window());
        entries_->setFocusPolicy(Qt::NoFocus);
        entries_->setAutoFillBackground(true); // its frame must not show what is below
        entries_->setUniformItemSizes(true);
        entries_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        QObject::connect(entries_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
            ActAndRefresh([this, row = entries_->row(item)] { model_.UserChoose(row); });
        });
    }
    entries_->clear();
    for (const std::string& item : model_.Items())
        entries_->addItem(ToQt(item));
    entries_->setCurrentRow(model_.Index());
    PlaceEntries();
    entries_->show();
    entries_->raise();
}

/// A click beside the fields leaves the focus where it is, and closes the entries all the same.
bool ComboView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != own_->window()) return View::eventFilter(watched, event);
    const bool closes =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Resize;
    if (closes && !Window().IsDetached() && model_.IsUnfolded())
        ActAndRefresh([this] { model_.Unfolded(false); });
    return false;
}

/// Below the field, as far as the window reaches.
void ComboView::PlaceEntries() {
    constexpr int most = 10; // entries seen at a time
    const QWidget& window = *own_->window();
    const QPoint corner = own_->mapTo(&window, QPoint(0, own_->height()));
    const int rows = std::clamp(model_.Count(), 1, most);
    const int high = rows * entries_->sizeHintForRow(0) + 2 * entries_->frameWidth();
    entries_->setGeometry(corner.x(), corner.y(), own_->width(),
                          std::min(high, window.height() - corner.y()));
    if (entries_->currentItem()) entries_->scrollToItem(entries_->currentItem());
}

void ComboView::DrawSelection(const QString& text) {
    if (!model_.IsEditable() || !model_.SelectedFrom() || text.isEmpty()) return;
    const int start = PositionAfter(text, *model_.SelectedFrom());
    QLineEdit* line = own_->lineEdit();
    const int length = static_cast<int>(text.size()) - start;
    if (line->selectionStart() == start && line->selectionLength() == length) return;
    line->setSelection(start, length);
}

QSize KeyedList::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int wide = std::clamp(sizeHintForColumn(0) + 30, metrics.averageCharWidth() * 24,
                                metrics.averageCharWidth() * 60);
    return {wide, metrics.lineSpacing() * 8};
}

ListView::ListView(FormWindow& window, ui::ListBox& list)
    : ViewOf(window, list, new KeyedList(&window)) {
    Watch(own_->viewport());
    own_->setUniformItemSizes(true);
    own_->setSelectionMode(list.SelectionMode() == ui::ListBox::Mode::Multi
                               ? QAbstractItemView::MultiSelection
                               : QAbstractItemView::SingleSelection);
    filledLater_ = list.TakesRoom || list.Count() == 0;
    own_->setMinimumHeight(own_->fontMetrics().lineSpacing() * 3);
    if (HasChecks()) {
        QObject::connect(own_, &QListWidget::itemChanged, this, [this] { HandOver(); });
    } else if (!IsSingle()) {
        QObject::connect(own_, &QListWidget::itemSelectionChanged, this, [this] { HandOver(); });
    } else {
        QObject::connect(own_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
            const int row = own_->row(item);
            ActAndRefresh([this, row] { model_.UserChoose(row); });
        });
        own_->OnKeyDone = [this] {
            const int row = own_->currentRow();
            if (row >= 0 && row != model_.Index()) Act([this, row] { model_.UserChoose(row); });
        };
    }
}

bool ListView::Wants(const ui::Key& key) const {
    return key.name.starts_with("Page") || key.name == "Home" || key.name == "End" ||
           key.character >= U' ' || (!IsSingle() && (key.name == "Up" || key.name == "Down"));
}

QRect ListView::EntryRect(int index) const {
    QListWidgetItem* item = own_->item(index);
    if (!item) return {};
    own_->scrollToItem(item);
    return own_->visualItemRect(item);
}

QPoint ListView::CheckPoint(int index) const {
    const QRect entry = EntryRect(index);
    QStyleOptionViewItem option;
    option.initFrom(own_);
    option.rect = entry;
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.widget = own_;
    return own_->style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, own_)
        .center();
}

bool ListView::IsOn(int index) const {
    const QListWidgetItem* item = own_->item(index);
    return HasChecks() ? item->checkState() == Qt::Checked : item->isSelected();
}

void ListView::HandOver() {
    if (IsDrawing()) return;
    ActAndRefresh([this] {
        for (int i = 0; i < model_.Count() && i < own_->count(); ++i) {
            const bool on = IsOn(i);
            if (on != model_.Selected(i)) return model_.UserSelect(i, on);
        }
    });
}

void ListView::Fill() {
    shown_ = model_.Items();
    readable_ = model_.Readable();
    own_->clear();
    for (const QString& text : ShownEntries(model_)) {
        auto* item = new QListWidgetItem(text, own_);
        if (model_.FirstIsPrompt && own_->count() == 1)
            item->setForeground(own_->palette().brush(QPalette::PlaceholderText));
        if (!HasChecks()) continue;
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    // A short list takes no room that others could use.
    constexpr int shortList = 8;
    const bool isShort = !filledLater_ && model_.Count() > 0 && model_.Count() <= shortList;
    filledLater_ = filledLater_ || model_.Count() == 0;
    const int row = own_->sizeHintForRow(0);
    const int rows = std::max(model_.Count(), 3);
    const int high = rows * row + 2 * own_->frameWidth() + 6;
    own_->setMaximumHeight(isShort ? high : QWIDGETSIZE_MAX);
    if (isShort) own_->setMinimumHeight(high);
    own_->updateGeometry();
}

void ListView::Draw() {
    if (shown_ != model_.Items() || readable_ != model_.Readable()) Fill();
    if (IsSingle()) {
        // What only says what is to be chosen must not look chosen.
        const bool prompts = model_.FirstIsPrompt && model_.Index() == 0;
        if (own_->currentRow() != model_.Index()) own_->setCurrentRow(model_.Index());
        if (prompts) own_->clearSelection();
        return;
    }
    for (int i = 0; i < own_->count(); ++i) {
        const bool on = model_.Selected(i);
        if (IsOn(i) == on) continue;
        if (HasChecks())
            own_->item(i)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
        else
            own_->item(i)->setSelected(on);
    }
}

TabView::TabView(FormWindow& window, ui::TabStrip& tabs)
    : ViewOf(window, tabs, new Keyed<QTabBar>(&window)) {
    own_->setExpanding(false);
    own_->setDrawBase(false);
    own_->setFocusPolicy(Qt::TabFocus);
    QObject::connect(own_, &QTabBar::tabBarClicked, this,
                     [this](int index) { Act([this, index] { model_.UserChoose(index); }); });
    QObject::connect(own_, &QTabBar::currentChanged, this, [this] {
        if (!IsDrawing())
            QMetaObject::invokeMethod(
                this, [this] { Refresh(); }, Qt::QueuedConnection);
    });
    own_->OnKeyDone = [this] {
        const int index = own_->currentIndex();
        if (index != model_.Index()) Act([this, index] { model_.UserChoose(index); });
    };
}

bool TabView::Wants(const ui::Key& key) const {
    return IsOneOf(key.name, {"Left", "Right", "Home", "End"});
}

void TabView::Draw() {
    while (own_->count() > model_.Count())
        own_->removeTab(own_->count() - 1);
    for (int i = 0; i < model_.Count(); ++i) {
        const QString text = Literal(model_.Item(i));
        if (i >= own_->count())
            own_->addTab(text);
        else if (own_->tabText(i) != text)
            own_->setTabText(i, text);
    }
    own_->updateGeometry(); // the bar does not tell of tabs that it gets before it is seen
    const int page = std::max(model_.Index(), 0);
    if (own_->currentIndex() != page) own_->setCurrentIndex(page);
}

} // namespace vexora::qt
