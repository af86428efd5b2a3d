// error: (function for call to|known conversion from) .*laminator_state
#include "kvjxml_words.hpp"

const auto word = kvjxml::name<&Kavrin::KVGeneralStatus::printerState>(kvjxml::laminator_state::ready);
