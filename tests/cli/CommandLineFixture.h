// The command line tool as a user calls it: the program itself, in a folder of its own.
#pragma once

#include "reference/ReferenceFixture.h"
#include "support/Xml.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <tuple>

namespace vexora::test {

struct Outcome {
    int code = -1;
    std::string out, err;
};

class CommandLine : public testing::Test {
protected:
    CommandLine() {
        const std::filesystem::path shared = VEXORA_SHARE_DIR;
        for (const char* name : {"VXRLocal.mdb", "VXR.mdb"})
            std::filesystem::copy_file(shared / name, folder.File(name));
        folder.Write("water.txt", kDocument);
    }
    /// Runs vexora-cli in the folder, which is the application folder as well.
    Outcome Run(const std::string& arguments) const {
        const std::string command = "cd '" + folder.Path() + "' && VEXORA_HOME='" + folder.Path() +
                                    "' '" VEXORA_BINARY_DIR "/bin/vexora-cli' " + arguments +
                                    " 2>'" + folder.File("stderr") + "'";
        Outcome outcome;
        FILE* pipe = popen(command.c_str(), "r");
        if (!pipe) return outcome;
        std::array<char, 4096> block{};
        for (std::size_t n = 0; (n = fread(block.data(), 1, block.size(), pipe)) > 0;)
            outcome.out.append(block.data(), n);
        const int status = pclose(pipe);
        outcome.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        outcome.err = Read("stderr");
        EXPECT_TRUE(!outcome.out.starts_with("<?xml") || IsWellFormed(outcome.out)) << arguments;
        return outcome;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(folder.File(name), std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    static inline const std::string kHead =
        "^R 2031 wag pru 1\n"
        "^J#J#O#@J. Chem. Thermodyn.@, 2031, $1$, 2-3#T##A##P#1####\n"
        "^I#1#wagner#w  #Wagner,W.\n"
        "^L 7732185 DNNNN P\n"
        "^S 1 cm;;99.9m%,gc\n";
    static inline const std::string kDocument =
        kHead + "^A & O & & AB CD & &\n^z 1 TC S 1 L G & 647.096 & 0.1 &\n";
    TemporaryFolder folder;
};

} // namespace vexora::test
