#include "encode.h"

#include <iostream>

#include "failure.h"
#include "input.h"
#include "sections.h"

namespace kvjxml::tool {

ExitCode encode(const Request& request, const Options& options, const std::string& path) {
    if (options.listSections) return listSections(request.table);
    Arguments arguments(readBytes(path), sourceName(path));
    std::cout << request.compose(arguments, options) << std::flush;
    if (!std::cout) throw Failure(ExitCode::inputOutput, "standard output: cannot be written");
    return ExitCode::done;
}

}  // namespace kvjxml::tool
