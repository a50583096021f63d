#include "export/DataHead.h"
#include "reference/MixtureCodes.h"
#include "reference/Vocabulary.h"
#include "support/DocumentFixture.h"

#include <set>

namespace vexora::test {

using MixtureVocabulary = DocumentFixture;

/// The component that a name ends with or speaks of, 0 for none.
int ComponentInName(const std::string& name) {
    const std::string words = "component ";
    const std::size_t at = name.find(words);
    const std::size_t digit = at + words.size();
    return at == std::string::npos || digit >= name.size() ? 0 : name[digit] - '0';
}

TEST_F(MixtureVocabulary, EveryPropertyOfMixturesHasItsElements) {
    int properties = 0;
    for (const std::string_view context : {"Bin", "Tern"})
        for (const PropertyGroupRow& group : PropertyGroups(context))
            for (const PropertyRow& row : PropertiesOfGroup(group.GROUP, context)) {
                const DataSubject subject{"", context, row.Code, row.CONTEXT, {}, {}};
                EXPECT_TRUE(subject.HasPlace()) << row.Code;
                EXPECT_EQ(subject.PropertyGroup(), group.XMLGroup) << row.Code << row.CONTEXT;
                EXPECT_EQ(subject.PropertyName().find(" component "), std::string::npos)
                    << subject.PropertyName();
                EXPECT_EQ(ComponentOf(row.Code), ComponentInName(row.Property)) << row.Code;
                ++properties;
            }
    EXPECT_GT(properties, 200);
}

TEST_F(MixtureVocabulary, EveryVariableAndConstraintHasItsElements) {
    int constraints = 0;
    for (const std::string_view context : {"Bin", "Tern"}) {
        for (const VariableRow& row : VariablesOf(context)) {
            EXPECT_TRUE(VariableHasPlace(row.IndVarCode)) << row.IndVarCode;
            EXPECT_EQ(ComponentOf(row.IndVarCode), ComponentInName(row.IndVariable))
                << row.IndVarCode;
            constraints += row.Constr ? 1 : 0;
            const bool isOfSolvent = row.XMLGroup == "eSolventComposition";
            EXPECT_EQ(NeedsSolvent(row.IndVarCode), row.NeedSolvent || isOfSolvent)
                << row.IndVarCode;
        }
    }
    EXPECT_GT(constraints, 50);
    for (const char* code : {"T", "VS", "CS", "X1", "AC1", "HP1", "HEX"})
        EXPECT_FALSE(NeedsSolvent(code)) << code;
}

} // namespace vexora::test
