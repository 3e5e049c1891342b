#include "check/CardItem.h"

#include "check/ValueKind.h"

namespace plix::tool {

std::string_view textOf(const JsonNode& object, std::string_view key)
{
    const JsonMember* const member = object.find(key);
    return member && member->value.isString() ? std::string_view(member->value.text)
                                              : std::string_view();
}

std::string_view CardItem::text(std::string_view key) const
{
    return textOf(node, key);
}

bool CardItem::flag(std::string_view key) const
{
    const JsonMember* const member = node.find(key);
    return member && flagOf(member->value);
}

double CardItem::number(std::string_view key) const
{
    const JsonMember* const member = node.find(key);
    return member && member->value.kind == JsonNode::Kind::Number ? member->value.number : 0;
}

bool CardItem::isInRow() const
{
    const std::string_view layout = box ? box->text("layout") : std::string_view();
    return layout == "horizontal" || layout == "baseline";
}

std::vector<std::string_view> zoneNames()
{
    std::vector<std::string_view> names;
    for (const PlixFormatKey& key : BubbleFormat().keys) {
        if (key.part == PlixFormatPart::Component)
            names.push_back(key.name);
    }
    return names;
}

QString memberPath(const QString& path, std::string_view name)
{
    const QString key = QString::fromUtf8(name.data(), static_cast<int>(name.size()));
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

QString elementPath(const QString& path, int index)
{
    return path + QStringLiteral("[%1]").arg(index);
}

} // namespace plix::tool
