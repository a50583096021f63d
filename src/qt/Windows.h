#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QPointer>

#include "qt/FormWindow.h"
#include "ui/Forms.h"

class QSettings;

namespace vexora::qt {

class RecentFiles;

/// The windows of all open forms. It follows the registry of forms in force and shows, hides and
/// drops windows as the forms come and go. A front makes one and keeps it.
class Windows {
public:
    Windows();
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// Attaches to the registry in force, if it is another than before. To be called after a
    /// workbench was made, and harmless at any time.
    void Follow();
    /// The window of a form, or null.
    FormWindow* WindowOf(const ui::Form& form) const;
    /// The window a person works on: of the topmost modal form, else the one worked on last that
    /// can still be seen; or null.
    FormWindow* Front() const;
    /// A person has turned to this window.
    void WorkedOn(FormWindow& window);
    /// Draws all that has changed in any window.
    void Flush();

    /// Takes what a handler has thrown.
    std::function<void(std::exception_ptr)> OnFault;
    /// Where sizes and places of windows are kept, null for nowhere.
    QSettings* Settings = nullptr;
    /// The documents opened last, for a menu; null for none.
    RecentFiles* Recent = nullptr;
    /// Their full paths, the latest first.
    std::vector<std::string> RecentDocuments() const;

    /// Keys go as far in a table as they do without a screen, so that scripts find the same cells.
    bool PlaysScripts = false;

private:
    struct Watch; // its end tells that the registry has gone
    void Attach(ui::Forms& forms);
    void Show(ui::Form& form);
    void Hide(ui::Form& form);
    void Drop(ui::Form& form);
    void DropAll();
    QWidget* OwnerFor(const ui::Form& form) const;
    FormWindow* FrontBut(const FormWindow* other) const;
    void PutOver(FormWindow& window, const FormWindow* below) const;
    void Enter(FormWindow& window) const;
    void GoBack() const;
    void Remember(const FormWindow& window) const;
    void Restore(FormWindow& window, const ui::Form& form) const;

    std::unordered_map<const ui::Form*, QPointer<FormWindow>> windows_;
    std::vector<QPointer<FormWindow>> order_; // the one worked on last at the end
    std::weak_ptr<Watch> watch_;
};

} // namespace vexora::qt
