#include <memory>
#include <string>

#include "schema.h"
#include "verb.h"
#include "vocabulary_tree.h"

namespace kvj::tool {

Run addSchema(CLI::App& verb) {
    struct Options {
        std::string root;
        bool xml = false;
    };
    const auto options = std::make_shared<Options>();
    verb.add_option("MESSAGE", options->root, "Its root element; without it all of them")
        ->option_text("ROOT")
        ->check(knownRoot());
    verb.add_flag("--xml", options->xml,
                  "The elements and attributes that are read from replies, as a tree, and their words");
    return [options] { return options->xml ? printVocabulary(options->root) : printSchema(options->root); };
}

}  // namespace kvj::tool
