#include "qt/LayoutBuilder.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QSplitter>
#include <QStackedWidget>

#include "qt/AccessibleNames.h"
#include "qt/FoldBox.h"
#include "qt/FormWindow.h"
#include "qt/LabelEdges.h"
#include "qt/LayoutGrowth.h"
#include "qt/Text.h"

namespace vexora::qt {

using ui::ControlKind;
using Kind = ui::Layout::Kind;

namespace {

void Gather(const ui::Layout& layout, std::vector<const ui::Control*>& controls) {
    if (layout.control) controls.push_back(layout.control);
    for (const ui::Layout& part : layout.parts)
        Gather(part, controls);
}

bool IsItem(const ui::Layout& layout, std::initializer_list<ControlKind> kinds) {
    return layout.kind == Kind::Item &&
           std::ranges::find(kinds, layout.control->Kind()) != kinds.end();
}

/// A table, alone or beside something else.
bool BearsTable(const ui::Layout& layout) {
    return IsItem(layout, {ControlKind::Grid}) ||
           (layout.kind == Kind::Split && std::ranges::any_of(layout.parts, BearsTable));
}

bool BeginsWithField(const ui::Layout& layout) {
    return layout.kind == Kind::Row && !layout.parts.empty() &&
           layout.parts.front().kind == Kind::Field;
}

// Buttons and options without a label of their own stand under the fields.
bool IsButton(const ui::Layout& layout) {
    using enum ControlKind;
    return layout.kind == Kind::Stretch || IsItem(layout, {CheckBox, OptionButton, CommandButton});
}

bool IsRowOfButtons(const ui::Layout& layout) {
    return layout.kind == Kind::Row && !layout.parts.empty() &&
           std::ranges::all_of(layout.parts, IsButton);
}

template <class TLayout>
TLayout* Bare(QWidget* owner) {
    auto* layout = new TLayout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

/// The marks of a group in which each block of fields is opened by one; empty for other groups.
std::vector<const ui::CheckBox*> MarksOf(const ui::Layout& group) {
    std::vector<const ui::CheckBox*> marks;
    for (const ui::Layout& part : group.parts) {
        if (part.kind != Kind::Field || !part.label || part.label->Kind() != ControlKind::CheckBox)
            return {};
        marks.push_back(static_cast<const ui::CheckBox*>(part.label));
    }
    return marks;
}

} // namespace

QWidget* LayoutBuilder::Build(const ui::Form& form) {
    const ui::Layout& wanted = form.Arrangement;
    QWidget* made = nullptr;
    const bool empty = wanted.kind == Kind::Column && wanted.parts.empty();
    if (!empty) made = Make(wanted);
    std::vector<ui::Layout> rest;
    Leftovers(form, rest);
    auto* content = new QWidget(&window_);
    auto* column = new QVBoxLayout(content);
    if (made) column->addWidget(made, 1);
    if (!rest.empty()) column->addWidget(MakeColumn(ui::Column(rest)), empty ? 1 : 0);
    if (folds_.size() > 1) // one alone has nothing to make room for
        for (const Fold& fold : folds_)
            fold.box->FoldAround(*fold.content);
    return content;
}

/// A group folds while none of its blocks is in use, and opens when one comes into use.
void LayoutBuilder::FollowFolds() {
    for (Fold& fold : folds_) {
        const bool used =
            std::ranges::any_of(fold.marks, [](const ui::CheckBox* mark) { return mark->Value(); });
        if (std::exchange(fold.used, used) != used || !fold.begun) fold.box->Fold(!used);
        fold.begun = true;
        if (const auto* rows = qobject_cast<QGridLayout*>(fold.content->layout()))
            LineUpRows(*rows);
    }
}

// A control that the layout forgot still has to be within reach.
void LayoutBuilder::Leftovers(const ui::Form& form, std::vector<ui::Layout>& parts) const {
    std::vector<ui::Layout> buttons;
    for (ui::Control* control : form.Controls()) {
        const ControlKind kind = control->Kind();
        const bool inBars = kind == ControlKind::MenuItem || kind == ControlKind::Toolbar ||
                            kind == ControlKind::ToolButton;
        if (inBars || placed_.contains(control)) continue;
        (kind == ControlKind::CommandButton ? buttons : parts).emplace_back(*control);
    }
    if (!buttons.empty()) parts.push_back(ui::ButtonRow(std::move(buttons)));
}

QWidget* LayoutBuilder::Make(const ui::Layout& layout) {
    using Builder = LayoutBuilder;
    // In the order of ui::Layout::Kind.
    static constexpr QWidget* (Builder::*makers[])(const ui::Layout&) = {
        &Builder::MakeColumn, &Builder::MakeRow,    &Builder::MakeGroup, &Builder::MakeLoneField,
        &Builder::MakeSized,  &Builder::MakePages,  &Builder::MakeSplit, &Builder::MakeButtons,
        &Builder::MakeNote,   &Builder::MakeStretch};
    static_assert(std::size(makers) == static_cast<std::size_t>(Kind::Stretch) + 1);
    return (this->*makers[static_cast<std::size_t>(layout.kind)])(layout);
}

QWidget* LayoutBuilder::MakeStretch(const ui::Layout&) {
    auto* room = new QWidget(&window_);
    room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return room;
}

QWidget* LayoutBuilder::MakeItem(ui::Control& control) {
    View* view = window_.ViewFor(control);
    const bool isBar = control.Kind() == ControlKind::Toolbar;
    if (!view || isBar || !placed_.insert(&control).second) return new QWidget(&window_);
    return view->Widget();
}

QWidget* LayoutBuilder::MakeSized(const ui::Layout& layout) {
    QWidget* widget = MakeItem(*layout.control);
    if (layout.columns > 0) {
        const QFontMetrics metrics = widget->fontMetrics();
        widget->setFixedWidth(metrics.horizontalAdvance(QLatin1Char('0')) * (layout.columns + 2));
    }
    return widget;
}

QWidget* LayoutBuilder::MakeColumn(const ui::Layout& layout) {
    const std::vector<ui::Layout>& parts = layout.parts;
    auto* owner = new QWidget(&window_);
    auto* grid = Bare<QGridLayout>(owner);
    grid->setColumnStretch(1, 1);
    const bool hasFields = std::ranges::any_of(parts, [](const ui::Layout& part) {
        return part.kind == Kind::Field || BeginsWithField(part);
    });
    int row = 0;
    bool grows = false;
    bool loose = false; // the room left over stands above a closing button row
    for (const ui::Layout& part : parts) {
        if (IsItem(part, {ControlKind::Toolbar})) continue;
        const bool last = &part == &parts.back();
        if (last && !grows && part.kind == Kind::Buttons) {
            grid->setRowStretch(row++, 1);
            loose = true;
        }
        AddToColumn(*grid, row, part, hasFields);
        // A table gets more of the room than the lists beside it.
        if (GrowsDown(part)) KeepRoom(*grid, row, BearsTable(part) ? 3 : 1);
        grows = grows || GrowsDown(part);
        ++row;
    }
    if (!grows && !loose) grid->setRowStretch(row, 1);
    columns_.push_back(grid);
    return owner;
}

void LayoutBuilder::AddToColumn(QGridLayout& grid, int row, const ui::Layout& part,
                                bool hasFields) {
    if (part.kind == Kind::Field) return AddField(grid, row, part);
    if (BeginsWithField(part)) return AddRowOfFields(grid, row, part);
    const bool underField = part.kind == Kind::Note && grid.itemAtPosition(row - 1, 1) != nullptr &&
                            grid.itemAtPosition(row - 1, 0) != grid.itemAtPosition(row - 1, 1);
    const bool isToggle = IsItem(part, {ControlKind::CheckBox, ControlKind::OptionButton});
    const bool indented = hasFields && (isToggle || IsRowOfButtons(part) || underField);
    QWidget* widget = Make(part);
    const bool narrow = part.kind == Kind::Item && !GrowsAcross(part) &&
                        !IsItem(part, {ControlKind::Label, ControlKind::TabStrip});
    const Qt::Alignment side = narrow ? Qt::AlignLeft : Qt::Alignment();
    grid.addWidget(widget, row, indented ? 1 : 0, 1, indented ? 1 : 2, side);
}

void LayoutBuilder::AddField(QGridLayout& grid, int row, const ui::Layout& part) {
    QWidget* widget = Make(part.parts.front());
    QWidget* label = LabelOf(part, widget);
    const ui::Layout& inside = part.parts.front();
    const bool tall = IsItem(inside, {ControlKind::ListBox}) || GrowsDown(part);
    const bool marks = part.label && part.label->Kind() == ControlKind::CheckBox;
    const Qt::Alignment side = marks ? Qt::AlignLeft : Qt::AlignRight; // marks one below the other
    grid.addWidget(label, row, 0, side | (tall ? Qt::AlignTop : Qt::AlignVCenter));
    grid.addWidget(widget, row, 1, GrowsAcross(part) ? Qt::Alignment() : Qt::AlignLeft);
}

// The first label stands on the common edge, the rest of the row beside its field.
void LayoutBuilder::AddRowOfFields(QGridLayout& grid, int row, const ui::Layout& part) {
    const ui::Layout& first = part.parts.front();
    ui::Layout rest = part;
    rest.parts.front() = first.parts.front();
    ui::Layout field = first;
    field.parts.front() = std::move(rest);
    AddField(grid, row, field);
}

QWidget* LayoutBuilder::LabelOf(const ui::Layout& field, QWidget* part) {
    QWidget* label = nullptr;
    if (field.label) {
        label = MakeItem(*field.label);
    } else {
        auto* plain = new QLabel(ToQt(field.text).simplified(), &window_);
        plain->setTextFormat(Qt::PlainText);
        const auto mark = field.text.find('&');
        const bool mnemonic = mark != std::string::npos && mark + 1 < field.text.size() &&
                              field.text[mark + 1] != ' ';
        if (mnemonic) plain->setBuddy(part);
        label = plain;
    }
    Accompany(label, field.parts.front(), field.label, field.label == nullptr);
    return label;
}

QWidget* LayoutBuilder::MakeLoneField(const ui::Layout& layout) {
    auto* owner = new QWidget(&window_);
    auto* row = Bare<QHBoxLayout>(owner);
    QWidget* widget = Make(layout.parts.front());
    const bool tall = GrowsDown(layout);
    row->addWidget(LabelOf(layout, widget), 0, tall ? Qt::AlignTop : Qt::AlignVCenter);
    row->addWidget(widget, 1, GrowsAcross(layout) ? Qt::Alignment() : Qt::AlignLeft);
    return owner;
}

QWidget* LayoutBuilder::MakeRow(const ui::Layout& layout) {
    auto* owner = new QWidget(&window_);
    auto* row = Bare<QHBoxLayout>(owner);
    bool grows = false;
    for (const ui::Layout& part : layout.parts) {
        const bool wide = GrowsAcross(part);
        grows = grows || wide;
        if (part.kind == Kind::Stretch) {
            row->addStretch(1);
            continue;
        }
        const bool block = part.kind == Kind::Column || part.kind == Kind::Group || GrowsDown(part);
        QWidget* widget = Make(part);
        // A field of fixed width takes no room from those that can use it.
        if (part.kind == Kind::Field && !wide)
            widget->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
        row->addWidget(widget, 0, block ? Qt::Alignment() : Qt::AlignVCenter);
    }
    if (!grows) row->addStretch(1);
    Accompany(owner, layout); // a row of nothing that is shown keeps no place
    return owner;
}

void LayoutBuilder::Accompany(QWidget* widget, const ui::Layout& layout, const ui::Control* own,
                              bool dims) {
    companions_.push_back({widget, own, {}, dims});
    Gather(layout, companions_.back().controls);
}

QWidget* LayoutBuilder::MakeGroup(const ui::Layout& layout) {
    FoldBox* box = nullptr;
    if (layout.control) {
        box = dynamic_cast<FoldBox*>(MakeItem(*layout.control));
    } else {
        box = new FoldBox(&window_);
        box->Caption(Literal(layout.text));
        Accompany(box, layout);
    }
    if (!box) return MakeColumn(layout);
    auto* inside = new QVBoxLayout(box);
    QWidget* content = MakeColumn(layout);
    inside->addWidget(content);
    if (std::vector<const ui::CheckBox*> marks = MarksOf(layout); !marks.empty())
        folds_.push_back({box, content, std::move(marks)});
    return box;
}

QWidget* LayoutBuilder::MakePages(const ui::Layout& layout) {
    auto* owner = new QWidget(&window_);
    auto* column = Bare<QVBoxLayout>(owner);
    column->setSpacing(0);
    column->addWidget(MakeItem(*layout.control));
    auto* frame = new QFrame(owner);
    frame->setFrameShape(QFrame::StyledPanel);
    auto* inside = new QVBoxLayout(frame);
    auto* stack = new QStackedWidget(frame);
    for (const ui::Layout& page : layout.parts) // a page never is a control that shows itself
        stack->addWidget(MakeColumn(ui::Column({page})));
    inside->addWidget(stack);
    column->addWidget(frame, 1);
    books_.push_back({static_cast<const ui::TabStrip*>(layout.control), stack});
    return owner;
}

QWidget* LayoutBuilder::MakeSplit(const ui::Layout& layout) {
    auto* splitter = new QSplitter(Qt::Horizontal, &window_);
    splitter->setChildrenCollapsible(false);
    for (const ui::Layout& part : layout.parts)
        splitter->addWidget(Make(part));
    for (int i = 0; i < splitter->count(); ++i)
        splitter->setStretchFactor(i, 1);
    QList<int> sizes(splitter->count(), 1 << 12); // shared evenly, whatever the hints
    for (int i = 0; i < splitter->count(); ++i) {
        const int columns = layout.parts[static_cast<std::size_t>(i)].columns;
        if (columns == 0) continue;
        sizes[i] = columns * window_.fontMetrics().averageCharWidth();
        splitter->setStretchFactor(i, 0);
        for (int& other : sizes) // what is left over goes to the others
            if (&other != &sizes[i] && other == 1 << 12) other = window_.width();
    }
    splitter->setSizes(sizes);
    return splitter;
}

QWidget* LayoutBuilder::MakeButtons(const ui::Layout& layout) {
    auto* owner = new QWidget(&window_);
    auto* row = Bare<QHBoxLayout>(owner);
    row->setContentsMargins(0, 6, 0, 0);
    row->addStretch(1);
    for (const ui::Layout& part : layout.parts) {
        if (part.kind == Kind::Stretch)
            row->addStretch(1);
        else
            row->addWidget(Make(part));
    }
    return owner;
}

QWidget* LayoutBuilder::MakeNote(const ui::Layout& layout) {
    auto* note = new QLabel(ToQt(layout.text), &window_);
    note->setTextFormat(Qt::PlainText);
    note->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    // A wrapped label asks for a narrow, high place unless it is told how wide it may be.
    const int widest = note->fontMetrics().averageCharWidth() * 64;
    const int wide = note->fontMetrics().size(0, note->text()).width() + 4;
    note->setWordWrap(wide > widest);
    note->setMinimumWidth(std::min(wide, widest));
    return note;
}

void LayoutBuilder::KeepRoom(QGridLayout& column, int row, int share) {
    column.setRowStretch(row, share);
    const QLayoutItem* item = column.itemAtPosition(row, 1);
    if (item && item->widget()) rooms_.push_back({&column, row, item->widget(), share});
}

// What is hidden leaves its room to the others; where all is hidden the room stays as it was.
void LayoutBuilder::ShareRooms() {
    for (const Room& room : rooms_) {
        const bool others = std::ranges::any_of(rooms_, [&](const Room& other) {
            return other.column == room.column && !other.part->isHidden();
        });
        room.column->setRowStretch(room.row, room.part->isHidden() && others ? 0 : room.share);
    }
}

void LayoutBuilder::Follow() {
    FollowFolds();
    for (QGridLayout* column : columns_)
        ShareLabelEdge(*column);
    NameFields(window_);
    for (const Companion& companion : companions_) {
        const auto& of = companion.controls;
        const auto isVisible = [](const ui::Control* control) { return control->Visible(); };
        const bool any = of.empty() || std::ranges::any_of(of, isVisible);
        const bool shown = any && (companion.own == nullptr || companion.own->Visible());
        if (companion.widget->isHidden() == shown) companion.widget->setVisible(shown);
        if (companion.dims && !of.empty()) companion.widget->setEnabled(of.front()->Enabled());
    }
    for (const Book& book : books_)
        book.stack->setCurrentIndex(std::max(book.tabs->Index(), 0));
    ShareRooms();
}

} // namespace vexora::qt
