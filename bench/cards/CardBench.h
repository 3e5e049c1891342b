#pragma once

#include "Card.h"
#include "CardResult.h"
#include "Element.h"

#include <memory>

namespace bench {

class CardHost;
class Way;

// One card and the ways to show it.
class CardBench {
public:
    // Both have to live longer.
    CardBench(const CardHost& host, const Card& card);
    ~CardBench();

    // Ours and the limit.
    void addCounterparts();
    // Other ways to show the same.
    void addAlternatives();

    // Checks that all ways show the same, weighs them, and times `rounds`
    // lives of each, in random order. Their pictures go to a folder, unless it is empty.
    CardResult measure(int rounds, const QString& pictureFolder);

private:
    void readContent();
    void check(CardResult& result, const QString& pictureFolder);
    void checkTexts(const Way& way) const;
    void savePicture(const Way& way, const QString& folder) const;
    void takeTimes(int rounds, CardResult& result);

    const CardHost& host_;
    const Card& card_;
    Element content_;
    QString word_;
    std::vector<std::unique_ptr<Way>> ways_;
};

} // namespace bench
