#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "records/clsX.h"
#include "ui/Buttons.h"

namespace vexora {

/// What was last stated about the uncertainty of each quantity, for the next value or set of the
/// same property by the same method, in the same unit. The globals own it for one run of the
/// program: it outlives documents and is never written.
class StatementMemory {
public:
    /// Takes in what a record that has been accepted states: the property first, then its
    /// variables, with names and units. Figures that stand in system units for an entered unit are
    /// passed over; blocks whose figures stand in the rows have nothing that could be repeated.
    void Keep(std::span<const clsX> items);
    /// The items with what was last stated of those that state nothing yet; nothing when that
    /// changes none.
    std::optional<std::vector<clsX>> Offer(std::span<const clsX> items) const;

private:
    std::unordered_map<std::string, clsX> last_;
};

/// The memory of this run; made when it is first asked for.
StatementMemory& RememberedStatements();

/// What items state, in a person's words: "+-0.02 kg/m3 (95 %); Temperature: +-0.01 K", with the
/// sign as one character. Empty when nothing is stated.
std::string StatementWords(std::span<const clsX> items);

/// The line of an entry form that says what is stated about the value or set in hand, and a button
/// that takes what was last accepted. The form owns the controls and this.
class StatementOffer {
public:
    using Items = std::vector<clsX>;
    /// `read` gives the items as they stand, with names and units, or none; `take` gets them back.
    StatementOffer(ui::Label& stated, ui::CommandButton& last, std::function<Items()> read,
                   std::function<void(const Items&)> take);

    /// Brings the line up to date: to be called when property, unit, method or statements changed.
    void Show();
    /// The record has been accepted with what it states.
    void Keep() { Keep(read_()); }
    static void Keep(const Items& items);

private:
    void Take();

    ui::Label& stated_;
    ui::CommandButton& last_;
    std::function<Items()> read_;
    std::function<void(const Items&)> take_;
};

} // namespace vexora
