#include "fields/differences.h"

#include <algorithm>
#include <cstdio>

#include "foundation/convert.h"

namespace kvj {

namespace {

/// A simple value as text. Two are equal when their texts are.
std::string shown(const Field& field, const void* record) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return flagOf(field, record) ? "true" : "false";
        case FieldType::number:
            return std::to_string(wholeNumberOf(field, record));
        case FieldType::decimal: {
            // All digits, so that neighbours differ.
            char digits[64];
            static_cast<void>(
                std::snprintf(digits, sizeof digits, "%a", static_cast<double>(valueOf<float>(field, record))));
            return digits;
        }
        case FieldType::text:
            return '"' + std::string(textOf(field, record)) + '"';
        case FieldType::hardwareAddress:
            return convert::fromHardwareAddress(static_cast<const unsigned char*>(field.at(record))).c_str();
        case FieldType::ipAddress:
            return convert::fromIpAddress(valueOf<unsigned long>(field, record)).c_str();
        case FieldType::hostText: {
            const char* const text = valueOf<const char*>(field, record);
            return text == nullptr ? "null" : '"' + std::string(text) + '"';
        }
        case FieldType::record:
        case FieldType::list:
            break;  // Not simple.
    }
    return {};
}

class Comparison {
public:
    // Records nest as deep as they are declared, so the recursion ends.
    // NOLINTBEGIN(misc-no-recursion)
    void compare(const RecordType& type, const std::string& path, const void* expected, const void* actual) {
        for (const Field& field : type.fields) compare(field, path + "/" + std::string(field.name), expected, actual);
    }

    std::vector<Difference> found;

private:
    void compare(const Field& field, const std::string& path, const void* expected, const void* actual) {
        switch (field.type) {
            case FieldType::record:
                return compare(*field.record, path, field.at(expected), field.at(actual));
            case FieldType::list:
                return compare(*field.entries, path, expected, actual);
            default:
                add(path, shown(field, expected), shown(field, actual));
        }
    }

    void compare(const Entries& entries, const std::string& path, const void* expected, const void* actual) {
        add(path + " count", std::to_string(entries.count(expected)), std::to_string(entries.count(actual)));
        const std::size_t count = std::min(countOf(entries, expected), countOf(entries, actual));
        for (std::size_t i = 0; i < count; ++i) {
            compare(*entries.entry, path + "/" + std::to_string(i), entries.at(expected, i), entries.at(actual, i));
        }
    }
    // NOLINTEND(misc-no-recursion)

    void add(const std::string& path, std::string expected, std::string actual) {
        if (expected != actual) found.push_back({path, std::move(expected), std::move(actual)});
    }
};

}  // namespace

std::vector<Difference> differences(const RecordType& type, const void* expected, const void* actual) {
    Comparison comparison;
    comparison.compare(type, "", expected, actual);
    return comparison.found;
}

std::string describeDifferences(const RecordType& type, const void* expected, const void* actual) {
    std::string text;
    for (const auto& [path, was, is] : differences(type, expected, actual)) {
        text.append(path).append(": ").append(is).append(" instead of ").append(was).append("\n");
    }
    return text;
}

}  // namespace kvj
