/// @file composing_by_hand.h
/// Requests composed by hand with pugixml, as a good programmer would write it for one request: calls in the order of
/// the document, words from small tables, numbers that no locale changes. No tables of rows.
#ifndef KVJXML_BENCH_COMPOSING_BY_HAND_H
#define KVJXML_BENCH_COMPOSING_BY_HAND_H

#include <ConfigurationRecords.h>
#include <IdentityRecords.h>

#include <kvjxml_records.hpp>
#include <pugixml.hpp>
#include <string>

namespace kvj::bench {

/// What can be kept from one request to the next, is kept: the document's memory and the text's.
class PugixmlComposer {
public:
    const std::string& configuration(const Kavrin::_KVConfiguration& values);
    const std::string& capabilities(const kvjxml::capabilities& caps);
    const std::string& printerId(const Kavrin::KVPrinterInfo& info);

private:
    pugi::xml_node begin(const char* root);
    const std::string& printed();

    pugi::xml_document document_;
    std::string text_;
};

/// A request as pugixml prints it, so that two that say the same are the same text.
std::string asPugixmlPrints(const std::string& request);

}  // namespace kvj::bench

#endif
