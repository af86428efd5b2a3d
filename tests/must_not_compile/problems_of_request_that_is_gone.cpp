// error: cannot bind|non-const lvalue reference|cannot bind to a temporary
#include <kvjxml_compose.hpp>

std::vector<kvjxml::problem>& found(const Kavrin::KVPrinterInfo& info) { return kvjxml::compose(info).problems(); }
