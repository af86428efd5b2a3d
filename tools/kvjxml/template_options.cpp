#include <algorithm>
#include <iostream>
#include <memory>
#include <string>

#include "field_help.h"
#include "request_options.h"
#include "sections.h"
#include "verb.h"

namespace kvj::tool {

namespace {

/// All sections that there are, for those who did not say which.
Choices withAllSections(Choices choices, const Request& request) {
    if (choices.sections != 0 || choices.full) return choices;
    for (const DescribedRow& row : request.table) choices.sections |= row.section;
    return choices;
}

}  // namespace

Run addTemplate(CLI::App& verb) {
    const auto options = std::make_shared<RequestOptions>();
    verb.require_subcommand(1);
    for (const auto& request : requests()) {
        CLI::App* const one =
            verb.add_subcommand(std::string(request.name), "For kvjxml encode " + std::string(request.name));
        addRequestOptions(*one, request, *options, false);
    }
    return [options, &verb] {
        const auto& request =
            *std::ranges::find(requests(), verb.get_subcommands().front()->get_name(), &Request::name);
        if (options->listSections) return listSections(request.table);
        std::cout << templateOf(request, withAllSections(choicesOf(*options), request)).dump(4) << '\n';
        return ExitCode::done;
    };
}

}  // namespace kvj::tool
