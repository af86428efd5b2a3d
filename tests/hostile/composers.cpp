#include "hostile/composers.h"

#include <KVJDeviceControl.h>
#include <KVJSetCaps.h>
#include <KVJSetConfig.h>
#include <KVJSetMedia.h>
#include <KVJSetPrinterInfo.h>
#include <KVJSetSecActions.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <vector>

namespace kvj::tests {

namespace {

using Kavrin::KVJSetSecActions;

// ---- The examples: texts are long, so that each takes an allocation of its own ----

bool motor(KVJDeviceControl& control, char* out, int capacity) {
    return control.RunMotorCommand(1, 1, 40, 3, out, capacity);
}

bool motorMode(KVJDeviceControl& control, char* out, int capacity) {
    return control.RunMotorCommand(nullptr, 2, 3, 12.5F, 0, true, out, capacity);
}

bool cam(KVJDeviceControl& control, char* out, int capacity) {
    char name[] = "a cam with a name of some length & more";
    char state[] = "a state with a name of some length";
    return control.RunCamCommand(name, state, out, capacity);
}

bool calibrate(KVJDeviceControl& control, char* out, int capacity) {
    return control.RunCalibrateCommand(nullptr, 1, 0.75F, 60, out, capacity);
}

bool other(KVJDeviceControl& control, char* out, int capacity) {
    char device[] = "laminator";
    char text[] = "scal 2";
    return control.RunOtherCommands(device, text, nullptr, false, out, capacity);
}

bool rfid(KVJDeviceControl& control, char* out, int capacity) {
    char device[] = "rfid";
    return control.RunRFIDCommands(device, 2, 1, out, capacity);
}

bool nonce(KVJSetSecActions& actions, wchar_t* out, int capacity) {
    char value[] = "5F3A90C15F3A90C15F3A90C15F3A90C1";
    return actions.GetNonceXML(value, out, capacity);
}

bool actionRequest(KVJSetSecActions& actions, wchar_t* out, int capacity) {
    Kavrin::_tagSecActionXMLValues values{"reset_printer_serial_number", "a printer of some model", "serial 000417",
                                          "5F3A90C15F3A90C1", nullptr};
    return actions.SecureActionRequestXML(values, out, capacity);
}

bool actionDirective(KVJSetSecActions& actions, wchar_t* out, int capacity) {
    Kavrin::_tagSecActionXMLValues values{nullptr, "a printer of some model", "serial 000417", "5F3A90C15F3A90C1",
                                          "9b1d9b1d9b1d9b1d9b1d"};
    return actions.SecureActionDirectiveXML(values, out, capacity, 30);
}

bool passkey(KVJSetSecActions& actions, wchar_t* out, int capacity) {
    char value[] = "a passkey <of some length>";
    return actions.GetSecureActionXML(value, out, capacity);
}

bool passkeyChange(KVJSetSecActions& actions, wchar_t* out, int capacity) {
    char current[] = "the old one of some length";
    char next[] = "the new one";
    return actions.GetPasskeyXML(current, next, out, capacity);
}

bool keys(KVJSetSecActions& actions, wchar_t* out, int capacity) {
    Kavrin::_tagSecKeys values{"d0d0d0d0d0d0d0d0d0d0d0d0", "a1a1a1a1a1a1a1a1a1a1a1a1", "c2"};
    return actions.SetSecureActionXML(values, out, capacity);
}

bool keyChange(KVJSetSecActions& actions, wchar_t* out, int capacity) {
    char current[] = "the old one of some length";
    char oldKey[] = "a0a0a0a0a0a0a0a0a0a0a0a0";
    char newKey[] = "a1";
    return actions.SetHostAndEncryptXML(out, capacity, current, oldKey, newKey, oldKey, newKey, oldKey, newKey, true,
                                        true, true);
}

bool capabilities(Kavrin::KVJSetCaps& composer, int mode, wchar_t* out, int capacity) {
    static Kavrin::_PortCaps ports[] = {{1, 1}, {2, 3}};
    static Kavrin::_InterfaceCaps interfaces[] = {{2, 1, 80}};
    static Kavrin::_OCPLanguageCaps languages[] = {{1, "a language with a name of some length"}};
    static int formats[] = {1, 2};
    static Kavrin::_FontCaps fonts[] = {{"a font with a name of some length", true, 2}};
    static Kavrin::_TemplateCaps stored[] = {{"a name of some length", "a location of some length"}};
    static Kavrin::_BarCodeCaps barCodes[] = {{"a bar code with a name of some length"}};
    Kavrin::_Capabilities caps{};
    caps.hostPortCount = caps.devicePortCount = 2;
    caps.hostPorts = caps.devicePorts = ports;
    caps.swInterfaceCount = caps.ocpLanguageCount = caps.fontCount = caps.templateCount = caps.graphicCount =
        caps.barCodeCount = 1;
    caps.swInterfaces = interfaces;
    caps.ocpLanguages = languages;
    caps.imageSharpeningLevels = 0xF;
    caps.graphicFormatCount = 2;
    caps.graphicFormats = formats;
    caps.fonts = fonts;
    caps.templates = caps.graphics = stored;
    caps.internalEncoder = {1, true, 1, 0, true};
    caps.barCodes = barCodes;
    return composer.SetCapabilities(caps, out, capacity, mode, false);
}

template <int Mode>
bool capabilities(Kavrin::KVJSetCaps& composer, wchar_t* out, int capacity) {
    return capabilities(composer, Mode, out, capacity);
}

bool configuration(Kavrin::KVJSetConfig& composer, wchar_t* out, int capacity) {
    Kavrin::_KVConfiguration values{};
    std::strcpy(values.wireless.ssid, "a network of some length");
    values.lamination.topLaminate.laminatePresent = true;
    constexpr long allSections = 0x4FFFFF;
    return composer.SetConfiguration(values, out, capacity, allSections, 0, false);
}

Kavrin::_CardInfo exampleCard = [] {
    Kavrin::_CardInfo card{};
    std::strcpy(card.description, "a card of some description");
    return card;
}();
std::vector<Kavrin::_CardInfo*> exampleCards{&exampleCard, &exampleCard};

bool media(Kavrin::KVJSetMedia& composer, wchar_t* out, int capacity) {
    struct Catalogue : Kavrin::_KVMediaInfo {
        Catalogue() { cards = &exampleCards; }
        ~Catalogue() { cards = nullptr; }  // Else it would release them.
    } catalogue;
    return composer.SetMedia(catalogue, out, capacity, 1, false);
}

bool printerInfo(Kavrin::KVJSetPrinterInfo& composer, wchar_t* out, int capacity) {
    Kavrin::KVPrinterInfo info{};
    std::strcpy(info.printer_model, "a printer of some model");
    std::strcpy(info.printhead_serial, "a print head with a number");
    return composer.SetPrinterInfo(info, out, capacity, 0x3);
}

// ---- The table ----

template <class Function>
struct Arguments;
template <class Document_, class Character_>
struct Arguments<bool (*)(Document_&, Character_*, int)> {
    using Document = Document_;
    using Character = Character_;
};

template <auto Example>
class ComposingExample : public Composing {
public:
    bool compose() override {
        document_.Clear();  // Some add to what is there.
        std::ranges::fill(out_, Character{});
        return Example(document_, out_, static_cast<int>(std::size(out_)));
    }
    [[nodiscard]] std::string text() const override {
        std::string text;
        for (const Character c : out_) {
            if (c == 0) break;
            text += static_cast<char>(c);  // All of it is ASCII.
        }
        return text;
    }

private:
    using Character = typename Arguments<decltype(Example)>::Character;
    typename Arguments<decltype(Example)>::Document document_;
    Character out_[32'768]{};
};

template <auto Example>
std::unique_ptr<Composing> begin() {
    return std::make_unique<ComposingExample<Example>>();
}

constexpr const char* commandCopy = "/tmp/composedXML";

constexpr Composer table[] = {
    {"motor", commandCopy, begin<motor>},
    {"motor-mode", commandCopy, begin<motorMode>},
    {"cam", commandCopy, begin<cam>},
    {"calibrate", commandCopy, begin<calibrate>},
    {"other", commandCopy, begin<other>},
    {"rfid", commandCopy, begin<rfid>},
    {"nonce", nullptr, begin<nonce>},
    {"secure-action-request", nullptr, begin<actionRequest>},
    {"secure-action-directive", nullptr, begin<actionDirective>},
    {"passkey", nullptr, begin<passkey>},
    {"passkey-change", nullptr, begin<passkeyChange>},
    {"keys", nullptr, begin<keys>},
    {"key-change", nullptr, begin<keyChange>},
    {"capabilities", nullptr, begin<capabilities<0>>},
    {"capabilities, magnetic encoder", nullptr, begin<capabilities<1>>},
    {"capabilities, smart-card encoder", nullptr, begin<capabilities<2>>},
    {"configuration", "/tmp/firmwaresettings", begin<configuration>},
    {"media", nullptr, begin<media>},
    {"printer-id", "/tmp/printidsettings", begin<printerInfo>},
};

}  // namespace

std::span<const Composer> composers() { return table; }

std::string textOf(const Composer& composer) {
    const auto composing = composer.begin();
    return composing->compose() ? composing->text() : "";
}

}  // namespace kvj::tests
