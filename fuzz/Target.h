// What the fuzz targets share. A target takes any text, hands it to one reader and stops the run
// where a promise of that reader is broken.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace vexora::fuzz {

/// The text under test. A target defines it and returns.
void Try(std::string_view text);

/// Ends the run with a finding when the promise is broken.
inline void Must(bool holds, const char* promise) {
    if (holds) return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}

} // namespace vexora::fuzz

extern "C" __attribute__((used)) inline int LLVMFuzzerTestOneInput(const std::uint8_t* bytes,
                                                                   std::size_t size) {
    vexora::fuzz::Try({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
