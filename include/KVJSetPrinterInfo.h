/// @file KVJSetPrinterInfo.h
/// Composes who a printer is to be: its model and print-head serial number, or its full identity.
#ifndef KVJXML_KVJ_SET_PRINTER_INFO_H
#define KVJXML_KVJ_SET_PRINTER_INFO_H

#include <tinyxml.h>

#include "IdentityRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

/// The object is the document that is composed. Composing appends to it: a second SetPrinterInfo gives a document with
/// two roots, so take **a fresh object for each request**, in one thread at a time. When two threads compose at the
/// same time, each with an object of its own, the last leaves its copy, whole.
///
/// Texts of the record need not be terminated.
///
/// **Size.** Hosts are compiled with the size of the object, so it stays as it is.
class KVJXML_API KVJSetPrinterInfo : public TiXmlDocument {
public:
    /// Composes "printer_id", leaves a copy of it in the file "/tmp/printidsettings" and prints it. The copy is written
    /// even when `out` is null. It is left as KVJSetConfig leaves its copy: only its owner can read it, a file of
    /// another user keeps its old content, and failures are silent.
    /// @param out  room for `capacity` wide characters. The request is converted to them in the process's locale, and
    ///             its terminator is written when there is room for it. A request that fills the capacity, or that
    ///             contains a byte that the locale does not know, ends without one: leave room to spare, and set the
    ///             buffer to zero first.
    /// @param mask  0x1 "printer_model", 0x2 "printhead_serial"; other bits write nothing.
    /// @return whether it was printed, even if it was cut; false when the last element could not be written, and, with
    ///         nothing written to `out`, when that is null or `capacity` negative.
    bool SetPrinterInfo(const KVPrinterInfo& info, wchar_t* out, int capacity, long mask);

    /// Adds what `mask` selects to `under`. True when there is nothing to add, else the result of the last element.
    bool addPrinterInfo(TiXmlElement* under, const KVPrinterInfo& info, long mask);
    /// Adds the full identity to `under`: "vendor", "printer_model", "printer_serial", "laminator_serial",
    /// "physical_address", "printhead_serial", "oem_country", "media_auth_cfg", "firmware_version", "kavrin_version",
    /// "ethernet_deviceid", "wireless_physical_address". Always true.
    bool addPrinterInfo(TiXmlElement* under, const KVPrinterInfo& info);

    /// Leaves the copy and prints the document again; see SetPrinterInfo.
    bool saveJob(wchar_t* out, int capacity);
    /// Saves the document to the file `path`. False when that is null or cannot be written.
    bool saveJob(char* path);
};

}  // namespace Kavrin

#endif
