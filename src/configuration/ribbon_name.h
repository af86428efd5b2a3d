/// @file configuration/ribbon_name.h
/// The name of a ribbon or film as the configuration has it.
#ifndef KVJXML_CONFIGURATION_RIBBON_NAME_H
#define KVJXML_CONFIGURATION_RIBBON_NAME_H

#include <cstddef>

#include "foundation/element.h"

namespace kvj::configuration {

/// How much of a ribbon's name is read, with its terminator.
inline constexpr std::size_t ribbonNameCapacity = 32;

/// A ribbon's name, without the word that all one-coloured ribbons begin with. Hosts of the named operations watch the
/// two lines that go to the standard error stream for it, often on a terminal; where the reading itself is watched,
/// there are none, and nothing but the description is written.
bool readRibbonName(Element element, char (&description)[64]);

}  // namespace kvj::configuration

#endif
