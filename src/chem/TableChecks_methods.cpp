#include <set>

#include "chem/CommentTags.h"
#include "chem/TableChecks.h"
#include "reference/KVODefinitions.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// Method and statements share the tags of a comment with the words of CommentTags.
bool IsTagWord(std::string_view key) {
    return CommentTags::IsOwnWord(key) || IndexOfCode(LetteredStatements, key) >= 0;
}

void CheckMethodCode(TableRows& row, const std::string& code) {
    CheckCode(row, code);
    row.Expect(CodePointCount(code) <= 8, Quoted(code) + " has more than eight letters");
    // OTHER is described in words, UNKNOWN is not stated; both are offered for every property.
    row.Expect(code != "OTHER" && code != "UNKNOWN",
               Quoted(code) + " is a word of its own, no method");
}

void CheckKey(TableRows& row) {
    const std::string key = row.Required("Key");
    // "d" and a code would be read as a precision.
    row.Expect(!key.starts_with('d') && !IsTagWord(key) && key.find_first_of(" :,;_") == key.npos,
               "the key " + Quoted(key) + " is not to be told from another tag");
}

using ContextsByCode = std::map<std::string, std::set<std::string>>;

/// For each method the contexts in which some property that it measures is offered.
ContextsByCode ContextsOfMethods(const Database& vocabulary) {
    ContextsByCode ofProperty;
    for (const char* context : {"Pure", "Complex", "Bin", "Tern", "React"})
        for (const PropertyGroupRow& group : PropertyGroups(context))
            for (const PropertyRow& property : PropertiesOfGroup(group.GROUP, context))
                ofProperty[property.Code].insert(context);
    ContextsByCode ofMethod;
    Recordset rows = vocabulary.Query("select * from Methods");
    for (; !rows.IsEnd(); rows.MoveNext())
        ofMethod[rows.Text("MethodCode")].merge(std::set(ofProperty[rows.Text("Code")]));
    return ofMethod;
}

void CheckQuestions(const Database& vocabulary, RowRemarks& findings) {
    ContextsByCode contexts = ContextsOfMethods(vocabulary);
    std::map<std::string, std::string> keys; // of each question in a context
    for (TableRows row(vocabulary, "Questions", findings); !row.IsEnd(); row.MoveNext()) {
        const std::string question = row.Required("Question");
        const std::string method = row.Required("Method");
        const std::string context = row.Required("Context");
        CheckKey(row);
        row.ExpectOnce("for method and context the question",
                       method + " " + context + ": " + question);
        row.ExpectOnce("for method and context the key",
                       method + " " + context + ": " + row.Text("Key"));
        // A statement says the same whatever the method was, and so must its tag.
        const auto known = keys.emplace(context + ": " + question, row.Text("Key")).first;
        row.Expect(known->second == row.Text("Key"),
                   "the same question has the key " + Quoted(known->second) + " elsewhere");
        row.Expect(contexts[method].contains(context), "no property offered for " +
                                                           Quoted(context) + " is measured by " +
                                                           Quoted(method));
    }
}

} // namespace

void CheckMethods(const Database& vocabulary, RowRemarks& findings) {
    const std::vector<std::string> properties = ColumnTexts(vocabulary, "Properties", "Code");
    for (TableRows row(vocabulary, "Methods", findings); !row.IsEnd(); row.MoveNext()) {
        const std::string property = row.Required("Code");
        row.Expect(Contains(properties, property),
                   "there is no property " + Quoted(property) + " for the method");
        const std::string code = row.Required("MethodCode");
        CheckMethodCode(row, code);
        row.ExpectOnce("for " + property + " the method code", LowerAscii(code));
        row.ExpectOnce("for " + property + " the method", LowerAscii(row.Required("Method")));
    }
    CheckQuestions(vocabulary, findings);
}

} // namespace vexora
