#include "check/Losses.h"

namespace plix::tool {

void Losses::addValue(std::size_t finding)
{
    losses_[finding];
}

void Losses::add(std::size_t finding, const QString& name, bool isImportant)
{
    Loss& loss = losses_[finding];
    ++loss.count;
    if (isImportant)
        loss.names.prepend(name);
    else
        loss.names.append(name);
}

void Losses::describe(Findings& findings) const
{
    for (const auto& [finding, loss] : losses_)
        findings[finding].message += QStringLiteral("; lost: ") + textOf(loss);
}

QString Losses::textOf(const Loss& loss)
{
    constexpr int kNamed = 3;
    const QStringList names = loss.names.mid(0, kNamed);
    const QString list = names.join(QStringLiteral(", "));
    if (loss.count > names.size())
        return QStringLiteral("the %1 keys after it, among them %2").arg(loss.count).arg(list);
    if (loss.count > 0)
        return QStringLiteral("what is read after it: %1").arg(list);
    return QStringLiteral("the value");
}

} // namespace plix::tool
