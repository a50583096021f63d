#pragma once

#include "ui/Form.h"

namespace vexora {

/// The menu entries of a form for the work in its table, or in the one of several that was entered
/// last. A form derives from it behind ui::Form; entries of its own stand behind these.
class TableMenu {
private:
    ui::Form& form_; // in front: the entries are made with it

public:
    explicit TableMenu(ui::Form& form) : form_(form) {}

    ui::MenuItem mnuFile{form_, "mnuFile", "&File"};
    ui::MenuItem mnuFileOpen{form_, "mnuFileOpen", "&Open a table...", &mnuFile};
    ui::MenuItem mnuFileSave{form_, "mnuFileSave", "&Save the table...", &mnuFile};
    ui::MenuItem mnuEdit{form_, "mnuEdit", "&Edit"};
    ui::MenuItem mnuUndo{form_, "mnuUndo", "&Undo", &mnuEdit, "Ctrl+Z"};
    ui::MenuItem mnuRedo{form_, "mnuRedo", "&Redo", &mnuEdit, "Ctrl+Shift+Z"};
    ui::MenuItem mnuCut{form_, "mnuCut", "Cu&t", &mnuEdit, "Ctrl+X"};
    ui::MenuItem mnuCopy{form_, "mnuCopy", "&Copy", &mnuEdit, "Ctrl+C"};
    ui::MenuItem mnuPaste{form_, "mnuPaste", "&Paste", &mnuEdit, "Ctrl+V"};
    ui::MenuItem mnuPasteShown{form_, "mnuPasteShown", "Paste after a &look...", &mnuEdit,
                               "Ctrl+Shift+V"};
    ui::MenuItem mnuInsertRows{form_, "mnuInsertRows", "&Insert rows", &mnuEdit, "Ctrl++"};
    ui::MenuItem mnuRemoveRows{form_, "mnuRemoveRows", "Re&move rows", &mnuEdit, "Ctrl+-"};
    ui::MenuItem mnuNextFinding{form_, "mnuNextFinding", "&Next finding", &mnuEdit, "F8"};
    ui::MenuItem mnuLastFinding{form_, "mnuLastFinding", "Pre&vious finding", &mnuEdit, "Shift+F8"};
};

} // namespace vexora
