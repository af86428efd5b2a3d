// The layout of the records is a contract with hosts that were built against an earlier release.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

#include "fields/records.h"
#include "support/shell.h"

namespace layout_test {

namespace {

using kvj::Field;
using kvj::FieldType;
using kvj::RecordType;
using kvj::Storage;
using kvj::tests::runShell;

constexpr std::size_t byte = 8;

/// A record of zeros.
class Zeros {
public:
    explicit Zeros(const RecordType& type) : bytes_(type.size) {}
    [[nodiscard]] std::vector<std::byte>& bytes() { return bytes_; }
    [[nodiscard]] void* record() { return bytes_.data(); }

private:
    std::vector<std::byte> bytes_;
};

/// Which bit of a record is set, counted from its first byte's lowest.
std::size_t bitOf(const RecordType& type, const Field& field) {
    Zeros zeros(type);
    field.setBit(zeros.record(), true);
    for (std::size_t i = 0; i < type.size; ++i) {
        for (std::size_t bit = 0; bit < byte; ++bit) {
            if (zeros.bytes()[i] == std::byte{1} << bit) return i * byte + bit;
        }
    }
    ADD_FAILURE() << "not one bit: " << field.name;
    return 0;
}

/// A field's place in its record, in bits.
struct Place {
    const Field* field;
    std::size_t begin;
    std::size_t size;
    [[nodiscard]] std::size_t end() const { return begin + size; }
};

Place placeOf(const RecordType& type, const Field& field) {
    if (field.type == FieldType::bit) return {&field, bitOf(type, field), 1};
    Zeros zeros(type);
    const auto* const at = static_cast<const std::byte*>(field.at(zeros.record()));
    return {&field, static_cast<std::size_t>(at - zeros.bytes().data()) * byte, field.size * byte};
}

/// The places of all fields in the order of their list. What counts a list stands on either side of it.
std::vector<Place> placesOf(const RecordType& type) {
    std::vector<Place> places;
    for (const Field& field : type.fields) {
        places.push_back(placeOf(type, field));
        if (field.type != FieldType::list || field.entries->counter == nullptr) continue;
        places.push_back(placeOf(type, *field.entries->counter));
        std::ranges::sort(places.end() - 2, places.end(), {}, &Place::begin);
    }
    return places;
}

/// What a compiler rounds a field's place up to, in bits.
// Types nest as deep as they are declared, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
std::size_t alignmentOf(const Field& field) {
    switch (field.type) {
        case FieldType::bit:
            return 1;
        case FieldType::text:
        case FieldType::hardwareAddress:
            return byte;
        case FieldType::record:
            return field.record->alignment * byte;
        case FieldType::list:
            if (field.entries->storage == Storage::inRecord) return alignmentOf(*field.entries->entry);
            return field.size * byte;
        default:
            return field.size * byte;
    }
}

std::size_t roundedUp(std::size_t value, std::size_t alignment) {
    return (value + alignment - 1) / alignment * alignment;
}

// Likewise. NOLINTNEXTLINE(misc-no-recursion)
std::string typeNameOf(const Field& field) {
    switch (field.type) {
        case FieldType::flag:
            return "flag";
        case FieldType::bit:
            return "bit";
        case FieldType::number:
            return (field.isSigned ? "int" : "uint") + std::to_string(field.size * byte);
        case FieldType::decimal:
            return "float";
        case FieldType::text:
            return "text";
        case FieldType::hardwareAddress:
            return "hardware address";
        case FieldType::ipAddress:
            return "IPv4 address";
        case FieldType::hostText:
            return "text of the host's";
        case FieldType::record:
            return std::string(field.record->name);
        case FieldType::list:
            break;
    }
    const std::string entry = typeNameOf(*field.entries->entry);
    switch (field.entries->storage) {
        case Storage::inRecord:
            return entry + "[" + std::to_string(field.entries->room) + "]";
        case Storage::ofHost:
            return entry + "*";
        case Storage::catalogue:
            break;
    }
    return "vector of " + entry + "*";
}

std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

std::string layout() {
    std::ostringstream out;
    for (const RecordType* const type : kvj::recordTypes()) {
        out << type->name << ": size " << type->size << ", alignment " << type->alignment << '\n';
        for (const Place& place : placesOf(*type)) {
            const bool isBit = place.field->type == FieldType::bit;
            const std::string offset = std::to_string(place.begin / byte);
            out << "    " << padded(std::string(place.field->name), 32)
                << padded(isBit ? offset + " bit " + std::to_string(place.begin % byte) : offset, 12)
                << padded(isBit ? "-" : std::to_string(place.field->size), 8) << typeNameOf(*place.field) << '\n';
        }
    }
    return out.str();
}

TEST(Layout, IsTheOneThatHostsWereBuiltAgainst) {
    const auto difference = runShell("diff -u '" LAYOUT "' -", layout());
    EXPECT_EQ(difference.code, 0) << "Hosts that are installed break by this. A change that is wanted nevertheless: "
                                     "give the lines below to \"patch " LAYOUT "\".\n"
                                  << difference.out << difference.error;
}

// A list in another order than the record's, or with a field too few where padding is, would not end here and there.
TEST(Layout, AFieldBeginsWhereTheOneBeforeItEnds) {
    for (const RecordType* const type : kvj::recordTypes()) {
        std::size_t end = 0;
        for (const Place& place : placesOf(*type)) {
            EXPECT_EQ(place.begin, roundedUp(end, alignmentOf(*place.field)))
                << type->name << "::" << place.field->name;
            end = place.end();
        }
        EXPECT_EQ(roundedUp(end, type->alignment * byte), type->size * byte) << type->name;
    }
}

}  // namespace

}  // namespace layout_test
