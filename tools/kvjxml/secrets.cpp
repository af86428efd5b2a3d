#include "secrets.h"

#include <algorithm>

#include "field_rows.h"

namespace kvj::tool {

namespace {

struct Secret {
    std::string_view record;   ///< without its namespace
    std::string_view field{};  ///< empty for all of them
};
constexpr Secret secrets[] = {
    {"_WirelessParams", "key"},
    {"_tagSecKeys"},
    {"_tagSecSetKeys"},
    {"__GETTRACK"},
    // Those of requests.
    {"Passkey"},
    {"PasskeyChange"},
    {"KeyChange"},
};

}  // namespace

bool isSecret(std::string_view record, std::string_view field) {
    return std::ranges::any_of(secrets, [&](const Secret& secret) {
        return secret.record == unqualified(record) && (secret.field.empty() || secret.field == field);
    });
}

bool isSecretElement(std::string_view name) {
    return std::ranges::any_of(rowsOfMessages(), [&](const DescribedRow* row) {
        const FieldName& field = row->description.field;
        return row->name == name && isSecret(field.record, field.name);
    });
}

}  // namespace kvj::tool
