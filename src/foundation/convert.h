/// @file convert.h
/// Converts between texts and numbers, truth words and addresses, as the printer writes them. There is no XML here.
/// Every conversion is that of the C function it names, in the "C" locale: a printer knows nothing of the decimal comma
/// that the host may be set to.
#ifndef KVJXML_FOUNDATION_CONVERT_H
#define KVJXML_FOUNDATION_CONVERT_H

#include <array>

namespace kvj::convert {

/// The number that a text begins with, as atoi, atol and atof read it: 0 for a text that is no number.
int toInt(const char* text) noexcept;
long toLong(const char* text) noexcept;
float toFloat(const char* text) noexcept;

/// The scans say whether the text matched, and leave `value` alone when it did not.
/// "%d".
bool scanInt(const char* text, int& value) noexcept;
/// "0x%x": the prefix has to be there, in lower case.
bool scanPrefixedHex(const char* text, unsigned int& value) noexcept;
/// "0x%02x": at most two digits after the prefix.
bool scanPrefixedHexByte(const char* text, unsigned int& value) noexcept;
/// "%u": a negative number wraps.
bool scanUnsigned(const char* text, unsigned int& value) noexcept;
/// "%hu".
bool scanUnsignedShort(const char* text, unsigned short& value) noexcept;
/// "%lx" after "0x", else "%lu".
bool scanKeyNumber(const char* text, unsigned long& value) noexcept;
/// "%lf", narrowed.
bool scanFloat(const char* text, float& value) noexcept;

using HardwareAddress = std::array<unsigned char, 6>;
/// "%02x:%02x:%02x:%02x:%02x:%02x"; what does not match is 0.
HardwareAddress toHardwareAddress(const char* text) noexcept;

/// An IPv4 address in network byte order, as inet_addr reads it: 4294967295 for a text that is not one.
unsigned long toIpAddress(const char* text) noexcept;

/// Truth words: exactly "enabled" and "yes" are true.
bool isTrue(const char* text) noexcept;
bool equal(const char* text, const char* word) noexcept;
/// Equal, apart from the case of the letters A to Z.
bool equalIgnoringCase(const char* text, const char* word) noexcept;

/// Copies a text with its terminator to `destination`, which holds `capacity` characters; cuts what does not fit.
/// @return whether it fitted. With a capacity of zero or less nothing is written.
bool copy(const char* text, char* destination, int capacity) noexcept;

/// A short text by value; long enough for any double with six decimals.
struct Digits {
    std::array<char, 320> characters;
    [[nodiscard]] const char* c_str() const noexcept { return characters.data(); }
};

Digits fromInt(int value) noexcept;            ///< "%d"
Digits fromUnsigned(unsigned value) noexcept;  ///< "%u"
Digits fromLong(long value) noexcept;          ///< "%ld"
/// "%.*f"
Digits fromDouble(double value, int decimals) noexcept;
/// The fewest digits that are read as this number again.
Digits shortest(float value) noexcept;
/// "%02x:%02x:%02x:%02x:%02x:%02x"
Digits fromHardwareAddress(const unsigned char* address) noexcept;
/// Dotted, as inet_ntoa writes it; only the low 32 bits count.
Digits fromIpAddress(unsigned long address) noexcept;
/// "0x%02x"
Digits fromPrefixedHex(unsigned value) noexcept;

}  // namespace kvj::convert

#endif
