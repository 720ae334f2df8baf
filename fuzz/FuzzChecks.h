#pragma once

#include <cstdio>
#include <cstdlib>

// A property that must hold for every input: a broken one is reported like a
// crash, so libFuzzer keeps the input that broke it.
#define FUZZ_CHECK(condition)                                                                  \
    do {                                                                                       \
        if (!(condition)) {                                                                    \
            std::fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                      \
        }                                                                                      \
    } while (false)
