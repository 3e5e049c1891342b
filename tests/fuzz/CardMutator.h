#pragma once

#include "model/format/PlixFormat.h"

#include <json/value.h>

#include <random>
#include <vector>

namespace plix::test {

// Changes the JSON of a card in one place, by the table of the format. So most cards keep
// a meaning, and the rest of the way is tried, too.
class CardMutator {
public:
    CardMutator(Json::Value& card, unsigned seed);

    void mutate();

private:
    // An object of the card that has keys of the format.
    struct Place {
        Json::Value* object;
        const PlixFormatComponent* format;
    };

    void findPlaces(Json::Value& object, const PlixFormatComponent& format);
    void findPlacesBelow(Json::Value& value, PlixFormatPart part);

    int below(std::size_t limit) { return static_cast<int>(random_() % limit); }
    template <typename Range> decltype(auto) oneOf(const Range& range)
    {
        return range[static_cast<std::size_t>(below(range.size()))];
    }

    void setKey(const Place& place);
    void removeKey(const Place& place);
    void addComponent(const Place& place);
    void repeatElements(const Place& place);
    void wrapInBox(const Place& place);

    Json::Value valueOf(const PlixFormatKey& key);
    Json::Value textFor(const PlixFormatKey& key);
    Json::Value wrongValue();
    Json::Value component();

    Json::Value& card_;
    std::mt19937 random_;
    std::vector<Place> places_;
};

} // namespace plix::test
