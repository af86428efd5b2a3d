#include "KVJPrinterIDParser.h"

#include "foundation/reply.h"
#include "identity/printer.h"

namespace Kavrin {

bool KVJPrinterIDParser::ParsePrinterInfo(const char* text, int /*length*/, KVPrinterInfo& info) {
    Clear();
    const kvjxml::Reply reply(text);
    kvjxml::tellFault(reply, *this);
    return kvjxml::walk(reply.root("printer_id"), info, kvjxml::identity::printer);
}

bool KVJPrinterIDParser::parsePrinterInfo(TiXmlElement* element, KVPrinterInfo& info) {
    return kvjxml::walk(element, info, kvjxml::identity::printer);
}

}  // namespace Kavrin
