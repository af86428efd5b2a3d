// What the other sources ask of fields, as it has to be.
#include "kvjxml_words.hpp"

using Kavrin::_Capabilities;
using Kavrin::KVGeneralStatus;

const KVGeneralStatus status{};
const _Capabilities caps{};

const auto bits = kvjxml::bits(status.alarms);
const auto word = kvjxml::name<&KVGeneralStatus::printerState>(status);
const auto wordOfCode = kvjxml::name<&KVGeneralStatus::printerState>(5);
const auto wordOfEnumerator = kvjxml::name<&KVGeneralStatus::printerState>(kvjxml::printer_state::printing);
const auto code = kvjxml::code<&KVGeneralStatus::printerState>("printing");
const auto state = kvjxml::as_enum<&KVGeneralStatus::printerState>(status);
const auto words = kvjxml::names<&_Capabilities::imageSharpeningLevels>(caps);
const auto wordOfEntry = kvjxml::name<&_Capabilities::graphicFormats>(2);
