#include "MarkupReader.h"

#include "EmojiCode.h"

#include <QLatin1String>
#include <QStringView>

#include <array>
#include <optional>

namespace kestro {

namespace {

// The smallest 64-bit number has "-" and 19 digits.
constexpr int kMaximumNumberLength = 20;

struct Entity {
    QLatin1String name;
    QChar character;
};

const std::array<Entity, 3> kEntities {{
    {QLatin1String("&lt;"), QLatin1Char('<')},
    {QLatin1String("&gt;"), QLatin1Char('>')},
    {QLatin1String("&amp;"), QLatin1Char('&')},
}};

struct MentionTag {
    QLatin1String start;
    MarkupRun::Kind kind;
};

const std::array<MentionTag, 2> kMentionTags {{
    {QLatin1String("<m user=\""), MarkupRun::Kind::UserMention},
    {QLatin1String("<m bot=\""), MarkupRun::Kind::BotMention},
}};

const QLatin1String kMentionEnd("</m>");
const QLatin1String kEmojiStart("<e code=\"");
const QLatin1String kEmojiEnd("</e>");

QString Unescaped(QStringView text)
{
    QString result;
    result.reserve(static_cast<int>(text.size()));
    while (!text.isEmpty()) {
        QChar character = text.front();
        qsizetype length = 1;
        if (character == QLatin1Char('&')) {
            for (const Entity& entity : kEntities) {
                if (text.startsWith(entity.name)) {
                    character = entity.character;
                    length = entity.name.size();
                    break;
                }
            }
        }
        result.append(character);
        text = text.mid(length);
    }
    return result;
}

// Checks the digits itself, because QStringView::toLongLong() also accepts "+1"
// and " 1".
std::optional<qint64> DecimalNumber(QStringView digits)
{
    const QStringView unsignedDigits = digits.startsWith(QLatin1Char('-')) ? digits.mid(1) : digits;
    for (const QChar digit : unsignedDigits) {
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9'))
            return std::nullopt;
    }
    bool isNumber = false;
    const qint64 number = digits.toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

class Reader {
public:
    explicit Reader(QStringView text)
        : text_(text)
    {
    }

    std::vector<MarkupRun> Runs()
    {
        while (at_ < text_.size()) {
            if (text_[at_] != QLatin1Char('<') || !ReadElement())
                ++at_;
        }
        AddTextUntil(at_);
        return std::move(runs_);
    }

private:
    bool ReadElement()
    {
        const qsizetype start = at_;
        std::optional<MarkupRun> run = ReadMention();
        if (!run) {
            at_ = start;
            run = ReadEmoji();
        }
        if (!run) {
            at_ = start;
            return false;
        }
        const qsizetype end = at_;
        AddTextUntil(start);
        runs_.push_back(std::move(*run));
        at_ = textStart_ = end;
        return true;
    }

    std::optional<MarkupRun> ReadMention()
    {
        for (const MentionTag& tag : kMentionTags) {
            if (!Skip(tag.start))
                continue;
            const auto number = DecimalNumber(ReadAttribute(kMaximumNumberLength));
            if (!number || !Skip(QLatin1String("\">")))
                return std::nullopt;
            const QStringView name = ReadContent();
            if (name.isEmpty() || !Skip(kMentionEnd))
                return std::nullopt;
            return MarkupRun {tag.kind, Unescaped(name), *number, {}};
        }
        return std::nullopt;
    }

    std::optional<MarkupRun> ReadEmoji()
    {
        if (!Skip(kEmojiStart))
            return std::nullopt;
        const auto emoji = EmojiCode::Read(ReadAttribute(EmojiCode::kMaximumNameLength));
        if (!emoji)
            return std::nullopt;
        if (!Skip(QLatin1String("\"/>"))) {
            if (!Skip(QLatin1String("\">")))
                return std::nullopt;
            ReadContent();
            if (!Skip(kEmojiEnd))
                return std::nullopt;
        }
        return MarkupRun {MarkupRun::Kind::Emoji, emoji->Characters(), 0, emoji->Name()};
    }

    bool Skip(QLatin1String expected)
    {
        if (!text_.mid(at_).startsWith(expected))
            return false;
        at_ += expected.size();
        return true;
    }

    // A longer one cannot be valid, so the rest of it is not read.
    QStringView ReadAttribute(int maximumLength)
    {
        const qsizetype start = at_;
        while (at_ < text_.size() && at_ - start < maximumLength && text_[at_] != QLatin1Char('"'))
            ++at_;
        return text_.mid(start, at_ - start);
    }

    // Reads up to the next "<". If that is not the tag that ends the element, the
    // element is text, and reading continues after its own "<". So nothing is
    // read more than twice.
    QStringView ReadContent()
    {
        const qsizetype start = at_;
        while (at_ < text_.size() && text_[at_] != QLatin1Char('<'))
            ++at_;
        return text_.mid(start, at_ - start);
    }

    void AddTextUntil(qsizetype end)
    {
        if (end > textStart_)
            runs_.push_back(
                {MarkupRun::Kind::Text, Unescaped(text_.mid(textStart_, end - textStart_)), 0, {}});
    }

    const QStringView text_;
    qsizetype at_ = 0;
    // The start of the text that is not in a run yet.
    qsizetype textStart_ = 0;
    std::vector<MarkupRun> runs_;
};

} // namespace

bool MayHaveMarkup(const QString& text)
{
    return text.contains(QLatin1Char('<')) || text.contains(QLatin1Char('&'));
}

std::vector<MarkupRun> ReadMarkup(const QString& text)
{
    return Reader(text).Runs();
}

} // namespace kestro
