// The life of a catalogue, and that nothing of it is left behind: what is allocated is counted in every test.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "KVJMediaParser.h"
#include "hostile/allocation_watch.h"
#include "media/records.h"
#include "support/files.h"

namespace life_cycle_test {

namespace {

using namespace kvj::tests;

const std::string reply = contentOf(EXAMPLES_DIR "/replies/media.xml");
constexpr Sizes replySizes = {4, 2, 0, 3};

void fill(_KVMediaInfo& media) { KVJMediaParser().GetMedia(*reply.c_str(), 0, media); }

class MediaLife : public testing::Test {
protected:
    MediaLife() = default;
    ~MediaLife() override {
        // The watch frees what is left over, but after a failure that is the report of the failure.
        if (HasFailure()) static_cast<void>(watch.release());
    }

    std::unique_ptr<AllocationWatch> watch = std::make_unique<AllocationWatch>();

    /// That all that was allocated since the beginning of the test is freed.
    void expectNothingLeft() const { EXPECT_EQ(watch->alive(), 0U); }
};

TEST_F(MediaLife, CreatedItHasFourNullFieldsAndTakesOneAllocation) {
    _KVMediaInfo* media = GetKVMedia();
    ASSERT_NE(media, nullptr);
    EXPECT_EQ(watch->made(), 1U);
    EXPECT_EQ(media->cards, nullptr);
    EXPECT_EQ(media->films, nullptr);
    EXPECT_EQ(media->ribbons, nullptr);
    EXPECT_EQ(media->laminates, nullptr);
    DestroyKVMedia(media);
    expectNothingLeft();
}

TEST_F(MediaLife, EachIsARecordOfItsOwn) {
    _KVMediaInfo* one = GetKVMedia();
    _KVMediaInfo* other = GetKVMedia();
    EXPECT_NE(one, other);
    BuildKVMedia(one);
    EXPECT_EQ(other->cards, nullptr);
    DestroyKVMedia(one);
    BuildKVMedia(other);
    EXPECT_EQ(sizesOf(*other), Sizes());
    DestroyKVMedia(other);
    expectNothingLeft();
}

TEST_F(MediaLife, BuiltItHasFourEmptyListsOfItsOwn) {
    _KVMediaInfo* media = GetKVMedia();
    BuildKVMedia(media);
    ASSERT_NE(media->cards, nullptr);
    ASSERT_NE(media->films, nullptr);
    ASSERT_NE(media->ribbons, nullptr);
    ASSERT_NE(media->laminates, nullptr);
    EXPECT_EQ(sizesOf(*media), Sizes());
    EXPECT_NE(media->films, media->ribbons);
    EXPECT_NE(media->films, media->laminates);
    EXPECT_NE(media->ribbons, media->laminates);
    DestroyKVMedia(media);
    expectNothingLeft();
}

TEST_F(MediaLife, BuildingOverwritesWhatTheFieldsHeldWithoutReleasingIt) {
    _KVMediaInfo* media = GetKVMedia();
    BuildKVMedia(media);
    fill(*media);
    auto* const cards = media->cards;
    auto* const films = media->films;
    auto* const ribbons = media->ribbons;
    auto* const laminates = media->laminates;
    BuildKVMedia(media);
    EXPECT_EQ(sizesOf(*media), Sizes());
    // The lists from before are the host's now, as they were: a record that holds them releases them.
    ASSERT_EQ((Sizes{cards->size(), films->size(), ribbons->size(), laminates->size()}), replySizes);
    _KVMediaInfo* before = GetKVMedia();
    before->cards = cards;
    before->films = films;
    before->ribbons = ribbons;
    before->laminates = laminates;
    DestroyKVMedia(before);
    DestroyKVMedia(media);
    expectNothingLeft();
}

TEST_F(MediaLife, FilledItIsReleasedWithAllItsEntries) {
    _KVMediaInfo* media = GetKVMedia();
    BuildKVMedia(media);
    fill(*media);
    EXPECT_EQ(sizesOf(*media), replySizes);
    DestroyKVMedia(media);
    expectNothingLeft();
}

TEST_F(MediaLife, FilledTwiceItIsReleasedWithAllItsEntries) {
    _KVMediaInfo* media = GetKVMedia();
    BuildKVMedia(media);
    fill(*media);
    fill(*media);
    EXPECT_EQ(sizesOf(*media), times(2, replySizes));
    DestroyKVMedia(media);
    expectNothingLeft();
}

TEST_F(MediaLife, FilledByTheHostItIsReleasedWithAllItsEntriesRibbonsAndNullOnesAsWell) {
    _KVMediaInfo* media = GetKVMedia();
    BuildKVMedia(media);
    media->cards->assign({nullptr, new _CardInfo(), nullptr});
    for (auto* list : {media->films, media->ribbons, media->laminates}) {
        list->assign({new _MediaRibbonInfo(), nullptr, new _MediaRibbonInfo()});
    }
    DestroyKVMedia(media);
    expectNothingLeft();
}

TEST_F(MediaLife, ListsWithoutEntriesAreReleasedWithTheirStorage) {
    _KVMediaInfo* media = GetKVMedia();
    BuildKVMedia(media);
    media->cards->reserve(100);
    media->laminates->reserve(100);
    DestroyKVMedia(media);
    expectNothingLeft();
}

TEST_F(MediaLife, BuiltInPartItIsReleasedAsFarAsItIsThere) {
    _KVMediaInfo* media = GetKVMedia();
    media->films = new std::vector<_MediaRibbonInfo*>{new _MediaRibbonInfo()};
    media->laminates = new std::vector<_MediaRibbonInfo*>;
    DestroyKVMedia(media);
    expectNothingLeft();
}

TEST_F(MediaLife, AnEntryThatTheHostTakesOutOfItsListIsTheHosts) {
    _KVMediaInfo* media = GetKVMedia();
    BuildKVMedia(media);
    fill(*media);
    const std::unique_ptr<_CardInfo> taken(std::exchange(media->cards->front(), nullptr));
    DestroyKVMedia(media);
    EXPECT_STREQ(taken->partNumber, "V-000417");
    EXPECT_EQ(watch->alive(), 1U);
}

TEST_F(MediaLife, NullIsLeftAlone) {
    BuildKVMedia(nullptr);
    DestroyKVMedia(nullptr);
    EXPECT_EQ(watch->made(), 0U);
}

// ---- Smart pointers ----

TEST_F(MediaLife, MadeItIsBuiltAndReleasesItself) {
    {
        const KVMediaPointer media = MakeKVMedia();
        ASSERT_NE(media, nullptr);
        EXPECT_EQ(sizesOf(*media), Sizes());
    }
    expectNothingLeft();
    {
        const KVMediaPointer media = MakeKVMedia();
        fill(*media);
        EXPECT_EQ(sizesOf(*media), replySizes);
    }
    expectNothingLeft();
}

TEST_F(MediaLife, ASmartPointerTakesAPlainRecordAndIsTakenOverFrom) {
    KVMediaPointer media(GetKVMedia());
    BuildKVMedia(media.get());
    fill(*media);
    KVMediaPointer other = std::move(media);
    EXPECT_EQ(sizesOf(*other), replySizes);
    other.reset();
    expectNothingLeft();
    other = MakeKVMedia();
    DestroyKVMedia(other.release());
    expectNothingLeft();
}

TEST_F(MediaLife, ASmartPointerReleasesWhenAnExceptionPasses) {
    try {
        const KVMediaPointer media = MakeKVMedia();
        fill(*media);
        throw std::runtime_error("paper jam");
    } catch (const std::runtime_error&) {
    }
    expectNothingLeft();
}

// ---- The destructor alone ----

TEST_F(MediaLife, TheDestructorReleasesFilledListsAndLeavesEmptyOnes) {
    std::vector<_CardInfo*>* cards = nullptr;
    std::vector<_MediaRibbonInfo*>* ribbons = nullptr;
    {
        _KVMediaInfo media;
        BuildKVMedia(&media);
        media.cards->reserve(100);
        fill(media);
        for (const _CardInfo* card : *media.cards) delete card;
        media.cards->clear();
        cards = media.cards;
        ribbons = media.ribbons;
    }
    // What is left: the list of cards, empty again but with its storage, and the list of ribbons, which was never
    // filled.
    EXPECT_EQ(watch->alive(), 3U);
    EXPECT_TRUE(cards->empty());
    EXPECT_TRUE(ribbons->empty());
    delete cards;
    delete ribbons;
    expectNothingLeft();
}

TEST_F(MediaLife, TheDestructorOfARecordWithFourFilledListsLeavesNothing) {
    {
        _KVMediaInfo media;
        BuildKVMedia(&media);
        fill(media);
        media.ribbons->push_back(new _MediaRibbonInfo());
        media.ribbons->push_back(nullptr);
    }
    expectNothingLeft();
}

TEST_F(MediaLife, TheDestructorLeavesFourEmptyListsAllocated) {
    _KVMediaInfo* media = GetKVMedia();
    BuildKVMedia(media);
    auto* const cards = media->cards;
    auto* const films = media->films;
    auto* const ribbons = media->ribbons;
    auto* const laminates = media->laminates;
    delete media;
    EXPECT_EQ(watch->alive(), 4U);
    // DestroyKVMedia is the complete release; after the destructor alone the lists have to be released by hand.
    delete cards;
    delete films;
    delete ribbons;
    delete laminates;
    expectNothingLeft();
}

/// The fields of a catalogue as the destructor leaves them in memory.
struct Fields {
    std::vector<_CardInfo*>* cards;
    std::vector<_MediaRibbonInfo*>* films;
    std::vector<_MediaRibbonInfo*>* ribbons;
    std::vector<_MediaRibbonInfo*>* laminates;
};

template <class Fill>
void expectLeft(Fill fillRecord, bool lastIsNull) {
    static_assert(sizeof(Fields) == sizeof(_KVMediaInfo));
    alignas(_KVMediaInfo) unsigned char memory[sizeof(_KVMediaInfo)];
    auto* const media = new (memory) _KVMediaInfo;
    BuildKVMedia(media);
    fillRecord(*media);
    const Fields before{media->cards, media->films, media->ribbons, media->laminates};
    media->~_KVMediaInfo();
    Fields after;
    std::memcpy(&after, memory, sizeof after);
    EXPECT_EQ(after.cards, before.cards);
    EXPECT_EQ(after.films, before.films);
    EXPECT_EQ(after.ribbons, before.ribbons);
    EXPECT_EQ(after.laminates, lastIsNull ? nullptr : before.laminates);
    delete after.ribbons;  // empty, so left alone
    if (lastIsNull) return;
    delete after.cards;
    delete after.films;
    delete after.laminates;
}

TEST_F(MediaLife, TheDestructorSetsTheLastFieldToNullOnly) {
    expectLeft([](_KVMediaInfo& media) { fill(media); }, true);
    expectNothingLeft();
}

TEST_F(MediaLife, TheDestructorLeavesTheFieldOfAnEmptyLastListAsItIs) {
    expectLeft([](_KVMediaInfo& /*media*/) {}, false);
    expectNothingLeft();
}

TEST_F(MediaLife, TheDestructorOfARecordThatIsNotBuiltFindsNothing) {
    { const _KVMediaInfo media; }
    EXPECT_EQ(watch->made(), 0U);
}

}  // namespace

}  // namespace life_cycle_test
