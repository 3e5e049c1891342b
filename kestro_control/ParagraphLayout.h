#pragma once

#include <QTextLayout>

#include <memory>

class QFont;
class QTextOption;

namespace kestro {

struct ParagraphSource;

// A paragraph that is laid out exactly as a document would do it. Its text is shaped
// once; breaking it into lines again, in another width, only takes a small part of
// that time.
class ParagraphLayout {
public:
    // `font`: that of text without a format. `option`: alignment, direction and wrap
    // mode of the whole text.
    ParagraphLayout(const ParagraphSource& source, const QFont& font, const QTextOption& option);

    // Returns the height of the lines. A negative width: lines break at separators
    // only.
    qreal BreakLines(qreal width);

    // The direction in which the paragraph reads.
    Qt::LayoutDirection Direction() const;

    // The layout has the lines.
    QTextLayout* Layout() const { return layout_.get(); }

private:
    void Shape();
    bool StaysInOneLine(qreal width) const;
    void FitLine(QTextLine& line, qreal width);
    void SetWrapMode(QTextOption::WrapMode mode);

    std::unique_ptr<QTextLayout> layout_;
    QTextOption::WrapMode wrapMode_;
    bool isShaped_ = false;
    // Of the lines.
    qreal height_ = 0;
};

} // namespace kestro
