#include "target.h"

#include <tinyxml.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

// The locale is that of the environment, as a host's is that calls setlocale at its start.
int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    kvj::fuzz::require(std::setlocale(LC_ALL, "") != nullptr, "the locale of the environment is there");
    return 0;
}

void kvj::fuzz::require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "this does not hold: %s\n", what);
    std::abort();
}

#ifdef KEEP_COPY
extern "C" void KEEP_COPY(const TiXmlDocument& /*request*/, const char* /*path*/) {}
// Where the library has no such function, what is to take its place would do nothing: this is not linked then.
extern "C" void KEPT_COPY(const TiXmlDocument& request, const char* path);
[[gnu::used]] static auto* const keptCopy = &KEPT_COPY;
#endif
