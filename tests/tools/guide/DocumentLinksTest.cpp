// The links of the documents lead to files and headings that exist.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace plix::test {
namespace {

const QString kFence = QStringLiteral("```");

QStringList documents()
{
    QStringList paths;
    for (const char* const folder : {PLIX_SOURCE, PLIX_DOCS}) {
        const QDir dir(QString::fromLatin1(folder));
        for (const QString& name : dir.entryList({QStringLiteral("*.md")}))
            paths.append(dir.filePath(name));
    }
    return paths;
}

// The lines outside of code.
QStringList linesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QStringList lines;
    bool isCode = false;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        if (line.trimmed().startsWith(kFence))
            isCode = !isCode;
        else if (!isCode)
            lines.append(line);
    }
    return lines;
}

// As web sites that show Markdown name headings.
QString anchorOf(QString heading)
{
    heading = heading.toLower().trimmed();
    heading.remove(QRegularExpression(QStringLiteral("[^\\w\\- ]")));
    return heading.replace(QLatin1Char(' '), QLatin1Char('-'));
}

QStringList anchorsOf(const QString& path)
{
    static const QRegularExpression heading(QStringLiteral("^#+ (.*)$"));
    QStringList anchors;
    for (const QString& line : linesOf(path)) {
        const auto match = heading.match(line);
        if (match.hasMatch())
            anchors.append(anchorOf(match.captured(1)));
    }
    return anchors;
}

// The links and pictures of a document, but those to the web.
QStringList linksOf(const QString& path)
{
    static const QRegularExpression link(
        QStringLiteral("\\]\\(([^)\\s]+)\\)|(?:src|href)=\"([^\"]+)\""));
    QStringList links;
    // A link may be broken into two lines.
    for (auto matches = link.globalMatch(linesOf(path).join(QLatin1Char('\n')));
         matches.hasNext();) {
        const auto match = matches.next();
        const QString target = match.captured(1) + match.captured(2);
        if (!target.contains(QStringLiteral("://")))
            links.append(target);
    }
    return links;
}

TEST(DocumentLinks, LeadSomewhere)
{
    int count = 0;
    for (const QString& path : documents()) {
        SCOPED_TRACE(path.toStdString());
        for (const QString& link : linksOf(path)) {
            ++count;
            const QString file = link.section(QLatin1Char('#'), 0, 0);
            const QString anchor = link.section(QLatin1Char('#'), 1);
            const QString target = file.isEmpty() ? path : QFileInfo(path).dir().filePath(file);
            EXPECT_TRUE(QFileInfo::exists(target)) << link.toStdString();
            EXPECT_TRUE(anchor.isEmpty() || anchorsOf(target).contains(anchor))
                << link.toStdString();
        }
    }
    EXPECT_GT(count, 100);
}

} // namespace
} // namespace plix::test
