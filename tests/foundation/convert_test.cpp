#include "foundation/convert.h"

#include <gtest/gtest.h>

namespace convert = kvjxml::convert;

TEST(Convert, AnEmptyTextIsZero) { EXPECT_EQ(convert::toInt(""), 0); }
