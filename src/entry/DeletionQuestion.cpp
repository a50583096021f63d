#include "entry/DeletionQuestion.h"

#include "records/BioSet.h"
#include "records/DataSet.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

bool HasRows(const Record& record) {
    if (const auto* const set = dynamic_cast<const BioSet*>(&record)) return !set->recD.empty();
    const auto* const set = dynamic_cast<const DataSet*>(&record);
    return set != nullptr && !set->recData.IsEmpty();
}

} // namespace

bool AskToDelete(const Record& record, const std::string& title) {
    return ui::AskYesNo("Are you sure you want to delete the record?", title) &&
           (!HasRows(record) ||
            ui::AskYesNo("This record has associated data items.\nDo you want to delete the data?",
                         title));
}

} // namespace vexora
