// Reading a configuration reports each of its ribbons on the standard error stream, which would drown what tests have
// to say. A sanitizer writes to the descriptor below the stream, so its reports still show.
#include <gtest/gtest.h>

#include <cstdio>

namespace {

class QuietErrors : public testing::Environment {
public:
    void SetUp() override {
        std::fflush(stderr);
        stderr = std::fopen("/dev/null", "w");
        ASSERT_NE(stderr, nullptr);
    }
    void TearDown() override {
        std::fclose(stderr);
        stderr = before_;
    }

private:
    std::FILE* before_ = stderr;
};

const auto* const quiet = testing::AddGlobalTestEnvironment(new QuietErrors);

}  // namespace
