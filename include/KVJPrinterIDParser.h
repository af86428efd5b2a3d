/// @file KVJPrinterIDParser.h
/// Reads who a printer is.
#ifndef KVJXML_KVJ_PRINTER_ID_PARSER_H
#define KVJXML_KVJ_PRINTER_ID_PARSER_H

#include <tinyxml.h>

#include "IdentityRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

/// One object reads any number of replies, one after the other and in one thread at a time. It is a document only to
/// report what is wrong with a reply: after each call it is empty, and `Error()`, `ErrorId()` and `ErrorDesc()` report
/// on the reply that was read. The row and the column of an error are 0. Without a text they report what they did
/// before.
class KVJXML_API KVJPrinterIDParser : public TiXmlDocument {
public:
    /// Reads the reply "printer_id". A field whose element is missing keeps the value that it had.
    /// @param text    the reply as multibyte text, terminated by NUL; null is no reply.
    /// @param length  is ignored.
    /// @return whether the reply holds the message and the last element recognised in it had a text that fits its
    ///         field; a number counts as read whatever its text.
    bool ParsePrinterInfo(const char* text, int length, KVPrinterInfo& info);

    /// The same for the children of a "printer_id" element. A null element gives false.
    bool parsePrinterInfo(TiXmlElement* element, KVPrinterInfo& info);
};

}  // namespace Kavrin

#endif
