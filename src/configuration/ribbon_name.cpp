#include "configuration/ribbon_name.h"

#include <cstdio>
#include <cstring>

#include "KVJConfigParser.h"
#include "configuration/shown.h"
#include "foundation/values.h"

namespace kvj::configuration {

bool readRibbonName(Element element, char (&description)[64]) {
    using Kavrin::szRibbonName;  // Hosts look there as well.
    static_assert(sizeof szRibbonName == ribbonNameCapacity);
    std::memset(szRibbonName, 0, sizeof szRibbonName);
    const bool result = readText(element, szRibbonName, sizeof szRibbonName);
    if (std::strstr(szRibbonName, "MONO") != nullptr) {
        constexpr std::size_t removed = sizeof "MONO";  // and the blank after it
        std::memmove(szRibbonName, szRibbonName + removed, sizeof szRibbonName - removed);
        std::memset(szRibbonName + sizeof szRibbonName - removed, 0, removed);
    }
    std::memset(description, 0, sizeof description);
    static_cast<void>(std::fprintf(stderr, "DEBUG:RIBBON NAME %s\n", Shown(szRibbonName).characters));
    static_cast<void>(std::fprintf(stderr, "DEBUG:RIBBON NAME2 %s\n", Shown(description).characters));
    std::memcpy(description, szRibbonName, sizeof szRibbonName);
    return result;
}

}  // namespace kvj::configuration
