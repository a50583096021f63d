#include "shell/Configuration.h"

#include "globals/KVOGlobal.h"
#include "reference/SafeFile.h"
#include "reference/Text.h"
#include "shell/Paths.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

struct ValueSetting {
    std::string_view key;
    std::string KVOGlobal::*value;
};

struct FlagSetting {
    std::string_view key;
    bool KVOGlobal::*value;
};

constexpr std::string_view OutDirKey = "OutDir";

// In the order of the file.
constexpr ValueSetting ValueSettings[] = {
    {"COMPILER", &KVOGlobal::CompilerCode},  {"CONTRIBUTOR", &KVOGlobal::ContributorCode},
    {"XMLCOMPILER", &KVOGlobal::UserName},   {"ORGANIZATION", &KVOGlobal::Organization},
    {"VXRLocalDB", &KVOGlobal::LocalDbPath}, {"VXRCompoundDB", &KVOGlobal::CompoundDbPath},
    {OutDirKey, &KVOGlobal::OutDir},
};

constexpr FlagSetting FlagSettings[] = {
    {"Advanced", &KVOGlobal::AdvancedMode},
    {"Bio", &KVOGlobal::BioEnabled},
    {"GH", &KVOGlobal::GHEnabled},
};

void TakeLine(std::string_view line) {
    WordReader reader(line);
    const std::string_view key = reader.NextWord();
    for (const auto& setting : ValueSettings) {
        if (key == setting.key) Globals().*setting.value = std::string(Trim(reader.Rest()));
    }
    for (const auto& setting : FlagSettings) {
        if (key == setting.key) Globals().*setting.value = true;
    }
}

} // namespace

std::string ConfigurationPath() {
    return JoinPath(Globals().HomeFolder, "VXR.ini");
}

void FindDatabases() {
    KVOGlobal& globals = Globals();
    if (!FileOrFolderExists(globals.LocalDbPath))
        globals.LocalDbPath = JoinPath(globals.HomeFolder, "VXRLocal.mdb");
    if (!FileOrFolderExists(globals.CompoundDbPath))
        globals.CompoundDbPath = JoinPath(globals.HomeFolder, "VXR.mdb");
}

void SetConfigurationDefaults() {
    KVOGlobal& globals = Globals();
    for (const auto& setting : ValueSettings)
        (globals.*setting.value).clear();
    for (const auto& setting : FlagSettings)
        globals.*setting.value = false;
    FindDatabases();
}

void TakeConfiguration(std::string_view text) {
    for (const std::string& line : Split(ToUtf8(text), '\n'))
        TakeLine(line);
    KVOGlobal& globals = Globals();
    globals.LocalDbPath = WithSlashes(globals.LocalDbPath);
    globals.CompoundDbPath = WithSlashes(globals.CompoundDbPath);
    globals.OutDir = WithSlashes(globals.OutDir);
    FindDatabases();
}

std::string ConfigurationText() {
    std::string text;
    for (const auto& setting : ValueSettings) {
        text.append(setting.key).append(" ");
        text += SingleLine(Globals().*setting.value) + "\n";
    }
    for (const auto& setting : FlagSettings) {
        if (Globals().*setting.value) text.append(setting.key).append("\n");
    }
    return text;
}

std::string OpenDatabasesAt(const std::string& localPath, const std::string& compoundPath) {
    const std::string invalid = "Specified databases not found or invalid\n";
    for (const std::string& path : {localPath, compoundPath}) {
        if (!FileOrFolderExists(path)) return invalid + path + " does not exist";
    }
    try {
        Globals().Databases.Open(localPath, compoundPath);
        return {};
    } catch (const DatabaseError& error) {
        return (error.IsLocked() ? "" : invalid) + error.what();
    }
}

void ReadConfiguration() {
    const std::string path = ConfigurationPath();
    if (!FileOrFolderExists(path)) return;
    std::string error;
    if (const auto text = ui::TheDesktop().Files().Read(path, error))
        TakeConfiguration(*text);
    else
        ui::Say("The configuration " + path + " cannot be read.\n" + error);
}

std::string ConfiguredOutDir() {
    std::string error;
    const auto text = ui::TheDesktop().Files().Read(ConfigurationPath(), error);
    std::string folder;
    for (const std::string& line : Split(ToUtf8(text.value_or("")), '\n')) {
        WordReader reader(line);
        if (reader.NextWord() == OutDirKey) folder = WithSlashes(Trim(reader.Rest()));
    }
    return folder;
}

bool WriteConfiguration() {
    const std::string path = ConfigurationPath();
    const SaveOutcome outcome =
        WriteSafely(ui::TheDesktop().Files(), path, ConfigurationText(), false);
    if (const std::string told = outcome.Told("The configuration " + path); !told.empty())
        ui::Say(told);
    return outcome.isSaved;
}

} // namespace vexora
