// error: nodiscard
#include <kvjxml_compose.hpp>
#pragma GCC diagnostic error "-Wunused-result"

void send(const Kavrin::KVPrinterInfo& info) { kvjxml::compose(info); }
