/// @file face/joined.h
/// A sentence of its parts.
#ifndef KVJXML_FACE_JOINED_H
#define KVJXML_FACE_JOINED_H

#include <initializer_list>
#include <string>
#include <string_view>

namespace kvj {

inline std::string joined(std::initializer_list<std::string_view> parts) {
    std::string whole;
    for (const std::string_view part : parts) whole += part;
    return whole;
}

}  // namespace kvj

#endif
