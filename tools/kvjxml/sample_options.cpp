#include <memory>
#include <string>

#include "sample.h"
#include "verb.h"

namespace kvj::tool {

Run addSample(CLI::App& verb) {
    const auto root = std::make_shared<std::string>();
    verb.add_option("MESSAGE", *root, "Its root element, such as get_job_status")->required()->check(knownRoot());
    return [root] { return printSample(*root); };
}

}  // namespace kvj::tool
