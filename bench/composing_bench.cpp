// What composing a request as text costs. See README.md.
#include <KVJCapsParser.h>
#include <KVJConfigParser.h>
#include <KVJPrinterIDParser.h>
#include <KVJSetCaps.h>
#include <KVJSetConfig.h>
#include <KVJSetPrinterInfo.h>

#include <cstdio>
#include <kvjxml_compose.hpp>
#include <memory>
#include <stdexcept>

#include "composing_by_hand.h"
#include "contest.h"

namespace {

using namespace kvj::bench;

// ---- Records of the samples, changed so that all of them is sent as it is asked for ----

void sendAsAsked(Kavrin::_MinMaxValFloat& setting) { setting.value = setting.max; }
void sendAsAsked(Kavrin::_TransferSpeedInfo& speeds) {
    sendAsAsked(speeds.inputSingle);
    sendAsAsked(speeds.outputSingle);
    sendAsAsked(speeds.inputDouble);
    sendAsAsked(speeds.outputDouble);
}
void sendAsAsked(Kavrin::_CustomCardInfo& card) {
    sendAsAsked(card.transferSpeeds);
    sendAsAsked(card.laminatorAdjustments.speedAdjust);
}

Kavrin::_KVConfiguration configurationOfSample() {
    Kavrin::_KVConfiguration values{};
    Kavrin::KVJConfigParser().GetConfiguration(sample("configuration").c_str(), 0, values);
    auto& motor = values.ribbonMotorParameters;
    for (auto* setting : {&motor.S0, &motor.K0, &motor.Kb, &motor.Ka, &motor.M0, &motor.Mb, &motor.Ma}) {
        sendAsAsked(*setting);
    }
    sendAsAsked(values.customCard1);
    sendAsAsked(values.customCard2);
    sendAsAsked(values.transferSettings.transferSpeeds);
    values.ribbon.ribbonCode = values.film.ribbonCode = 256;
    values.lamination.topLaminate.laminatePresent = true;
    return values;
}

/// Reads into lists that have room for as many entries as the sample has.
kvjxml::capabilities capabilitiesOfSample() {
    kvjxml::capabilities caps;
    Kavrin::_Capabilities plain{};
    const std::wstring reply = wide(sample("capabilities"));
    const auto read = [&] { Kavrin::KVJCapsParser().GetCapabilities(reply[0], static_cast<int>(reply.size()), plain); };
    read();  // says how many there are
    const auto provide = [](auto& list, int count, auto*& entries) {
        list.resize(static_cast<std::size_t>(count));
        entries = list.data();
    };
    provide(caps.hostPorts, plain.hostPortCount, plain.hostPorts);
    provide(caps.devicePorts, plain.devicePortCount, plain.devicePorts);
    provide(caps.swInterfaces, plain.swInterfaceCount, plain.swInterfaces);
    provide(caps.ocpLanguages, plain.ocpLanguageCount, plain.ocpLanguages);
    provide(caps.graphicFormats, plain.graphicFormatCount, plain.graphicFormats);
    provide(caps.fonts, plain.fontCount, plain.fonts);
    provide(caps.templates, plain.templateCount, plain.templates);
    provide(caps.graphics, plain.graphicCount, plain.graphics);
    provide(caps.barCodes, plain.barCodeCount, plain.barCodes);
    plain.imageSharpeningLevels = 0;
    read();
    static_cast<Kavrin::_Capabilities&>(caps) = plain;  // The lists stay where they are.
    for (auto& port : caps.hostPorts) port.portType %= 4;
    for (auto& port : caps.devicePorts) port.portType %= 4;
    for (auto& font : caps.fonts) font.style = 1;
    for (auto& name : caps.graphicFormats) {
        if (name < 1) name = 1;
    }
    caps.internalEncoder.contactlessEncoder = 1;
    return caps;
}

Kavrin::KVPrinterInfo identityOfSample() {
    Kavrin::KVPrinterInfo info{};
    const std::string reply = sample("printer_id");
    Kavrin::KVJPrinterIDParser().ParsePrinterInfo(reply.c_str(), static_cast<int>(reply.size()), info);
    return info;
}

// ---- The contenders ----

/// @param ask    composes with some options
/// @param named  composes with the named operation
/// @param byHand composes with pugixml
template <class Ask, class Named, class ByHand>
Task composing(const char* name, Ask ask, Named named, ByHand byHand) {
    const auto composed = ask(kvjxml::options{});
    if (!composed) {
        const auto& first = composed.problems().front();
        throw std::runtime_error(std::string(name) + " is refused for " + first.field + ": " + first.asked);
    }
    const std::string& text = composed.text();
    const auto wideText = std::make_shared<std::vector<wchar_t>>(65536);
    const auto pugixml = std::make_shared<PugixmlComposer>();
    constexpr double half = 0.5;
    return {name,
            text.size(),
            {{"face", [=] { return ask(kvjxml::options{}).problems().empty(); }},
             {"accepting", [=] { return ask(kvjxml::accept_changes{}).problems().empty(); }},
             {"named", [=] { return named(*wideText); }, half},
             {"pugixml", [=] { return !byHand(*pugixml).empty(); }, 1.0}},
            [=] {
                if (!named(*wideText) || wide(text) != wideText->data()) {
                    throw std::runtime_error("the face and the named operation differ");
                }
                if (asPugixmlPrints(text) != asPugixmlPrints(byHand(*pugixml))) {
                    throw std::runtime_error("the request by hand on pugixml says something else");
                }
            }};
}

std::vector<Task> tasks() {
    // The two lines that reading a ribbon's name writes are for a terminal, not for a measurement.
    if (std::freopen("/dev/null", "w", stderr) == nullptr) return {};
    const auto values = std::make_shared<Kavrin::_KVConfiguration>(configurationOfSample());
    const auto caps = std::make_shared<kvjxml::capabilities>(capabilitiesOfSample());
    const auto info = std::make_shared<Kavrin::KVPrinterInfo>(identityOfSample());
    const auto plain = std::make_shared<Kavrin::_Capabilities>(*caps);
    const auto size = [](const std::vector<wchar_t>& out) { return static_cast<int>(out.size()); };
    const auto all = static_cast<long>(kvjxml::section::all);
    return {
        composing(
            "configuration",
            [=](const kvjxml::options& options) { return kvjxml::compose(*values, kvjxml::section::all, options); },
            // Without the copy in a file, which the text has not either.
            [=](std::vector<wchar_t>& out) {
                Kavrin::KVJSetConfig document;
                document.LinkEndChild(new TiXmlDeclaration("1.0", "UTF-8", ""));
                TiXmlElement* root = document.LinkEndChild(new TiXmlElement("configuration"))->ToElement();
                return document.addConfiguration(root, *values, all, 0) && print(document, out);
            },
            [=](PugixmlComposer& pugixml) -> const std::string& { return pugixml.configuration(*values); }),
        composing(
            "capabilities", [=](const kvjxml::options& options) { return kvjxml::compose(*caps, options); },
            [=](std::vector<wchar_t>& out) {
                return Kavrin::KVJSetCaps().SetCapabilities(*plain, out.data(), size(out), 0, false);
            },
            [=](PugixmlComposer& pugixml) -> const std::string& { return pugixml.capabilities(*caps); }),
        composing(
            "printer_id", [=](const kvjxml::options& options) { return kvjxml::compose(*info, options); },
            [=](std::vector<wchar_t>& out) {
                Kavrin::KVJSetPrinterInfo document;
                document.LinkEndChild(new TiXmlDeclaration("1.0", "UTF-8", ""));
                TiXmlElement* root = document.LinkEndChild(new TiXmlElement("printer_id"))->ToElement();
                return document.addPrinterInfo(root, *info) && print(document, out);
            },
            [=](PugixmlComposer& pugixml) -> const std::string& { return pugixml.printerId(*info); }),
    };
}

}  // namespace

int main(int argc, char** argv) { return runContest(argc, argv, tasks); }
