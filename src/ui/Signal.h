#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vexora::ui {

/// Tells any number of listeners that something happened. A listener may connect or disconnect, or
/// the owner of the signal may go, while the signal is being sent.
template <class... Arguments>
class Signal {
public:
    using Listener = std::function<void(Arguments...)>;

    /// Adds a listener; the answer is the ticket to give back to Disconnect.
    int Connect(Listener listener) {
        listeners_.push_back(std::make_shared<Entry>(Entry{++last_, std::move(listener)}));
        return last_;
    }

    void Disconnect(int ticket) {
        std::erase_if(listeners_, [ticket](const auto& entry) {
            if (entry->ticket != ticket) return false;
            entry->listener = nullptr;
            return true;
        });
    }

    void Emit(Arguments... arguments) const {
        const auto copy = listeners_;
        for (const auto& entry : copy) {
            if (entry->listener) entry->listener(arguments...);
        }
    }

private:
    struct Entry {
        int ticket;
        Listener listener;
    };
    std::vector<std::shared_ptr<Entry>> listeners_;
    int last_ = 0;
};

} // namespace vexora::ui
