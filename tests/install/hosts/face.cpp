// What examples/host does, with kvjxml.hpp, and a request.
#include <cstdio>
#include <iostream>
#include <iterator>
#include <kvjxml.hpp>
#include <string>

int main() {
    const std::string reply(std::istreambuf_iterator<char>(std::cin), {});
    const auto status = kvjxml::read<kvjxml::messages::general_status>(reply, kvjxml::diagnose);
    if (!status || status.findings().size() != 1) return 1;  // The counter of changes is beyond its 16 bits.
    if (kvjxml::name<&Kavrin::KVGeneralStatus::printerState>(*status) != "printing") return 1;
    const auto request = kvjxml::compose(kvjxml::handshake::nonce{"5F3A90C1"});
    if (!request || request.text().find("<nonce>5F3A90C1</nonce>") == std::string::npos) return 1;
    std::printf("state %d, alarms 0x%x, %d jobs done, %s\n", status->printerState, status->alarms, status->jobsDoneOk,
                status.whole() ? "complete" : "incomplete");
}
