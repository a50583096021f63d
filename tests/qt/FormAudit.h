#pragma once

#include <map>
#include <set>
#include <string>

#include "qt/QtActor.h"

namespace vexora::qt::test {

/// Plays sessions, and looks at each form as it comes up: whether texts are cut off, whether Tab
/// goes down and to the right, whether the control with the keyboard shows it, whether two things
/// answer to one letter, whether a screen reader has a name for each field, and whether all of them
/// stand in the layout.
class FormAudit : public QtActor {
public:
    void Settle() override;

    /// What was found, by form and fault.
    std::set<std::string> Faults;
    /// How many controls of a form were seen with the keyboard.
    std::map<std::string, std::size_t> Marked;
    /// The forms that the program knows.
    std::set<std::string> Known;
    /// The page of help of each form on which F1 was pressed.
    std::map<std::string, int> Topics;

private:
    void LookAt(FormWindow& window);
    void LookForCuts(FormWindow& window);
    void WalkByTab(FormWindow& window);
    void LookForMarks(FormWindow& window);
    void LookForLetters(FormWindow& window);
    void LookForNames(FormWindow& window);
    void LookForStrays(FormWindow& window);
    void AskForHelp(FormWindow& window);
    void Fault(const FormWindow& window, const QWidget& widget, const std::string& what);

    bool looking_ = false;
};

} // namespace vexora::qt::test
