#include "encode.h"

#include <iostream>

#include "failure.h"
#include "input.h"

namespace kvjxml::tool {

ExitCode encode(const Request& request, const std::string& path) {
    Arguments arguments(readBytes(path), sourceName(path));
    std::cout << request.compose(arguments) << std::flush;
    if (!std::cout) throw Failure(ExitCode::inputOutput, "standard output: cannot be written");
    return ExitCode::done;
}

}  // namespace kvjxml::tool
