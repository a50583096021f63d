// The two databases of a run: the vocabulary (read only) and the compounds and sources known here.
// The globals own one and install it; the look-ups of this room find it through CurrentDatabases.
#pragma once

#include "reference/Database.h"

#include <memory>
#include <optional>
#include <string>

namespace vexora {

class CompoundNames;
struct VocabularyTables;

/// Two files, since the vocabulary comes with the edition and the compounds grow at the user's.
struct ReferenceDatabases {
    Database LocalDb;                         // vocabulary, VXRLocal.mdb
    Database CompoundDb;                      // compounds, sources, authors, VXR.mdb
    std::shared_ptr<VocabularyTables> Tables; // what the look-ups have read of LocalDb
    std::shared_ptr<CompoundNames> Names;     // what searches have read of CompoundDb

    /// Opens both files and reads their test tables (`Conversions`, `ALLNAME`). The text tells what
    /// is wrong; the present databases change only when nothing is.
    std::optional<std::string> OpenBoth(const std::string& localPath,
                                        const std::string& compoundPath);
    /// The same, but what is wrong is thrown as a DatabaseError.
    void Open(const std::string& localPath, const std::string& compoundPath);
};

/// The installed databases, or null: every look-up is then empty.
ReferenceDatabases* CurrentDatabases();
/// Installs databases that the caller keeps owning; null takes them out.
void UseDatabases(ReferenceDatabases* databases);

} // namespace vexora
