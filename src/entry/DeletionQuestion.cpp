#include "entry/DeletionQuestion.h"

#include "records/DataSet.h"
#include "ui/Desktop.h"

namespace vexora {

bool AskToDelete(const Record& record, const std::string& title) {
    const auto* const set = dynamic_cast<const DataSet*>(&record);
    const bool hasRows = set != nullptr && !set->recData.IsEmpty();
    return ui::AskYesNo("Are you sure you want to delete the record?", title) &&
           (!hasRows ||
            ui::AskYesNo("This record has associated data items.\nDo you want to delete the data?",
                         title));
}

} // namespace vexora
