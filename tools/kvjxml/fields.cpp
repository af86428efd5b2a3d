#include "fields.h"

#include <array>
#include <charconv>
#include <cmath>

#include "foundation/convert.h"

namespace kvjxml::tool {

Json toJson(float value) {
    if (!std::isfinite(value)) return nullptr;  // JSON has no other number for it.
    std::array<char, 64> digits{};
    std::to_chars(digits.data(), digits.data() + digits.size() - 1, value);
    return Json::parse(digits.data());
}

Json toJson(const unsigned char (&address)[6]) { return convert::fromHardwareAddress(address).c_str(); }

}  // namespace kvjxml::tool
