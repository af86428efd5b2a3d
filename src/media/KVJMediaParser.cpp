#include "KVJMediaParser.h"

#include "foundation/reply.h"
#include "media/tables.h"

namespace Kavrin {

using kvj::walk;
namespace tables = kvj::media;

namespace {

template <class Table>
bool read(kvj::Element element, _KVMediaInfo& media, const Table& table) {
    tables::Catalogue catalogue{&media};
    return walk(element, catalogue, table);
}

}  // namespace

bool KVJMediaParser::GetMedia(const char& text, int /*length*/, _KVMediaInfo& media) {
    read(kvj::Reply(&text).root("media"), media, tables::catalogue);
    return false;  // Whatever was read: hosts look at the lists.
}

bool KVJMediaParser::parseMedia(TiXmlElement* root, _KVMediaInfo& media) {
    return read(root, media, tables::catalogue);
}

bool KVJMediaParser::getCardsInfo(TiXmlElement* section, _KVMediaInfo& media) {
    return read(section, media, tables::cards);
}

bool KVJMediaParser::getFilmsInfo(TiXmlElement* section, _KVMediaInfo& media) {
    return read(section, media, tables::films);
}

bool KVJMediaParser::getRibbonsInfo(TiXmlElement* section, _KVMediaInfo& media) {
    return read(section, media, tables::ribbons);
}

bool KVJMediaParser::getLaminatesInfo(TiXmlElement* section, _KVMediaInfo& media) {
    return read(section, media, tables::laminates);
}

bool KVJMediaParser::getCardInfo(TiXmlElement* entry, _KVMediaInfo& media) {
    tables::Catalogue catalogue{&media};
    return tables::newCard.read(entry, catalogue);
}

bool KVJMediaParser::getFilmInfo(TiXmlElement* entry, _KVMediaInfo& media) {
    tables::Catalogue catalogue{&media};
    return tables::newFilm.read(entry, catalogue);
}

bool KVJMediaParser::getRibbonInfo(TiXmlElement* entry, _KVMediaInfo& media) {
    tables::Catalogue catalogue{&media};
    return tables::newRibbon.read(entry, catalogue);
}

bool KVJMediaParser::getLaminateInfo(TiXmlElement* entry, _KVMediaInfo& media) {
    tables::Catalogue catalogue{&media};
    return tables::newLaminate.read(entry, catalogue);
}

bool KVJMediaParser::getCardInformation(TiXmlElement* element, _CardInfo& card) {
    return walk(element, card, kvj::cardInformation<_CardInfo>);
}

bool KVJMediaParser::getTransferTemp(TiXmlElement* element, _TransferTempInfo& temperatures) {
    return walk(element, temperatures, tables::transferTemps);
}

bool KVJMediaParser::getTransferSpeed(TiXmlElement* element, _TransferSpeedInfo& speeds) {
    return walk(element, speeds, tables::transferSpeeds);
}

bool KVJMediaParser::getLaminationAdjustments(TiXmlElement* element, _LaminationAdjustmentsNew& adjustments) {
    return walk(element, adjustments, tables::laminationAdjustments);
}

}  // namespace Kavrin
