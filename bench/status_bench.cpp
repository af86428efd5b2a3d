// What reading a general-status reply costs. See README.md.
#include <KVJStatusParser.h>

#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "reading.h"

namespace {

using namespace kvj::bench;

/// All elements of the message, and between them four that the library does not know, as the next firmware may send
/// them: one with a reference, one with attributes and one with children.
constexpr const char* elements[] = {
    "    <printer_state>printing</printer_state>\n",
    "    <alarms>0x8002</alarms>\n",
    "    <error>0</error>\n",
    "    <warning>41</warning>\n",
    "    <warning_text>Ribbon &amp; transfer film are low</warning_text>\n",
    "    <printer_lock>unlocked</printer_lock>\n",
    "    <num_jobs_receiving_or_pending>1</num_jobs_receiving_or_pending>\n",
    "    <num_jobs_inprogress>2</num_jobs_inprogress>\n",
    "    <num_jobs_done_ok>318</num_jobs_done_ok>\n",
    "    <num_jobs_done_error>4</num_jobs_done_error>\n",
    "    <num_jobs_total>325</num_jobs_total>\n",
    "    <action_id_next>1043</action_id_next>\n",
    "    <roller_temperature min=\"20\" max=\"185\">174</roller_temperature>\n",
    "    <door_state>closed</door_state>\n",
    R"(    <card_path>
        <input_hopper>not_empty</input_hopper>
        <output_tray>empty</output_tray>
    </card_path>
)",
    "    <laminator_state>ready</laminator_state>\n",
    "    <param_chg_counter>65539</param_chg_counter>\n",
};

/// A reply of `size` bytes, short of that by less than one element.
std::string synthetic(std::size_t size) {
    const std::string end = "</get_general_status>\n";
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<get_general_status>\n";
    for (std::size_t i = 0;; ++i) {
        const std::string element = elements[i % std::size(elements)];
        if (text.size() + element.size() + end.size() > size) return text + end;
        text += element;
    }
}

struct Status {
    Kavrin::KVGeneralStatus status{};
    Kavrin::KVGeneralStatus& begin() { return status = {}; }
    [[nodiscard]] bool isFilled() const {
        return status.printerState == 5 && status.alarms == 0x8002 && status.jobsTotal == 325;
    }
};

Task readingStatus(const char* name, const std::string& text) {
    const auto reply = std::make_shared<const std::wstring>(wide(text));
    return reading<Status>(
        name, text.size(),
        [=](auto& status) {
            Kavrin::KVJStatusParser().ParseStatus(reply->front(), static_cast<int>(reply->size()), status);
        },
        [=](const Rival& rival, auto& status) { rival.readStatus(*reply, status); },
        [=] { return parse(narrow(*reply).get()); });
}

std::vector<Task> tasks() {
    return {readingStatus("sample", sample("get_general_status")), readingStatus("8KiB", synthetic(8 << 10)),
            readingStatus("256KiB", synthetic(256 << 10))};
}

}  // namespace

int main(int argc, char** argv) { return runContest(argc, argv, tasks); }
