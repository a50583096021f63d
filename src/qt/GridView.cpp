#include "qt/GridView.h"

#include <algorithm>

#include <QEvent>
#include <QHeaderView>
#include <QMenu>
#include <QStyle>

#include "qt/CellDelegate.h"
#include "qt/Events.h"
#include "qt/FormWindow.h"
#include "qt/HeadView.h"
#include "qt/Text.h"
#include "qt/Windows.h"

namespace vexora::qt {

GridView::GridView(FormWindow& window, ui::Grid& grid)
    : ViewOf(window, grid, new QTableView(&window)), cells_(*this, grid) {
    Watch(own_->viewport());
    own_->setModel(&cells_);
    own_->setItemDelegate(new CellDelegate(*this, own_));
    own_->setSelectionMode(QAbstractItemView::ContiguousSelection);
    own_->setTabKeyNavigation(false);
    own_->horizontalHeader()->setVisible(grid.FixedRows() > 0);
    own_->verticalHeader()->setVisible(grid.FixedColumns() > 0 || grid.ShowsRowNumbers);
    if (grid.Editor) UseEditorOfForm(*grid.Editor);
    if (grid.ChoosesHeads()) UseHeads();
    own_->horizontalHeader()->setDefaultSectionSize(own_->fontMetrics().averageCharWidth() * 14);
    own_->verticalHeader()->setDefaultSectionSize(own_->fontMetrics().height() + 8);
    own_->setMinimumHeight(own_->fontMetrics().lineSpacing() * 8);
    own_->setMinimumWidth(own_->fontMetrics().averageCharWidth() * 40);
    grid.CellChanged.Connect([self = QPointer<GridView>(this)](int row, int column) {
        if (self && !self->Window().IsDetached()) self->FollowCells(row, column);
    });
    own_->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(own_, &QWidget::customContextMenuRequested, this,
                     [this](const QPoint& place) { ShowMenu(place); });
    QObject::connect(own_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                     [this] { HandOverSelection(); });
}

// The field follows the cell each time it comes up.
void GridView::UseEditorOfForm(ui::TextBox& editor) {
    own_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    editor.Redraw.Connect([self = QPointer<GridView>(this)] {
        if (self && !self->Window().IsDetached()) self->Window().MarkDirty(*self);
    });
}

void GridView::UseHeads() {
    heads_ = new HeadView(*this, model_, own_);
    heads_->OnPressed = [this](int row, int column) { Act([&] { model_.UserHead(row, column); }); };
    own_->setHorizontalHeader(heads_);
    own_->setCornerButtonEnabled(false);
    corner_ = new CornerView(*heads_, own_);
    for (QHeaderView* header : {own_->horizontalHeader(), own_->verticalHeader()})
        QObject::connect(header, &QHeaderView::geometriesChanged, this, [this] { PlaceCorner(); });
    own_->verticalHeader()->setMinimumWidth(heads_->LabelWidth());
    for (ui::ComboBox* list : model_.HeadLists)
        list->Redraw.Connect([self = QPointer<GridView>(this)] {
            if (self && !self->Window().IsDetached()) self->Window().MarkDirty(*self);
        });
}

void GridView::PlaceCorner() {
    const int frame = own_->frameWidth();
    corner_->setGeometry(frame, frame, own_->verticalHeader()->width(), heads_->height());
    corner_->raise();
}

bool GridView::HasLostGrid() const {
    return Window().IsDetached();
}

bool GridView::Wants(const ui::Key& key) const {
    const std::string name = key.FullName();
    return name == "F2" || name == "Ctrl+A" || key.character >= U' ';
}

// What becomes of the selection on the way is no choice of a person.
void GridView::FollowCells(int row, int column) {
    following_ = true;
    if (cells_.columnCount() != model_.Columns() - model_.FixedColumns()) fresh_ = true;
    cells_.CellChanged(row, column);
    following_ = false;
    const bool isOne = row >= model_.FixedRows() && column >= model_.FixedColumns();
    if (!isOne || static_cast<std::size_t>(column) >= shapes_.size())
        shapes_.clear();
    else
        shapes_[static_cast<std::size_t>(column)].reset();
    fitted_ = false;
    Window().MarkDirty(*this);
}

QModelIndex GridView::IndexOf(int row, int column) const {
    return cells_.index(row - model_.FixedRows(), column - model_.FixedColumns());
}

void GridView::Edit(int row, int column, const std::string& text) {
    Act([&] { model_.UserCell(row, column, text); });
}

bool GridView::SelectAsDragged(const ui::Grid::Block& block) {
    const QModelIndex first = IndexOf(block.top, block.left);
    const QModelIndex last = IndexOf(block.bottom, block.right);
    if (!first.isValid() || !last.isValid()) return false;
    // No key is held down, whatever the last one was.
    own_->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    own_->selectionModel()->select({first, last}, QItemSelectionModel::ClearAndSelect);
    return true;
}

void GridView::HandOverSelection() {
    if (IsDrawing() || following_) return;
    const QItemSelection selection = own_->selectionModel()->selection();
    if (selection.isEmpty()) return;
    QRect all;
    for (const QItemSelectionRange& range : selection) {
        all |= QRect(QPoint(range.left(), range.top()), QPoint(range.right(), range.bottom()));
    }
    const int rows = model_.FixedRows();
    const int columns = model_.FixedColumns();
    Act([&] {
        model_.UserSelect(
            {all.top() + rows, all.left() + columns, all.bottom() + rows, all.right() + columns});
    });
}

void GridView::Draw() {
    if (notes_ != model_.HeadNotes()) {
        notes_ = model_.HeadNotes();
        fitted_ = false;
        if (cells_.columnCount() > 0)
            emit cells_.headerDataChanged(Qt::Horizontal, 0, cells_.columnCount() - 1);
    }
    if (!fitted_) FitColumns();
    if (!Window().All().PlaysScripts) {
        const int page = own_->viewport()->height() / own_->verticalHeader()->defaultSectionSize();
        model_.PageRows = std::max(page - 1, 1);
    }
    own_->viewport()->update();
    DrawSelection();
    PlaceEditor();
    if (heads_) DrawHeads();
}

void GridView::DrawHeads() {
    heads_->viewport()->update();
    PlaceCorner();
    PlaceHeadList();
}

// Over the head that it is for, as wide as its entries ask where the column is narrow.
void GridView::PlaceHeadList() {
    const ui::Grid::Block& block = model_.Selection();
    if (!model_.IsInHeads() || block.top >= static_cast<int>(model_.HeadLists.size())) return;
    const ui::ComboBox& list = *model_.HeadLists[static_cast<std::size_t>(block.top)];
    View* view = list.Visible() ? Window().ViewFor(list) : nullptr;
    if (!view || !view->Widget()) return;
    QWidget* field = view->Widget();
    if (field->parentWidget() != heads_->viewport()) field->setParent(heads_->viewport());
    QRect place = heads_->CellRect(block.top, block.left);
    int wide = 0;
    for (const std::string& item : list.Items())
        wide = std::max(wide, field->fontMetrics().horizontalAdvance(ToQt(item)));
    constexpr int besideText = 50; // the button and the margins
    const int room = heads_->viewport()->width();
    place.setWidth(std::min(std::max(place.width(), wide + besideText), room));
    place.moveLeft(std::clamp(place.left(), 0, room - place.width()));
    field->setGeometry(place);
    view->Refresh();
    field->raise();
    if (list.HasFocus() && !field->hasFocus()) field->setFocus(Qt::OtherFocusReason);
}

void GridView::ClickHead(int row, int column) {
    Window().Flush();
    own_->scrollTo(IndexOf(model_.FixedRows(), column));
    MouseClick(heads_->viewport(), heads_->CellRect(row, column).center());
}

// The field of the form that edits lies over the selected cell while it is to be seen.
void GridView::PlaceEditor() {
    if (!model_.Editor || !model_.Editor->Visible()) return;
    View* view = Window().ViewFor(*model_.Editor);
    if (!view || !view->Widget()) return;
    const ui::Grid::Block& block = model_.Selection();
    const QModelIndex at = IndexOf(block.top, block.left);
    own_->scrollTo(at);
    QWidget* field = view->Widget();
    if (field->parentWidget() != own_->viewport()) field->setParent(own_->viewport());
    field->setGeometry(own_->visualRect(at));
    view->Refresh();
    field->raise();
    if (model_.Editor->HasFocus()) field->setFocus(Qt::OtherFocusReason);
}

void GridView::DrawSelection() {
    const ui::Grid::Block& block = model_.Selection();
    if (model_.IsInHeads()) {
        own_->selectionModel()->clearSelection();
        own_->scrollTo(IndexOf(own_->rowAt(0) + model_.FixedRows(), block.left));
        return;
    }
    const QModelIndex first = IndexOf(std::max(block.top, model_.FixedRows()),
                                      std::max(block.left, model_.FixedColumns()));
    const QModelIndex last = IndexOf(block.bottom, block.right);
    if (!first.isValid() || !last.isValid()) return;
    const QItemSelection wanted(first, last);
    auto* selection = own_->selectionModel();
    const bool same =
        selection->selection().size() == 1 && selection->selection().front() == wanted.front();
    if (same && shown_ == model_.TimesShown()) return;
    shown_ = model_.TimesShown();
    if (!same) {
        selection->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        selection->select(wanted, QItemSelectionModel::ClearAndSelect);
    }
    own_->scrollTo(IndexOf(model_.Cursor().first, model_.Cursor().second));
}

/// Found once, until a cell of the column changes.
const ColumnShape& GridView::Shape(int column) const {
    const auto at = static_cast<std::size_t>(column);
    if (shapes_.size() != static_cast<std::size_t>(model_.Columns()))
        shapes_.assign(static_cast<std::size_t>(model_.Columns()), std::nullopt);
    if (!shapes_[at]) shapes_[at] = ShapeOf(model_, column);
    return *shapes_[at];
}

// The longest text decides, wherever it stands: digits are never cut off.
int GridView::WidthOfTexts(int column) const {
    const ColumnShape& shape = Shape(column + model_.FixedColumns());
    if (shape.longestRow < 0) return 0;
    QFont font = own_->font();
    font.setBold(true); // as marked cells are
    const QFontMetrics metrics(font);
    const std::string& longest = model_.Cell(shape.longestRow, column + model_.FixedColumns());
    const auto inLine = static_cast<int>(shape.hasPointsInLine ? shape.before + shape.behind : 0);
    const int wide = std::max(metrics.horizontalAdvance(ToQt(longest)),
                              inLine * metrics.horizontalAdvance(QLatin1Char('0')));
    return wide + 2 * own_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 6;
}

int GridView::RoomBehind(int column, const NumberShape& number) const {
    if (HasLostGrid() || !number.isNumber) return 0;
    const std::size_t free = Shape(column + model_.FixedColumns()).FreeBehind(number);
    if (free == 0) return 0;
    const QFontMetrics metrics(own_->font());
    const int digit = metrics.horizontalAdvance(QLatin1Char('0'));
    // A point is narrower than a digit.
    const int point = metrics.horizontalAdvance(QLatin1Char('.'));
    const auto whole = static_cast<int>(free);
    return number.behind == 0 ? (whole - 1) * digit + point : whole * digit;
}

QString GridView::StatedIn(const QModelIndex& index) const {
    if (HasLostGrid()) return {};
    const auto found = model_.Stated().find(index.column() + model_.FixedColumns());
    if (found == model_.Stated().end()) return {};
    const int row = index.row() + model_.FixedRows();
    for (int column = model_.FixedColumns(); column < model_.Columns(); ++column)
        if (!model_.Cell(row, column).empty()) return ToQt(found->second);
    return {};
}

int GridView::WidthOfAll() const {
    const int frame = 2 * own_->frameWidth();
    const int bar = own_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int numbers =
        own_->verticalHeader()->isHidden() ? 0 : own_->verticalHeader()->sizeHint().width();
    return own_->horizontalHeader()->length() + numbers + frame + bar;
}

// Never narrower than a number, never wider than a third of a page; columns that a person has made
// wider stay so.
void GridView::FitColumns() {
    const int character = own_->fontMetrics().averageCharWidth();
    for (int i = 0; i < cells_.columnCount(); ++i) {
        const int head = own_->horizontalHeader()->sectionSizeHint(i);
        const int wanted =
            std::clamp(std::max(head, WidthOfTexts(i)), character * 12, character * 40);
        const int now = own_->columnWidth(i);
        if (fresh_ || now < wanted) own_->setColumnWidth(i, wanted);
    }
    fitted_ = true;
    fresh_ = false;
}

// The menu that holds "Paste" is that of the cells.
void GridView::ShowMenu(const QPoint& place) {
    for (const ui::Control* control : model_.Owner().Controls()) {
        if (control->Kind() != ui::ControlKind::MenuItem) continue;
        const auto& item = static_cast<const ui::MenuItem&>(*control);
        QMenu* menu = item.Shortcut() == "Ctrl+V" && item.Parent()
                          ? Window().MenuFor(*item.Parent())
                          : nullptr;
        if (menu) return menu->popup(own_->viewport()->mapToGlobal(place));
    }
}

bool GridView::MouseEvent(QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) Act([this] { model_.SetFocus(); });
    if (event.type() == QEvent::MouseButtonRelease && model_.OnClick) {
        Act([this] { model_.UserClick(); });
    }
    return View::MouseEvent(event);
}

} // namespace vexora::qt
