#include "check/Glyphs.h"

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QPair>
#include <QString>
#include <QTextLayout>

namespace plix::tool {
namespace {

constexpr uint kLastAscii = 0x7F;
constexpr int kMaximumReported = 10;

bool hasGlyph(const QString& character, const QFont& font)
{
    QTextLayout layout(character, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns()) {
        if (run.glyphIndexes().contains(0))
            return false;
    }
    return true;
}

// To ask the fonts takes time, and cards repeat their characters.
bool isKnownGlyph(uint character, const QFont& font)
{
    static QHash<QPair<QString, uint>, bool> known;
    const QPair<QString, uint> key(font.family(), character);
    const auto found = known.constFind(key);
    if (found != known.constEnd())
        return *found;
    const bool has = hasGlyph(QString::fromUcs4(&character, 1), font);
    known.insert(key, has);
    return has;
}

// Marks and invisible characters are shown with the ones before them.
bool standsAlone(uint character)
{
    return character > kLastAscii && QChar::isPrint(character) && !QChar::isMark(character)
        && QChar::category(character) != QChar::Other_Format && !QChar::isSpace(character);
}

} // namespace

QString missingGlyphs(const QString& text, const QFont& font)
{
    QString missing;
    for (const uint character : text.toUcs4()) {
        const QString shown = QString::fromUcs4(&character, 1);
        if (missing.size() < kMaximumReported && standsAlone(character)
            && !isKnownGlyph(character, font) && !missing.contains(shown))
            missing += shown;
    }
    return missing;
}

} // namespace plix::tool
