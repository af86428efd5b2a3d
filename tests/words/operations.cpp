#include "words/operations.h"

#include <gtest/gtest.h>

#include <cstring>

#include "KVJCapsParser.h"
#include "KVJConfigParser.h"
#include "KVJHelper.h"
#include "KVJSetCaps.h"
#include "KVJSetConfig.h"
#include "KVJStatusParser.h"
#include "foundation/name.h"
#include "support/xml.h"

namespace kvj::tests {

namespace {

using namespace Kavrin;

// ---- Words to codes ----

/// A word that an operation takes as text; null for none.
template <int (*Operation)(char*)>
int ofWord(const char* text) {
    return text != nullptr ? Operation(Name(text)) : Operation(nullptr);
}
template <auto Operation>
struct Member;
template <class Class, class Result, class Text, Result (Class::*Operation)(Text)>
struct Member<Operation> {
    static int call(const char* text) {
        if (text == nullptr) return (Class().*Operation)(nullptr);
        std::string word = text;
        return (Class().*Operation)(word.data());
    }
};
template <auto Operation>
int ofWordBy(const char* text) {
    return Member<Operation>::call(text);
}

constexpr int codeBefore = -7;

/// The word of an element; null for an element without text. What is read does not depend on what a text becomes in a
/// document: the texts of tests have no markup.
template <class Code, class Class>
int codeIn(bool (Class::*read)(TiXmlElement*, Code&), const char* text, int before) {
    TiXmlElement element("any");
    if (text != nullptr) element.LinkEndChild(new TiXmlText(text));
    auto code = static_cast<Code>(before);
    EXPECT_EQ((Class().*read)(&element, code), text != nullptr && *text != '\0');
    return static_cast<int>(code);
}
template <auto Operation>
int ofElement(const char* text) {
    return codeIn(Operation, text, codeBefore);
}
/// The bits that a word adds to none.
template <auto Operation>
int bitsOfElement(const char* text) {
    TiXmlElement element("any");
    if (text != nullptr) element.LinkEndChild(new TiXmlText(text));
    unsigned int codes = 0;
    EXPECT_EQ((KVJStatusParser().*Operation)(&element, codes), text != nullptr);
    return static_cast<int>(codes);
}

// ---- Codes to words ----

template <auto Operation>
struct Writer;
template <class Class, bool (Class::*Operation)(char*, int)>
struct Writer<Operation> {
    static bool write(char* buffer, int code) { return (Class().*Operation)(buffer, code); }
};
template <class Class, bool (Class::*Operation)(int, char*, int)>
struct Writer<Operation> {
    static bool write(char* buffer, int code) { return (Class().*Operation)(code, buffer, 0); }
};
template <class Class, class Code, const char* (Class::*Operation)(Code)>
struct Writer<Operation> {
    static bool write(char* buffer, int code) {
        std::strcpy(buffer, (Class().*Operation)(static_cast<Code>(code)));
        return true;
    }
};

/// What an operation leaves in a buffer, whose 32 characters it stays within.
template <auto Operation>
std::string wordBy(int code, bool& result) {
    std::string buffer(40, '#');
    result = Writer<Operation>::write(buffer.data(), code);
    std::string word = buffer.c_str();
    EXPECT_EQ(buffer.find_first_not_of('#', word.size() + 1), std::string::npos) << code;
    EXPECT_LT(word.size(), 32U);
    return word;
}

}  // namespace

std::span<const ReadingOperation> readingOperations() {
    // clang-format off
    static constexpr ReadingOperation operations[] = {
        {"KVJHelper::RibbonNameToInt",              "ribbonNames",                       ofWord<KVJHelper::RibbonNameToInt>},
        {"KVJHelper::RibbonDescriptionToInt",       "ribbonDescriptions",                ofWord<KVJHelper::RibbonDescriptionToInt>},
        {"KVJHelper::RibbonTypeToInt",              "ribbonTypes",                       ofWord<KVJHelper::RibbonTypeToInt>},
        {"KVJHelper::FeederSmartToInt",             "smartEncoders",                     ofWord<KVJHelper::FeederSmartToInt>},
        {"KVJHelper::FeederTypeToInt",              "cardMaterials",                     ofWord<KVJHelper::FeederTypeToInt>},
        {"KVJHelper::CoercivityToInt",              "coercivities",                      ofWord<KVJHelper::CoercivityToInt>},
        {"KVJHelper::LaminationTypeToInt",          "laminationTypes",                   ofWord<KVJHelper::LaminationTypeToInt>},
        {"KVJHelper::CommsChannelToInt",            "commsChannels",                     ofWord<KVJHelper::CommsChannelToInt>},
        {"KVJHelper::ContactlessEncToInt",          "contactlessEncoders",               ofWord<KVJHelper::ContactlessEncToInt>},
        {"KVJHelper::PanelToInt",                   "panels",                            ofWord<KVJHelper::PanelToInt>},
        {"KVJHelper::LaminatorWidthToInt",          "laminatorWidths",                   ofWord<KVJHelper::LaminatorWidthToInt>},
        {"KVJHelper::LaminatorRegistrationToInt",   "laminatorRegistrations",            ofWord<KVJHelper::LaminatorRegistrationToInt>},
        {"KVJStatusParser::printerStateToInt",      "status::printerStates",             ofWordBy<&KVJStatusParser::printerStateToInt>},
        {"KVJStatusParser::lamStateToInt",          "status::laminatorStates",           ofWordBy<&KVJStatusParser::lamStateToInt>},
        {"KVJStatusParser::jobStatusToInt",         "status::jobStates",                 ofWordBy<&KVJStatusParser::jobStatusToInt>},
        {"KVJStatusParser::cleaningStateToInt",     "status::cleaningStates",            ofWordBy<&KVJStatusParser::cleaningStateToInt>},
        {"KVJStatusParser::GetWirelessState",       "status::wirelessStates",            ofWordBy<&KVJStatusParser::GetWirelessState>},
        {"KVJStatusParser::GetSecurity",            "status::securityWords",             bitsOfElement<&KVJStatusParser::GetSecurity>, 0},
        {"KVJStatusParser::GetCrypto",              "status::cipherWords",               bitsOfElement<&KVJStatusParser::GetCrypto>, 0},
        {"KVJCapsParser::portTypeToInt",            "capabilities::portTypes",           ofWordBy<&KVJCapsParser::portTypeToInt>},
        {"KVJCapsParser::protocolToInt",            "capabilities::protocols",           ofWordBy<&KVJCapsParser::protocolToInt>},
        {"KVJCapsParser::transportToInt",           "capabilities::transports",          ofWordBy<&KVJCapsParser::transportToInt>},
        {"KVJCapsParser::encAlgToInt",              "capabilities::encryptionAlgorithms", ofWordBy<&KVJCapsParser::encAlgToInt>},
        {"KVJCapsParser::graphicsFormatToInt",      "capabilities::graphicFormats",      ofWordBy<&KVJCapsParser::graphicsFormatToInt>},
        {"KVJCapsParser::magHeadTypeToInt",         "capabilities::magHeadTypes",        ofWordBy<&KVJCapsParser::magHeadTypeToInt>},
        {"KVJCapsParser::magStripeLocationToInt",   "capabilities::magStripeLocations",  ofWordBy<&KVJCapsParser::magStripeLocationToInt>},
        {"KVJCapsParser::printerTypeToInt",         "capabilities::printSystems",        ofWordBy<&KVJCapsParser::printerTypeToInt>},
        {"KVJCapsParser::laminationTypeToInt",      "laminationTypes",                   ofWordBy<&KVJCapsParser::laminationTypeToInt>},
        {"KVJConfigParser::stringToErrorControl",   "configuration::errorControls",      ofWordBy<&KVJConfigParser::stringToErrorControl>},
        {"KVJConfigParser::stringToFeederMode",     "feederModes",                       ofWordBy<&KVJConfigParser::stringToFeederMode>},
        {"KVJConfigParser::GetSecurity",            "configuration::securityWords",      ofElement<&KVJConfigParser::GetSecurity>, codeBefore},
        {"KVJConfigParser::GetCrypto",              "configuration::cryptoWords",        ofElement<&KVJConfigParser::GetCrypto>, codeBefore},
        {"KVJConfigParser::getUSBSpeed",            "configuration::usbSpeeds",          ofElement<&KVJConfigParser::getUSBSpeed>, codeBefore},
        {"KVJConfigParser::getFeederMode",          "feederModes",                       ofElement<&KVJConfigParser::getFeederMode>, codeBefore},
    };
    // clang-format on
    return operations;
}

std::span<const WritingOperation> writingOperations() {
    // clang-format off
    static constexpr WritingOperation operations[] = {
        {"KVJSetConfig::RibbonNameToString",        "ribbonNames",                       wordBy<&KVJSetConfig::RibbonNameToString>},
        {"KVJSetConfig::ribbonTypeToString",        "ribbonTypesWritten",                wordBy<&KVJSetConfig::ribbonTypeToString>},
        {"KVJSetConfig::feederTypeToString",        "cardMaterials",                     wordBy<&KVJSetConfig::feederTypeToString>},
        {"KVJSetConfig::feederSmartToString",       "smartEncoders",                     wordBy<&KVJSetConfig::feederSmartToString>},
        {"KVJSetConfig::CommsChannelFromInt",       "commsChannels",                     wordBy<&KVJSetConfig::CommsChannelFromInt>, "", true},
        {"KVJSetConfig::ContactlessEncFromInt",     "contactlessEncodersWritten",        wordBy<&KVJSetConfig::ContactlessEncFromInt>, "", true},
        {"KVJSetConfig::FeederModeToString",        "feederModes",                       wordBy<&KVJSetConfig::FeederModeToString>, "hopper", true},
        {"KVJSetConfig::GetSecurity",               "configuration::securityWords",      wordBy<&KVJSetConfig::GetSecurity>, "", true},
        {"KVJSetConfig::GetCrypto",                 "configuration::cryptoWords",        wordBy<&KVJSetConfig::GetCrypto>, "", true},
        {"KVJSetCaps::portTypeToString",            "capabilities::portTypesWritten",    wordBy<&KVJSetCaps::portTypeToString>},
        {"KVJSetCaps::protocolToString",            "capabilities::protocols",           wordBy<&KVJSetCaps::protocolToString>},
        {"KVJSetCaps::transportToString",           "capabilities::transports",          wordBy<&KVJSetCaps::transportToString>},
        {"KVJSetCaps::encAlgToString",              "capabilities::encryptionAlgorithms", wordBy<&KVJSetCaps::encAlgToString>, "none"},
        {"KVJSetCaps::graphicFormatToString",       "capabilities::graphicFormats",      wordBy<&KVJSetCaps::graphicFormatToString>},
        {"KVJSetCaps::MagHeadTypeToString",         "capabilities::magHeadTypesWritten", wordBy<&KVJSetCaps::MagHeadTypeToString>},
        {"KVJSetCaps::magStripeLocationToString",   "capabilities::magStripeLocations",  wordBy<&KVJSetCaps::magStripeLocationToString>},
        {"KVJSetCaps::printTypeToString",           "laminationTypes",                   wordBy<&KVJSetCaps::printTypeToString>},
        {"KVJSetCaps::CommsChannelFromInt",         "commsChannelsInCapabilities",       wordBy<&KVJSetCaps::CommsChannelFromInt>, "", true},
        {"KVJSetCaps::ContactlessEncFromInt",       "contactlessEncodersWritten",        wordBy<&KVJSetCaps::ContactlessEncFromInt>, "", true},
        {"KVJSetCaps::ribbonTypeToString",          "ribbonTypesWritten",                wordBy<&KVJSetCaps::ribbonTypeToString>},
        {"KVJSetCaps::feederTypeToString",          "cardMaterials",                     wordBy<&KVJSetCaps::feederTypeToString>},
        {"KVJSetCaps::feederSmartToString",         "smartEncoders",                     wordBy<&KVJSetCaps::feederSmartToString>},
    };
    // clang-format on
    return operations;
}

}  // namespace kvj::tests
