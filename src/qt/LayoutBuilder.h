#pragma once

#include <unordered_set>
#include <vector>

#include <QWidget>

#include "ui/Form.h"
#include "ui/Layout.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QStackedWidget;

namespace vexora::qt {

class FoldBox;
class FormWindow;

/// Turns the layout tree of a form into widgets: fields with a common label edge, groups, pages,
/// the button row at the lower right. Labels and plain groups show while something in them shows.
class LayoutBuilder {
public:
    explicit LayoutBuilder(FormWindow& window) : window_(window) {}

    QWidget* Build(const ui::Form& form);
    /// Hides labels, notes and groups that have lost all they stood for, greys the labels of fields
    /// that are closed, and turns the pages.
    void Follow();

private:
    struct Companion {
        QWidget* widget;
        const ui::Control* own; // its own control, which must be visible too, or null
        std::vector<const ui::Control*> controls;
        bool dims = false; // a plain label goes grey with the first of them
    };
    struct Book {
        const ui::TabStrip* tabs;
        QStackedWidget* stack;
    };

    struct Fold { // a group that shows its content while one of its marks is on
        FoldBox* box;
        QWidget* content;
        std::vector<const ui::CheckBox*> marks;
        bool used = false;
        bool begun = false;
    };

    struct Room { // what a part that grows may take of a column
        QGridLayout* column;
        int row;
        QWidget* part;
        int share;
    };

    QWidget* Make(const ui::Layout& layout);
    void KeepRoom(QGridLayout& column, int row, int share);
    void ShareRooms();
    void FollowFolds();
    QWidget* MakeColumn(const ui::Layout& layout);
    void AddToColumn(QGridLayout& grid, int row, const ui::Layout& part, bool hasFields);
    void AddField(QGridLayout& grid, int row, const ui::Layout& part);
    void AddRowOfFields(QGridLayout& grid, int row, const ui::Layout& part);
    QWidget* MakeRow(const ui::Layout& layout);
    /// The widget shows while something in the layout does.
    void Accompany(QWidget* widget, const ui::Layout& layout, const ui::Control* own = nullptr,
                   bool dims = false);
    QWidget* MakeGroup(const ui::Layout& layout);
    QWidget* MakeLoneField(const ui::Layout& layout);
    QWidget* MakePages(const ui::Layout& layout);
    QWidget* MakeSplit(const ui::Layout& layout);
    QWidget* MakeButtons(const ui::Layout& layout);
    QWidget* MakeNote(const ui::Layout& layout);
    QWidget* MakeStretch(const ui::Layout& layout);
    QWidget* MakeSized(const ui::Layout& layout);
    QWidget* MakeItem(ui::Control& control);
    QWidget* LabelOf(const ui::Layout& field, QWidget* part);
    void Leftovers(const ui::Form& form, std::vector<ui::Layout>& parts) const;

    FormWindow& window_;
    std::unordered_set<const ui::Control*> placed_;
    std::vector<Companion> companions_;
    std::vector<Book> books_;
    std::vector<QGridLayout*> columns_;
    std::vector<Fold> folds_;
    std::vector<Room> rooms_;
};

} // namespace vexora::qt
