#include "records/StatedUncertainty.h"

#include <algorithm>

#include "chem/CommentTags.h"
#include "records/DataSet.h"
#include "records/SingleValue.h"
#include "reference/Text.h"

namespace vexora {

namespace {

bool HasPrecision(const clsA& header, std::string_view code) {
    return !CommentTags(header.DATACOMMENT).Precision(code).empty();
}

} // namespace

bool StatesUncertainty(const SingleValue& value) {
    return !IsBlankField(value.PRPUNCERTY) || !IsBlankField(value.PRECIS) ||
           value.Statements(0).IsStated() || HasPrecision(value.Header, value.PRPCODE);
}

bool StatesUncertainty(const DataSet& set) {
    return set.UX[0].IsStated() || HasPrecision(set.Header, set.PRPCODE) ||
           std::any_of(set.recData.begin(), set.recData.end(), [](const clsData& row) {
               return !IsBlankField(row.PRPUNCERTY) || row.Extras != nullptr;
           });
}

} // namespace vexora
