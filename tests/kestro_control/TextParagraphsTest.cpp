// The lines of a text that has no document, against those of a document.
#include "RandomTexts.h"

#include "DocumentText.h"
#include "TextParagraphs.h"
#include "TextWork.h"

#include <gtest/gtest.h>

#include <QTextCursor>
#include <QTextDocument>

using kestro::DocumentText;
using kestro::LaidOutParagraph;
using kestro::LaidOutText;
using kestro::TextParagraphs;
using kestro::TextRuns;
using kestro::WorkSoFar;

namespace {

// The same text with and without a document.
struct DocumentTwins {
    DocumentTwins() { document.setDocumentMargin(0); }

    void append(const QString& text, const QTextCharFormat& format = {})
    {
        if (!paragraphs.Runs().CanAppend(text, format))
            return;
        paragraphs.Append(text, format);
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(text, format);
    }

    void setFont(const QFont& font)
    {
        if (!TextRuns::CanHave(font))
            return;
        paragraphs.SetFont(font);
        document.setDefaultFont(font);
    }

    void setOption(QTextOption option)
    {
        option.setTabStopDistance(paragraphs.Option().tabStopDistance());
        if (option.alignment() == Qt::AlignJustify)
            option.setAlignment(Qt::AlignLeft);
        paragraphs.SetOption(option);
        document.setDefaultTextOption(option);
    }

    void setWidth(qreal width)
    {
        paragraphs.SetWidth(width == 0 ? 1 : width);
        document.setTextWidth(width == 0 ? 1 : width);
    }

    TextParagraphs paragraphs;
    QTextDocument document;
};

void expectSameLine(const QTextLine& line, const QTextLine& expected)
{
    EXPECT_EQ(line.textStart(), expected.textStart());
    EXPECT_EQ(line.textLength(), expected.textLength());
    EXPECT_EQ(line.position(), expected.position());
    EXPECT_EQ(line.width(), expected.width());
    EXPECT_EQ(line.naturalTextRect(), expected.naturalTextRect());
    EXPECT_EQ(line.horizontalAdvance(), expected.horizontalAdvance());
    EXPECT_EQ(line.ascent(), expected.ascent());
    EXPECT_EQ(line.descent(), expected.descent());
    EXPECT_EQ(line.leading(), expected.leading());
    for (int at = line.textStart(); at < line.textStart() + line.textLength(); ++at)
        EXPECT_EQ(line.cursorToX(at), expected.cursorToX(at)) << "character " << at;
}

void expectSameParagraph(const LaidOutParagraph& paragraph, const LaidOutParagraph& expected)
{
    EXPECT_EQ(paragraph.text, expected.text);
    EXPECT_EQ(paragraph.position, expected.position);
    EXPECT_EQ(paragraph.isLast, expected.isLast);
    EXPECT_EQ(paragraph.origin, expected.origin);
    EXPECT_EQ(paragraph.right, expected.right);
    const QTextOption option = paragraph.layout->textOption();
    EXPECT_EQ(option.alignment(), expected.layout->textOption().alignment());
    EXPECT_EQ(option.textDirection(), expected.layout->textOption().textDirection());
    if (!paragraph.formats.isEmpty()) {
        EXPECT_EQ(paragraph.formats, expected.formats);
    }
    ASSERT_EQ(paragraph.layout->lineCount(), expected.layout->lineCount());
    for (int i = 0; i < paragraph.layout->lineCount(); ++i) {
        SCOPED_TRACE("line " + std::to_string(i));
        expectSameLine(paragraph.layout->lineAt(i), expected.layout->lineAt(i));
    }
}

void expectSameLines(DocumentTwins& twins)
{
    twins.paragraphs.LayOut();
    const DocumentText document(twins.document);
    const LaidOutText& paragraphs = twins.paragraphs;
    EXPECT_EQ(paragraphs.IsEmpty(), document.IsEmpty());
    EXPECT_EQ(paragraphs.Width(), document.Width());
    EXPECT_EQ(paragraphs.Font(), document.Font());
    EXPECT_EQ(twins.paragraphs.Runs().PlainText(), twins.document.toPlainText());
    ASSERT_EQ(paragraphs.ParagraphCount(), document.ParagraphCount());
    for (int i = 0; i < document.ParagraphCount(); ++i) {
        SCOPED_TRACE("paragraph " + std::to_string(i));
        expectSameParagraph(paragraphs.Paragraph(i), document.Paragraph(i));
    }
}

QTextOption randomOption(RandomTexts& random)
{
    QTextOption option;
    option.setWrapMode(random.wrapMode());
    option.setAlignment(random.alignment());
    option.setTextDirection(random.direction());
    return option;
}

void changeAnything(DocumentTwins& twins, RandomTexts& random)
{
    switch (random.number(8)) {
    case 0:
        twins.setFont(random.font());
        break;
    case 1:
        twins.setOption(randomOption(random));
        break;
    case 2:
        twins.append(random.text(), random.format());
        break;
    case 3:
        twins.append(random.text());
        break;
    default:
        twins.setWidth(random.width());
        break;
    }
}

class TextParagraphsLikeDocument : public testing::TestWithParam<int> { };

TEST_P(TextParagraphsLikeDocument, HaveTheSameLinesAfterAnyChanges)
{
    RandomTexts random(static_cast<unsigned>(GetParam()));
    for (int text = 0; text < 40 && !HasFailure(); ++text) {
        SCOPED_TRACE("text " + std::to_string(text));
        DocumentTwins twins;
        twins.setFont(random.font());
        twins.append(random.text(), random.oneIn(2) ? random.format() : QTextCharFormat());
        for (int step = 0; step < 8 && !HasFailure(); ++step) {
            SCOPED_TRACE("step " + std::to_string(step) + " of "
                         + twins.document.toPlainText().toStdString());
            expectSameLines(twins);
            changeAnything(twins, random);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TextParagraphsLikeDocument, testing::Range(1, 9));

TEST(TextParagraphs, AreShapedOnceForAllWidths)
{
    TextParagraphs paragraphs;
    paragraphs.Append(QStringLiteral("one two three\nfour five six"), {});
    const int before = WorkSoFar().shapings;
    for (const qreal width : {-1.0, 50.0, 20.0, 1e6}) {
        paragraphs.SetWidth(width);
        paragraphs.LayOut();
    }
    EXPECT_EQ(WorkSoFar().shapings - before, 2);
}

TEST(TextParagraphs, AreNotBrokenAgainIfTheyAreOneLineThatFits)
{
    TextParagraphs paragraphs;
    paragraphs.Append(QStringLiteral("one two"), {});
    paragraphs.LayOut();
    const int before = WorkSoFar().lineBreakings;
    for (const qreal width : {200.0, 1000.0, 150.0}) {
        paragraphs.SetWidth(width);
        paragraphs.LayOut();
        EXPECT_EQ(paragraphs.Paragraph(0).layout->lineAt(0).width(), width);
    }
    EXPECT_EQ(WorkSoFar().lineBreakings, before);
    paragraphs.SetWidth(20);
    paragraphs.LayOut();
    EXPECT_EQ(WorkSoFar().lineBreakings, before + 1);
}

TEST(TextParagraphs, AreNotLaidOutAgainWithoutAChange)
{
    TextParagraphs paragraphs;
    paragraphs.Append(QStringLiteral("one two three"), {});
    paragraphs.LayOut();
    const int before = WorkSoFar().lineBreakings;
    paragraphs.LayOut();
    paragraphs.SetTop(10);
    paragraphs.LayOut();
    EXPECT_EQ(WorkSoFar().lineBreakings, before);
}

} // namespace
