/// @file whole.h
/// A record with a value in every field that a printer is told, and what it becomes: whole.xml.
#ifndef KVJXML_TESTS_CAPABILITIES_WHOLE_H
#define KVJXML_TESTS_CAPABILITIES_WHOLE_H

#include "capabilities/records.h"

namespace kvj::tests {

struct Whole {
    Lists lists{{{1, 0}, {2, 3}},
                {{11, 1}, {12, 2}},
                {{0, 0, 161}, {3, 3, 9100}},
                {{0, "English (US)"}, {4, "Deutsch"}},
                {1, 10},
                {{"Card Sans", true, 2}, {"Card Mono 12", false, 1}},
                {{"staff badge", "/flash/templates/badge"}, {"day pass", "/flash/templates/pass"}},
                {{"logo", "/flash/graphics/logo"}, {"seal", "/flash/graphics/seal"}},
                {{"code_39"}, {"pdf417"}}};
    _Capabilities caps{};

    Whole() {
        lists.lendTo(caps);
        caps.imageSharpeningLevels = 0xF;
        caps.security = {true, 2};
        caps.ramSize = 65536;
        caps.flashSize = 131072;
        caps.printSystem = 0;
        caps.printType = 2;
        caps.atm = true;
        caps.magazineCapacity = 200;
        caps.logicalPageLength = 1036;
        caps.logicalPageWidth = 664;
        caps.physicalPageLength = 1012;
        caps.physicalPageWidth = 638;
        caps.printResolution = 300;
        caps.magHeadType = 2;
        caps.magStripeLocation = 1;
        caps.internalEncoder = {2, true, 1, 5, true};
        caps.laminator = true;
        caps.laminatorType = laminatorOneSided;
    }
    Whole(const Whole&) = delete;  // the record points to the lists
    Whole& operator=(const Whole&) = delete;
};

}  // namespace kvj::tests

#endif
