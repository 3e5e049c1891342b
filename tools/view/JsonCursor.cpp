#include "view/JsonCursor.h"

#include <algorithm>

namespace plix::tool {
namespace {

bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || QStringLiteral("_-+.#%$").contains(c);
}

int skipWord(const QString& text, int offset)
{
    while (offset < text.size() && isWordCharacter(text.at(offset)))
        ++offset;
    return offset;
}

int skipBlanks(const QString& text, int offset)
{
    while (offset < text.size() && text.at(offset).isSpace())
        ++offset;
    return offset;
}

// Walks through a text from its beginning to its end. It goes on behind the position,
// because the type of the component there may follow.
class Scanner {
public:
    Scanner(const QString& text, int position)
        : text_(text)
        , position_(position)
    {
    }

    JsonCursor scan();

private:
    enum class Needed { Name, Colon, Value, Comma };

    struct Open {
        std::size_t scope; // in scopes_
        Needed needed;
        QString name;
    };

    void token();
    void string();
    void word();
    void structure(QChar c);
    void open(bool isArray);
    void close();
    int skipComment() const;
    int stringEnd() const;
    // Takes a name or a word that is a value.
    void take(const QString& text);
    // Notes what may be written instead of this part of the text.
    void look(int begin, int end, bool isString);
    bool isInString(int end) const;

