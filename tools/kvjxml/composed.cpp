#include "composed.h"

namespace kvjxml::tool {

std::string toUtf8(const std::vector<wchar_t>& text) {
    std::mbstate_t state{};
    const wchar_t* from = text.data();
    const std::size_t length = std::wcsrtombs(nullptr, &from, 0, &state);
    if (length == static_cast<std::size_t>(-1)) notComposed();
    std::string bytes(length, '\0');
    from = text.data();
    bytes.resize(std::wcsrtombs(bytes.data(), &from, length, &state));
    return bytes;
}

}  // namespace kvjxml::tool
