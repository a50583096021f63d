// Small databases made from the text tables of a test, installed for its duration.
#pragma once

#include "reference/RefdbBuild.h"
#include "reference/ReferenceDatabases.h"
#include "reference/Schema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace vexora::test {

/// A folder of its own that goes with the object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "vexora-XXXXXX").string();
        if (mkdtemp(pattern.data())) path_ = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    std::string File(std::string_view name) const { return (path_ / name).string(); }
    std::string Path() const { return path_.string(); }
    void Write(std::string_view name, std::string_view text) const {
        std::ofstream(File(name), std::ios::binary) << text;
    }

private:
    std::filesystem::path path_;
};

/// The tables that a test did not write, each with its heading alone.
inline void WriteEmptyTables(const TemporaryFolder& folder) {
    const auto write = [&folder](const TableSchema& table) {
        const std::string file = std::string(table.name) + ".tsv";
        if (std::filesystem::exists(folder.File(file))) return;
        std::string heading;
        for (const ColumnSchema& column : table.columns)
            heading += std::string(column.name) + '\t';
        folder.Write(file, heading + "SOURCE_OF_ROW\n");
    };
    std::ranges::for_each(LocalTables, write);
    std::ranges::for_each(CompoundTables, write);
}

class ReferenceFixture : public testing::Test {
protected:
    ~ReferenceFixture() override { UseDatabases(nullptr); }

    /// Builds both databases from the tables written so far, the others empty, and installs them.
    void Build() {
        WriteEmptyTables(folder);
        for (const LineRemark& finding : BuildReferenceDatabases(folder.Path(), folder.Path()))
            ADD_FAILURE() << finding.Line();
        const auto error = databases.OpenBoth(folder.File("VXRLocal.mdb"), folder.File("VXR.mdb"));
        ASSERT_EQ(error.value_or(""), "");
        UseDatabases(&databases);
    }

    TemporaryFolder folder;
    ReferenceDatabases databases;
};

} // namespace vexora::test
