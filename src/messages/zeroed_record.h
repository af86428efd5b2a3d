/// @file zeroed_record.h
/// A record by what is known of it.
#ifndef KVJXML_MESSAGES_ZEROED_RECORD_H
#define KVJXML_MESSAGES_ZEROED_RECORD_H

#include <cstddef>
#include <memory>

namespace kvj {

/// Memory for a record, all zero, as hosts begin with. What a host does to it after that, and at the end, is that of a
/// row of the messages or requests.
template <class Row>
class ZeroedRecord {
public:
    ZeroedRecord(const Row& row, std::size_t size) : row_(&row), memory_(std::make_unique<std::byte[]>(size)) {
        if (row.begin != nullptr) row.begin(get());
    }
    ~ZeroedRecord() {
        if (row_->end != nullptr) row_->end(get());
    }
    ZeroedRecord(const ZeroedRecord&) = delete;
    ZeroedRecord& operator=(const ZeroedRecord&) = delete;

    [[nodiscard]] void* get() const { return memory_.get(); }

private:
    const Row* row_;
    std::unique_ptr<std::byte[]> memory_;  ///< aligned for any record
};

}  // namespace kvj

#endif
