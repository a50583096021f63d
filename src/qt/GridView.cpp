#include "qt/GridView.h"

#include <algorithm>

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QStyledItemDelegate>

#include "qt/Events.h"
#include "qt/FormWindow.h"
#include "qt/HeadView.h"
#include "qt/Text.h"
#include "qt/Windows.h"

namespace vexora::qt {

namespace {

/// The editor of a cell keeps Enter, which else would go on to the default button of the form.
class CellEditor : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QLineEdit::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) event->accept();
    }
};

class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override {
        auto* editor = new CellEditor(parent);
        editor->setFrame(false);
        return editor;
    }
};

} // namespace

GridModel::GridModel(GridView& view, ui::Grid& grid) : view_(view), grid_(grid) {
    rows_ = grid.Rows();
    columns_ = grid.Columns();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || view_.HasLostGrid() ? 0 : std::max(rows_ - grid_.FixedRows(), 0);
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || view_.HasLostGrid() ? 0
                                                   : std::max(columns_ - grid_.FixedColumns(), 0);
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (view_.HasLostGrid()) return {};
    const int row = index.row() + grid_.FixedRows();
    const int column = index.column() + grid_.FixedColumns();
    if (role == Qt::DisplayRole || role == Qt::EditRole) return ToQt(grid_.Cell(row, column));
    const ui::Grid::Mark* mark = grid_.MarkOf(row, column);
    return mark ? MarkData(*mark, role) : QVariant();
}

// Told apart by weight and slant as well as by colour; a tint of the ground fits light and dark.
QVariant GridModel::MarkData(const ui::Grid::Mark& mark, int role) const {
    const QPalette palette = view_.Table().palette();
    if (role == Qt::ToolTipRole) return ToQt(mark.tip);
    if (role == Qt::BackgroundRole) {
        const QColor base = palette.color(QPalette::Base);
        const QColor tint = mark.isFault ? QColor(213, 94, 0) : QColor(240, 228, 66);
        const auto mix = [](int a, int b) { return (7 * a + 3 * b) / 10; };
        return QColor(mix(base.red(), tint.red()), mix(base.green(), tint.green()),
                      mix(base.blue(), tint.blue()));
    }
    if (role != Qt::FontRole) return {};
    QFont font = view_.Table().font();
    font.setBold(mark.isFault);
    font.setItalic(!mark.isFault);
    return font;
}

// Several fixed rows stand as several lines in the header, several fixed columns side by side.
QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || view_.HasLostGrid()) return {};
    QStringList texts;
    if (orientation == Qt::Horizontal) {
        for (int row = 0; row < grid_.FixedRows(); ++row)
            texts << ToQt(grid_.Cell(row, section + grid_.FixedColumns()));
        return texts.join('\n');
    }
    if (grid_.ShowsRowNumbers) texts << QString::number(section + 1);
    for (int column = 0; column < grid_.FixedColumns(); ++column)
        texts << ToQt(grid_.Cell(section + grid_.FixedRows(), column));
    return texts.join(QStringLiteral("  "));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return !view_.HasLostGrid() && grid_.IsEditable() ? flags | Qt::ItemIsEditable : flags;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole) return false;
    view_.Edit(index.row() + grid_.FixedRows(), index.column() + grid_.FixedColumns(),
               FromQt(value.toString()));
    return true;
}

// Rows come and go at the end, so that the table stays where a person has scrolled it.
void GridModel::FollowRows() {
    const int before = rowCount();
    const int after = std::max(grid_.Rows() - grid_.FixedRows(), 0);
    if (after > before) {
        beginInsertRows({}, before, after - 1);
        rows_ = grid_.Rows();
        endInsertRows();
    } else if (after < before) {
        beginRemoveRows({}, after, before - 1);
        rows_ = grid_.Rows();
        endRemoveRows();
    }
}

void GridModel::CellChanged(int row, int column) {
    if (columns_ != grid_.Columns()) {
        beginResetModel();
        rows_ = grid_.Rows();
        columns_ = grid_.Columns();
        endResetModel();
        return;
    }
    FollowRows();
    if (row < 0) {
        if (rowCount() > 0 && columnCount() > 0)
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        if (columnCount() > 0) emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    } else if (row < grid_.FixedRows()) {
        const int section = column - grid_.FixedColumns();
        if (section >= 0) emit headerDataChanged(Qt::Horizontal, section, section);
    } else if (column < grid_.FixedColumns()) {
        const int section = row - grid_.FixedRows();
        emit headerDataChanged(Qt::Vertical, section, section);
    } else {
        const QModelIndex at = index(row - grid_.FixedRows(), column - grid_.FixedColumns());
        emit dataChanged(at, at);
    }
}

GridView::GridView(FormWindow& window, ui::Grid& grid)
    : ViewOf(window, grid, new QTableView(&window)), cells_(*this, grid) {
    Watch(own_->viewport());
    own_->setModel(&cells_);
    own_->setItemDelegate(new CellDelegate(own_));
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

// The longest text decides, wherever it stands: digits are never cut off.
int GridView::WidthOfTexts(int column) const {
    const std::string* longest = nullptr;
    for (int row = model_.FixedRows(); row < model_.Rows(); ++row) {
        const std::string& text = model_.Cell(row, column + model_.FixedColumns());
        if (!longest || text.size() > longest->size()) longest = &text;
    }
    if (!longest) return 0;
    QFont font = own_->font();
    font.setBold(true); // as marked cells are
    const int margin = 2 * own_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 6;
    return QFontMetrics(font).horizontalAdvance(ToQt(*longest)) + margin;
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
