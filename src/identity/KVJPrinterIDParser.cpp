#include "KVJPrinterIDParser.h"

#include "foundation/reply.h"
#include "identity/printer.h"

namespace Kavrin {

bool KVJPrinterIDParser::ParsePrinterInfo(const char* text, int /*length*/, KVPrinterInfo& info) {
    Clear();
    kvjxml::parse(*this, text);
    const bool result = parsePrinterInfo(FirstChildElement("printer_id"), info);
    Clear();
    return result;
}

bool KVJPrinterIDParser::parsePrinterInfo(TiXmlElement* element, KVPrinterInfo& info) {
    return kvjxml::walk(element, info, kvjxml::identity::printer);
}

}  // namespace Kavrin
