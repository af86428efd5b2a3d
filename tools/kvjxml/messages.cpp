#include "messages.h"

#include <KVJStatusParser.h>

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

using Kavrin::KVJStatusParser;

constexpr Message table[] = {
    {"get_general_status", "ParseStatus", decode<&KVJStatusParser::ParseStatus>},
    {"get_job_status", "ParseJobStatus", decode<&KVJStatusParser::ParseJobStatus>},
};

}  // namespace

std::span<const Message> messages() { return table; }

}  // namespace kvjxml::tool
