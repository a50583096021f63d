#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "reference/ReferenceDatabases.h"
#include "ui/Collection.h"
#include "ui/TreeView.h"

namespace vexora {

class BioSet;
class clsA;
class clsBP;
class clsBR;
class clsC;
class clsComplex;
class clsComplexSample;
class clsCrS;
class clsE;
class clsM;
class clsMethod;
class clsMMM;
class clsMV;
class clsMZ;
class clsProperty;
class clsQ;
class clsR;
class clsTwo;
class clsX;
class clsZ;
class DataSet;
class ProcessedSets;
class StatementMemory;
class Substance;
class SubstanceSample;
struct ColumnsToPlot;
struct PlotTable;

/// The one process-wide state: the open document, the records on the path from the selected node to
/// the root, what dialogs tell each other, and the configuration. The workbench owns it; records
/// and dialogs reach it through Globals(). A Current... shares ownership, so that it may outlive
/// the deletion of its record; an empty CurrentKey is what says that nothing is selected.
struct KVOGlobal {
    // The open document: 0 or 1 source in practice.
    ui::Collection<clsR> recR;
    ui::TreeView* tvwTree = nullptr; // the tree of the main form, null before it is open

    std::shared_ptr<clsR> CurrentR;
    // A compound or a complex, and its sample: CurrentCompound and CurrentCompoundSample ask for
    // those of a compound.
    std::shared_ptr<Substance> CurrentL;
    std::shared_ptr<SubstanceSample> CurrentS;
    std::shared_ptr<clsZ> CurrentZ;
    std::shared_ptr<clsTwo> CurrentTwo;
    std::shared_ptr<clsM> CurrentM;
    std::shared_ptr<clsMZ> CurrentMZ;
    std::shared_ptr<clsMV> CurrentMV;
    std::shared_ptr<clsQ> CurrentQ;
    std::shared_ptr<clsC> CurrentC;
    std::shared_ptr<clsE> CurrentE;
    std::shared_ptr<clsBR> CurrentBR;
    std::shared_ptr<clsBP> CurrentBP;
    std::shared_ptr<clsComplex> CurrentComplex;
    std::shared_ptr<clsComplexSample> CurrentComplexSample;
    std::shared_ptr<clsCrS> CurrentCrS;

    std::string CurrentKey;  // node type of the selection: "R", "RL", "RLS", "RLSZ", ...
    std::string DataContext; // "Pure", "Bin", "Tern", "React", "Complex" or "Bio"
    int CurrentMixType = 0;  // component count of the selected mixture, 2 or 3

    std::vector<std::string> OpenForms; // the openers of the dialogs in the chain, by form name
    bool Saved = true;
    int LineInHand = 0;    // line of the record file that is being read or exported, 0 for none
    bool ReadOnly = false; // the file holds lines that this edition does not keep
    bool ShellLocked = false;
    bool DialogAccepted = false;
    bool FirstRun = false;
    std::set<std::string> Explained; // what was told in the first run, each once
    bool ProgramEnds = false; // the user chose to leave; whoever opened the dialog acts on it

    // True while that dialog runs on an existing record; set by the caller around the modal call.
    bool EditSource = false;
    bool EditCompound = false;
    bool EditReaction = false;
    bool EditChanged = false;
    bool EditEquilibrium = false;
    bool EditSample = false;
    bool EditSingle = false;
    bool EditTwo = false;
    bool EditMixtSingle = false;
    bool EditMixtVar = false;
    bool EditBioReact = false;
    bool EditBioProp = false;
    bool EditCrystal = false;
    bool EditComplex = false;
    bool EditComplexSample = false;

    // The set whose definition a new one begins with; the dialog that opens takes it.
    std::shared_ptr<DataSet> SetToRepeat;

    // What frmBioProp or frmGH begins: "D" a transition, "S" a solubility, "G" a phase equilibrium.
    std::string BioType;
    std::shared_ptr<BioSet> BioSetInHand;   // whose rows frmBioData is to fill
    std::shared_ptr<BioSet> BioSetToRepeat; // whose definition a new one begins with

    // What frmSelect chose: for the table to process, or the kind of bio or complex data.
    std::string TableKind;                  // in words
    std::string SystemClass;                // "Pure", "Bin" or "Tern"
    bool StaticMode = false;                // measured by a static method
    std::vector<std::string> ChosenSamples; // numbers, one a component
    // The stored sets that the next table to process shows; it takes them.
    std::vector<std::shared_ptr<clsMV>> SetsToShow;
    std::shared_ptr<ProcessedSets> Processed; // the last table that became sets, to be taken back

    // The working context of the open data dialog; made anew before each dialog.
    std::shared_ptr<clsMethod> CurrentMethod;
    std::shared_ptr<clsProperty> CurrentProperty; // head of the property chain
    std::shared_ptr<clsMMM> MixtureMass;
    std::shared_ptr<std::vector<clsX>> CurrentUX; // the statements that frmUnc works on
    int PropertiesInUX = 1;                 // so many of them are of properties, the first ones
    std::shared_ptr<PlotTable> Plot;        // the points that frmGraph is to show
    std::shared_ptr<ColumnsToPlot> BioPlot; // the table that frmBioPlot is to show
    // Statements of uncertainty accepted in this sitting, by property and method; null before the
    // first one.
    std::shared_ptr<StatementMemory> Statements;
    std::string KeyRest; // tags of a comment that no dialog interprets; kept over read and write

    // What the property dialog hands to the entry dialog.
    std::string PropertyCode;  // code of the chosen property
    std::string PropertyUnit;  // conversion code of the unit in which values are entered
    std::string PropertyText;  // how the unit reads on the screen
    std::string ExpPurpose;    // code of the purpose of the experiment
    std::string PropertyFlags; // PRPFLAG as a decimal bit mask
    std::string PropertyComment;
    bool OriginalUnits = true;  // values are entered as in the source, not converted
    bool IncludeDigits = false; // counts of digits are stored with the values of a table
    int VariableCount = 0;      // 0 single value, 1 one data point or one variable, 2, 3

    // The configuration, as VXR.ini keeps it.
    std::string CompilerCode;
    std::string ContributorCode;
    std::string UserName;
    std::string Organization;
    std::string LocalDbPath;
    std::string CompoundDbPath;
    std::string OutDir;
    bool AdvancedMode = false;
    bool BioEnabled = false;
    bool GHEnabled = false;

    std::string HomeFolder;      // application folder
    std::string InstalledFolder; // help pages and databases as installed; may be empty

    ReferenceDatabases Databases;
    Database& LocalDb() { return Databases.LocalDb; }
    Database& CompoundDb() { return Databases.CompoundDb; }

    KVOGlobal();
    ~KVOGlobal();
    KVOGlobal(const KVOGlobal&) = delete;
    KVOGlobal& operator=(const KVOGlobal&) = delete;

    /// Forgets the records on the selected path, as an emptied document does.
    void ForgetCurrent();
    /// True while any modal edit runs that keeps the chain of dialogs as it is.
    bool IsEditingInPlace() const;
};

/// The state in force; reaching for it without one is a fault of the program.
KVOGlobal& Globals();

} // namespace vexora
