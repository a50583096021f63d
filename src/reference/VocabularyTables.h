// The tables of the vocabulary as the look-ups of this room see them: read once for an opened
// database, and anew when another one is opened or its rows are changed.
#pragma once

#include "reference/KeptTable.h"
#include "reference/ReferenceDatabases.h"

#include <cstdint>
#include <string>

namespace vexora {

struct PhaseRow {
    std::string Code;
    std::string Phase;
    ContextFlags Offered;
};
/// A number may be the code of several rows, each of another system unit.
struct ConversionRow {
    std::string ConversionCode;
    std::string Conversion;
    std::string Unit;  // system unit
    double FACTOR = 0; // of the system unit
};
struct MethodOfProperty : MethodRow {
    std::string Code; // of the property
};
struct QuestionOfMethod : QuestionRow {
    std::string Method; // its code
    std::string Context;
};
struct ReactionRow {
    std::string RCode;
    std::string RType;
};
/// A way to purify a sample or to determine its purity.
struct SampleMethodRow {
    std::string Code;
    std::string Method;
    int Rating = 0; // of the second kind only
};
struct ElementRow {
    std::string SYMBOL;
    double AMASS = 0; // [g/mol]
};

struct VocabularyTables {
    VocabularyTables();

    std::uint64_t Edition = 0; // of the database that the rows were read from
    KeptTable<PropertyRow> Properties;
    KeptTable<PropertyGroupRow> PropertyGroups;
    KeptTable<VariableRow> IndVariables;
    KeptTable<ConversionRow> Conversions;
    KeptTable<PhaseRow> Phases;
    KeptTable<MethodOfProperty> Methods;
    KeptTable<QuestionOfMethod> Questions;
    KeptTable<ReactionRow> Reactions;
    KeptTable<SampleMethodRow> Purification;
    KeptTable<SampleMethodRow> PurityDetermination;
    KeptTable<ElementRow> Elements;
};

/// The tables that belong to the vocabulary in force; null without one.
VocabularyTables* CurrentTables();

/// One of them, read; an empty one without a vocabulary. A table that cannot be read throws
/// DatabaseError.
template <class Row>
const KeptTable<Row>& Kept(KeptTable<Row> VocabularyTables::*table) {
    static const KeptTable<Row> none;
    VocabularyTables* tables = CurrentTables();
    if (!tables) return none;
    (tables->*table).ReadOnce(CurrentDatabases()->LocalDb);
    return tables->*table;
}

} // namespace vexora
