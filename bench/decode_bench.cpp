// What the tool takes for a stream of replies, a line of JSON for each, against TinyXML parsing them and no more. See
// README.md.
#include "decode.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "contest.h"

namespace {

using namespace kvj::bench;
namespace tool = kvj::tool;

constexpr std::size_t replies = 1000;

/// A stream of replies in a file that is removed at the end.
class Stream {
public:
    explicit Stream(const std::string& reply)
        : path_((std::filesystem::temp_directory_path() / "kvjxml-bench-XXXXXX").string()) {
        const int file = mkstemp(path_.data());
        if (file < 0) throw std::runtime_error("no temporary file");
        static_cast<void>(close(file));
        std::ofstream stream(path_, std::ios::binary);
        for (std::size_t i = 0; i < replies; ++i) stream << reply << '\0';
        if (!stream.flush()) throw std::runtime_error("cannot write " + path_);
    }
    ~Stream() { static_cast<void>(std::remove(path_.c_str())); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    /// Decodes them.
    /// @param out  gets what goes to standard output.
    bool decode(std::streambuf& out) const {
        std::streambuf* const before = std::cout.rdbuf(&out);
        const auto format = std::ranges::find(tool::formats(), "jsonl", &tool::Format::name);
        const auto code = tool::decode({.paths = {path_}, .separator = tool::Separator::nul}, {}, *format, {});
        std::cout.rdbuf(before);
        return code == tool::ExitCode::done;
    }

private:
    std::string path_;
};

std::vector<Task> tasks() {
    const std::string reply = sample("get_general_status");
    const auto stream = std::make_shared<Stream>(reply);
    const auto nowhere = std::make_shared<std::ofstream>("/dev/null");
    const auto parseAll = [reply] {
        bool isParsed = true;
        for (std::size_t i = 0; i < replies; ++i) isParsed &= parse(reply.c_str());
        return isParsed;
    };
    const auto check = [stream] {
        std::stringbuf out;
        if (!stream->decode(out)) throw std::runtime_error("a reply is not whole");
        const std::string text = out.str();
        std::size_t lines = 0;
        for (std::size_t at = 0; (at = text.find(R"("record": {"printerState": 5, )", at)) != std::string::npos; ++at) {
            ++lines;
        }
        if (lines != replies) throw std::runtime_error(std::to_string(lines) + " lines");
    };
    return {{"get_general_status/" + std::to_string(replies),
             reply.size() * replies,
             {{"decode", [stream, nowhere] { return stream->decode(*nowhere->rdbuf()); }}, {"bare", parseAll, 0.5}},
             check}};
}

}  // namespace

int main(int argc, char** argv) { return runContest(argc, argv, tasks); }
