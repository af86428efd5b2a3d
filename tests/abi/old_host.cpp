// A host that reads every sample with every reader and says what it finds in its records, bit by bit. It is compiled
// with the headers of an earlier commit as well: what it says then has to be the same.
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "support/readers.h"

namespace {

constexpr std::size_t behind = 4096;  // What a record that has grown would take.
constexpr unsigned char untouched = 0xA5;

std::uint64_t hashOf(const std::vector<unsigned char>& bytes, std::size_t size) {
    std::uint64_t hash = 14695981039346656037U;
    for (std::size_t i = 0; i < size; ++i) hash = (hash ^ bytes[i]) * 1099511628211U;
    return hash;
}

/// Whether the reader keeps within the record.
bool read(const kvjxml::tests::Reader& reader, const std::string& file, const std::string& reply) {
    const std::wstring wide(reply.begin(), reply.end());
    std::vector<unsigned char> record(reader.recordSize + behind, untouched);
    std::memset(record.data(), 0, reader.recordSize);
    const bool result = reader.read({reply.c_str(), wide.c_str(), reply.size()}, record.data());
    std::printf("%s %.*s %d %zu %016" PRIx64 "\n", file.c_str(), static_cast<int>(reader.name.size()),
                reader.name.data(), result, reader.recordSize, hashOf(record, reader.recordSize));
    for (std::size_t i = reader.recordSize; i < record.size(); ++i) {
        if (record[i] == untouched) continue;
        std::printf("%s writes behind its record\n", reader.name.data());
        return false;
    }
    return true;
}

}  // namespace

int main(int, char** arguments) {
    bool isWithin = true;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream stream(entry.path());
        const std::string reply{std::istreambuf_iterator<char>(stream), {}};
        for (const auto& reader : kvjxml::tests::readers()) {
            isWithin = read(reader, entry.path().filename().string(), reply) && isWithin;
        }
    }
    return isWithin ? 0 : 1;
}
