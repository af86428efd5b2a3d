/// @file KVJPrinterIDParser.h
/// Reads who a printer is.
#ifndef KVJXML_KVJ_PRINTER_ID_PARSER_H
#define KVJXML_KVJ_PRINTER_ID_PARSER_H

#include <tinyxml.h>

#include "IdentityRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

/// The object is the document that a reply is parsed into, and is empty again after each call, so one object reads any
/// number of replies, one after the other and in one thread at a time.
class KVJXML_API KVJPrinterIDParser : public TiXmlDocument {
public:
    /// Reads the reply "printer_id". A field whose element is missing keeps the value that it had.
    /// @param text    the reply as multibyte text, terminated by NUL; null is no reply.
    /// @param length  does not count.
    /// @return whether the reply holds the message and the last element recognised in it had a text that fits its
    ///         field; a number counts as read whatever its text.
    bool ParsePrinterInfo(const char* text, int length, KVPrinterInfo& info);

    /// The same for the children of a "printer_id" element. A null element gives false.
    bool parsePrinterInfo(TiXmlElement* element, KVPrinterInfo& info);
};

}  // namespace Kavrin

#endif
