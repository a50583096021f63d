#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/KnownFile.h"
#include "shell/RecoveryFolder.h"

namespace vexora {

/// A document that was not saved when its program ended.
struct RecoveryCopy {
    std::string FileName; // full path, empty for a document without a file
    KnownFile Known;      // what that program knew of the file
    /// Of each source, its identity in the reference database, "" while it stands not there.
    std::vector<std::string> RegisteredAs;
    /// The nodes of the tree as they stood, each by its place in the record file, from 0; empty
    /// when they stood in that order.
    std::vector<std::size_t> Nodes;
    std::string Records; // as DocumentInMemory prints them
};

/// The open document as a recovery copy. Throws SaveRefused.
std::string RecoveryTextOf(const std::string& fileName, const KnownFile& known);
/// Nothing for a text that is no whole copy.
std::optional<RecoveryCopy> RecoveryCopyOf(std::string_view text);
/// Reads it into the empty document, without a word and without a trace in the reference database.
/// The reason why that cannot be, empty when all went well.
std::string ReadRecoveryCopy(const RecoveryCopy& copy);

/// Keeps a copy of the document beside the program's state as long as it holds what no file has.
/// The file of the document and its backup are never touched.
class Recovery {
public:
    /// Null keeps none.
    explicit Recovery(std::shared_ptr<RecoveryFolder> folder = {}) : folder_(std::move(folder)) {}

    /// Brings the copy in line with the open document; a saved or empty one has none. A document
    /// that cannot be printed keeps the copy that it has.
    void Follow(const std::string& fileName, const KnownFile& known);
    void Discard();
    /// Offers what programs before have left, the latest first, until restore has taken one; true
    /// when it has. What is declined goes, what a person does not decide about stays for the next
    /// time, and what cannot be read is put aside.
    bool Offer(const std::function<std::string(const RecoveryCopy&)>& restore);
    /// Why the copy could not be written just now; told once and not again until it could.
    const std::string& Trouble() const { return trouble_; }

private:
    void Write(const std::string& text);
    bool OfferOne(const std::string& path,
                  const std::function<std::string(const RecoveryCopy&)>& restore);

    std::shared_ptr<RecoveryFolder> folder_;
    std::string path_;      // of the copy, empty while there is none
    std::size_t tried_ = 0; // hash of what it says, or was to say
    bool hasTrouble_ = false;
    std::string trouble_;
};

} // namespace vexora
