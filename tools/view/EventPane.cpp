#include "view/EventPane.h"

#include "view/ToolTipText.h"

#include <QTime>

#include <array>
#include <string>

namespace plix::tool {
namespace {

// A long session must not fill the memory.
constexpr int kMaximumEvents = 500;

struct TextField {
    const char* name;
    std::string ST_ACTION::*value;
};

struct LanguageField {
    const char* name;
    PlixLanguageMap ST_ACTION::*value;
};

constexpr std::array kTextFields = std::to_array<TextField>({
    {"type", &ST_ACTION::type},
    {"label", &ST_ACTION::label},
    {"text", &ST_ACTION::text},
    {"displayText", &ST_ACTION::displayText},
    {"uri", &ST_ACTION::uri},
    {"pcUri", &ST_ACTION::pcUri},
    {"webUri", &ST_ACTION::webUri},
    {"appUri", &ST_ACTION::appUri},
    {"androidUri", &ST_ACTION::androidUri},
    {"iosUri", &ST_ACTION::iosUri},
    {"pcAuthUri", &ST_ACTION::pcAuthUri},
    {"copyText", &ST_ACTION::copyText},
    {"data", &ST_ACTION::data},
    {"mode", &ST_ACTION::mode},
    {"initial", &ST_ACTION::initial},
    {"max", &ST_ACTION::max},
    {"min", &ST_ACTION::min},
});

constexpr std::array kLanguageFields = std::to_array<LanguageField>({
    {"i18nLabels", &ST_ACTION::i18nLabels},
    {"i18nTexts", &ST_ACTION::i18nTexts},
    {"i18nDisplayTexts", &ST_ACTION::i18nDisplayTexts},
});

QString now()
{
    return QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
}

} // namespace

EventPane::EventPane(QWidget* parent)
    : QTabWidget(parent)
    , clicks_(addList(QStringLiteral("Clicks"), {QStringLiteral("Field"), QStringLiteral("Value")}))
    , mentions_(
          addList(QStringLiteral("Mentions"), {QStringLiteral("Time"), QStringLiteral("Mention")}))
    , pictures_(
          addList(QStringLiteral("Pictures"), {QStringLiteral("URL"), QStringLiteral("State")}))
    , log_(addList(QStringLiteral("Log"), {QStringLiteral("Line")}))
{
}

QTreeWidget* EventPane::addList(const QString& title, const QStringList& columns)
{
    auto* const list = new QTreeWidget;
    list->setHeaderLabels(columns);
    list->setColumnWidth(0, 240);
    list->setUniformRowHeights(true);
    list->setAccessibleName(title);
    addTab(list, title);
    return list;
}

void EventPane::addRow(QTreeWidget& list, QTreeWidgetItem* row)
{
    if (list.topLevelItemCount() >= kMaximumEvents)
        delete list.takeTopLevelItem(0);
    list.addTopLevelItem(row);
    list.scrollToItem(row);
}

void EventPane::addClick(const ST_ACTION& action)
{
    auto* const click = new QTreeWidgetItem({now(), QString::fromStdString(action.type)});
    const auto add = [](QTreeWidgetItem* parent, const std::string& name,
                        const std::string& value) {
        return new QTreeWidgetItem(parent,
                                   {QString::fromStdString(name), QString::fromStdString(value)});
    };
    for (const TextField& field : kTextFields)
        add(click, field.name, action.*field.value);
    for (const LanguageField& field : kLanguageFields) {
        QTreeWidgetItem* const row = add(click, field.name, {});
        for (const auto& [language, text] : (action.*field.value).texts)
            add(row, language, text);
    }
    addRow(*clicks_, click);
    clicks_->collapseAll();
    click->setExpanded(true);
    for (int i = 0; i < click->childCount(); ++i)
        click->child(i)->setExpanded(true);
    clicks_->scrollToItem(click, QAbstractItemView::PositionAtTop);
    setCurrentWidget(clicks_);
}

void EventPane::addMention(const QString& kind, qint64 userNo)
{
    addRow(*mentions_, new QTreeWidgetItem({now(), QStringLiteral("%1 %2").arg(kind).arg(userNo)}));
    setCurrentWidget(mentions_);
}

void EventPane::setPicture(const QString& url, const QString& state)
{
    QTreeWidgetItem*& row = pictureRows_[url];
    if (!row) {
        row = new QTreeWidgetItem({url, QString()});
        pictures_->addTopLevelItem(row);
    }
    row->setText(1, state);
}

void EventPane::addLogLine(const QString& line)
{
    auto* const row = new QTreeWidgetItem({line});
    row->setToolTip(0, toolTipOf(line));
    addRow(*log_, row);
}

void EventPane::clearBuild()
{
    log_->clear();
    pictures_->clear();
    pictureRows_.clear();
}

void EventPane::clearAll()
{
    clearBuild();
    clicks_->clear();
    mentions_->clear();
}

} // namespace plix::tool
