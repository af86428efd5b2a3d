#include "composing_by_hand.h"

#include <arpa/inet.h>

#include <charconv>
#include <cstring>
#include <iterator>
#include <stdexcept>

namespace kvj::bench {

namespace {

using namespace Kavrin;  // the records
using Node = pugi::xml_node;

constexpr unsigned format = pugi::format_indent;
constexpr const char* indent = "    ";

/// Appends what is printed to a text.
class Writer : public pugi::xml_writer {
public:
    explicit Writer(std::string& text) : text_(&text) {}
    void write(const void* data, std::size_t size) override { text_->append(static_cast<const char*>(data), size); }

private:
    std::string* text_;
};

// ---- Values ----

void add(Node parent, const char* name, const char* text) { parent.append_child(name).text().set(text); }
void add(Node parent, const char* name, int number) { parent.append_child(name).text().set(number); }
void add(Node parent, const char* name, unsigned number) { parent.append_child(name).text().set(number); }
void addFlag(Node parent, const char* name, bool flag) { add(parent, name, flag ? "yes" : "no"); }
void addSwitch(Node parent, const char* name, bool flag) { add(parent, name, flag ? "enabled" : "disabled"); }

struct Digits {
    Digits(float value, int decimals) {
        *std::to_chars(text, std::end(text) - 1, static_cast<double>(value), std::chars_format::fixed, decimals).ptr =
            0;
    }
    char text[64];
};

void add(Node parent, const char* name, const _MinMaxVal& setting) {
    Node node = parent.append_child(name);
    node.append_attribute("min").set_value(setting.min);
    node.append_attribute("max").set_value(setting.max);
    node.text().set(setting.value);
}
void add(Node parent, const char* name, const _MinMaxValFloat& setting) {
    Node node = parent.append_child(name);
    const Digits max(setting.max, 2);
    node.append_attribute("min").set_value(Digits(setting.min, 2).text);
    node.append_attribute("max").set_value(max.text);
    node.text().set(max.text);
}

void addHardwareAddress(Node parent, const char* name, const unsigned char (&address)[6]) {
    constexpr char digits[] = "0123456789abcdef";
    char text[18];
    for (std::size_t i = 0; i < 6; ++i) {
        text[3 * i] = digits[address[i] / 16];
        text[3 * i + 1] = digits[address[i] % 16];
        text[3 * i + 2] = ':';
    }
    text[17] = '\0';
    add(parent, name, text);
}

void addIpAddress(Node parent, const char* name, unsigned long address) {
    char text[INET_ADDRSTRLEN];
    const in_addr network{static_cast<in_addr_t>(address)};
    add(parent, name, inet_ntop(AF_INET, &network, text, sizeof text));
}

/// The word at the place of its code.
template <std::size_t N>
const char* wordOf(const char* const (&words)[N], int code, const char* other = "") {
    return code >= 0 && static_cast<std::size_t>(code) < N && words[code] != nullptr ? words[code] : other;
}

constexpr const char* ribbonNames[] = {"YMCKO",  "YMCKOK", "1/2 YMCKO", "1/2 YMCKOKO", "YMCPKO", "KdO",
                                       "KrO",    "Black",  "White",     "Red",         "Blue",   "Gold",
                                       "Silver", "YMCKLL", "SrDYMCKO",  "Hologram"};
constexpr const char* security[] = {"none", "wep40", "wep104", "wpa", "wpa2", "wpa_wpa2"};
constexpr const char* crypto[] = {"none", "RC4", "TKIP", "CCMP"};
constexpr const char* errorControls[] = {"none", "med", "high"};
constexpr const char* feederModes[] = {"manual", "hopper", "alreadyinprinter", "auto"};
constexpr const char* coercivities[] = {"none", "low", "high"};
constexpr const char* transferTypes[] = {nullptr, "single", "dual"};
constexpr const char* channels[] = {nullptr, "serial", "usb"};
constexpr const char* channelsInCapabilities[] = {nullptr, "serial", "usb_2_0"};
constexpr const char* contactless[] = {nullptr, "mifare"};

// ---- Parts of a configuration ----

void addPower(Node parent, const _PowerAdjustments& power) {
    Node node = parent.append_child("user_power_adjustments");
    add(node, "yellow", power.yellow);
    add(node, "magenta", power.magenta);
    add(node, "cyan", power.cyan);
    add(node, "k-resin_front", power.kResinFront);
    add(node, "k-resin_back", power.kResinBack);
    add(node, "k-dye", power.kDye);
    add(node, "overlay", power.overlay);
    add(node, "uv_front", power.uvFront);
    add(node, "uv_back", power.uvBack);
    add(node, "helper", power.helper);
    add(node, "x-resin", power.xResin);
    add(node, "inhibit", power.inhibit);
}

void addMotor(Node parent, const _RibbonMotorParams& motor) {
    Node node = parent.append_child("ribbon_motor_parameters").append_child("takeup_motor");
    add(node, "S0", motor.S0);
    add(node, "K0", motor.K0);
    add(node, "Kb", motor.Kb);
    add(node, "Ka", motor.Ka);
    add(node, "M0", motor.M0);
    add(node, "Mb", motor.Mb);
    add(node, "Ma", motor.Ma);
}

void addMechanics(Node parent, const _MechanicalAdjustments& it) {
    Node node = parent.append_child("mech_adjustments");
    add(node, "film_print_x_offset", it.filmPrintXOffset);
    add(node, "film_print_y_offset", it.filmPrintYOffset);
    add(node, "film_transfer_start_offset", it.filmTransferStartOffset);
    add(node, "card_center_x_offset", it.cardCenterXOffset);
    add(node, "card_mag_x_offset", it.cardMagXOffset);
    add(node, "card_smart_card_x_offset", it.cardSmartCardXOffset);
    add(node, "card_smart_card_lf_x_offset", it.cardSmartCardLfXOffset);
    add(node, "card_smart_card_hf_x_offset", it.cardSmartCardHfXOffset);
    add(node, "card_smart_card_uhf_x_offset", it.cardSmartCardUhfXOffset);
    add(node, "card_center_y_offset", it.cardCenterYOffset);
    add(node, "card_transfer_start_y_offset", it.cardTransferStartYOffset);
    add(node, "card_transfer_end_y_offset", it.cardTransferEndYOffset);
    add(node, "card_transfer_roll_y_offset", it.cardTransferRollYOffset);
    add(node, "film_end_roll_transfer_offset", it.filmEndRollTransferOffset);
    add(node, "film_extra_transfer_takeup_move", it.filmExtraTransferTakeupMove);
}

void addRibbon(Node parent, const char* name, const _RibbonInfo& ribbon) {
    Node node = parent.append_child(name);
    add(node, "type", ribbon.type);
    add(node, "description", wordOf(ribbonNames, ribbon.ribbonCode - 256));
    add(node, "oem_country", ribbon.oemCountry);
    add(node, "initial_size", ribbon.initialSize);
    add(node, "panels_remaining", ribbon.panelsRemaining);
}

void addSpeeds(Node parent, const _TransferSpeedInfo& speeds) {
    Node node = parent.append_child("transfer_speeds");
    add(node, "input_single", speeds.inputSingle);
    add(node, "output_single", speeds.outputSingle);
    add(node, "input_double", speeds.inputDouble);
    add(node, "output_double", speeds.outputDouble);
}

void addCard(Node parent, const _CustomCardInfo& card) {
    Node node = parent.append_child("card");
    Node information = node.append_child("information");
    add(information, "type", card.type);
    add(information, "vessa_part_number", card.partNumber);
    add(information, "description", card.description);
    add(information, "thickness", Digits(card.thickness, 4).text);
    add(information, "coercivity", wordOf(coercivities, card.coercivity));
    addFlag(information, "mag_stripe", card.magStripe != 0);
    addFlag(information, "contact_encode", card.contactEncode != 0);
    addFlag(information, "non_contact_encode", card.nonContactEncode != 0);
    Node temps = node.append_child("transfer_temps");
    add(temps, "top_single", card.transferTemps.topSingle);
    add(temps, "bot_single", card.transferTemps.botSingle);
    add(temps, "top_double", card.transferTemps.topDouble);
    add(temps, "bot_double", card.transferTemps.botDouble);
    addSpeeds(node, card.transferSpeeds);
    add(node, "cal_table", card.calTable);
    Node adjustments = node.append_child("laminator_adjustments");
    add(adjustments, "top_temp_adjust", card.laminatorAdjustments.topTempAdjust);
    add(adjustments, "bot_temp_adjust", card.laminatorAdjustments.botTempAdjust);
    add(adjustments, "speed_adjust", card.laminatorAdjustments.speedAdjust);
}

void addTransfer(Node parent, const _ImageTransferInfo& transfer) {
    Node node = parent.append_child("transfer_settings");
    add(node, "transfer_type", wordOf(transferTypes, transfer.transferType));
    const _ImageTransferTempInfo& it = transfer.transferTemps;
    Node temps = node.append_child("transfer_temps");
    add(temps, "top_single", it.topSingle);
    add(temps, "bot_single", it.botSingle);
    add(temps, "top_double", it.topDouble);
    add(temps, "bot_double", it.botDouble);
    add(temps, "top_single_offset", it.topSingleOffset);
    add(temps, "bot_single_offset", it.botSingleOffset);
    add(temps, "top_double_offset", it.topDoubleOffset);
    add(temps, "bot_double_offset", it.botDoubleOffset);
    add(temps, "top_temp_cal", it.topTempCal);
    add(temps, "bot_temp_cal", it.botTempCal);
    add(temps, "top_temp_tilt", it.topTempTilt);
    add(temps, "bot_temp_tilt", it.botTempTilt);
    addSpeeds(node, transfer.transferSpeeds);
}

void addLaminate(Node parent, const char* name, const _Laminate& laminate, const char* fine, const char* temperature) {
    Node node = parent.append_child(name);
    Node installed = node.append_child("laminate_installed");
    const _LaminateInstalled& it = laminate.laminateInstalled;
    add(installed, "type", it.type);
    add(installed, "description", it.description);
    add(installed, "thickness", it.thickness);
    add(installed, "registration", it.registration);
    add(installed, "width", it.width);
    add(installed, "oem_country", it.oemCountry);
    add(installed, "initial_size", it.initialSize);
    add(installed, "panels_remaining", it.panelsRemaining);
    Node control = node.append_child("laminate_control");
    add(control, fine, laminate.laminateControl.xFineAdjustment);
    add(control, temperature, laminate.laminateControl.temperatureAdjustment);
}

void addLamination(Node parent, const _LaminationIfo& lamination) {
    const bool withTop = lamination.topLaminate.laminatePresent;
    if (!withTop && !lamination.bottomLaminate.laminatePresent) return;
    Node node = parent.append_child("lamination");
    Node common = node.append_child("laminate_common");
    add(common, "patch_length_adj", lamination.laminateCommon.patchLengthAdj);
    add(common, "coarse_x_offset", lamination.laminateCommon.coarseXOffset);
    add(common, "speed_adjust", lamination.laminateCommon.speedAdjust);
    add(common, "passthru_speed_adj", lamination.laminateCommon.passthruSpeedAdj);
    if (!withTop) return;
    addLaminate(node, "top_laminate", lamination.topLaminate, "top_x_adj_fine_offset", "top_temp_adjust");
    addLaminate(node, "bottom_laminate", lamination.bottomLaminate, "bot_x_adj_fine_offset", "bot_temp_adjust");
}

void addLanguage(Node parent, const _OCPLanguageCaps& language) {
    Node node = parent.append_child("ocp_language");
    add(node, "type", language.type);
    add(node, "name", language.name);
}

template <std::size_t N>
void addEncoder(Node parent, const _InternalEncoderInfo& encoder, const char* const (&words)[N]) {
    Node node = parent.append_child("internal_encoder");
    add(node, "comms_channel", wordOf(words, encoder.contactlessEncoder));
    addFlag(node, "contact_encoding", encoder.contactEncoding);
    add(node, "contactless_encoder", wordOf(contactless, encoder.contactlessEncoder));
}

// ---- Parts of capabilities ----

void addPorts(Node parent, const char* list, const char* name, const std::vector<_PortCaps>& ports) {
    constexpr const char* types[] = {"usb_2_0", "serial", "ethernet_10_100", "ethernet_10_100_1G"};
    if (ports.empty()) return;
    Node node = parent.append_child(list);
    for (const _PortCaps& port : ports) {
        Node entry = node.append_child(name);
        add(entry, "port_id", port.portId);
        add(entry, "type", wordOf(types, port.portType));
    }
}

void addInterfaces(Node parent, const std::vector<_InterfaceCaps>& interfaces) {
    constexpr const char* protocols[] = {"snmp", "snmp_trap", "http", "kavrin"};
    constexpr const char* transports[] = {"udp", "tcp", "usb", "usb_2_0"};
    if (interfaces.empty()) return;
    Node node = parent.append_child("software_interfaces");
    for (const _InterfaceCaps& it : interfaces) {
        Node entry = node.append_child("software_interface");
        add(entry, "protocol", wordOf(protocols, it.protocol));
        add(entry, "transport", wordOf(transports, it.transport));
        add(entry, "port", it.port);
    }
}

void addLevels(Node parent, int levels) {
    constexpr const char* words[] = {"off", "normal", "high", "low"};
    Node node = parent.append_child("image_sharpening_levels");
    for (int i = 0; i < 4; ++i) {
        if ((levels & (1 << i)) != 0) add(node, "image_sharpening_level", words[i]);
    }
}

void addPage(Node parent, const char* name, int length, int width) {
    Node node = parent.append_child(name);
    add(node, "length", length);
    add(node, "width", width);
}

}  // namespace

Node PugixmlComposer::begin(const char* root) {
    document_.reset();
    text_.clear();
    Node declaration = document_.append_child(pugi::node_declaration);
    declaration.append_attribute("version").set_value("1.0");
    declaration.append_attribute("encoding").set_value("UTF-8");
    return document_.append_child(root);
}

const std::string& PugixmlComposer::printed() {
    Writer writer(text_);
    document_.print(writer, indent, format);
    return text_;
}

const std::string& PugixmlComposer::configuration(const _KVConfiguration& values) {
    Node root = begin("configuration");
    addHardwareAddress(root, "physical_address", values.physicalAddress);

    Node wired = root.append_child("ethernet");
    addIpAddress(wired, "ip_address", values.ethernet.ipAddress);
    addIpAddress(wired, "gateway", values.ethernet.gateway);
    addIpAddress(wired, "subnet_mask", values.ethernet.subnetMask);
    addSwitch(wired, "dhcp", values.ethernet.dhcp);
    addSwitch(wired, "snmp", values.ethernet.snmp);

    Node wireless = root.append_child("ethernet");
    addIpAddress(wireless, "ip_address", values.wireless.ipAddress);
    addIpAddress(wireless, "gateway", values.wireless.gateway);
    addIpAddress(wireless, "subnet_mask", values.wireless.subnetMask);
    addSwitch(wireless, "dhcp", values.wireless.dhcp);
    addSwitch(wireless, "snmp", values.wireless.snmp);
    addSwitch(wireless, "radio", values.wireless.radio);
    add(wireless, "security", wordOf(security, values.wireless.security));
    add(wireless, "crypto", wordOf(crypto, values.wireless.crypto));
    add(wireless, "ssid", values.wireless.ssid);
    addHardwareAddress(wireless, "bssid", values.wireless.bssid);
    add(wireless, "channel", values.wireless.channel);
    add(wireless, "key", values.wireless.key);

    addLanguage(root, values.ocpLanguage);
    add(root, "error_control", wordOf(errorControls, values.errorControl, "med"));
    add(root, "usb_speed", values.usbSpeed == usbSpeedFull ? "full" : "high");
    Node counters = root.append_child("usage_counters");
    add(counters, "num_cards_printed", values.numCardsPrinted);
    add(counters, "num_lines_printed", values.numLinesPrinted);
    add(root, "standby_timeout", values.standbyTimeout);

    Node imaging = root.append_child("imaging_parameters");
    add(imaging, "printhead_resistance", values.imagingParameters.printheadResistance);
    addPower(imaging, values.imagingParameters.userPowerAdjustments);
    addMotor(root, values.ribbonMotorParameters);
    add(root, "ribbon_sensor_offset", values.ribbonSensorOffset);
    addMechanics(root, values.mechAdjustments);
    Node usb = root.append_child("usb_timeout");
    add(usb, "read", values.usbTimeout.read);
    add(usb, "write", values.usbTimeout.write);
    Node media = root.append_child("media_info");
    addRibbon(media, "ribbon", values.ribbon);
    addRibbon(media, "film", values.film);

    addLamination(root, values.lamination);
    add(root.append_child("cleaning"), "cleaning_deadline_is_soft", values.cleaning.cleaningDeadlineIsSoft);
    Node thresholds = root.append_child("cleaning_thresholds");
    add(thresholds, "alcohol_card_cleaning", values.cleaning.alcoholCardCleaning);
    add(thresholds, "pre_warning", values.cleaning.preWarning);
    add(root, "feeder_mode", wordOf(feederModes, values.feederMode, "hopper"));
    Node cards = root.append_child("cards");
    addCard(cards, values.customCard1);
    addCard(cards, values.customCard2);
    addTransfer(root, values.transferSettings);
    add(root, "lcd_contrast", values.lcdContrast);
    addEncoder(root, values.internalEncoder, channels);
    return printed();
}

const std::string& PugixmlComposer::capabilities(const kvjxml::capabilities& caps) {
    constexpr const char* formats[] = {nullptr, "bmp",   "jpeg", nullptr, nullptr, nullptr,
                                       nullptr, nullptr, "tga",  "tiff",  "raw"};
    constexpr const char* algorithms[] = {nullptr, "aes", "3des"};
    constexpr const char* styles[] = {nullptr, "regular", "bold", "italic"};
    constexpr const char* sides[] = {nullptr, "1_side", "2_side"};
    constexpr const char* laminators[] = {"none", "1_side", "2_side"};
    Node root = begin("capabilities");
    addPorts(root, "host_ports", "host_port", caps.hostPorts);
    addPorts(root, "device_ports", "device_port", caps.devicePorts);
    addInterfaces(root, caps.swInterfaces);
    if (!caps.ocpLanguages.empty()) {
        Node languages = root.append_child("ocp_languages");
        for (const _OCPLanguageCaps& language : caps.ocpLanguages) addLanguage(languages, language);
    }
    addLevels(root, caps.imageSharpeningLevels);
    Node protection = root.append_child("security");
    addFlag(protection, "passkey_protection", caps.security.passkeyProtection);
    add(protection, "encryption_algorithm", wordOf(algorithms, caps.security.encryptionAlgorithm, "none"));
    Node memory = root.append_child("memory");
    add(memory, "ram", caps.ramSize);
    add(memory, "flash", caps.flashSize);
    Node graphicFormats = root.append_child("graphic_formats");
    for (const int code : caps.graphicFormats) add(graphicFormats, "graphic_format", wordOf(formats, code));
    Node fonts = root.append_child("fonts");
    for (const _FontCaps& font : caps.fonts) {
        Node node = fonts.append_child("font");
        add(node, "name", font.name);
        addFlag(node, "name", font.scalable);
        add(node, "style", wordOf(styles, font.style, "none"));
    }
    Node templates = root.append_child("templates");
    for (const _TemplateCaps& it : caps.templates) add(templates.append_child("template"), "name", it.name);
    Node graphics = root.append_child("graphics");
    for (const _TemplateCaps& it : caps.graphics) {
        Node node = graphics.append_child("graphic");
        add(node, "name", it.name);
        add(node, "location", it.location);
    }
    add(root, "print_system", "retransfer");
    add(root, "print_type", wordOf(sides, caps.printType));
    add(root, "laminator", caps.laminator ? "present" : "notpresent");
    const char* const laminator = caps.laminator ? wordOf(laminators, caps.laminatorType) : "notpresent";
    if (caps.laminator) add(root, "laminator_type", laminator);
    Node path = root.append_child("media_path");
    addFlag(path, "atm", caps.atm);
    add(path, "magazine_capacity", caps.magazineCapacity);
    Node image = root.append_child("image");
    addPage(image, "logical_page", caps.logicalPageLength, caps.logicalPageWidth);
    addPage(image, "physical_page", caps.physicalPageLength, caps.physicalPageWidth);
    add(image, "print_resolution", caps.printResolution);
    add(root, "mag_encoder", laminator);
    add(root, "mag_stripe", laminator);
    addEncoder(root, caps.internalEncoder, channelsInCapabilities);
    Node barCodes = root.append_child("barcodes");
    for (const _BarCodeCaps& barCode : caps.barCodes) add(barCodes, "barcode", barCode.name);
    return printed();
}

const std::string& PugixmlComposer::printerId(const KVPrinterInfo& info) {
    Node root = begin("printer_id");
    add(root, "vendor", info.vendor);
    add(root, "printer_model", info.printer_model);
    add(root, "printer_serial", info.printer_serial);
    add(root, "laminator_serial", info.laminator_serial);
    addHardwareAddress(root, "physical_address", info.physical_address);
    add(root, "printhead_serial", info.printhead_serial);
    add(root, "oem_country", info.oem_country);
    char hex[11] = "0x0";
    *std::to_chars(hex + (info.media_auth_cfg < 16 ? 3 : 2), std::end(hex) - 1, info.media_auth_cfg, 16).ptr = '\0';
    add(root, "media_auth_cfg", hex);
    add(root, "firmware_version", info.firmware_version);
    add(root, "kavrin_version", info.kavrin_version);
    add(root, "ethernet_deviceid", info.ethernet_deviceid);
    addHardwareAddress(root, "wireless_physical_address", info.wireless_physical_address);
    return printed();
}

std::string asPugixmlPrints(const std::string& request) {
    pugi::xml_document document;
    if (!document.load_string(request.c_str(), pugi::parse_default | pugi::parse_declaration)) {
        throw std::runtime_error("pugixml does not read the request");
    }
    std::string text;
    Writer writer(text);
    document.print(writer, indent, format);
    return text;
}

}  // namespace kvj::bench
