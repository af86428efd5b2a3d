#include "fields.h"

#include <array>
#include <charconv>
#include <cmath>

#include "foundation/convert.h"

namespace kvjxml::tool {

void print(JsonPrinter& json, float value) {
    if (!std::isfinite(value)) return json.value(nullptr);  // JSON has no other number for it.
    std::array<char, 64> digits{};
    std::to_chars(digits.data(), digits.data() + digits.size() - 1, value);
    json.value(nlohmann::json::parse(digits.data()));
}

void print(JsonPrinter& json, const unsigned char (&address)[6]) {
    json.value(convert::fromHardwareAddress(address).c_str());
}

}  // namespace kvjxml::tool
