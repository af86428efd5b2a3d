#include "captures.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iostream>
#include <iterator>
#include <system_error>
#include <utility>

#include "pieces.h"
#include "progress.h"
#include "visible_text.h"
#include "xml_text.h"

namespace kvj::tool {

namespace {

namespace fs = std::filesystem;

// ---- Folders ----

/// The files and folders in a folder, in reverse order. A link to a folder could lead back, and what is no file could
/// wait for ever: both are left out.
std::vector<std::string> entriesIn(const std::string& folder) {
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code unknown;
        const bool isFolder = entry->is_directory(unknown) && !entry->is_symlink(unknown);
        if (isFolder || entry->is_regular_file(unknown)) paths.push_back(entry->path().string());
    }
    if (error) throw Failure(ExitCode::inputOutput, "cannot be read: " + error.message());
    std::ranges::sort(paths, std::greater{});
    return paths;
}

// ---- What captures have around a reply ----

/// The next line with its end; an empty one at the end of the text.
std::string_view lineAt(std::string_view text, std::size_t at) {
    const std::size_t end = text.find('\n', at);
    return text.substr(at, end == std::string_view::npos ? end : end + 1 - at);
}

/// "HTTP/1.1 200 OK", or "POST /status HTTP/1.1"
bool isFirstOfHttp(std::string_view line) {
    if (line.starts_with("HTTP/")) return true;
    const std::size_t method = line.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    return method != 0 && method != std::string_view::npos && line[method] == ' ' &&
           line.find(" HTTP/", method) != std::string_view::npos;
}

/// "Content-Type: text/xml"
bool isHeader(std::string_view line) {
    const std::size_t name = line.find_first_of(": \t\r\n<");
    return name != 0 && name != std::string_view::npos && line[name] == ':';
}

struct HttpHeader {
    std::size_t length = 0;
    std::size_t lines = 0;
};

/// Header lines of HTTP and the blank one behind them; none where something else stands.
HttpHeader headerOf(std::string_view text) {
    HttpHeader header;
    for (;;) {
        const std::string_view line = lineAt(text, header.length);
        if (line.empty()) return {};
        const bool isLast = isBlank(line);
        if (isLast && header.lines == 0) return {};
        if (!isLast && !isHeader(line) && (header.lines != 0 || !isFirstOfHttp(line))) return {};
        header.length += line.size();
        ++header.lines;
        if (isLast) return header;
    }
}

void removeHeader(Capture& capture) {
    const HttpHeader header = headerOf(capture.text);
    if (header.lines == 0) return;
    capture.offset += sizeIn(capture.encoding, std::string_view(capture.text).substr(0, header.length));
    capture.line += header.lines;
    capture.text.erase(0, header.length);
    capture.notes.emplace_back("has header lines of HTTP in front");
}

bool isAscii(std::string_view text) {
    return std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

/// Finds the document in what was captured, and makes it UTF-8.
void unwrap(Capture& capture, std::optional<Encoding> told) {
    removeHeader(capture);
    const Recognised mark = recogniseMark(capture.text);
    Encoding encoding = told ? withOrder(*told, capture.text) : mark.encoding;
    if (!mark.note.empty() && encoding == mark.encoding) {
        capture.offset += mark.markLength;
        capture.text.erase(0, mark.markLength);
        if (!told) capture.notes.push_back(mark.note);
    }
    if (!told && encoding == Encoding::utf8 && declaresLatin1(capture.text) && !isAscii(capture.text)) {
        encoding = Encoding::latin1;
        capture.notes.emplace_back("is Latin-1, as its declaration says");
    }
    if (encoding == Encoding::utf8) return;
    capture.text = toUtf8(capture.text, encoding);
    capture.encoding = encoding;
    if (capture.line == 0) removeHeader(capture);  // The whole capture may have been saved in that encoding.
}

// ---- Streams ----

/// The bytes between documents.
std::string bytesOf(Separator separator, Encoding encoding) {
    if (separator == Separator::none) return {};
    const char character = separator == Separator::nul ? '\0' : '\n';
    if (encoding == Encoding::utf16le) return {character, '\0'};
    if (encoding == Encoding::utf16be) return {'\0', character};
    return {character};
}

class Loop {
public:
    Loop(const Captures& captures, const std::function<ExitCode(const Capture&)>& action, const OnFailure& onFailure)
        : captures_(captures), action_(action), onFailure_(onFailure) {}

    ExitCode run() {
        pending_.assign(captures_.paths.rbegin(), captures_.paths.rend());
        if (pending_.empty()) pending_.emplace_back("-");
        while (!pending_.empty()) {
            const std::string path = std::move(pending_.back());
            pending_.pop_back();
            attempt({path}, [&] {
                std::error_code unknown;
                if (captures_.isRecursive && path != "-" && fs::is_directory(path, unknown)) {
                    std::ranges::move(entriesIn(path), std::back_inserter(pending_));
                } else {
                    Pieces pieces(path, captures_.maxSize);
                    readAll(path, pieces);
                }
                return ExitCode::done;
            });
        }
        return worst_;
    }

private:
    template <class Step>
    void attempt(const Origin& origin, Step step) {
        try {
            const ExitCode code = step();  // It may attempt others, which count first.
            worst_ = worseOf(worst_, code);
        } catch (const Failure& failure) {
            worst_ = worseOf(worst_, failure.code());
            onFailure_(origin, failure);
        }
    }

    void readAll(const std::string& path, Pieces& pieces) {
        const bool isOnlyOne = captures_.separator == Separator::none;
        std::optional<Encoding> encoding = captures_.encoding;
        std::string note;
        if (!isOnlyOne) {
            // Only the first document has the mark that says how all of them are encoded.
            const std::string_view start = pieces.peek(2);
            const Recognised mark = recogniseMark(start);
            if (encoding) {
                encoding = withOrder(*encoding, start);
            } else if (mark.markLength == 2) {
                encoding = mark.encoding;
                note = mark.note;
            }
        }
        const std::string separator = bytesOf(captures_.separator, encoding.value_or(Encoding::utf8));
        bool isMore = true;
        for (std::size_t number = 1; isMore; ++number) {
            const Origin origin{path, number, isOnlyOne};
            attempt(origin, [&] {
                Capture capture;
                isMore = pieces.next(separator, capture.text);
                if (!isMore && !(isOnlyOne && number == 1)) return ExitCode::done;
                capture.origin = origin;
                if (!note.empty()) capture.notes.push_back(note);
                unwrap(capture, encoding);
                const bool mayBeBlank = captures_.separator == Separator::nul && pieces.wasSeparated();
                if (!isOnlyOne && !mayBeBlank && isBlank(capture.text)) return ExitCode::done;
                progress_.count();
                return action_(capture);
            });
        }
    }

    const Captures& captures_;
    const std::function<ExitCode(const Capture&)>& action_;
    const OnFailure& onFailure_;
    Progress progress_;
    std::vector<std::string> pending_;  ///< what is to be read, the next one last
    ExitCode worst_ = ExitCode::done;
};

}  // namespace

std::string Origin::name() const {
    std::string name = file == "-" ? "standard input" : visible(file);
    if (!isOnlyOne) name += ", document " + std::to_string(number);
    return name;
}

Capture readCapture(const std::string& path, const Captures& how) {
    Capture capture{.origin = {path}, .text = {}, .notes = {}};
    try {
        Pieces(path, how.maxSize).next({}, capture.text);
    } catch (const Failure& failure) {
        throw Failure(failure.code(), capture.origin.name() + ": " + failure.what());
    }
    unwrap(capture, how.encoding);
    return capture;
}

void tell(const Origin& origin, std::string_view text) {
    clearProgress();
    std::cerr << "kvjxml: " << origin.name() << ": " << visible(text) << '\n';
}

void tellFailure(const Origin& origin, const Failure& failure) { tell(origin, failure.what()); }

ExitCode forEachDocument(const Captures& captures, const std::function<ExitCode(const Capture&)>& action,
                         const OnFailure& onFailure) {
    return Loop(captures, action, onFailure).run();
}

}  // namespace kvj::tool
