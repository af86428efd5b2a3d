// Hosts that run out of memory: each allocation fails in turn, alone and with all that come after it. A catalogue is
// usable then, holds what was read, and can be released whole.
#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cstddef>
#include <memory>
#include <new>
#include <ostream>
#include <string>
#include <vector>

#include "KVJMediaParser.h"
#include "KVJSetMedia.h"
#include "hostile/allocation_watch.h"
#include "media/records.h"
#include "messages/catalogue.h"
#include "support/files.h"
#include "support/xml.h"

namespace allocation_faults_test {

namespace {

using namespace kvj::tests;

const std::string reply = contentOf(EXAMPLES_DIR "/replies/media.xml");
constexpr Sizes replySizes = {4, 2, 0, 3};

template <class Action>
std::size_t allocationsOf(Action action) {
    const AllocationWatch watch;
    action();
    return watch.made();
}

/// One of the allocations of an action, which fails.
struct Fault {
    std::size_t allowed;
    Failing failing;
    bool comes;  ///< False for the one after the last.
    AllocationWatch& watch;

    template <class Action>
    void expectThrown(Action action) {
        EXPECT_EQ(throwsAfter(allowed, failing, watch, action), comes);
    }
    void expectLost(std::size_t blocks) { EXPECT_EQ(watch.alive(), blocks); }
};

/// Calls `check` with each fault of an action with so many allocations.
template <class Check>
void forEachFault(std::size_t count, Check check) {
    ASSERT_GT(count, 0U);
    for (std::size_t allowed = 0; allowed <= count; ++allowed) {
        for (const Failing failing : bothWays) {
            SCOPED_TRACE(testing::Message() << "allocation " << allowed);
            auto watch = std::make_unique<AllocationWatch>();
            check(Fault{allowed, failing, allowed < count, *watch});
            if (!testing::Test::HasFailure()) continue;
            static_cast<void>(watch.release());  // It frees what is left, but this is now the report of the failure.
            return;
        }
    }
}

// ---- Making a catalogue ----

TEST(MediaFaults, CreatingARecordThrowsAndLeavesNothing) {
    forEachFault(1, [](Fault fault) {
        _KVMediaInfo* media = nullptr;
        fault.expectThrown([&] { media = GetKVMedia(); });
        EXPECT_EQ(media == nullptr, fault.comes);
        DestroyKVMedia(media);
        fault.expectLost(0);
    });
}

TEST(MediaFaults, BuildingARecordThrowsAndLeavesOneThatCanBeReleased) {
    forEachFault(4, [](Fault fault) {
        _KVMediaInfo* media = GetKVMedia();
        fault.expectThrown([&] { BuildKVMedia(media); });
        EXPECT_EQ(media->cards != nullptr, fault.allowed > 0);
        EXPECT_EQ(media->films != nullptr, fault.allowed > 1);
        EXPECT_EQ(media->ribbons != nullptr, fault.allowed > 2);
        EXPECT_EQ(media->laminates != nullptr, fault.allowed > 3);
        DestroyKVMedia(media);
        fault.expectLost(0);
    });
}

TEST(MediaFaults, BuildingOverDanglingFieldsThrowsAndLeavesNoneOfThem) {
    forEachFault(4, [](Fault fault) {
        _KVMediaInfo* media = GetKVMedia();
        BuildKVMedia(media);
        delete media->cards;
        delete media->films;
        delete media->ribbons;
        delete media->laminates;
        fault.expectThrown([&] { BuildKVMedia(media); });
        DestroyKVMedia(media);
        fault.expectLost(0);
    });
}

TEST(MediaFaults, MakingACatalogueThrowsAndLeavesNothing) {
    forEachFault(5, [](Fault fault) {
        fault.expectThrown([] { MakeKVMedia(); });
        fault.expectLost(0);
    });
}

// ---- Reading a tree: the library's own part, of which nothing may be lost ----

using Reader = bool (KVJMediaParser::*)(TiXmlElement*, _KVMediaInfo&);

struct Walk {
    const char* name;
    Reader reader;
    std::vector<const char*> path;  ///< from the root of the reply to the element that is read

