#pragma once

#include <map>
#include <string>
#include <vector>

namespace vexora::test {

/// The session scripts below tests/sessions, as full paths in the order of their names.
std::vector<std::string> SessionFiles();
/// A name for the test of a session, made from its path below tests/sessions.
std::string SessionName(const std::string& path);

struct SessionPlay {
    int status = 0;
    std::string transcript;
    std::string errors;
    std::map<std::string, std::string> files; // what it left below ${OUT}, by name
};

/// Plays a session on the models in a fresh home, on 15 January 2026, with a folder of its own for
/// ${OUT}. Both folders are gone afterwards; in the transcript they read HOME and OUT.
SessionPlay PlaySession(const std::string& path);

} // namespace vexora::test
