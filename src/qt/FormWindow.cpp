#include "qt/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>

#include "qt/FileDrop.h"
#include "qt/FoldBox.h"
#include "qt/GridView.h"
#include "qt/Keys.h"
#include "qt/LayoutGrowth.h"
#include "qt/Text.h"
#include "qt/Windows.h"
#include "ui/FileTarget.h"

namespace vexora::qt {

namespace {

/// Forms that hold as much as they are given room for, tables and plots, can take the screen.
Qt::WindowFlags FlagsFor(const ui::Form& form, const QWidget* parent) {
    if (!parent) return Qt::Window;
    if (form.PreferredRows == 0) return Qt::Dialog;
    return Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
           Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint;
}

} // namespace

FormWindow::FormWindow(Windows& windows, ui::Form& form, QWidget* parent)
    : QMainWindow(parent, FlagsFor(form, parent)), windows_(windows), form_(form), builder_(*this) {
    setObjectName(ToQt(form.Name()));
    DrawTitle();
    setContextMenuPolicy(Qt::NoContextMenu);
    MakeViews();
    MakeMenus();
    MakeToolbars();
    QWidget* content = builder_.Build(form);
    // What is hidden must be so before anybody asks for sizes: the layouts would remember them.
    for (const auto& view : views_)
        view->Refresh();
    builder_.Follow();
    Place(*content);
    TakeFirstSize();
    Listen();
    TakeFiles();
}

FormWindow::~FormWindow() {
    detached_ = true; // the widgets go now and must not report losing the focus
}

void FormWindow::MakeViews() {
    for (ui::Control* control : form_.Controls()) {
        auto view = MakeView(*this, *control);
        if (!view) continue;
        byControl_[control] = view.get();
        views_.push_back(std::move(view));
    }
}

void FormWindow::Place(QWidget& content) {
    const QSize room = screen()->availableSize();
    const QSize needed = content.minimumSizeHint();
    const bool tooBig = needed.width() > room.width() || needed.height() > room.height() - 60;
    if (!tooBig || QGuiApplication::platformName() == "offscreen") {
        setCentralWidget(&content);
        return;
    }
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(&content);
    setCentralWidget(scroll);
}

void FormWindow::TakeFirstSize() {
    const QFontMetrics metrics(font());
    QSize size = sizeHint().expandedTo(minimumSizeHint());
    constexpr int leastColumns = 60; // fields for paths and names want room
    const int columns =
        std::max(form_.PreferredColumns, GrowsAcross(form_.Arrangement) ? leastColumns : 0);
    size = size.expandedTo(
        {metrics.averageCharWidth() * columns, metrics.lineSpacing() * form_.PreferredRows});
    const int widest = screen()->availableSize().width() - 20;
    for (const auto& view : views_) {
        const auto* grid = dynamic_cast<const GridView*>(view.get());
        if (!grid || grid->Widget()->isHidden()) continue;
        const int beside = style()->pixelMetric(QStyle::PM_LayoutLeftMargin) +
                           style()->pixelMetric(QStyle::PM_LayoutRightMargin);
        size.setWidth(std::max(size.width(), std::min(grid->WidthOfAll() + beside, widest)));
    }
    if (QGuiApplication::platformName() != "offscreen") {
        size = size.boundedTo(screen()->availableSize() - QSize(20, 60));
    }
    resize(size);
}

// Only weak references: the form may outlive the window and the other way round.
void FormWindow::Listen() {
    const QPointer<FormWindow> self(this);
    form_.CaptionChanged.Connect([self] {
        if (self && !self->detached_) self->DrawTitle();
    });
    form_.FocusChanged.Connect([self] {
        if (self && !self->detached_) self->FollowFocus();
    });
    ListenToDocument();
}

void FormWindow::TakeFiles() {
    auto* target = dynamic_cast<ui::FileTarget*>(&form_);
    if (!target) return;
    new FileDrop(*this, [this, target](const QString& path) {
        Perform([&] {
            if (form_.IsReachable()) target->TakeFile(FromQt(path));
        });
    });
}

View* FormWindow::ViewFor(const ui::Control& control) const {
    const auto found = byControl_.find(&control);
    return found == byControl_.end() ? nullptr : found->second;
}

void FormWindow::FollowFocus() {
    const ui::Control* active = form_.ActiveControl();
    for (const auto& view : views_)
        if (!view->Model().Readable().empty()) MarkDirty(*view); // shown otherwise while edited
    View* view = active ? ViewFor(*active) : nullptr;
    if (!view || !view->Widget()) return;
    FoldBox::Reveal(*view->Widget());
    if (view->Widget()->hasFocus()) return;
    Flush();
    view->Widget()->setFocus(Qt::OtherFocusReason);
}

void FormWindow::MarkDirty(View& view) {
    if (detached_) return;
    dirty_.emplace_back(&view);
    Schedule();
}

void FormWindow::Schedule() {
    if (scheduled_) return;
    scheduled_ = true;
    QTimer::singleShot(0, this, [this] { Flush(); });
}

void FormWindow::Flush() {
    scheduled_ = false;
    if (detached_ || dirty_.empty()) return;
    auto dirty = std::move(dirty_);
    dirty_.clear();
    bool framesChanged = false;
    std::unordered_set<View*> done;
    for (const auto& view : dirty) {
        if (!view || !done.insert(view.data()).second) continue;
        view->Refresh();
        framesChanged = framesChanged || view->Model().Kind() == ui::ControlKind::Frame;
    }
    if (framesChanged) {
        for (const auto& view : views_) {
            if (view->Model().Container()) view->Refresh();
        }
    }
    builder_.Follow();
}

void FormWindow::Detach() {
    detached_ = true;
    dirty_.clear();
}

void FormWindow::Perform(const std::function<void()>& action) {
    if (detached_) return;
    try {
        action();
    } catch (...) {
        if (!windows_.OnFault) throw;
        windows_.OnFault(std::current_exception());
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    if (detached_) return;
    event->ignore();
    Perform([this] { form_.UserClose(); });
}

// Keys that no control has: of an empty form, or while nothing has the focus.
void FormWindow::keyPressEvent(QKeyEvent* event) {
    for (const auto& view : views_) {
        if (detached_ || (view->Widget() && view->Widget()->hasFocus())) return;
    }
    const ui::Key key = KeyOf(*event);
    if (!key.name.empty()) Perform([this, &key] { form_.UserKey(key); });
}

void FormWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !detached_)
        windows_.WorkedOn(*this);
    if (event->type() != QEvent::PaletteChange || detached_) return;
    for (const auto& view : views_)
        MarkDirty(*view);
}

} // namespace vexora::qt
