// The messages of kvjxml_messages.hpp are those of the library.
#include <gtest/gtest.h>

#include <cstddef>
#include <kvjxml_messages.hpp>
#include <ostream>
#include <string_view>
#include <type_traits>
#include <vector>

#include "fields/capabilities.h"
#include "fields/configuration.h"
#include "fields/identity.h"
#include "fields/media.h"
#include "fields/security.h"
#include "fields/status.h"
#include "messages/message.h"

namespace messages_test {

namespace {

/// A message of the header's.
struct Tag {
    std::string_view name;
    int number;
    std::size_t size;
    const kvj::RecordType* record;  ///< null for one of the header's own
};

template <class Record>
const kvj::RecordType* recordTypeOf() {
    if constexpr (std::is_same_v<std::remove_cv_t<decltype(kvj::fields<Record>)>, std::nullptr_t>) {
        return nullptr;
    } else {
        return &kvj::recordType<Record>;
    }
}

template <class Message>
Tag tag(std::string_view name) {
    using Record = typename Message::record;
    return {name, Message::number, sizeof(Record), recordTypeOf<Record>()};
}

#define TAG(name) tag<kvjxml::messages::name>(#name)
const std::vector<Tag> tags{
    TAG(general_status),
    TAG(job_status),
    TAG(job_list),
    TAG(media_status),
    TAG(card_count),
    TAG(cards_until_cleaning),
    TAG(up_times),
    TAG(free_ram),
    TAG(free_flash),
    TAG(cleaning_status),
    TAG(sensor_status),
    TAG(sensor_info),
    TAG(sensor_states),
    TAG(wireless_status),
    TAG(wireless_radio_status),
    TAG(access_points),
    TAG(capabilities),
    TAG(configuration),
    TAG(media),
    TAG(printer_id),
    TAG(service_history),
    TAG(cleaning_history),
    TAG(magnetic_tracks),
    TAG(laminator_response),
    TAG(nonce),
    TAG(host_keys),
    TAG(printer_key),
    TAG(secure_directive),
    TAG(secure_request),
    TAG(keys),
    TAG(key_changes),
    TAG(passkey),
};
#undef TAG

TEST(Messages, HaveEachATagInTheSameOrder) {
    const auto known = kvj::messages();
    ASSERT_EQ(tags.size(), known.size());
    for (std::size_t i = 0; i < tags.size(); ++i) {
        EXPECT_EQ(tags[i].name, known[i].name);
        EXPECT_EQ(tags[i].number, static_cast<int>(i)) << tags[i].name;
    }
}

/// A record of the header's own has lists that grow, or is a value with a name.
TEST(Messages, HaveTheRecordOfTheNamedOperationOrOneOfTheirOwn) {
    for (const Tag& tag : tags) {
        const kvj::Message& message = kvj::messages()[static_cast<std::size_t>(tag.number)];
        if (tag.record != nullptr) {
            EXPECT_EQ(tag.record, message.record.record) << tag.name;
        } else if (message.record.type != kvj::FieldType::list && message.record.record == nullptr) {
            EXPECT_EQ(tag.size, message.record.size) << tag.name;
        }
    }
}

}  // namespace

}  // namespace messages_test
