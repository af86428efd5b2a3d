#include "field_comments.h"

#include <map>
#include <utility>

#include "field_rows.h"

namespace kvj::tool {

namespace {

using Comments = std::map<std::pair<std::string_view, std::string_view>, std::string, std::less<>>;

std::string_view trimmed(std::string_view line) {
    const std::size_t first = line.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : line.substr(first);
}

void addLine(std::string& comment, std::string_view line) {
    if (!comment.empty()) comment += ' ';
    comment += trimmed(line);
}

/// The name that a declaration such as "char uuid[40];" or "bool atm : 1;" gives.
std::string_view declared(std::string_view line) {
    std::string_view declaration = line.substr(0, line.find_first_of(";[={"));
    declaration = declaration.substr(0, declaration.find(" :"));
    declaration = declaration.substr(0, declaration.find_last_not_of(' ') + 1);
    return declaration.substr(declaration.find_last_of(" *") + 1);
}

/// Reads a header line by line: comments in front of a declaration, and those behind it.
class Header {
public:
    explicit Header(Comments& comments) : comments_(comments) {}

    void read(std::string_view line) {
        line = trimmed(line);
        const std::size_t behind = line.find("///<");
        if (line.starts_with("// ")) return;  // A word to the tools, between a comment and what it is for.
        if (line.starts_with("///") && behind != 0) return addLine(before_, line.substr(3));
        if (behind == 0) {
            if (last_ != nullptr) addLine(*last_, line.substr(4));
        } else if (line.starts_with("struct ") && line.ends_with("{")) {
            record_ = line.substr(7, line.find(' ', 7) - 7);
            comments_[{record_, {}}] = std::move(before_);
        } else if (line.starts_with("};")) {
            record_ = {};
        } else if (!record_.empty() && line.find(';') != std::string_view::npos) {
            last_ = &comments_[{record_, declared(line)}];
            *last_ = std::move(before_);
            if (behind != std::string_view::npos) addLine(*last_, line.substr(behind + 4));
        }
        before_.clear();
    }

private:
    Comments& comments_;
    std::string_view record_;
    std::string before_;           ///< the comment that what follows gets
    std::string* last_ = nullptr;  ///< that of the last declaration
};

Comments allComments() {
    Comments comments;
    for (std::string_view text : recordHeaders()) {
        Header header(comments);
        while (!text.empty()) {
            const std::size_t end = text.find('\n');
            header.read(text.substr(0, end));
            text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        }
    }
    return comments;
}

}  // namespace

std::string_view commentOf(std::string_view record, std::string_view field) {
    static const Comments comments = allComments();
    const auto found = comments.find(std::pair(unqualified(record), field));
    return found == comments.end() ? std::string_view() : found->second;
}

}  // namespace kvj::tool
