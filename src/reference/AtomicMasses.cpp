#include "reference/AtomicMasses.h"

#include "reference/Vocabulary.h"
#include "reference/VocabularyQuery.h"

#include <utility>

namespace vexora {

namespace {

const std::map<std::string, double, std::less<>>* kept = nullptr;

} // namespace

KeptAtomicMasses::KeptAtomicMasses() {
    std::optional<Recordset> rows = LocalRows("select * from AMASS order by rowid");
    for (; rows && !rows->IsEnd(); rows->MoveNext())
        masses_.emplace(rows->Text("SYMBOL"), rows->Number("AMASS"));
    before_ = std::exchange(kept, &masses_);
}

KeptAtomicMasses::~KeptAtomicMasses() {
    kept = before_;
}

std::optional<double> AtomicMass(std::string_view symbol) {
    if (kept) {
        const auto found = kept->find(symbol);
        return found == kept->end() ? std::nullopt : std::optional(found->second);
    }
    const auto rows =
        LocalRows("select AMASS from AMASS where SYMBOL=? collate binary order by rowid", {symbol});
    if (!rows || rows->IsEnd()) return std::nullopt;
    return rows->Number("AMASS");
}

} // namespace vexora
