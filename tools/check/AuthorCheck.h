#pragma once

#include "check/CardItem.h"
#include "check/Finding.h"
#include "check/JsonNode.h"

#include "model/format/PlixFormat.h"

#include <QString>
#include <QStringList>

#include <string_view>

namespace plix::tool {

// Finds what the library reads in another way than the author of a card may think:
// unknown keys, types and words, and keys without effect.
class AuthorCheck {
public:
    explicit AuthorCheck(Findings& findings);

    void check(const JsonNode& root);

private:
    void checkObject(const JsonNode& object, const PlixFormatComponent& format, const QString& path,
                     const CardItem* item);
    void checkMember(const JsonMember& member, const PlixFormatComponent& format,
                     const QString& path, const CardItem* item);
    void checkPart(const PlixFormatKey& key, const JsonNode& value, const QString& path,
                   const CardItem* item);
    void checkContents(const JsonNode& contents, const QString& path, const CardItem* box);
    void checkZone(const JsonNode& node, std::string_view zone);
    void checkSpans(const JsonNode& spans, const QString& path);
    void checkTexts(const PlixFormatKey& key, const JsonNode& texts, const QString& path);
    // The format of a component; null, with a finding, if its "type" is none.
    const PlixFormatComponent* componentFormat(const JsonNode& node, const QString& path);
    bool isTyped(const JsonNode& node, const QString& path, const QStringList& types);

    void noteUnknownKey(const JsonMember& member, const QStringList& known, const QString& path);

    Findings& findings_;
};

} // namespace plix::tool
