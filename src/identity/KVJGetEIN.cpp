#include "KVJGetEIN.h"

#include "foundation/reply.h"
#include "identity/logs.h"

namespace Kavrin {

using kvj::Reply;
using kvj::walk;
namespace tables = kvj::identity;

bool KVJGetEIN::GetMagneticTracks(const char& reply, int /*ignored*/, __GETTRACK& tracks) {
    return walk(Reply(&reply).root("data"), tracks, tables::magneticTracks);
}

bool KVJGetEIN::parseMag(TiXmlElement* element, __GETTRACK& tracks) {
    return walk(element, tracks, tables::magneticTracks);
}

bool KVJGetEIN::parseTrack(TiXmlElement* element, __GETTRACK& tracks) { return walk(element, tracks, tables::track); }

}  // namespace Kavrin
