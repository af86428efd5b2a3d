#include <memory>
#include <string>

#include "explain.h"
#include "verb.h"

namespace kvj::tool {

Run addExplain(CLI::App& verb) {
    struct Options {
        std::string name;
        std::string value;
    };
    const auto options = std::make_shared<Options>();
    verb.add_option("NAME", options->name,
                    "A message, request, record, field, element or its path, table or word; without it all messages, "
                    "requests and tables are listed");
    verb.add_option("VALUE", options->value, "A code, or a word, of what NAME is");
    return [options] { return explain(options->name, options->value); };
}

}  // namespace kvj::tool