    const QString& text_;
    int position_;
    int offset_ = 0;
    bool isFound_ = false;
    JsonCursor cursor_;
    std::vector<std::size_t> enclosing_; // of the position
    std::vector<JsonScope> scopes_;
    std::vector<Open> open_;
};

JsonCursor Scanner::scan()
{
    while (offset_ < text_.size())
        token();
    if (!isFound_)
        look(position_, position_, false);
    for (const std::size_t scope : enclosing_)
        cursor_.scopes.push_back(scopes_[scope]);
    return cursor_;
}

void Scanner::token()
{
    const int before = offset_;
    offset_ = skipBlanks(text_, offset_);
    const int comment = skipComment();
    if (comment > offset_) {
        const bool isInside = position_ > offset_ && position_ < comment;
        isFound_ = isFound_ || isInside;
        offset_ = comment;
        return;
    }
    const bool isWord = offset_ < text_.size() && isWordCharacter(text_.at(offset_));
    // Of two tokens that touch each other at the position, the word counts.
    if (position_ >= before && (isWord ? position_ < offset_ : position_ <= offset_))
        look(position_, position_, false);
    if (offset_ >= text_.size())
        return;
    const QChar c = text_.at(offset_);
    if (c == QLatin1Char('"'))
        string();
    else if (isWord)
        word();
    else
        structure(c);
}

void Scanner::string()
{
    const int end = stringEnd();
    if (isInString(end))
        look(offset_, end, true);
    QString content = text_.mid(offset_ + 1, end - offset_ - 1);
    if (content.endsWith(QLatin1Char('"')))
        content.chop(1);
    offset_ = end;
    take(content);
}

// While a string is being written, it has no end yet, or ends at the next quote. So if
// the position is behind a word in it, the word is all of it.
int Scanner::stringEnd() const
{
    int end = offset_ + 1;
    const auto isEnd = [this](int at) {
        const QChar c = text_.at(at);
        return c == QLatin1Char('"') || c == QLatin1Char('\n') || c == QChar::ParagraphSeparator;
    };
    while (end < text_.size() && !isEnd(end))
        end += text_.at(end) == QLatin1Char('\\') ? 2 : 1;
    end = std::min(end, text_.size());
    const bool isClosed = end < text_.size() && text_.at(end) == QLatin1Char('"');
    if (isClosed)
        ++end;
    const bool isInside = position_ > offset_ && position_ <= end;
    const int wordEnd = skipWord(text_, offset_ + 1);
    const bool isWord = isClosed && wordEnd == end - 1;
    if (!isInside || isWord || position_ > wordEnd)
        return end;
    return wordEnd;
}

void Scanner::word()
{
    const int end = skipWord(text_, offset_);
    if (position_ >= offset_ && position_ <= end)
        look(offset_, end, false);
    const QString content = text_.mid(offset_, end - offset_);
    offset_ = end;
    take(content);
}

bool Scanner::isInString(int end) const
{
    const bool isClosed = end - offset_ > 1 && text_.at(end - 1) == QLatin1Char('"');
    return position_ > offset_ && (isClosed ? position_ < end : position_ <= end);
}

void Scanner::structure(QChar c)
{
    ++offset_;
    if (c == QLatin1Char('{') || c == QLatin1Char('['))
        return open(c == QLatin1Char('['));
    if (c == QLatin1Char('}') || c == QLatin1Char(']'))
        return close();
    if (open_.empty())
        return;
    Open& top = open_.back();
    const bool isArray = scopes_[top.scope].isArray;
    if (c == QLatin1Char(':') && !isArray)
        top.needed = Needed::Value;
    if (c == QLatin1Char(','))
        top.needed = isArray ? Needed::Value : Needed::Name;
}

void Scanner::open(bool isArray)
{
    JsonScope scope;
    scope.isArray = isArray;
    if (!open_.empty()) {
        Open& around = open_.back();
        const JsonScope& outer = scopes_[around.scope];
        scope.key = outer.isArray ? outer.key : around.name;
        around.needed = Needed::Comma;
    }
    scopes_.push_back(scope);
    open_.push_back({scopes_.size() - 1, isArray ? Needed::Value : Needed::Name, {}});
}

void Scanner::close()
{
    if (!open_.empty())
        open_.pop_back();
}

void Scanner::take(const QString& text)
{
    if (open_.empty())
        return;
    Open& top = open_.back();
    JsonScope& scope = scopes_[top.scope];
    if (top.needed == Needed::Value) {
        const bool isType = top.name == QLatin1String("type") && scope.type.isEmpty();
        if (isType && !scope.isArray)
            scope.type = text;
        top.needed = Needed::Comma;
        return;
    }
    // Also if the comma before it is missing.
    top.name = text;
    top.needed = Needed::Colon;
    scope.names.append(text);
}

int Scanner::skipComment() const
{
    const auto startsWith = [this](const char* mark) {
        return text_.midRef(offset_, 2) == QLatin1String(mark);
    };
    if (startsWith("//")) {
        const int end = text_.indexOf(QLatin1Char('\n'), offset_);
        return end < 0 ? text_.size() : end;
    }
    if (startsWith("/*")) {
        const int end = text_.indexOf(QLatin1String("*/"), offset_ + 2);
        return end < 0 ? text_.size() : end + 2;
    }
    return offset_;
}

void Scanner::look(int begin, int end, bool isString)
{
    if (isFound_)
        return;
    isFound_ = true;
    if (open_.empty())
        return;
    const Open& top = open_.back();
    // Also if the comma before it is missing.
    const bool isName = top.needed == Needed::Name || (isString && top.needed == Needed::Comma);
    if (!isName && top.needed != Needed::Value)
        return;
    cursor_.place = isName ? JsonCursor::Place::Name : JsonCursor::Place::Value;
    cursor_.begin = begin;
    cursor_.end = end;
    const int wordBegin = begin + (isString ? 1 : 0);
    cursor_.word = text_.mid(wordBegin, end - wordBegin).remove(QLatin1Char('"'));
    cursor_.prefix = text_.mid(wordBegin, position_ - wordBegin);
    const int next = skipBlanks(text_, end);
    cursor_.hasColon = next < text_.size() && text_.at(next) == QLatin1Char(':');
    cursor_.name = isName ? QString() : top.name;
    for (const Open& each : open_)
        enclosing_.push_back(each.scope);
}

} // namespace

JsonCursor jsonCursorAt(const QString& text, int position)
{
    return Scanner(text, position).scan();
}

} // namespace plix::tool
