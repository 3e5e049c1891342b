#pragma once

#include "check/Finding.h"

#include <QByteArray>
#include <QString>

namespace plix::tool {

// Walks through a JSON text, and notes what is wrong with it.
class JsonScanner {
public:
    struct Stop { }; // thrown at an error that makes the rest unreadable

    JsonScanner(const QByteArray& text, Findings& findings);

    int offset() const { return offset_; }
    bool atEnd() const { return offset_ >= text_.size(); }
    // '\0' at the end.
    char current() const { return atEnd() ? '\0' : text_.at(offset_); }
    QByteArray next(int length) const { return text_.mid(offset_, length); }
    // What is between this offset and the current one.
    QByteArray since(int begin) const { return text_.mid(begin, offset_ - begin); }

    void advance(int length = 1) { offset_ += length; }
    void goTo(int offset) { offset_ = offset; }
    // Whether this is the current character, which is skipped then.
    bool skip(char c);
    void skipBlanksAndComments();

    void note(Rule rule, TextRange range, const QString& message);
    [[noreturn]] void stop(TextRange range, const QString& message);
    [[noreturn]] void stopHere(const QString& needed);

private:
    const QByteArray& text_;
    Findings& findings_;
    int offset_ = 0;
};

} // namespace plix::tool
