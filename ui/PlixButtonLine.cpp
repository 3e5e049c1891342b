#include "ui/PlixButtonLine.h"

#include "ui/PlixPaths.h"

#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>

namespace {

constexpr double kUnlimitedWidth = 1 << 22;
// Glyphs are drawn at whole pixels.
constexpr double kLineRounding = 2;

QRectF InkOf(const QTextLine& line)
{
    QRectF ink;
    for (const QGlyphRun& run : line.glyphRuns()) {
        const QRawFont font = run.rawFont();
        const QVector<quint32> glyphs = run.glyphIndexes();
        const QVector<QPointF> positions = run.positions();
        for (int i = 0; i < glyphs.size(); ++i)
            ink |= font.boundingRect(glyphs[i]).translated(positions[i]);
    }
    return ink.adjusted(-kLineRounding, -kLineRounding, kLineRounding, kLineRounding);
}

} // namespace

PlixButtonLine::PlixButtonLine(const QString& label, const QFont& font)
    : layout_(QString(label).replace(QLatin1Char('\t'), QLatin1Char(' ')), font)
{
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::NoWrap);
    layout_.setTextOption(option);
    layout_.setCacheEnabled(true);
    layout_.beginLayout();
    QTextLine line = layout_.createLine();
    if (line.isValid()) {
        line.setLineWidth(kUnlimitedWidth);
        line.setPosition(QPointF());
        ink_ = InkOf(line);
    }
    layout_.endLayout();
}

void PlixButtonLine::Draw(QPainter& painter, const QRectF& rect) const
{
    if (layout_.lineCount() == 0)
        return;
    const QPointF position = PositionIn(rect);
    // Labels in large letters are higher than the button. Qt clips them, too, but
    // not always to the same pixels, and with soft edges like those of the plate.
    if (!rect.contains(ink_.translated(position)))
        plix::ClipToRectangle(painter, rect);
    layout_.lineAt(0).draw(&painter, position);
}

QPointF PlixButtonLine::PositionIn(const QRectF& rect) const
{
    const QTextLine line = layout_.lineAt(0);
    const double left = (rect.width() - line.horizontalAdvance()) / 2;
    const double top = (rect.height() - line.ascent() - line.descent()) / 2;
    return rect.topLeft() + QPointF(left, top);
}
