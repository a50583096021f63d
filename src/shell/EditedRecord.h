#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace vexora {

class Record;

/// What a record says before a dialog works on it, to tell whether the dialog has changed anything.
class EditedRecord {
public:
    explicit EditedRecord(std::shared_ptr<Record> record);
    /// It says the same now, stands where it stood, and no other record has come or gone.
    bool IsUnchanged() const;

private:
    std::string Text() const;

    std::shared_ptr<Record> record_;
    std::size_t count_ = 0; // of all records
    std::string before_;
};

} // namespace vexora
