#include "JsonReport.h"

#include "Fail.h"
#include "Row.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace bench {
namespace {

QJsonObject objectOf(const WayResult& way, const CardResult& card)
{
    QJsonObject object {{QStringLiteral("way"), QString::fromStdString(way.name)}};
    for (const Row& row : allRows()) {
        if (const auto value = row.value(way, card))
            object.insert(QString::fromLatin1(row.title), *value);
    }
    return object;
}

QJsonObject objectOf(const CardResult& card)
{
    QJsonArray ways;
    for (const WayResult& way : card.ways)
        ways.append(objectOf(way, card));
    return {{QStringLiteral("card"), QString::fromStdString(card.name)},
            {QStringLiteral("elements"), card.elements},
            {QStringLiteral("ways"), ways}};
}

} // namespace

void writeJsonReport(const QString& path, int rounds, const std::vector<CardResult>& cards)
{
    QJsonArray list;
    for (const CardResult& card : cards)
        list.append(objectOf(card));
    const QJsonObject report {
        {QStringLiteral("times"), QStringLiteral("medians, microseconds of thread CPU time")},
        {QStringLiteral("rounds"), rounds},
        {QStringLiteral("cards"), list}};
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(report).toJson()) < 0)
        fail(path + QStringLiteral(" cannot be written"));
}

} // namespace bench
