#include "soak/SoakCard.h"

#include <QString>

namespace plix::test {
namespace {

// %1: the number of the card, %2: a colour.
constexpr char kCard[] = R"({"type": "bubble", "size": "kilo",
  "styles": {"footer": {"separator": true}},
  "body": {"type": "box", "layout": "vertical", "spacing": "md", "contents": [
    {"type": "text", "text": "Order %1", "weight": "bold", "color": "%2"},
    {"type": "text", "text": "Dinner for table %1 is ready at seven, please bring some juice.",
     "wrap": true},
    {"type": "text", "contents": [{"type": "span", "text": "No. %1 "},
      {"type": "span", "text": "paid", "weight": "bold", "color": "%2"}]},
    {"type": "text", "text": "<m user=\"%1\">@Guest %1</m> sits at the window"},
    {"type": "box", "layout": "horizontal", "spacing": "sm", "contents": [
      {"type": "image", "url": "badge.png", "size": "xxs", "backgroundColor": "%2"},
      {"type": "box", "layout": "baseline", "contents": [
        {"type": "icon", "url": "ring.gif"}, {"type": "text", "text": "Ring %1"}]}]},
    {"type": "separator", "color": "%2"},
    {"type": "spacer"}]},
  "footer": {"type": "box", "layout": "horizontal", "contents": [
    {"type": "filler"},
    {"type": "button", "style": "primary", "action": {"type": "uri", "label": "Open %1",
     "uri": "https://example.com/orders/%1"}}]}})";

} // namespace

std::string soakCard(int n)
{
    const QString color =
        QStringLiteral("#%1").arg(n % 0x1000000, 6, 16, QLatin1Char('0')).toUpper();
    return QString::fromLatin1(kCard).arg(QString::number(n), color).toStdString();
}

} // namespace plix::test
