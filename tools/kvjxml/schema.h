/// @file schema.h
/// The verb that describes what decode prints, for programs that take it.
#ifndef KVJXML_TOOL_SCHEMA_H
#define KVJXML_TOOL_SCHEMA_H

#include <nlohmann/json.hpp>
#include <string_view>

#include "exit_code.h"

namespace kvj::tool {

/// Which of the forms that decode prints.
struct SchemaForm {
    bool words = false;  ///< with --words
    bool lines = false;  ///< with --format jsonl
};

/// The JSON Schema, of draft 2020-12, of what decode prints for a document of that root; without a root for one of any
/// message.
nlohmann::ordered_json schemaOf(std::string_view root, const SchemaForm& form = {});

ExitCode printSchema(std::string_view root, const SchemaForm& form);

}  // namespace kvj::tool

#endif
