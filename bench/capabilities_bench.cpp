// What reading and composing a whole description of a printer costs. See README.md.
#include <KVJCapsParser.h>
#include <KVJSetCaps.h>

#include <memory>

#include "reading.h"

namespace {

using namespace kvj::bench;

/// A record with room for the sample.
struct Description {
    Kavrin::_PortCaps hostPorts[8]{};
    Kavrin::_PortCaps devicePorts[8]{};
    Kavrin::_InterfaceCaps swInterfaces[8]{};
    Kavrin::_OCPLanguageCaps ocpLanguages[8]{};
    int graphicFormats[8]{};
    Kavrin::_FontCaps fonts[8]{};
    Kavrin::_TemplateCaps templates[8]{};
    Kavrin::_TemplateCaps graphics[8]{};
    Kavrin::_BarCodeCaps barCodes[16]{};
    Kavrin::_Capabilities caps{};

    Description() {
        caps.hostPortCount = caps.devicePortCount = caps.swInterfaceCount = caps.ocpLanguageCount = 8;
        caps.graphicFormatCount = caps.fontCount = caps.templateCount = caps.graphicCount = 8;
        caps.barCodeCount = 16;
        caps.hostPorts = hostPorts;
        caps.devicePorts = devicePorts;
        caps.swInterfaces = swInterfaces;
        caps.ocpLanguages = ocpLanguages;
        caps.graphicFormats = graphicFormats;
        caps.fonts = fonts;
        caps.templates = templates;
        caps.graphics = graphics;
        caps.barCodes = barCodes;
    }
    Kavrin::_Capabilities& begin() { return caps; }
    [[nodiscard]] bool isFilled() const { return caps.fontCount == 8 && fonts[0].name[0] != '\0' && caps.ramSize != 0; }
};

void read(const std::wstring& reply, Kavrin::_Capabilities& caps) {
    Kavrin::KVJCapsParser().GetCapabilities(reply.front(), static_cast<int>(reply.size()), caps);
}

bool compose(const Description& description, std::vector<wchar_t>& out) {
    return Kavrin::KVJSetCaps().SetCapabilities(description.caps, out.data(), static_cast<int>(out.size()), 0, false);
}

std::vector<Task> tasks() {
    const std::string text = sample("capabilities");
    const std::wstring reply = wide(text);
    const auto description = std::make_shared<Description>();
    const auto out = std::make_shared<std::vector<wchar_t>>(65536);
    read(reply, description->caps);
    Kavrin::KVJSetCaps model;
    if (!model.SetCapabilities(description->caps, out->data(), static_cast<int>(out->size()), 0, false)) return {};
    const std::wstring composed = out->data();
    const std::string request(composed.begin(), composed.end());
    const auto byHand = std::make_shared<ByHand>(model);
    return {reading<Description>(
                "read", text.size(), [=](auto& caps) { read(reply, caps); },
                [=](const Rival& rival, auto& caps) { rival.readCapabilities(reply, caps); },
                [=] { return parse(narrow(reply).get()); }),
            {"compose",
             request.size(),
             {{"library", [=] { return compose(*description, *out); }},
              {"floor", [=] { return byHand->compose(*out) && composed == out->data(); }, 1.10}}}};
}

}  // namespace

int main(int argc, char** argv) { return runContest(argc, argv, tasks); }
