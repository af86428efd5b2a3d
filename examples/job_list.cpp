// The jobs that a printer holds, and what became of them.
//
//     job_list <get_job_list.xml
//
// Standard input is the reply "get_job_list". Ends with 1 when that is something else, or damaged.
#include <kvjxml.hpp>

#include <iostream>
#include <iterator>
#include <string>

using Job = Kavrin::_KVJobInfo;

int main() {
    const std::string bytes(std::istreambuf_iterator<char>(std::cin), {});
    const auto list = kvjxml::read<kvjxml::messages::job_list>(bytes);
    if (!list) {
        std::cerr << list.error().message() << '\n';
        return 1;
    }

    int held = 0;
    for (const Job& job : list->jobs) {
        const auto state = kvjxml::name<&Job::printState>(job);
        std::cout << job.actionId << ' ' << kvjxml::text(job.uuid) << ' ' << state.value_or("unknown") << '\n';
        if (kvjxml::as_enum<&Job::printState>(job) == kvjxml::job_state::held) ++held;
    }
    // A list without jobs is an answer as well.
    std::cout << list->jobs.size() << " jobs, " << held << " held\n";

    if (!list.whole()) std::cerr << "the reply is damaged: there may be more jobs\n";
    return list.whole() ? 0 : 1;
}
