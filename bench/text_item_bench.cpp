// What a TextItem costs besides the text engine's own work.
#include "Compare.h"

#include <kestro_control/TextItem.h>

#include <QApplication>
#include <QGraphicsTextItem>
#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr qreal width = 180;

const QString sentence = QStringLiteral("Dinner is ready at seven, please bring some juice.");

QFont textFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(16);
    return font;
}

void fill(TextItem& item, const QString& text)
{
    item.setFont(textFont());
    item.SetFixedItemWidth(width);
    item.InsertRichText(text, true);
}

void makeItem()
{
    TextItem item;
    fill(item, sentence);
    benchmark::DoNotOptimize(item.boundingRect().height());
}

void makeDocument()
{
    QTextDocument document;
    document.setDefaultFont(textFont());
    document.setTextWidth(width);
    QTextCursor(&document).insertText(sentence);
    benchmark::DoNotOptimize(document.size().height());
}

// The cheapest order of the same steps.
void makeDocumentTextFirst()
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
    document.setDefaultFont(textFont());
    QTextCursor(&document).insertText(sentence);
    document.setTextWidth(width);
    benchmark::DoNotOptimize(document.size().height());
}

void makeGraphicsTextItem()
{
    QGraphicsTextItem item;
    item.setFont(textFont());
    item.setTextWidth(width);
    item.setPlainText(sentence);
    benchmark::DoNotOptimize(item.boundingRect().height());
}

void makeAgainstDocument(benchmark::State& state)
{
    compare(state, makeItem, makeDocument);
}
BENCHMARK(makeAgainstDocument)->UseManualTime();

void makeAgainstDocumentTextFirst(benchmark::State& state)
{
    compare(state, makeItem, makeDocumentTextFirst);
}
BENCHMARK(makeAgainstDocumentTextFirst)->UseManualTime();

void makeAgainstGraphicsTextItem(benchmark::State& state)
{
    compare(state, makeItem, makeGraphicsTextItem);
}
BENCHMARK(makeAgainstGraphicsTextItem)->UseManualTime();

class Canvas {
public:
    void Paint(TextItem& item)
    {
        QStyleOptionGraphicsItem option;
        option.exposedRect = item.boundingRect();
        item.paint(&painter_, &option, nullptr);
    }

private:
    QImage image_ {400, 1200, QImage::Format_ARGB32_Premultiplied};
    QPainter painter_ {&image_};
};

// Setting a highlight and painting it, against laying out anew and painting.
void highlightAgainstLayout(benchmark::State& state)
{
    TextItem item;
    fill(item, sentence.repeated(20));
    Canvas canvas;
    bool on = false;
    qreal other = 0;
    compare(
        state,
        [&] {
            on = !on;
            const QStringList words {on ? QStringLiteral("ready") : QStringLiteral("bring")};
            item.HighlightText(words, Qt::yellow);
            canvas.Paint(item);
        },
        [&] {
            other = 1 - other;
            item.SetFixedItemWidth(width + other);
            canvas.Paint(item);
        });
}
BENCHMARK(highlightAgainstLayout)->UseManualTime();

// As many matches in one line as the display limit lets there be.
void highlightOfLetters(benchmark::State& state)
{
    TextItem item;
    item.SetWrapMode(QTextOption::NoWrap);
    fill(item, QStringLiteral("a b ").repeated(250000));
    Canvas canvas;
    bool on = false;
    for (auto _ : state) {
        on = !on;
        item.HighlightText({on ? QStringLiteral("a") : QStringLiteral("b")}, Qt::yellow);
        canvas.Paint(item);
    }
}
BENCHMARK(highlightOfLetters)->Unit(benchmark::kMillisecond);

// Painting again, against the document's own painting.
void repaintAgainstDocument(benchmark::State& state)
{
    TextItem item;
    fill(item, sentence.repeated(20));
    QTextDocument document;
    document.setDefaultFont(textFont());
    QTextCursor(&document).insertText(sentence.repeated(20));
    document.setTextWidth(width);
    Canvas canvas;
    QImage image(400, 1200, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    compare(
        state, [&] { canvas.Paint(item); }, [&] { document.drawContents(&painter); });
}
BENCHMARK(repaintAgainstDocument)->UseManualTime();

void elide(benchmark::State& state)
{
    for (auto _ : state) {
        TextItem item;
        item.SetElide(true);
        item.SetMaxLineCount(2);
        fill(item, sentence.repeated(4));
        benchmark::DoNotOptimize(item.IsElided());
    }
}
BENCHMARK(elide);

struct HarmfulText {
    const char* name;
    QString text;
};

// As long as these texts may be, the display limit keeps them short.
void harmful(benchmark::State& state, const QString& text)
{
    for (auto _ : state) {
        TextItem item;
        fill(item, text);
        item.SetFixedItemWidth(30);
        benchmark::DoNotOptimize(item.boundingRect().height());
    }
}

void registerHarmful()
{
    constexpr int million = 1'000'000;
    const HarmfulText texts[] = {
        {"unbroken", QString(million, QLatin1Char('a'))},
        {"alternating", QString::fromUtf8("a\u05e9").repeated(million / 2)},
        {"marks", QLatin1Char('a') + QString(million / 10, QChar(0x301))},
        {"nul", QString(million, QChar(0))},
        {"surrogates", QString(million, QChar(0xD83D))},
        {"lines", QString(million, QLatin1Char('\n'))},
        {"words", QStringLiteral("word ").repeated(million / 5)},
    };
    for (const HarmfulText& row : texts) {
        const std::string name = std::string("harmful/") + row.name;
        benchmark::RegisterBenchmark(name.c_str(), harmful, row.text)
            ->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", PLIX_BENCH_FONTS_CONF);
    QApplication application(argc, argv);
    registerHarmful();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
