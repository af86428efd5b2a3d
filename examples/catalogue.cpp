// The media that a printer knows.
//
//     catalogue <media.xml
//
// Standard input is the reply "media". Ends with 1 when that is something else, or damaged.
#include <kvjxml.hpp>

#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

void show(const char* kind, const std::vector<Kavrin::_MediaRibbonInfo>& media) {
    for (const auto& medium : media) {
        std::cout << kind << ' ' << kvjxml::text(medium.partNumber) << ": " << kvjxml::text(medium.description) << '\n';
    }
}

}  // namespace

int main() {
    const std::string bytes(std::istreambuf_iterator<char>(std::cin), {});
    const auto media = kvjxml::read<kvjxml::messages::media>(bytes);
    if (!media) {
        std::cerr << media.error().message() << '\n';
        return 1;
    }
    for (const Kavrin::_CardInfo& card : media->cards) {
        std::cout << "card " << kvjxml::text(card.partNumber) << ": " << kvjxml::text(card.description) << ", "
                  << card.thickness << " mm";
        if (card.magStripe) {
            const auto coercivity = kvjxml::name<&Kavrin::_CardInfo::coercivity>(card);
            std::cout << ", magnetic stripe of " << coercivity.value_or("unknown") << " coercivity";
        }
        std::cout << '\n';
    }
    show("film", media->films);
    show("laminate", media->laminates);

    if (!media.whole()) std::cerr << "the reply is damaged: there may be more media\n";
    return media.whole() ? 0 : 1;
}
