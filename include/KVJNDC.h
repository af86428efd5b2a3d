/// @file KVJNDC.h
/// Reads the raw response of the laminator.
#ifndef KVJXML_KVJ_NDC_H
#define KVJXML_KVJ_NDC_H

#include "kvjxml_export.h"

namespace Kavrin {

/// Stateless. Replies are as for KVJStatusParser.
class KVJXML_API KVJNDC {
public:
    /// Copies the text of the reply "lam_ndc_rsp", with its terminator.
    /// @param response  a buffer of 512 characters. A longer text is cut to 511 characters, terminated, and false.
    /// @return false, and the buffer as it was, when the element is missing or has no text, or `response` is null.
    bool GetLaminatorResponse(const wchar_t& reply, int length, char* response);
};

}  // namespace Kavrin

#endif
