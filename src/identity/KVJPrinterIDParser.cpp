#include "KVJPrinterIDParser.h"

#include "foundation/reply.h"
#include "identity/printer.h"

namespace Kavrin {

bool KVJPrinterIDParser::ParsePrinterInfo(const char* text, int /*length*/, KVPrinterInfo& info) {
    Clear();
    const kvj::Reply reply(text);
    kvj::tellFault(reply, *this);
    return kvj::walk(reply.root("printer_id"), info, kvj::identity::printer);
}

bool KVJPrinterIDParser::parsePrinterInfo(TiXmlElement* element, KVPrinterInfo& info) {
    return kvj::walk(element, info, kvj::identity::printer);
}

}  // namespace Kavrin
