/// @file vocabulary_tree.h
/// The elements and attributes of replies, as a tree.
#ifndef KVJXML_TOOL_VOCABULARY_TREE_H
#define KVJXML_TOOL_VOCABULARY_TREE_H

#include <string_view>

#include "exit_code.h"

namespace kvj::tool {

/// Prints an XML document with an element for each that a reader knows, what it is read as, its attributes and its
/// words.
/// @param root  the message; all of them when it is empty.
ExitCode printVocabulary(std::string_view root);

}  // namespace kvj::tool

#endif
