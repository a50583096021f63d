#include "chem/TableChecks.h"

namespace vexora {

namespace {

int Count(const Database& database, const std::string& what) {
    return static_cast<int>(database.Query("select count(" + what).Integer("n"));
}

} // namespace

RowRemarks CheckTables(const ReferenceDatabases& databases) {
    RowRemarks findings;
    CheckProperties(databases.LocalDb, findings);
    CheckVariables(databases.LocalDb, findings);
    CheckConversions(databases.LocalDb, findings);
    CheckPhases(databases.LocalDb, findings);
    CheckMethods(databases.LocalDb, findings);
    CheckLists(databases.LocalDb, findings);
    CheckAtomicMasses(databases.LocalDb, findings);
    CheckCompounds(databases.CompoundDb, findings);
    CheckIdentifiers(databases.CompoundDb, findings);
    CheckSources(databases.CompoundDb, findings);
    return findings;
}

std::vector<std::pair<std::string, int>> CountTables(const ReferenceDatabases& databases) {
    const Database& local = databases.LocalDb;
    const Database& compounds = databases.CompoundDb;
    return {{"properties", Count(local, "distinct Code) as n from Properties")},
            {"variables", Count(local, "*) as n from IndVariables")},
            {"conversions", Count(local, "*) as n from Conversions")},
            {"phases", Count(local, "*) as n from Phases")},
            {"methods", Count(local, "*) as n from Methods")},
            {"questions", Count(local, "*) as n from Questions")},
            {"reactions", Count(local, "*) as n from Reactions")},
            {"elements", Count(local, "*) as n from AMASS")},
            {"compounds", Count(compounds, "distinct RN) as n from ALLNAME")},
            {"names", Count(compounds, "*) as n from ALLNAME")},
            {"journals", Count(local, "*) as n from Journals")},
            {"publishers", Count(local, "*) as n from Publishers")}};
}

} // namespace vexora
