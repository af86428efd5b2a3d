#include <KVJStatusParser.h>

#include <cstdio>
#include <cwchar>

int main() {
    wchar_t reply[65536];
    int length = 0;
    for (wint_t c; length < 65536 && (c = std::getwchar()) != WEOF;) reply[length++] = static_cast<wchar_t>(c);

    Kavrin::KVGeneralStatus status = {};
    const bool complete = Kavrin::KVJStatusParser().ParseStatus(reply[0], length, status);
    std::printf("state %d, alarms 0x%x, %d jobs done, %s\n", status.printerState, status.alarms, status.jobsDoneOk,
                complete ? "complete" : "incomplete");
    return complete ? 0 : 1;
}
