#include "TextReport.h"

#include "Row.h"
#include "Summary.h"

#include <cstdio>

namespace bench {
namespace {

constexpr int titleWidth = 22;
constexpr int numberWidth = 11;

QString cell(const QString& text)
{
    return text.rightJustified(numberWidth);
}

QString cell(const std::optional<double>& value, int decimals)
{
    return cell(value ? QString::number(*value, 'f', decimals) : QStringLiteral("-"));
}

std::optional<double> ratioOf(const Row& row, const CardResult& card)
{
    const auto ours = row.value(card.ours(), card);
    const auto limit = row.value(card.limit(), card);
    if (!ours || !limit || *limit <= 0)
        return std::nullopt;
    return *ours / *limit;
}

} // namespace

TextReport::TextReport()
    : out_(stdout)
{
}

void TextReport::writeHead(int rounds)
{
    out_ << "Times are microseconds of thread CPU time, medians of " << rounds
         << " lives. The lives of\nall ways to show a card alternate at random."
         << " Bytes are usable bytes of malloc's blocks.\n";
    out_.flush();
}

void TextReport::writeTitles(const CardResult& card)
{
    out_ << '\n'
         << QStringLiteral("%1 (%2 elements)\n")
                .arg(QString::fromStdString(card.name))
                .arg(card.elements)
         << QString(titleWidth, QLatin1Char(' '));
    for (const WayResult& way : card.ways) {
        out_ << cell(QString::fromStdString(way.name));
        if (&way == &card.limit())
            out_ << cell(QStringLiteral("ratio"));
    }
    out_ << '\n';
}

void TextReport::writeCard(const CardResult& card)
{
    writeTitles(card);
    for (const Row& row : allRows()) {
        out_ << QString::fromLatin1(row.title).leftJustified(titleWidth);
        for (const WayResult& way : card.ways) {
            out_ << cell(row.value(way, card), row.decimals);
            if (&way == &card.limit())
                out_ << cell(ratioOf(row, card), 2);
        }
        out_ << '\n';
    }
    writeWarnings(card);
    out_.flush();
}

void TextReport::writeWarnings(const CardResult& card)
{
    for (const WayResult& way : card.ways) {
        if (!way.looksLikeOurs())
            out_ << "! " << way.name.c_str() << " looks different here, so it is no measure.\n";
    }
}

void TextReport::writeSummary(const std::vector<CardResult>& cards)
{
    out_ << "\nOurs in units of the limit; refresh in percent of reading and building\n"
         << QString(titleWidth + 6, QLatin1Char(' '));
    for (const SummaryColumn& column : summaryColumns())
        out_ << cell(QString::fromLatin1(column.title));
    out_ << '\n';
    for (const SummaryLine& line : summaryOf(cards)) {
        out_ << QString::fromStdString(line.title).leftJustified(titleWidth + 6);
        for (std::size_t i = 0; i < line.values.size(); ++i)
            out_ << cell(line.values[i], summaryColumns()[i].decimals);
        out_ << '\n';
    }
    out_.flush();
}

} // namespace bench
