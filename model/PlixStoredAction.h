#pragma once

#include "model/PlixFieldTexts.h"
#include "model/PlixRareValue.h"

#include <plix/Plix.h>

#include <memory>

// An action as its item keeps it. An ST_ACTION has room for twenty values, of which a
// card gives three or four, and it is needed only when the item is clicked.
class PlixStoredAction {
public:
    explicit PlixStoredAction(const std::shared_ptr<ST_ACTION>& action);

    // The action as a record: the same one as long as somebody holds it.
    std::shared_ptr<ST_ACTION> GetRecord() const;

    bool OpensDesktop() const;
    bool OpensMobileApp() const;

private:
    struct LanguageMaps {
        PlixLanguageMap labels;
        PlixLanguageMap texts;
        PlixLanguageMap displayTexts;
    };

    ST_ACTION MakeRecord() const;
    void StoreMaps(const ST_ACTION& action);

    PlixFieldTexts fields_;
    PlixRareValue<LanguageMaps> maps_;
    mutable std::weak_ptr<ST_ACTION> record_;
};
