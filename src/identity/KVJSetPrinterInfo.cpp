#include "KVJSetPrinterInfo.h"

#include "foundation/diagnostic_copy.h"
#include "foundation/request.h"
#include "identity/printer.h"

namespace Kavrin {

using kvj::compose;
namespace tables = kvj::identity;

bool KVJSetPrinterInfo::SetPrinterInfo(const KVPrinterInfo& info, wchar_t* out, int capacity, long mask) {
    return addPrinterInfo(kvj::beginRequest(*this, "printer_id"), info, mask) && saveJob(out, capacity);
}

bool KVJSetPrinterInfo::addPrinterInfo(TiXmlElement* under, const KVPrinterInfo& info, long mask) {
    return compose(under, info, tables::printerSections, {.sections = mask}, true);
}

bool KVJSetPrinterInfo::addPrinterInfo(TiXmlElement* under, const KVPrinterInfo& info) {
    compose(under, info, tables::printerTags);
    return true;
}

bool KVJSetPrinterInfo::saveJob(wchar_t* out, int capacity) {
    kvj::keepDiagnosticCopy(*this, "/tmp/printidsettings");
    return kvj::print(*this, out, capacity);
}

bool KVJSetPrinterInfo::saveJob(char* path) { return kvj::save(*this, path); }

}  // namespace Kavrin
