#pragma once

#include "check/CheckOptions.h"
#include "check/Finding.h"
#include "check/JsonNode.h"
#include "check/ShownItem.h"

#include <optional>
#include <set>
#include <utility>

namespace plix::tool {

class CardFile;
class CardHost;

// What looks wrong in a card, as the library lays it out and paints it.
class LookCheck {
public:
    // The findings are added to `findings`.
    LookCheck(const CardFile& file, const JsonNode& root, const CheckOptions& options,
              Findings& findings);

    // In each language, and in each height.
    void check();

private:
    void checkOnce(const CardOptions& options);
    void checkItems(const ShownItem& item);
    void checkSize(const ShownItem& item);
    void checkPlace(const ShownItem& item);
    void checkLabel(const ShownItem& item);
    void checkText(const ShownItem& item);
    void checkWords(const ShownItem& item);
    void checkGlyphs(const ShownItem& item);
    void checkOverlaps(const ShownItem& box);
    void checkOverlap(const ShownItem& box, std::size_t first, std::size_t second);
    void checkContrast(CardHost& host);
    void checkItemContrast(const ShownItem& item, const class TextContrast& contrast);
    // Once per item and rule: another language may have the same problem.
    void note(Rule rule, const ShownItem& item, const QString& message, const QString& mend);

    const CardFile& file_;
    const JsonNode& root_;
    const CheckOptions& options_;
    Findings& findings_;
    QRectF card_;
    std::vector<std::unique_ptr<ShownItem>> items_;
    std::set<std::pair<Rule, int>> noted_;
    QString variant_; // the language and the height, for messages
};

} // namespace plix::tool
