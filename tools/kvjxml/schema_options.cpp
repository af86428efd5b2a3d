#include <memory>
#include <string>

#include "schema.h"
#include "verb.h"
#include "vocabulary_tree.h"

namespace kvj::tool {

Run addSchema(CLI::App& verb) {
    struct Options {
        std::string root;
        SchemaForm form;
        bool xml = false;
    };
    const auto options = std::make_shared<Options>();
    verb.add_option("MESSAGE", options->root, "Its root element; without it all of them")
        ->option_text("ROOT")
        ->check(knownRoot());
    CLI::Option* const words = verb.add_flag("--words", options->form.words, "Of what decode prints with --words");
    CLI::Option* const format =
        verb.add_option_function<std::string>(
                "--format", [options](const std::string& name) { options->form.lines = name == "jsonl"; },
                "Of what decode prints in that format; json unless told")
            ->option_text("json|jsonl")
            ->check(CLI::IsMember({"json", "jsonl"}));
    verb.add_flag("--xml", options->xml,
                  "The elements and attributes that are read from replies, as a tree, and their words")
        ->excludes(words)
        ->excludes(format);
    return
        [options] { return options->xml ? printVocabulary(options->root) : printSchema(options->root, options->form); };
}

}  // namespace kvj::tool
