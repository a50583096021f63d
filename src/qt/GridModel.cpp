#include "qt/GridModel.h"

#include <algorithm>

#include "qt/GridView.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

/// A long name is parted where a column of numbers would become too wide for it.
QString InLines(const QString& note) {
    constexpr qsizetype wide = 24; // characters of a line
    QString lines;
    qsizetype begin = 0; // of the last line
    for (const QString& word : note.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const bool fits = lines.size() - begin + 1 + word.size() <= wide;
        if (!lines.isEmpty()) lines += QLatin1Char(fits ? ' ' : '\n');
        if (!fits) begin = lines.size();
        lines += word;
    }
    return lines;
}

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
        const auto& notes = grid_.HeadNotes();
        const auto note = notes.find(section + grid_.FixedColumns());
        if (note != notes.end()) texts << InLines(ToQt(note->second));
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

} // namespace vexora::qt
