#include "reference/StructureIdentifiers.h"

#include "reference/ReferenceDatabases.h"

namespace vexora {

namespace {

const Database* DatabaseWithStructures() {
    const ReferenceDatabases* databases = CurrentDatabases();
    const bool isThere = databases != nullptr && databases->CompoundDb.IsOpen() &&
                         databases->CompoundDb.HasTable("Identifiers");
    return isThere ? &databases->CompoundDb : nullptr;
}

StructureIdentifiers RowOf(const Recordset& rows) {
    return {rows.Text("InChI"), rows.Text("InChIKey"), rows.Text("SMILES")};
}

} // namespace

std::optional<StructureIdentifiers> StructureOf(std::int64_t rn) {
    const Database* database = DatabaseWithStructures();
    if (database == nullptr) return std::nullopt;
    const Recordset rows = database->Query("select * from Identifiers where RN=?", {rn});
    if (rows.IsEnd()) return std::nullopt;
    return RowOf(rows);
}

std::int64_t NumberOfStructure(std::string_view identifier) {
    const Database* database = DatabaseWithStructures();
    if (database == nullptr || identifier.empty()) return 0;
    Recordset rows =
        database->Query("select * from Identifiers where InChI=? or InChIKey=? or SMILES=?",
                        {identifier, identifier, identifier});
    for (; !rows.IsEnd(); rows.MoveNext()) {
        // Case tells an aromatic carbon from another one.
        const StructureIdentifiers row = RowOf(rows);
        if (row.InChI == identifier || row.InChIKey == identifier || row.SMILES == identifier)
            return rows.Integer("RN");
    }
    return 0;
}

} // namespace vexora
