#include "encode.h"

#include <iostream>

#include "sections.h"

namespace kvjxml::tool {

ExitCode encode(const Request& request, const Options& options, const Source& source) {
    if (options.listSections) return listSections(request.table);
    Arguments arguments(readBytes(source), source.name());
    std::cout << request.compose(arguments, options);
    return ExitCode::done;
}

}  // namespace kvjxml::tool
