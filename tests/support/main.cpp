// The tests run in the locale of their environment, as a host does that calls setlocale at its start.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The locales that were built for the tests, and then those of the system.
    setenv("LOCPATH", KVJXML_LOCALES ":/usr/lib/locale", 1);
    if (std::setlocale(LC_ALL, "") == nullptr) {
        std::fputs("the locale of the environment is not there\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
