#include "messages.h"

#include <KVJStatusParser.h>

#include "foundation/member.h"
#include "status/tables.h"

namespace kvjxml::tool {

namespace {

template <class Reader>
struct ReaderOf;
/// A reader of wide text.
template <class Parser, class Length, class Record_>
struct ReaderOf<bool (Parser::*)(const wchar_t&, Length, Record_&)> {
    using Record = Record_;
    static bool read(bool (Parser::*reader)(const wchar_t&, Length, Record_&), const Input& input, Record_& record) {
        return (Parser().*reader)(*input.text.c_str(), static_cast<Length>(input.text.size()), record);
    }
};

template <auto Reader>
Decoded decode(const Input& input) {
    typename ReaderOf<decltype(Reader)>::Record record{};
    const bool result = ReaderOf<decltype(Reader)>::read(Reader, input, record);
    return {result, toJson(record)};
}

template <auto Reader, const auto& Table>
constexpr Message message(std::string_view root) {
    return {root, nameOf<Reader>(), described<Table>, decode<Reader>};
}

using Kavrin::KVJStatusParser;

constexpr Message table[] = {
    message<&KVJStatusParser::ParseStatus, generalStatus>("get_general_status"),
    message<&KVJStatusParser::ParseJobStatus, jobStatus>("get_job_status"),
};

}  // namespace

std::span<const Message> messages() { return table; }

}  // namespace kvjxml::tool
