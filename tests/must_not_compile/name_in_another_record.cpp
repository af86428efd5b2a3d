// error: no matching function for call to .*name
#include "kvjxml_words.hpp"

const Kavrin::KVJobStatus job{};
const auto word = kvjxml::name<&Kavrin::KVGeneralStatus::printerState>(job);
