#include "configuration/ribbon_name.h"

#include <cstdio>
#include <cstring>

#include "KVJConfigParser.h"
#include "configuration/shown.h"
#include "foundation/values.h"

namespace kvj::configuration {

namespace {

using Name = char[ribbonNameCapacity];

bool readName(Element element, Name& name) {
    std::memset(name, 0, sizeof name);
    const bool result = readText(element, name, sizeof name);
    if (std::strstr(name, "MONO") != nullptr) {
        constexpr std::size_t removed = sizeof "MONO";  // and the blank after it
        std::memmove(name, name + removed, sizeof name - removed);
        std::memset(name + sizeof name - removed, 0, removed);
    }
    return result;
}

}  // namespace

bool readRibbonName(Element element, char (&description)[64]) {
    std::memset(description, 0, sizeof description);
    if (element.watch() != nullptr) {
        Name name;
        const bool result = readName(element, name);
        std::memcpy(description, name, sizeof name);
        return result;
    }
    using Kavrin::szRibbonName;  // Hosts look there as well.
    static_assert(sizeof szRibbonName == sizeof(Name));
    const bool result = readName(element, szRibbonName);
    static_cast<void>(std::fprintf(stderr, "DEBUG:RIBBON NAME %s\n", Shown(szRibbonName).characters));
    static_cast<void>(std::fprintf(stderr, "DEBUG:RIBBON NAME2 %s\n", Shown(description).characters));
    std::memcpy(description, szRibbonName, sizeof szRibbonName);
    return result;
}

}  // namespace kvj::configuration
