#include "qt/Windows.h"

#include <algorithm>

#include <QSettings>
#include <QSplitter>
#include <QWindow>

#include "qt/RecentFiles.h"
#include "qt/Text.h"

namespace vexora::qt {

namespace {

QString SplitKey(const QString& window, qsizetype splitter) {
    const QString key = window + "/split";
    return splitter == 0 ? key : key + QString::number(splitter + 1);
}

} // namespace

struct Windows::Watch {
    explicit Watch(Windows& of) : owner(&of) {}
    ~Watch() {
        if (owner) owner->DropAll();
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    Windows* owner;
};

Windows::Windows() = default;

Windows::~Windows() {
    if (const auto watch = watch_.lock()) watch->owner = nullptr;
    DropAll();
}

void Windows::Follow() {
    if (!watch_.expired() || !ui::Forms::IsPresent()) return;
    Attach(ui::Forms::Current());
}

// The listeners hold the watch: it ends with the signals of the registry.
void Windows::Attach(ui::Forms& forms) {
    const auto watch = std::make_shared<Watch>(*this);
    watch_ = watch;
    const auto when = [&watch](void (Windows::*action)(ui::Form&)) {
        return [watch, action](ui::Form& form) {
            if (watch->owner) (watch->owner->*action)(form);
        };
    };
    forms.Shown.Connect(when(&Windows::Show));
    forms.Hidden.Connect(when(&Windows::Hide));
    forms.Closed.Connect(when(&Windows::Drop));
    for (ui::Form* form : forms.OpenForms()) {
        if (form->IsVisible()) Show(*form);
    }
}

FormWindow* Windows::WindowOf(const ui::Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second.data();
}

FormWindow* Windows::Front() const {
    return FrontBut(nullptr);
}

FormWindow* Windows::FrontBut(const FormWindow* other) const {
    if (!ui::Forms::IsPresent()) return nullptr;
    const ui::Form* modal = ui::Forms::Current().TopModal();
    FormWindow* window = modal ? WindowOf(*modal) : nullptr;
    if (window && window != other) return window;
    const auto last = std::find_if(order_.rbegin(), order_.rend(), [other](const auto& worked) {
        return worked && worked != other && !worked->IsDetached() && worked->Model().IsVisible();
    });
    return last == order_.rend() ? nullptr : last->data();
}

void Windows::WorkedOn(FormWindow& window) {
    std::erase_if(order_, [&](const auto& other) { return !other || other == &window; });
    order_.emplace_back(&window);
}

void Windows::Flush() {
    for (const auto& [form, window] : windows_) {
        if (window) window->Flush();
    }
}

// The first of all owns the others: a form may close before those that it has opened.
QWidget* Windows::OwnerFor(const ui::Form& form) const {
    const ui::Forms& forms = ui::Forms::Current();
    for (const ui::Form* open : forms.OpenForms()) {
        if (open == &form) break;
        FormWindow* window = WindowOf(*open);
        if (window && (form.IsModal() ? open->IsVisible() : !window->parentWidget())) return window;
    }
    return nullptr;
}

void Windows::Show(ui::Form& form) {
    FormWindow* window = WindowOf(form);
    if (!window) {
        window = new FormWindow(*this, form, OwnerFor(form));
        windows_[&form] = window;
        Restore(*window, form);
    }
    const auto modality = form.IsModal() ? Qt::ApplicationModal : Qt::NonModal;
    if (window->windowModality() != modality) {
        window->hide();
        window->setWindowModality(modality);
    }
    if (window->isHidden()) PutOver(*window, FrontBut(window));
    WorkedOn(*window);
    window->Flush();
    window->show();
    Enter(*window);
}

// The screen keeps it above that other one, and together with it.
void Windows::PutOver(FormWindow& window, const FormWindow* below) const {
    if (!below || !window.parentWidget()) return;
    window.winId(); // there is something to put only from here on
    const QWindow* own = window.windowHandle();
    for (const QWindow* at = below->windowHandle(); at; at = at->transientParent())
        if (at == own) return;
    window.windowHandle()->setTransientParent(below->windowHandle());
}

void Windows::Enter(FormWindow& window) const {
    window.raise();
    window.activateWindow();
    window.FollowFocus();
}

// The keyboard goes back to where it was before the window that has gone.
void Windows::GoBack() const {
    if (FormWindow* window = Front(); window && window->isVisible()) Enter(*window);
}

void Windows::Hide(ui::Form& form) {
    FormWindow* window = WindowOf(form);
    if (!window) return;
    window->hide();
    GoBack();
}

void Windows::Drop(ui::Form& form) {
    FormWindow* window = WindowOf(form);
    windows_.erase(&form);
    if (!window) return;
    Remember(*window);
    window->Detach();
    window->hide();
    window->deleteLater();
    GoBack();
}

void Windows::DropAll() {
    const auto all = std::move(windows_);
    windows_.clear();
    for (const auto& [form, window] : all) {
        if (window) window->Detach();
    }
    for (const auto& [form, window] : all) {
        if (window) window->hide();
        if (window) window->deleteLater();
    }
}

std::vector<std::string> Windows::RecentDocuments() const {
    std::vector<std::string> files;
    for (const QString& file : Recent ? Recent->Present() : QStringList())
        files.push_back(FromQt(file));
    return files;
}

void Windows::Remember(const FormWindow& window) const {
    if (!Settings || !window.isVisible()) return;
    const QString key = "windows/" + window.objectName();
    Settings->setValue(key, window.saveGeometry());
    const auto splitters = window.findChildren<QSplitter*>();
    for (qsizetype i = 0; i < splitters.size(); ++i)
        Settings->setValue(SplitKey(key, i), splitters[i]->saveState());
}

void Windows::Restore(FormWindow& window, const ui::Form& form) const {
    if (!Settings) return;
    const QString key = "windows/" + window.objectName();
    const auto last = Settings->value(key).toByteArray();
    const auto splitters = window.findChildren<QSplitter*>();
    for (qsizetype i = 0; i < splitters.size(); ++i)
        splitters[i]->restoreState(Settings->value(SplitKey(key, i)).toByteArray());
    // The workbench takes the screen until somebody has given it another size.
    if (!window.restoreGeometry(last) && !window.parentWidget() && !form.IsModal())
        window.setWindowState(Qt::WindowMaximized);
}

} // namespace vexora::qt
