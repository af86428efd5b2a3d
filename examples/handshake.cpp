// Walks through the hand-shake that protects a printer's administrative actions.
//
//     handshake ACTION DIGEST nonce.xml diffie_hellman.xml action.xml
//
// The files are the printer's replies in the order in which they come; what the host sends goes to standard output. The
// library carries the values and computes no cipher: DIGEST stands for what a host makes of the keys. Ends with 1 at
// the first value that cannot be trusted. Keys are not shown, and neither is a text that may hold one.
#include <kvjxml.hpp>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace {

using Exchange = Kavrin::_tagHostDHKeys;
using Directive = Kavrin::_tagSecDirecXML;

[[noreturn]] void giveUp(const std::string& why) {
    std::cerr << why << '\n';
    std::exit(1);
}

/// A reply that is whole, and of which nothing was lost: half a key is a key to a reader.
template <class Message>
kvjxml::diagnosed_reading<Message> trusted(const char* file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    auto reading = kvjxml::read<Message>(bytes, kvjxml::diagnose);
    if (!reading) giveUp(file + (": " + reading.error().message()));
    if (!reading.whole()) giveUp(file + std::string(": the reply is damaged"));
    for (const kvjxml::finding& found : reading.findings()) {
        if (found.level == kvjxml::severity::note) continue;
        giveUp(file + (": " + found.path + ": ") + to_string(found.kind).data());
    }
    return reading;
}

void send(const kvjxml::composed& request) {
    if (request) {
        std::cout << request.text();
        return;
    }
    giveUp(request.problems().front().path + ": the printer would get something else, or nothing");
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 6) {
        std::cerr << "usage: handshake ACTION DIGEST nonce.xml diffie_hellman.xml action.xml\n";
        return 2;
    }
    const std::string action = arguments[1];
    const std::string digest = arguments[2];
    const std::string model = "CX-2";
    const std::string serial = "000417";

    // The printer hands out a number that is used once.
    const auto nonce = trusted<kvjxml::messages::nonce>(arguments[3]);
    const std::string number(kvjxml::text(nonce->nonce));
    if (number.empty()) giveUp("the nonce is empty");

    // Both agree on keys. A zero that the printer did not send is no key.
    const auto exchange = trusted<kvjxml::messages::host_keys>(arguments[4]);
    const auto key = trusted<kvjxml::messages::printer_key>(arguments[4]);
    if (!exchange.has<&Exchange::modulus>() || !exchange.has<&Exchange::base>() ||
        !key.has<&kvjxml::printer_interim_key::key>()) {
        giveUp("the key exchange is not complete");
    }

    // The host asks for the action, and proves with a digest that it may.
    send(kvjxml::compose(kvjxml::handshake::action_request{action, model, serial, number}));
    send(kvjxml::compose(kvjxml::handshake::action_directive{model, serial, number, digest, 30}));

    // The printer says which action it allows.
    const auto directive = trusted<kvjxml::messages::secure_directive>(arguments[5]);
    if (kvjxml::text(directive->action) != action) giveUp("the printer allows another action");
    if (!directive.has<&Directive::hmac>()) giveUp("the directive has no digest");
    std::cout << action << " is allowed\n";
}