    friend void PrintTo(const Walk& self, std::ostream* out) { *out << self.name; }
};

class MediaWalkFaults : public testing::TestWithParam<Walk> {
protected:
    Xml document{reply.c_str()};
    TiXmlElement* const element = elementAt(GetParam().path);

    bool read(_KVMediaInfo& media) { return (KVJMediaParser().*GetParam().reader)(element, media); }

private:
    TiXmlElement* elementAt(const std::vector<const char*>& path) {
        TiXmlElement* found = document.root();
        for (const char* name : path) found = found->FirstChildElement(name);
        return found;
    }
};

INSTANTIATE_TEST_SUITE_P(
    Media, MediaWalkFaults,
    testing::Values(Walk{"parseMedia", &KVJMediaParser::parseMedia, {}},
                    Walk{"getCardsInfo", &KVJMediaParser::getCardsInfo, {"cards"}},
                    Walk{"getFilmsInfo", &KVJMediaParser::getFilmsInfo, {"films"}},
                    Walk{"getRibbonsInfo", &KVJMediaParser::getRibbonsInfo, {"ribbons"}},
                    Walk{"getLaminatesInfo", &KVJMediaParser::getLaminatesInfo, {"laminates"}},
                    Walk{"getCardInfo", &KVJMediaParser::getCardInfo, {"cards", "card"}},
                    Walk{"getFilmInfo", &KVJMediaParser::getFilmInfo, {"films", "film"}},
                    Walk{"getRibbonInfo", &KVJMediaParser::getRibbonInfo, {"ribbons", "ribbon"}},
                    Walk{"getLaminateInfo", &KVJMediaParser::getLaminateInfo, {"laminates", "laminate"}}),
    [](const auto& walk) { return std::string(walk.param.name); });

template <class Entry>
bool isBeginning(const std::vector<Entry*>* list, const std::vector<Entry*>* whole) {
    if (list->size() > whole->size()) return false;
    for (std::size_t i = 0; i < list->size(); ++i) {
        if (list->at(i) == nullptr || fieldsOf(*list->at(i)) != fieldsOf(*whole->at(i))) return false;
    }
    return true;
}

/// Whether each list of a catalogue is there and holds the first entries of another.
bool isBeginning(const _KVMediaInfo& media, const _KVMediaInfo& whole) {
    return isBeginning(media.cards, whole.cards) && isBeginning(media.films, whole.films) &&
           isBeginning(media.ribbons, whole.ribbons) && isBeginning(media.laminates, whole.laminates);
}

Sizes sumOf(Sizes first, const Sizes& second) {
    for (std::size_t i = 0; i < first.size(); ++i) first[i] += second[i];
    return first;
}

TEST_P(MediaWalkFaults, AreThrownAndTheCatalogueIsUsableAndNothingIsLost) {
    ASSERT_NE(element, nullptr);
    const KVMediaPointer whole = MakeKVMedia();
    const std::size_t count = allocationsOf([&] {
                                  const KVMediaPointer media = MakeKVMedia();
                                  read(*media);
                              }) -
                              allocationsOf(MakeKVMedia);
    read(*whole);
    ASSERT_NE(sizesOf(*whole), Sizes());
    forEachFault(count, [&](Fault fault) {
        _KVMediaInfo* media = GetKVMedia();
        BuildKVMedia(media);
        fault.expectThrown([&] { read(*media); });
        EXPECT_TRUE(isBeginning(*media, *whole));
        const Sizes before = sizesOf(*media);
        EXPECT_EQ(before == sizesOf(*whole), !fault.comes);
        read(*media);
        EXPECT_EQ(sizesOf(*media), sumOf(before, sizesOf(*whole)));
        DestroyKVMedia(media);
        fault.expectLost(0);
    });
}

// ---- Reading a reply ----

void readReply(_KVMediaInfo& media) { KVJMediaParser().GetMedia(*reply.c_str(), 0, media); }

TEST(MediaFaults, ReadingAReplyThrowsAndTheCatalogueIsUsableAndNothingIsLost) {
    const KVMediaPointer whole = MakeKVMedia();
    const std::size_t count = allocationsOf([] {
                                  const KVMediaPointer media = MakeKVMedia();
                                  readReply(*media);
                              }) -
                              allocationsOf(MakeKVMedia);
    readReply(*whole);
    // The text is copied, the document made of it, and then the entries.
    constexpr std::size_t ofTheDocument = 2;
    ASSERT_GT(count, ofTheDocument);
    forEachFault(count, [&](Fault fault) {
        _KVMediaInfo* media = GetKVMedia();
        BuildKVMedia(media);
        fault.expectThrown([&] { readReply(*media); });
        EXPECT_TRUE(isBeginning(*media, *whole));
        const Sizes before = sizesOf(*media);
        EXPECT_TRUE(fault.allowed >= ofTheDocument || before == Sizes());
        readReply(*media);
        EXPECT_EQ(sizesOf(*media), sumOf(before, replySizes));
        DestroyKVMedia(media);
        fault.expectLost(0);
    });
}

// ---- Composing ----

std::wstring textOf(KVJSetMedia& composer) {
    std::wstring text(50'000, L'\0');
    EXPECT_TRUE(composer.saveJob(text.data(), static_cast<int>(text.size())));
    text.resize(text.find(L'\0'));
    return text;
}

/// What becomes of a composer after each failure: it composes the next request whole, after what it has of this one,
/// and leaves nothing when it is destroyed.
void expectFaults(bool (*compose)(KVJSetMedia&, _KVMediaInfo&)) {
    const KVMediaPointer media = MakeKVMedia();
    readReply(*media);
    const auto entries = entriesOf(*media);
    KVJSetMedia undisturbed;
    undisturbed.SetMedia(*media, nullptr, 0, 1, false);
    const std::wstring whole = textOf(undisturbed);
    const std::size_t count = allocationsOf([&] {
        KVJSetMedia composer;
        compose(composer, *media);
    });
    forEachFault(count, [&](Fault fault) {
        {
            KVJSetMedia composer;
            fault.expectThrown([&] { compose(composer, *media); });
            EXPECT_FALSE(composer.SetMedia(*media, nullptr, 0, 1, false));
            EXPECT_TRUE(textOf(composer).ends_with(whole));
        }
        fault.expectLost(0);
    });
    EXPECT_EQ(entriesOf(*media), entries);
}

TEST(MediaFaults, ComposingThrowsAndLeavesAComposerThatComposesTheNextRequest) {
    expectFaults([](KVJSetMedia& composer, _KVMediaInfo& media) {
        static wchar_t out[50'000];
        return composer.SetMedia(media, out, 50'000, 1, false);
    });
}

TEST(MediaFaults, ComposingWithoutABufferThrowsAsWell) {
    expectFaults(
        [](KVJSetMedia& composer, _KVMediaInfo& media) { return composer.SetMedia(media, nullptr, 0, 0, true); });
}

// The tool makes records where it has room for them.
TEST(ACatalogueInItsPlace, LosesNothingWhereItCannotBeMade) {
    alignas(Kavrin::_KVMediaInfo) std::byte place[sizeof(Kavrin::_KVMediaInfo)];
    const auto makeAndEnd = [&] {
        kvj::beginCatalogue(place);
        kvj::endCatalogue(place);
    };
    forEachFault(allocationsOf(makeAndEnd), [&](Fault fault) {
        fault.expectThrown(makeAndEnd);
        fault.expectLost(0);
    });
}

}  // namespace

}  // namespace allocation_faults_test
