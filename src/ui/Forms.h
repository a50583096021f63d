#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ui/Form.h"

namespace vexora::ui {

class Desktop;

/// The registry of forms: makes the single instance of a form by its name, says which are open and
/// in what order, and drops closed ones. There is one at a time, owned by the workbench; forms find
/// it through Current().
class Forms {
public:
    using Maker = std::function<std::unique_ptr<Form>()>;

    explicit Forms(Desktop& desktop);
    ~Forms();
    Forms(const Forms&) = delete;
    Forms& operator=(const Forms&) = delete;

    /// The registry in force; making one without it is a fault of the program.
    static Forms& Current();
    static bool IsPresent();

    void Register(std::string name, Maker maker);
    template <class T>
    void Register(std::string name) {
        Register(std::move(name), [] { return std::make_unique<T>(); });
    }
    bool Knows(std::string_view name) const;
    std::vector<std::string> KnownNames() const;

    /// The instance of a known form, made when there is none yet.
    Form& Get(std::string_view name);
    template <class T>
    T& Get(std::string_view name) {
        return dynamic_cast<T&>(Get(name));
    }
    /// The open form of that name, or null.
    Form* Find(std::string_view name) const;
    /// The same as its class, for forms that know each other.
    template <class T>
    T* Find(std::string_view name) const {
        return dynamic_cast<T*>(Find(name));
    }

    /// Open forms, the one opened or shown last at the end.
    const std::vector<Form*>& OpenForms() const { return open_; }
    /// The form a person works on: the topmost modal one, else the last visible one; or null.
    Form* Front() const;
    Form* TopModal() const { return modal_.empty() ? nullptr : modal_.back(); }

    /// Destroys forms that have closed. Called by the fronts between two actions of a person, when
    /// no handler of a closed form can still be running.
    void DropClosed();
    /// Closes all without asking them, the last opened first; for the end of the program.
    void CloseAll();

    ui::Desktop& TheDesktop() const { return desktop_; }

    Signal<Form&> Opened;
    Signal<Form&> Closed;
    Signal<Form&> Shown;
    Signal<Form&> Hidden;

private:
    friend class Form;
    void NoteOpened(Form& form);
    void NoteClosed(Form& form);
    void Raise(Form& form);

    Desktop& desktop_;
    std::unordered_map<std::string, Maker> makers_;
    std::vector<std::unique_ptr<Form>> instances_;
    std::vector<std::unique_ptr<Form>> closed_;
    std::vector<Form*> open_;
    std::vector<Form*> modal_;
};

} // namespace vexora::ui
