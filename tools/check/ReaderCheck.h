#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"
#include "check/Losses.h"

#include "model/format/PlixFormat.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace plix::tool {

// Reads a card in the order of the library's reader. Finds the values that it cannot
// read, and what is lost by each.
class ReaderCheck {
public:
    ReaderCheck(const QByteArray& text, Findings& findings);

    void check(const JsonNode& root);

    // The findings for which the library logs a line, in the order of its lines.
    const Findings& logged() const { return logged_; }

private:
    // The finding that ended the reading of an object; nothing if all of it was read.
    using Failure = std::optional<std::size_t>;
    using Keys = std::span<const PlixFormatKey>;

    class Sequence;

    // A member, and what the format says about it.
    struct Entry {
        PlixFormatKey key;
        const JsonMember* member;
    };

    Failure readKeys(const JsonNode& object, Keys keys, const QString& path);
    Failure readEntries(const std::vector<Entry>& entries, const QString& path);
    Failure readKey(const PlixFormatKey& key, const JsonMember& member, const QString& path);
    Failure readPart(const PlixFormatKey& key, const JsonNode& value, const QString& path);
    Failure readSpans(const JsonNode& spans, const QString& path);
    Failure readTexts(const JsonNode& texts, const QString& path,
                      std::span<const PlixFormatWord> languages);
    void readVariants(const JsonNode& variants, const QString& path);
    void readContents(const JsonNode& contents, const QString& path);
    void readComponent(const JsonNode& node, const QString& path);
    void readBox(const JsonNode& node, const PlixFormatComponent& format, const QString& path);

    Failure countItem(const JsonNode& item, const QString& path);
    Failure checkNesting(const JsonNode& box, const QString& path);
    Failure checkKind(const PlixFormatKey& key, const JsonNode& value, const QString& path);
    void checkConversion(const PlixFormatKey& key, const JsonNode& value, const QString& path);
    std::size_t fail(Rule rule, const JsonNode& value, const QString& path, const QString& message);
    QString found(const JsonNode& value) const;

    const QByteArray& text_;
    Findings& findings_;
    Findings logged_;
    std::vector<std::size_t> loggedIndexes_;
    Losses losses_;
    // In what is lost, the reader finds nothing.
    int lost_ = 0;
    int nestedBoxes_ = 0;
    int items_ = 0;
    Failure tooManyItems_;
};

} // namespace plix::tool
