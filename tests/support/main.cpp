// The tests run in the locale of their environment, as a host does that calls setlocale at its start.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (std::setlocale(LC_ALL, "") == nullptr) {
        std::fputs("the locale of the environment is not there\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
