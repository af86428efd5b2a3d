#include "foundation/convert.h"

#include <arpa/inet.h>
#include <strings.h>

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace kvj::convert {

namespace {

/// The "C" locale as an object, for the functions that take one. It is made once, never changed, and takes no memory of
/// its own.
locale_t cLocale() noexcept {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

/// The calling thread reads numbers in the "C" locale while this lives; the process's locale stays as it is.
class NumbersInCLocale {
public:
    NumbersInCLocale() noexcept : before_(uselocale(cLocale())) {}
    ~NumbersInCLocale() { uselocale(before_); }
    NumbersInCLocale(const NumbersInCLocale&) = delete;
    NumbersInCLocale& operator=(const NumbersInCLocale&) = delete;

private:
    locale_t before_;
};

bool hasHexPrefix(const char* text) noexcept { return std::strncmp(text, "0x", 2) == 0; }

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

/// Whether a text begins with plain digits, perhaps with a sign and a point, and not with another form of number. "%lf"
/// reads such a text as strtod does, and strtod is faster.
bool isPlainDecimal(const char* text) noexcept {
    if (*text == '-' || *text == '+') ++text;
    if (!isDigit(*text)) return false;
    while (isDigit(*text) || *text == '.') ++text;
    return *text == '\0' || *text == ' ';
}

/// This many decimal digits are exact both in a long and in a double.
constexpr std::ptrdiff_t exactDigits =
    std::min(std::numeric_limits<long>::digits10, std::numeric_limits<double>::digits10);

/// Appends the digits that a text begins with to a number, which wraps.
/// @return the first character that is not a digit.
const char* appendDigits(const char* text, unsigned long& number) noexcept {
    while (isDigit(*text)) number = 10 * number + static_cast<unsigned long>(*text++ - '0');
    return text;
}

/// "%ld". Printers write a few plain digits; every other form is left to the C function.
bool scanLong(const char* text, long& value) noexcept {
    const bool isNegative = *text == '-';
    const char* const first = isNegative ? text + 1 : text;
    unsigned long number = 0;
    const char* const behind = appendDigits(first, number);
    if (behind != first && behind - first <= exactDigits) {
        value = isNegative ? -static_cast<long>(number) : static_cast<long>(number);
        return true;
    }
    char* end = nullptr;
    value = strtol_l(text, &end, 10, cLocale());
    return end != text;
}

/// Reads a text that is a number and nothing else, and so short that a single division gives the same as strtod.
bool scanExact(const char* text, double& value) noexcept {
    static constexpr double powersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};
    const bool isNegative = *text == '-';
    const char* const first = isNegative ? text + 1 : text;
    unsigned long digits = 0;
    const char* behind = appendDigits(first, digits);
    if (behind == first) return false;
    std::ptrdiff_t decimals = 0;
    if (*behind == '.') {
        const char* const decimal = behind + 1;
        behind = appendDigits(decimal, digits);
        decimals = behind - decimal;
    }
    if (*behind != '\0' || behind - first > exactDigits) return false;
    const auto number = static_cast<double>(digits);
    value = (isNegative ? -number : number) / powersOfTen[decimals];
    return true;
}

/// The value of a hexadecimal digit; -1 for any other character.
int hexDigit(char c) noexcept {
    if (isDigit(c)) return c - '0';
    const int letter = c | 0x20;
    return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

/// Reads an address of six pairs of digits, which is how printers write it.
bool scanFullAddress(const char* text, HardwareAddress& address) noexcept {
    for (std::size_t i = 0; i < address.size(); ++i) {
        if (i > 0 && *text++ != ':') return false;
        const int high = hexDigit(text[0]);
        const int low = high < 0 ? high : hexDigit(text[1]);
        if (low < 0) return false;
        address[i] = static_cast<unsigned char>(16 * high + low);
        text += 2;
    }
    return true;
}

template <class Unsigned>
bool scanNumber(const char* text, int base, Unsigned& value) noexcept {
    char* end = nullptr;
    const unsigned long number = strtoul_l(text, &end, base, cLocale());
    if (end == text) return false;
    value = static_cast<Unsigned>(number);
    return true;
}

constexpr char hexDigits[] = "0123456789abcdef";

template <class... Arguments>
Digits digitsOf(Arguments... arguments) noexcept {
    Digits digits;
    const auto written =
        std::to_chars(digits.characters.data(), digits.characters.data() + digits.characters.size() - 1, arguments...);
    *written.ptr = '\0';
    return digits;
}

}  // namespace

long toLong(const char* text) noexcept {
    long number = 0;
    scanLong(text, number);
    return number;
}

int toInt(const char* text) noexcept { return static_cast<int>(toLong(text)); }

float toFloat(const char* text) noexcept {
    double number = 0;
    return static_cast<float>(scanExact(text, number) ? number : strtod_l(text, nullptr, cLocale()));
}

bool scanInt(const char* text, int& value) noexcept {
    long number = 0;
    if (!scanLong(text, number)) return false;
    value = static_cast<int>(number);
    return true;
}

bool scanPrefixedHex(const char* text, unsigned int& value) noexcept {
    if (!hasHexPrefix(text)) return false;
    return scanNumber(text + 2, 16, value);
}

bool scanPrefixedHexByte(const char* text, unsigned int& value) noexcept {
    return std::sscanf(text, "0x%02x", &value) == 1;
}

bool scanUnsigned(const char* text, unsigned int& value) noexcept { return scanNumber(text, 10, value); }

bool scanUnsignedShort(const char* text, unsigned short& value) noexcept { return scanNumber(text, 10, value); }

bool scanKeyNumber(const char* text, unsigned long& value) noexcept {
    return scanNumber(text, hasHexPrefix(text) ? 16 : 10, value);
}

bool scanFloat(const char* text, float& value) noexcept {
    double number = 0;
    if (scanExact(text, number)) {
        value = static_cast<float>(number);
        return true;
    }
    if (isPlainDecimal(text)) {
        value = toFloat(text);
        return true;
    }
    const NumbersInCLocale scope;
    if (std::sscanf(text, "%lf", &number) != 1) return false;
    value = static_cast<float>(number);
    return true;
}

HardwareAddress toHardwareAddress(const char* text) noexcept {
    if (HardwareAddress address{}; scanFullAddress(text, address)) return address;
    std::array<unsigned int, 6> bytes{};
    const int matched = std::sscanf(text, "%02x:%02x:%02x:%02x:%02x:%02x", bytes.data(), &bytes[1], &bytes[2],
                                    &bytes[3], &bytes[4], &bytes[5]);
    static_cast<void>(matched);  // A missing byte is 0, and the printer expects no complaint about it.
    HardwareAddress address{};
    for (std::size_t i = 0; i < address.size(); ++i) address[i] = static_cast<unsigned char>(bytes[i]);
    return address;
}

unsigned long toIpAddress(const char* text) noexcept { return inet_addr(text); }

bool isTrue(const char* text) noexcept { return equal(text, "enabled") || equal(text, "yes"); }

bool equal(const char* text, const char* word) noexcept { return std::strcmp(text, word) == 0; }

bool equalIgnoringCase(const char* text, const char* word) noexcept { return strcasecmp_l(text, word, cLocale()) == 0; }

bool copy(const char* text, char* destination, int capacity) noexcept {
    if (capacity <= 0) return false;
    const std::size_t room = static_cast<std::size_t>(capacity) - 1;
    const std::size_t length = strnlen(text, room + 1);
    const std::size_t copied = length <= room ? length : room;
    std::memcpy(destination, text, copied);
    destination[copied] = '\0';
    return length <= room;
}

Digits fromInt(int value) noexcept { return digitsOf(value); }

Digits fromUnsigned(unsigned value) noexcept { return digitsOf(value); }

Digits fromLong(long value) noexcept { return digitsOf(value); }

Digits fromDouble(double value, int decimals) noexcept { return digitsOf(value, std::chars_format::fixed, decimals); }

Digits shortest(float value) noexcept { return digitsOf(value); }

Digits fromHardwareAddress(const unsigned char* address) noexcept {
    Digits digits;
    char* at = digits.characters.data();
    for (std::size_t i = 0; i < HardwareAddress().size(); ++i) {
        if (i > 0) *at++ = ':';
        *at++ = hexDigits[address[i] / 16];
        *at++ = hexDigits[address[i] % 16];
    }
    *at = '\0';
    return digits;
}

Digits fromIpAddress(unsigned long address) noexcept {
    Digits digits;
    const in_addr network{static_cast<in_addr_t>(address)};
    inet_ntop(AF_INET, &network, digits.characters.data(), digits.characters.size());
    return digits;
}

Digits fromPrefixedHex(unsigned value) noexcept {
    Digits digits;
    static_cast<void>(std::snprintf(digits.characters.data(), digits.characters.size(), "0x%02x", value));
    return digits;
}

}  // namespace kvj::convert
