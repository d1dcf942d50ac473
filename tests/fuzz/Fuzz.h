#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

/// What libFuzzer calls with each input. A target that finds a fault ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// Ends the program where a text isn't what it has to be.
inline void expectSame(const std::string& what, const std::string& text, const std::string& wanted) {
    if (text != wanted) {
        std::fprintf(stderr, "%s\n--- is\n%s\n--- and should be\n%s\n", what.c_str(), text.c_str(), wanted.c_str());
        std::abort();
    }
}

} // namespace fuzz
